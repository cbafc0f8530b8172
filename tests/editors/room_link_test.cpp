#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "editors/room_link/room_link_page.h"
#include "support/desk.h"

namespace pellam::editors::room_link {
namespace {

using Lines = std::vector<std::string>;

job::RoomLinkRecord& recordOf(job::RoomLinkTable& t, int input) { return t.records[static_cast<std::size_t>(input - 1)]; }

TEST(StoreRoomLinkTest, OnlyTheFirstSixteenRecordsAreSearched) {
  job::RoomLinkTable t;
  for (int input = 1; input <= 18; ++input) ASSERT_EQ(StoreRoomLink(t, input, input, 2), kLinkStored) << input;

  EXPECT_EQ(StoreRoomLink(t, 16, 7, 8), kInputAlreadyLinked);
  EXPECT_EQ(recordOf(t, 16).FirstRoom, 16) << "a refused link leaves the record";
  // Inputs 17 and 18 are never found, so a second link replaces the first.
  EXPECT_EQ(StoreRoomLink(t, 17, 7, 8), kLinkStored);
  EXPECT_EQ(StoreRoomLink(t, 18, 9, 9), kLinkStored);
  EXPECT_EQ(recordOf(t, 17).FirstRoom, 7);
  EXPECT_EQ(recordOf(t, 18).SecondRoom, 9);
}

TEST(StoreRoomLinkTest, InputZeroIsNeverStored) {
  job::RoomLinkTable t;
  EXPECT_EQ(StoreRoomLink(t, 0, 3, 4), kInputAlreadyLinked) << "an empty record holds input 0";
  for (int input = 1; input <= 16; ++input) StoreRoomLink(t, input, 1, 2);
  EXPECT_EQ(StoreRoomLink(t, 0, 3, 4), kInputAlreadyLinked) << "no record is left to match, and none belongs to it";
}

class RoomLinkPageTest : public testing::DeskTest {
 protected:
  void linkInGroupB(int input, int first, int second) {
    f.ComboBox7.select(input);
    f.ComboBox8.select(first);
    f.ComboBox9.select(second);
    f.CommandButton2.click();
  }

  job::RoomLinkTable& table = desk.job().roomLink;
};

// The rest of the page as a person walks it is in tests/scripts/room_link_job, room_combine_job and
// station_link_job.
TEST_F(RoomLinkPageTest, DeleteRelistsEveryInputInRecordOrder) {
  linkInGroupB(5, 1, 2);
  linkInGroupB(2, 3, 4);
  linkInGroupB(9, 5, 6);
  StoreRoomLink(table, 18, 7, 8);  // an input no list offers is listed by the rebuild all the same
  f.ComboBox7.select(5);
  desk.answer(ui::Answer::Yes);
  desk.shown();
  f.CommandButton18.click();

  EXPECT_EQ(desk.shown(), Lines{"msgbox \"Delete Input 5\" YesNo -> Yes"});
  EXPECT_EQ(f.ListBox4.items(),
            (Lines{"Input:2  Links Rooms:  3 and 4", "Input:9  Links Rooms:  5 and 6", "Input:18  Links Rooms:  7 and 8"}));
}

// Lines and inputs the lists cannot show: group B reports them by its traps, the others pass over them.
TEST_F(RoomLinkPageTest, GroupBTrapsWhatItsListsCannotShow) {
  StoreRoomLink(table, 3, 4, 5);
  recordOf(table, 3).ListLine = 6;  // listed in a list since emptied
  desk.shown();
  f.ComboBox7.select(3);
  EXPECT_EQ(desk.shown(), Lines{"msgbox \"Error InputLnk \" OK"});
  f.ComboBox30.select(3);
  EXPECT_EQ(desk.shown(), Lines{});
  EXPECT_EQ(f.ComboBox31.listIndex(), 4) << "the rooms are shown though the line is not";

  StoreRoomLink(table, 17, 8, 9);  // as an opened image lists input 17
  recordOf(table, 17).ListLine = 0;
  for (ui::ListBox* list : {&f.ListBox4, &f.ListBox6, &f.ListBox2}) {
    list->addItem("Input:17,Links Rooms,8,and,9");
    list->select(0);
  }
  EXPECT_EQ(desk.shown(), Lines{"msgbox \"Error LnkScr\" OK"});
  EXPECT_EQ(f.ComboBox22.listIndex(), 8);
  EXPECT_EQ(f.ComboBox32.listIndex(), 9);
}

}  // namespace
}  // namespace pellam::editors::room_link
