#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "editors/room_combine/room_combine_page.h"
#include "support/desk.h"

// What a person does on the page is walked through in tests/scripts/room_combine_job.
namespace pellam::editors::room_combine {
namespace {

using Lines = std::vector<std::string>;

using RoomCombinePageTest = testing::DeskTest;

// The "all" view must follow the table whoever changed it: start-up spares channels 2047 and
// 2048 while it empties the list, and an opened job rewrites records in place.
TEST_F(RoomCombinePageTest, TheAllViewFollowsTablesChangedElsewhere) {
  auto add = [&](int room, int group, int channel) {
    f.ComboBox36.select(room);
    f.ComboBox37.select(group);
    f.ComboBox38.select(channel);
    f.CommandButton11.click();
  };
  add(5, 3, 2048);
  add(5, 3, 12);
  desk.startUp();
  add(1, 1, 4);
  EXPECT_EQ(f.ListBox1.items(), (Lines{"Room 5,  Group 3, Channel:2048", "Room 1,  Group 1, Channel:4"}));

  desk.job().roomCombine.records[4].CombineRoom = 2;
  desk.session().roomCombinePage.listDecoded();
  EXPECT_EQ(f.ListBox1.item(0), "Room 2,  Group 1, Channel:4");
}

}  // namespace
}  // namespace pellam::editors::room_combine
