#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "editors/station_link/station_link_page.h"
#include "image/decode.h"
#include "image/eeprom_image.h"
#include "image/pack.h"
#include "support/desk.h"

namespace pellam::editors::station_link {
namespace {

using testing::Desk;
using Lines = std::vector<std::string>;

class StationLinkPageTest : public ::testing::Test {
 protected:
  void SetUp() override { desk.startUp(); }

  void link(int type, int netId, int room) {
    f.ComboBox34.select(type);
    f.ComboBox35.select(netId);
    f.ComboBox33.select(room);
    f.CommandButton8.click();
  }
  void deleteNetId(int netId, ui::Answer answer) {
    f.ComboBox35.select(netId);
    desk.answer(answer);
    f.CommandButton21.click();
  }
  const job::StationLinkRecord& slot(int s) const { return table.records[static_cast<std::size_t>(s)]; }

  Desk desk;
  ui::UserForm1& f = desk.form();
  job::StationLinkTable& table = desk.job().stationLink;
};

TEST_F(StationLinkPageTest, EachTypeItemStoresItsCodeAndTheBlankKeepsThePrevious) {
  const int codes[] = {10, 9, 13, 14, 7};
  for (int item = 1; item <= 5; ++item) link(item, item, 1);
  for (int item = 1; item <= 5; ++item) EXPECT_EQ(slot(item).LinkStationType, codes[item - 1]) << item;
  link(0, 6, 2);
  EXPECT_EQ(slot(6).LinkStationType, 7);
  EXPECT_EQ(f.ListBox3.item(5), "Room: 2    NetId: 6") << "the line carries the blank item's text";
}

TEST_F(StationLinkPageTest, DuplicateShowsTheExistingLinkAndKeepsIt) {
  link(1, 12, 3);
  link(2, 5, 8);
  desk.shown();
  link(4, 12, 9);

  EXPECT_EQ(desk.shown(), Lines{"msgbox \"Duplicate Entry\" OK"});
  EXPECT_EQ(slot(12).LinkRoom, 3);
  EXPECT_EQ(slot(12).LinkStationType, 10);
  EXPECT_EQ(f.ListBox3.items(), (Lines{"Room: 3 T3100 LCD  NetId: 12", "Room: 8 T6600 LCD  NetId: 5"}));
  EXPECT_EQ(f.ListBox3.listIndex(), 0);
  EXPECT_EQ(f.ComboBox35.listIndex(), 12);
  EXPECT_EQ(f.ComboBox33.listIndex(), 3);
  // The room the add showed is not taken for the next link, a room the person chooses is.
  EXPECT_EQ(desk.session().stationLinkPage.SelectedRoom, 9);
  f.ComboBox35.select(20);
  f.ComboBox33.select(7);
  f.CommandButton8.click();
  EXPECT_EQ(f.ListBox3.item(2), "Room: 7 Wallport  NetId: 20");
}

TEST_F(StationLinkPageTest, DeleteRelistsByNetIdWithTheTypeShownNow) {
  link(1, 30, 1);
  link(2, 4, 2);
  link(3, 127, 3);
  link(5, 17, 4);
  link(4, 9, 5);
  desk.shown();
  deleteNetId(17, ui::Answer::Yes);

  EXPECT_EQ(desk.shown(), Lines{"msgbox \"Delete NetId 17\" YesNo -> Yes"});
  // 127 lies beyond the rebuild, so it drops out of the list but stays linked.
  EXPECT_EQ(f.ListBox3.items(), (Lines{"Room: 2 Wallport  NetId: 4", "Room: 5 Wallport  NetId: 9",
                                       "Room: 1 Wallport  NetId: 30"}));
  EXPECT_EQ(slot(4).LinkListPosition, 0);
  EXPECT_EQ(slot(30).LinkListPosition, 2);
  EXPECT_EQ(slot(127).LinkNetId, 127);
  EXPECT_EQ(slot(30).LinkStationType, 10) << "only the lines take the shown type";
  EXPECT_EQ(slot(17).LinkNetId, 0);
  EXPECT_EQ(slot(17).LinkListPosition, job::kNotListed);
  EXPECT_EQ(f.ComboBox35.listIndex(), -1);
}

// Before a type is taken up the net ids browse the list; a line shows its net id and room.
TEST_F(StationLinkPageTest, NetIdsAndLinesFindEachOther) {
  link(1, 3, 10);
  link(1, 8, 11);
  desk.startUp();
  job::LinkInsert(table, 3, 10, 10);
  job::LinkInsert(table, 8, 9, 11);
  desk.session().stationLinkPage.ListDecoded();

  f.ComboBox35.select(8);
  EXPECT_EQ(f.ListBox3.listIndex(), 1);
  EXPECT_EQ(f.ComboBox33.listIndex(), 11);
  f.ComboBox35.select(5);
  EXPECT_EQ(f.ListBox3.listIndex(), -1);

  f.ComboBox34.select(3);
  f.ListBox3.select(0);
  EXPECT_EQ(f.ComboBox35.listIndex(), 3);
  EXPECT_EQ(f.ComboBox33.listIndex(), 10);
  EXPECT_EQ(f.ComboBox34.listIndex(), 3);
  f.ComboBox35.select(8);
  EXPECT_EQ(f.ListBox3.listIndex(), 0) << "while the person enters a link the list stays";
}

TEST_F(StationLinkPageTest, DecodedStationsAreListedWithTheirOwnTypes) {
  job::StationLinkTable saved;
  job::LinkInsert(saved, 21, 9, 4);
  job::LinkInsert(saved, 2, 11, 6);
  job::StationPersonalityTable none;
  image::EepromImage img;
  image::PackStationsFormB(img, saved, none);
  image::DecodeStationsFormB(img, table, desk.job().stationPersonality, nullptr);
  desk.session().stationLinkPage.ListDecoded();
  EXPECT_EQ(f.ListBox3.items(), (Lines{"Room: 6 Station Type Not Found  NetId: 2", "Room: 4 T6600 LCD  NetId: 21"}));
}

}  // namespace
}  // namespace pellam::editors::station_link
