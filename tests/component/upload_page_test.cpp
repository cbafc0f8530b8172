#include <gtest/gtest.h>

#include <stdlib.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "support/controller_sim.h"
#include "support/desk.h"

// The upload frame against a real FTP server on loopback standing in for the controller.
namespace pellam::component {
namespace {

using testing::ControllerSim;
using testing::Desk;
using testing::okBox;
using testing::TempFolder;
using Lines = std::vector<std::string>;
namespace fs = std::filesystem;

// Files of the same names as the upload's working files, which belong to the person.
const char* const kPersonsFiles[] = {"r.txt", "FTPdata.txt", "FTPdata.bat"};
constexpr const char* kPersonsText = "mine";

// The system's temporary folder, pointed at a folder of the test's own while it lives.
class TemporaryFolderIs {
 public:
  explicit TemporaryFolderIs(const fs::path& folder) {
    if (const char* old = getenv("TMPDIR")) old_ = old;
    setenv("TMPDIR", folder.c_str(), 1);
  }
  ~TemporaryFolderIs() { old_.empty() ? unsetenv("TMPDIR") : setenv("TMPDIR", old_.c_str(), 1); }
  TemporaryFolderIs(const TemporaryFolderIs&) = delete;
  TemporaryFolderIs& operator=(const TemporaryFolderIs&) = delete;

 private:
  std::string old_;
};

std::string address(const ControllerSim& controller) { return "127.0.0.1:" + std::to_string(controller.port()); }

void upload(ui::UserForm1& f, int netId, const std::string& address) {
  f.ComboBox50.select(netId);
  f.TextBox7.setText(address);
  f.CommandButton27.click();
}

std::string stripeImage() {
  std::string image(32767, '\0');
  for (std::size_t i = 0; i < image.size(); ++i) image[i] = static_cast<char>(i * 7);
  image[6101] = 11;
  return image;
}

class UploadPageTest : public ::testing::Test {
 protected:
  void SetUp() override {
    prepare(desk);
    for (const char* name : kPersonsFiles) job.write(name, kPersonsText);
  }

  void prepare(Desk& d) {
    d.startUp();
    d.session().uploadPage.settingsPath = settings.file("controller.ini");
    d.session().currentJobFile = job.write("Lobby.zpd", image);
    d.shown();
  }

  UploadPage& page() { return desk.session().uploadPage; }

  void upload(int netId, const std::string& address) {
    TemporaryFolderIs temporary(work.path());
    component::upload(f, netId, address);
  }

  // What an upload left behind besides the image and the log: the person's own files stand
  // as they were, and the upload's working folder is gone.
  Lines leftovers() {
    Lines found;
    for (const char* name : kPersonsFiles) {
      if (testing::readAll(job.file(name)) != kPersonsText) found.push_back(std::string("changed ") + name);
    }
    for (const auto& e : fs::directory_iterator(job.path())) {
      const std::string name = e.path().filename().string();
      if (name != "Lobby.zpd" && name != "RQCLog.txt" && std::ranges::count(kPersonsFiles, name) == 0) {
        found.push_back(name);
      }
    }
    for (const auto& e : fs::directory_iterator(work.path())) found.push_back("temporary " + e.path().string());
    return found;
  }

  std::string log() { return testing::readAll(job.file("RQCLog.txt")); }

  std::string image = stripeImage();
  Desk desk;
  ui::UserForm1& f = desk.form();
  TempFolder job;
  TempFolder settings;
  TempFolder work;
};

TEST_F(UploadPageTest, ACompletedUploadArrivesWholeAndIsLoggedOnce) {
  ControllerSim controller({"--stations=26"});
  upload(26, address(controller));
  const std::string first = log();
  upload(26, address(controller));
  EXPECT_EQ(log().substr(0, first.size()), first) << "the log grows, never truncated";
  EXPECT_EQ(desk.shown(), (Lines{okBox("Down Load Completed !!"), okBox("Down Load Completed !!")}));
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

TEST_F(UploadPageTest, ASilentControllerTimesOutAndTheFormStaysUsable) {
  ControllerSim controller({"--silent"});
  page().settingsPath = settings.write("controller.ini", "timeout = 1\n");
  int ticks = 0;
  page().keepResponsive = [&] { ++ticks; };
  upload(9, address(controller));
  EXPECT_EQ(desk.shown(), Lines{okBox("RQC Connection Time Out")});
  EXPECT_GT(ticks, 5) << "the face was given the chance to redraw while waiting";
  EXPECT_TRUE(f.CommandButton27.visible());
  EXPECT_EQ(f.Label60.caption(), "Click On File Name To UpLoad");
  EXPECT_EQ(leftovers(), Lines{});
  EXPECT_FALSE(fs::exists(job.file("RQCLog.txt"))) << "nothing was said, so nothing is logged";
}

// A face with an event loop gets its form back at once: the transfer runs on a thread of its
// own, a second upload meanwhile does nothing, and the outcome comes through the face's queue.
TEST_F(UploadPageTest, AFaceWithAnEventLoopIsNeverHeldUp) {
  ControllerSim controller({"--stations=9"});
  std::mutex posted;
  std::vector<std::function<void()>> queue;
  page().postToFace = [&](std::function<void()> f) {
    const std::lock_guard lock(posted);
    queue.push_back(std::move(f));
  };
  std::vector<bool> results;
  page().onUploaded = [&](const UploadPage::Result& r) { results.push_back(r.completed); };
  component::upload(f, 9, address(controller));
  EXPECT_EQ(f.Label60.caption(), "Starting Up Load Please Wait");
  EXPECT_FALSE(f.CommandButton27.visible());
  f.CommandButton27.click();
  for (int turn = 0; results.empty() && turn < 2000; ++turn) {
    std::vector<std::function<void()>> due;
    {
      const std::lock_guard lock(posted);
      due.swap(queue);
    }
    for (auto& run : due) run();
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  EXPECT_EQ(results, std::vector<bool>{true});
  EXPECT_EQ(desk.shown(), Lines{okBox("Down Load Completed !!")});
  EXPECT_TRUE(f.CommandButton27.visible());
}

// Each outcome has its message and one log entry of the dialogue. Only a transfer the
// controller confirmed, of every byte, counts as done: the phrases alone do not.
TEST_F(UploadPageTest, EveryOutcomeHasItsMessageAndOneLogEntry) {
  struct Case {
    const char* fault;
    std::vector<std::string> flags;
    std::string message;
    std::string logged;
    std::string address;  // instead of the controller's
    bool cancelOnceTaken = false;  // the person cancels once the controller has every byte
  };
  const std::string closed = "127.0.0.1:" + std::to_string(testing::closedPort());
  const Case cases[] = {
      {"no station with the net id", {"--stations=6"}, "Station Not Found", "550 file open fails", ""},
      {"a host that does not exist", {}, "RQC Not Found Check IP Address", "Unknown host nosuchcontroller.invalid.",
       "nosuchcontroller.invalid"},
      {"a port nobody listens on", {}, "RQC Not Found Check IP Address", "Not connected.", closed},
      {"drops the connection after 1000 bytes", {"--stations=5", "--drop-after=1000"},
       "Down Load Not Completed: the connection was lost before the controller confirmed the file", "", ""},
      {"answers 451 after the transfer", {"--stations=5", "--fail-after-transfer"},
       "Down Load Not Completed: the controller answered 451 Requested action aborted: local error in processing.",
       "451", ""},
      {"greets with the phrase, then refuses the login",
       {"--stations=5", "--greeting=RQC ready to take file", "--refuse-login"},
       "Down Load Not Completed: the controller refused the login", "530", ""},
      {"refuses the login", {"--stations=5", "--refuse-login"}, "RQC Login Refused", "530", ""},
      {"never confirms, and the person cancels", {"--stations=5", "--stall"}, "Down Load Cancelled",
       "150 ready to take file", "", true},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.fault);
    fs::remove(job.file("RQCLog.txt"));
    ControllerSim controller(c.flags);
    // A person at another window: any thread may cancel.
    std::jthread person;
    if (c.cancelOnceTaken) {
      person = std::jthread([&](std::stop_token gone) {
        const fs::path taken = controller.received() / "Q9z5.zpd";
        std::error_code ec;
        while (!gone.stop_requested() && fs::file_size(taken, ec) != image.size()) {
          std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        page().cancel();
      });
    }
    upload(5, c.address.empty() ? address(controller) : c.address);
    person = {};
    EXPECT_EQ(desk.shown(), Lines{okBox(c.message)});
    EXPECT_FALSE(page().lastCompleted);
    EXPECT_EQ(log().rfind(std::string(46, '*'), 0), 0u) << "the dialogue is logged once";
    EXPECT_EQ(log().find(std::string(46, '*'), 1), std::string::npos);
    EXPECT_NE(log().find(c.logged), std::string::npos);
    EXPECT_EQ(leftovers(), Lines{});
  }
  EXPECT_EQ(testing::readAll(job.file("Lobby.zpd")), image);
}

TEST_F(UploadPageTest, OnlyAJobImageGoesToAStationAndNothingIsWrittenForAnotherFile) {
  ControllerSim controller({"--stations=5"});
  std::string otherType = image;
  otherType[6101] = 7;
  struct Case {
    const char* name;
    std::string bytes;
    const char* why;
  };
  const Case cases[] = {
      {"Empty.zpd", "", "0 bytes, type byte missing"},
      {"Huge.zpd", std::string(10 * 1024 * 1024, '\x0b'), "10485760 bytes, type byte 11"},
      {"Other.zpd", otherType, "32767 bytes, type byte 7"},
      {"Short.zpd", image.substr(0, 6101), "6101 bytes, type byte missing"},
  };
  for (const Case& c : cases) {
    desk.session().currentJobFile = job.write(c.name, c.bytes);
    upload(5, address(controller));
    EXPECT_EQ(desk.shown(), Lines{okBox("Not A Pellam Job Image: " + job.file(c.name) + " (" + c.why +
                                        "; a job is 32767 bytes with type byte 11)")});
    EXPECT_FALSE(page().lastCompleted);
    fs::remove(job.file(c.name));
  }
  EXPECT_TRUE(fs::is_empty(controller.received()));
  EXPECT_FALSE(fs::exists(job.file("RQCLog.txt")));
  EXPECT_EQ(leftovers(), Lines{});
}

TEST_F(UploadPageTest, LocalFailuresNameTheFileThatCouldNotBeWritten) {
  ControllerSim controller({"--stations=5"});
  fs::create_directory(job.file("RQCLog.txt"));
  upload(5, address(controller));
  EXPECT_EQ(desk.shown(), (Lines{okBox("Down Load Completed !!"), okBox("Cannot Write File: " + job.file("RQCLog.txt"))}));
  EXPECT_TRUE(page().lastCompleted) << "the controller took the file";
  EXPECT_EQ(testing::readAll(controller.received() / "Q9z5.zpd"), image);

  fs::remove(controller.received() / "Q9z5.zpd");
  const std::string notAFolder = settings.write("not-a-folder", "");
  {
    TemporaryFolderIs temporary(notAFolder);
    component::upload(f, 5, address(controller));
  }
  const Lines shown = desk.shown();
  ASSERT_EQ(shown.size(), 1u);
  EXPECT_EQ(shown[0].rfind("msgbox \"Cannot Write File: " + notAFolder, 0), 0u) << shown[0];
  EXPECT_FALSE(page().lastCompleted);
  EXPECT_TRUE(fs::is_empty(controller.received()));
}

TEST_F(UploadPageTest, TwoUploadsAtOnceFromOneFolderKeepToThemselves) {
  ControllerSim controller({"--stations=5"});
  Desk other;
  prepare(other);
  {
    TemporaryFolderIs temporary(work.path());
    std::thread first([&] { component::upload(f, 5, address(controller)); });
    std::thread second([&] { component::upload(other.form(), 6, address(controller)); });
    first.join();
    second.join();
  }
  EXPECT_EQ(desk.shown(), Lines{okBox("Down Load Completed !!")});
  EXPECT_EQ(other.shown(), Lines{okBox("Station Not Found")});
  EXPECT_EQ(testing::readAll(controller.received() / "Q9z5.zpd"), image);
  const std::string text = log();
  const std::string stars(46, '*');
  const auto second = text.find(stars, 1);
  ASSERT_EQ(text.rfind(stars, 0), 0u);
  ASSERT_NE(second, std::string::npos);
  ASSERT_EQ(text.find(stars, second + 1), std::string::npos);
  const std::string entries[] = {text.substr(0, second), text.substr(second)};
  EXPECT_EQ(std::ranges::count_if(entries, [](const std::string& e) {
              return e.find("226 ") != std::string::npos && e.find("file open fails") == std::string::npos;
            }),
            1);
  EXPECT_EQ(std::ranges::count_if(entries, [](const std::string& e) {
              return e.find("550 file open fails") != std::string::npos && e.find("226 ") == std::string::npos;
            }),
            1);
  EXPECT_EQ(leftovers(), Lines{});
}

TEST_F(UploadPageTest, RefusalsComeBeforeAnyFileIsWritten) {
  f.ComboBox50.select(0);
  f.CommandButton27.click();
  upload(4, "");
  upload(4, "10.0.0.7 & del *.*");
  upload(4, "10.0.0.7\" >x.txt");
  desk.session().currentJobFile = job.file("Missing.zpd");
  upload(4, "10.0.0.7");
  page().settingsPath = settings.write("controller.ini", "prefix = a/b\n");
  upload(4, "10.0.0.7");
  EXPECT_EQ(desk.shown(), (Lines{okBox("Target Station NetID not Selected"), okBox("RQC IP Address Not Entered"),
                                 okBox("Not An IP Address Or Host Name: 10.0.0.7 & del *.*"),
                                 okBox("Not An IP Address Or Host Name: 10.0.0.7\\\" >x.txt"),
                                 okBox("Cannot Open File: " + job.file("Missing.zpd")),
                                 okBox("Controller Settings Not Understood: " + page().settingsPath +
                                       " line 1: prefix = a/b")}));
  EXPECT_EQ(leftovers(), Lines{});
  EXPECT_FALSE(fs::exists(job.file("RQCLog.txt")));
}

}  // namespace
}  // namespace pellam::component
