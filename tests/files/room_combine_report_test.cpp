#include <gtest/gtest.h>

#include "component/job_files.h"
#include "component/platform.h"
#include "support/desk.h"

namespace pellam::files {
namespace {

using testing::Desk;
using testing::TempFolder;
using testing::readAll;

const std::string kHeader =
    "***********************************\r\n"
    "Date 11/23/2026\r\n"
    "Time 2:05:09 PM\r\n"
    "Combine Data is Sorted By Room Then By Group\r\n"
    "\r\n"
    "Comma delimited Text file listing of room combine data\r\n";
const std::string kDashes = "------------------------------------\r\n";

class RoomCombineReport : public ::testing::Test {
 protected:
  void SetUp() override {
    desk.startUp();
    desk.chooseBoard(3);
  }
  // Saves the job: the report the save wrote beside it.
  std::string report() {
    std::string path = folder.file("a.txt");
    desk.class1().Create_Pellam_Zpd(path);
    return readAll(folder.file("aUserData.txt"));
  }
  Desk desk;
  TempFolder folder;
};

TEST_F(RoomCombineReport, ListsByRoomThenByGroupThenTheTails) {
  auto& combine = desk.job().roomCombine.records;
  combine[12] = {12, 3, 5, 0};
  combine[7] = {7, 4, 5, 0};
  combine[30] = {30, 3, 2, 0};
  combine[2048] = {2048, 3, 5, 0};  // never in the body: the scans stop at 2047
  desk.form().ListBox2.setItems({"Input:3, Links Rooms, 2,and,5"});
  desk.form().ListBox3.setItems({"Room: 4 T6600 LCD  NetId: 21", "Room: 5 Wallport  NetId: 30"});
  EXPECT_EQ(report(),
            kHeader +
                // rooms outer
                kDashes + "\r\n    ####Room 2 #####\r\n\r\n" + "Room 2,  Group 3, Channel:30\r\n" + kDashes + "\r\n" +
                kDashes + "\r\n    ####Room 5 #####\r\n\r\n" + "Room 5,  Group 3, Channel:12\r\n" +
                "Room 5,  Group 4, Channel:7\r\n" + kDashes + "\r\n" +
                // groups outer
                kDashes + "\r\n    #### Group 3 #####\r\n\r\n" + "Room 2,  Group 3, Channel:30\r\n" +
                "Room 5,  Group 3, Channel:12\r\n" + kDashes + "\r\n" + kDashes + "\r\n    #### Group 4 #####\r\n\r\n" +
                "Room 5,  Group 4, Channel:7\r\n" + kDashes + "\r\n" +
                // tails
                "\r\n\r\n****Room Links****\r\n\r\nInput:3, Links Rooms, 2,and,5\r\n" +
                "\r\n\r\n**Station Locations**\r\n\r\nRoom: 4 T6600 LCD  NetId: 21\r\nRoom: 5 Wallport  NetId: 30\r\n");
  EXPECT_EQ(desk.form().ListBox1.count(), 4) << "the all view, channel 2048 included, was rebuilt for it";
  EXPECT_EQ(combine[2048].CombineListLine, 4);
  EXPECT_TRUE(desk.shown().empty());
}

TEST_F(RoomCombineReport, AnEmptyJobHasTheHeaderAndBothTails) {
  EXPECT_EQ(report(), kHeader + "\r\n\r\n****Room Links****\r\n\r\n" + "\r\n\r\n**Station Locations**\r\n\r\n");
}

// Room and group 255 are never cleared from the in-use tables: once listed, their headings
// stay in later reports of the session.
TEST_F(RoomCombineReport, RoomAndGroup255StayInUse) {
  desk.job().roomCombine.records[9] = {9, 255, 255, 0};
  report();
  desk.job().roomCombine.records[9] = {};
  EXPECT_EQ(report(),
            kHeader + kDashes + "\r\n    ####Room 255 #####\r\n\r\n" + kDashes + "\r\n" + kDashes +
                "\r\n    #### Group 255 #####\r\n\r\n" + kDashes + "\r\n" + "\r\n\r\n****Room Links****\r\n\r\n" +
                "\r\n\r\n**Station Locations**\r\n\r\n");
}

TEST(RoomCombineReportViewer, SaysSoWhenNoViewerStarts) {
  std::ostringstream log;
  component::UnattendedDialogs dialogs(log);
  component::NoViewer shell;
  component::SystemClock clock;
  auto session = std::make_unique<component::Session>(dialogs, shell, clock);
  component::Initailize_Pellam_Variables_And_Form(*session);
  session->form.ComboBox1.select(3);
  TempFolder folder;
  std::string path = folder.file("a.txt");
  component::Class1(*session).Create_Pellam_Zpd(path);
  EXPECT_EQ(log.str(), "pellam: Can't Start Notepad\n");
}

}  // namespace
}  // namespace pellam::files
