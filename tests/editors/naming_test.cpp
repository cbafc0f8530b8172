#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "editors/naming/naming_page.h"
#include "support/desk.h"

namespace pellam::editors::naming {
namespace {

using testing::Desk;
using Lines = std::vector<std::string>;

TEST(SetLabelTest, NumbersBeyond255AreAProgrammingError) {
  Desk desk;
  job::RoomGroupNames names;
  ui::Dialogs& dialogs = desk.session().dialogs();
  EXPECT_THROW(SetRoomLabel(names, dialogs, "Lobby", 256), std::runtime_error);
  EXPECT_THROW(SetRoomLabel(names, dialogs, "Lobby", -1), std::runtime_error);
  EXPECT_THROW(SetGroupLabel(names, dialogs, "Stage", 256), std::runtime_error);
  EXPECT_THROW(SetRoomName(names, "East", 256, 1), std::runtime_error);
  EXPECT_NO_THROW(SetRoomName(names, "East", 255, 1));
  EXPECT_EQ(desk.shown(), Lines{});
}

using NamingPageTest = testing::DeskTest;

// Labelling through the page is walked through in tests/scripts/room_combine_job; a room name
// shows nowhere on the form, so it is checked here.
TEST_F(NamingPageTest, StoringARoomNameNeverRefuses) {
  const job::RoomGroupName& room9 = desk.job().roomGroupNames.names[9];
  f.TextBox104.setText("East Wing");
  f.ListBox13.select(9);
  f.ComboBox61.select(3);
  f.CommandButton37.click();
  EXPECT_EQ(room9.RoomName, "East Wing");
  EXPECT_EQ(room9.RoomValue, 3);

  f.TextBox104.setText("West Wing");
  f.ComboBox61.select(0);
  f.CommandButton37.click();
  EXPECT_EQ(room9.RoomName, "West Wing") << "a name, unlike a label, is replaced";
  EXPECT_EQ(room9.RoomValue, 0);
  EXPECT_EQ(desk.shown(), Lines{});
}

}  // namespace
}  // namespace pellam::editors::naming
