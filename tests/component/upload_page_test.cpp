#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/controller_sim.h"
#include "support/desk.h"

// The upload frame against a real FTP server on loopback standing in for the controller.
namespace pellam::component {
namespace {

using testing::ControllerSim;
using testing::Desk;
using testing::TempFolder;
using Lines = std::vector<std::string>;
namespace fs = std::filesystem;

class UploadPageTest : public ::testing::Test {
 protected:
  void SetUp() override {
    desk.startUp();
    page().settingsPath = settings.file("controller.ini");
    image = std::string(32767, '\0');
    for (std::size_t i = 0; i < image.size(); ++i) image[i] = static_cast<char>(i * 7);
    desk.session().currentJobFile = job.write("Lobby.zpd", image);
    desk.shown();
  }

  UploadPage& page() { return desk.session().uploadPage; }

  void upload(int netId, const std::string& address) {
    f.ComboBox50.select(netId);
    f.TextBox7.setText(address);
    f.CommandButton27.click();
  }

  // What the job folder holds besides the image and the log: nothing, after any upload.
  Lines leftovers() {
    Lines names;
    for (const auto& e : fs::directory_iterator(job.path())) {
      const std::string name = e.path().filename().string();
      if (name != "Lobby.zpd" && name != "RQCLog.txt") names.push_back(name);
    }
    return names;
  }

  std::string log() { return testing::readAll(job.file("RQCLog.txt")); }

  Desk desk;
  ui::UserForm1& f = desk.form();
  TempFolder job;
  TempFolder settings;
  std::string image;
};

TEST_F(UploadPageTest, ACompletedUploadArrivesWholeAndIsLoggedOnce) {
  ControllerSim controller({{26}});
  upload(26, "127.0.0.1:" + std::to_string(controller.port()));
  EXPECT_EQ(desk.shown(), Lines{"msgbox \"Down Load Completed !!\" OK"});
  EXPECT_TRUE(page().lastCompleted);
  EXPECT_EQ(testing::readAll(controller.received() / "Q9z1A.zpd"), image);
  EXPECT_EQ(leftovers(), Lines{});
  const std::string entry = log();
  EXPECT_EQ(entry.rfind("**********************************************\r\nDate 11/23/2026\r\nTime 2:05:09 PM\r\n220", 0), 0u);
  EXPECT_NE(entry.find("150 ready to take file"), std::string::npos);
  EXPECT_EQ(f.Label62.caption(), fs::absolute(job.file("RQCLog.txt")).string());
  EXPECT_EQ(f.Label60.caption(), "Click On File Name To UpLoad");
  EXPECT_TRUE(f.Label60.visible());
  EXPECT_TRUE(f.CommandButton27.visible());
}

TEST_F(UploadPageTest, TheLogGrowsAcrossUploadsAndAStationThatIsNotThereIsNamed) {
  ControllerSim controller({{5}});
  const std::string address = "localhost:" + std::to_string(controller.port());
  upload(5, address);
  upload(6, address);
  EXPECT_EQ(desk.shown(), (Lines{"msgbox \"Down Load Completed !!\" OK", "msgbox \"Station Not Found\" OK"}));
  EXPECT_FALSE(page().lastCompleted);
  EXPECT_FALSE(fs::exists(controller.received() / "Q9z6.zpd"));
  const std::string text = log();
  EXPECT_EQ(text.find(std::string(46, '*')), 0u);
  const auto second = text.find(std::string(46, '*'), 1);
  ASSERT_NE(second, std::string::npos);
  EXPECT_NE(text.find("550 file open fails", second), std::string::npos);
  EXPECT_EQ(leftovers(), Lines{});
}

TEST_F(UploadPageTest, UnreachableControllersReadAsTheClientWouldShowThem) {
  upload(3, "nosuchcontroller.invalid");
  upload(3, "127.0.0.1:" + std::to_string(testing::closedPort()));
  EXPECT_EQ(desk.shown(), (Lines{"msgbox \"RQC Not Found Check IP Address\" OK",
                                 "msgbox \"RQC Not Found Check IP Address\" OK"}));
  EXPECT_NE(log().find("Unknown host nosuchcontroller.invalid."), std::string::npos);
  EXPECT_NE(log().find("Not connected."), std::string::npos);
  EXPECT_EQ(leftovers(), Lines{});
  EXPECT_EQ(testing::readAll(job.file("Lobby.zpd")), image);
}

TEST_F(UploadPageTest, ASilentControllerTimesOutAndTheFormStaysUsable) {
  ControllerSim controller({{}, true});
  testing::TempFolder folder;
  page().settingsPath = folder.write("controller.ini", "timeout = 1\n");
  int ticks = 0;
  page().keepResponsive = [&] { ++ticks; };
  upload(9, "127.0.0.1:" + std::to_string(controller.port()));
  EXPECT_EQ(desk.shown(), Lines{"msgbox \"RQC Connection Time Out\" OK"});
  EXPECT_GT(ticks, 5) << "the face was given the chance to redraw while waiting";
  EXPECT_TRUE(f.CommandButton27.visible());
  EXPECT_EQ(f.Label60.caption(), "Click On File Name To UpLoad");
  EXPECT_EQ(leftovers(), Lines{});
  EXPECT_FALSE(fs::exists(job.file("RQCLog.txt"))) << "nothing was said, so nothing is logged";
}

TEST_F(UploadPageTest, RefusalsComeBeforeAnyFileIsWritten) {
  f.ComboBox50.select(0);
  f.CommandButton27.click();
  upload(4, "");
  upload(4, "10.0.0.7 & del *.*");
  upload(4, "10.0.0.7\" >x.txt");
  testing::TempFolder folder;
  page().settingsPath = folder.write("controller.ini", "prefix = a/b\n");
  upload(4, "10.0.0.7");
  desk.session().currentJobFile = job.file("Missing.zpd");
  upload(4, "10.0.0.7");
  EXPECT_EQ(desk.shown(), (Lines{"msgbox \"Target Station NetID not Selected\" OK",
                                 "msgbox \"RQC IP Address Not Entered\" OK",
                                 "msgbox \"Not An IP Address Or Host Name: 10.0.0.7 & del *.*\" OK",
                                 "msgbox \"Not An IP Address Or Host Name: 10.0.0.7\\\" >x.txt\" OK",
                                 "msgbox \"Controller Settings Not Understood: " + page().settingsPath +
                                     " line 1: prefix = a/b\" OK",
                                 "msgbox \"Cannot Open File: " + job.file("Missing.zpd") + "\" OK"}));
  EXPECT_EQ(leftovers(), Lines{});
  EXPECT_FALSE(fs::exists(job.file("RQCLog.txt")));
}

}  // namespace
}  // namespace pellam::component
