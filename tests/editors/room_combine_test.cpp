#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "editors/room_combine/room_combine_page.h"
#include "support/desk.h"

// What the lists and messages show is walked through in tests/scripts/room_combine_page; these
// cases hold the records behind them.
namespace pellam::editors::room_combine {
namespace {

using testing::Desk;
using Lines = std::vector<std::string>;
// A record as (channel, group, room, list line).
using Fields = std::array<int, 4>;

class RoomCombinePageTest : public ::testing::Test {
 protected:
  void SetUp() override { desk.startUp(); }

  void choose(int room, int group, int channel) {
    f.ComboBox36.select(room);
    f.ComboBox37.select(group);
    f.ComboBox38.select(channel);
  }
  void add(int room, int group, int channel) {
    choose(room, group, channel);
    f.CommandButton11.click();
  }
  job::RoomCombineRecord& record(int channel) {
    return desk.job().roomCombine.records[static_cast<std::size_t>(channel)];
  }
  Fields fields(int channel) {
    const job::RoomCombineRecord& r = record(channel);
    return {r.CombineChannel, r.CombineGroup, r.CombineRoom, r.CombineListLine};
  }

  Desk desk;
  ui::UserForm1& f = desk.form();
};

TEST_F(RoomCombinePageTest, EachAddNumbersTheLinesOfTheListItRebuilt) {
  add(5, 3, 12);
  EXPECT_EQ(fields(12), (Fields{12, 3, 5, 1}));
  add(1, 2, 4);
  EXPECT_EQ(fields(4), (Fields{4, 2, 1, 2})) << "an added line goes last";
  add(255, 255, 2048);
  EXPECT_EQ(fields(4), (Fields{4, 2, 1, 1}));
  EXPECT_EQ(fields(12), (Fields{12, 3, 5, 2}));
  EXPECT_EQ(fields(2048), (Fields{2048, 255, 255, 3}));
  EXPECT_EQ(fields(7), (Fields{0, 0, 0, 0}));
}

// A list with nothing chosen is at -1, not at the blank item.
TEST_F(RoomCombinePageTest, AddRefusesAChoiceNeverMade) {
  const std::array<int, 3> cases[] = {{-1, 3, 12}, {5, -1, 12}, {5, 3, -1}};  // room, group, channel
  for (const auto& c : cases) {
    add(c[0], c[1], c[2]);
    EXPECT_EQ(desk.shown(), Lines{"msgbox \"You Must Select a Room, Group and Channel\" OK"});
  }
  EXPECT_EQ(fields(12), (Fields{0, 0, 0, 65535}));
  EXPECT_EQ(f.ListBox1.count(), 0);
}

TEST_F(RoomCombinePageTest, FilteredViewsNumberTheirOwnLinesAndSkipChannel2048) {
  add(5, 3, 12);
  add(6, 3, 1);
  add(5, 3, 2048);
  f.ComboBox36.select(5);
  f.CommandButton9.click();
  EXPECT_EQ(fields(12)[3], 1);
  EXPECT_EQ(fields(1)[3], 0);
  EXPECT_EQ(fields(2048)[3], 0);

  choose(0, 0, 0);
  f.ListBox1.select(0);
  EXPECT_EQ(f.ComboBox36.listIndex(), 5) << "a click finds the line's record in the view shown";
  EXPECT_EQ(f.ComboBox38.listIndex(), 12);

  f.ComboBox37.select(3);
  f.CommandButton10.click();
  EXPECT_EQ(fields(1)[3], 1);
  EXPECT_EQ(fields(12)[3], 2);
  EXPECT_EQ(fields(2048)[3], 0);
}

TEST_F(RoomCombinePageTest, DeletedRecordsAreMarkedUnlisted) {
  add(5, 3, 12);
  add(1, 2, 4);
  add(1, 7, 30);
  add(1, 7, 2048);
  f.ComboBox38.select(12);
  desk.answer(ui::Answer::OK);
  f.CommandButton12.click();
  EXPECT_EQ(fields(12), (Fields{0, 0, 0, 65535}));
  EXPECT_EQ(fields(4)[3], 1) << "the rest are numbered again";
  EXPECT_EQ(fields(30)[3], 2);

  f.ComboBox36.select(1);
  desk.answer(ui::Answer::Yes);
  f.CommandButton40.click();
  EXPECT_EQ(fields(4), (Fields{0, 0, 0, 65535}));
  EXPECT_EQ(fields(30), (Fields{0, 0, 0, 65535}));
  EXPECT_EQ(fields(2048), (Fields{2048, 7, 1, 3}));

  f.ComboBox37.select(7);
  desk.answer(ui::Answer::Yes);
  f.CommandButton41.click();
  EXPECT_EQ(fields(2048)[0], 2048);
}

// The "all" view must follow the table whoever changed it: start-up spares channels 2047 and
// 2048 while it empties the list, and an opened job rewrites records in place.
TEST_F(RoomCombinePageTest, TheAllViewFollowsTablesChangedElsewhere) {
  add(5, 3, 2048);
  add(5, 3, 12);
  desk.startUp();
  add(1, 1, 4);
  EXPECT_EQ(f.ListBox1.items(), (Lines{"Room 5,  Group 3, Channel:2048", "Room 1,  Group 1, Channel:4"}));

  record(4).CombineRoom = 2;
  desk.session().roomCombinePage.ListDecoded();
  EXPECT_EQ(f.ListBox1.item(0), "Room 2,  Group 1, Channel:4");
}

}  // namespace
}  // namespace pellam::editors::room_combine
