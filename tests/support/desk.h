#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "component/class1.h"
#include "component/script/script_platform.h"
#include "component/session.h"
#include "component/start_up.h"

namespace pellam::testing {

// A fresh session with a person at the desk: message boxes are recorded as a form script
// prints them and answered from a queue.
class Desk {
 public:
  // The clock stands still, so that files holding the date compare exactly.
  Desk() : platform_(out_), session_(std::make_unique<component::Session>(platform_, platform_, platform_)) {
    platform_.fixClock({2026, 11, 23, 14, 5, 9});
  }

  component::Session& session() { return *session_; }
  ui::UserForm1& form() { return session_->form; }
  job::Job& job() { return session_->job; }
  component::Class1 class1() { return component::Class1(*session_); }
  void startUp() { component::Initailize_Pellam_Variables_And_Form(*session_); }
  // A Pellam master board of `mode` with input action `action`, chosen on the board page.
  void chooseBoard(int mode, int action = 1) {
    form().ComboBox48.select(2);
    form().ComboBox1.select(mode);
    form().ComboBox2.select(1);
    form().ComboBox6.select(action);
  }

  void answer(ui::Answer a) { platform_.queueAnswer(a, "queued", 0); }
  void choosePath(std::string path) { platform_.queuePath(std::move(path), 0); }

  // What the person was shown since the last call, one message box a line.
  std::vector<std::string> shown() {
    std::vector<std::string> lines;
    std::istringstream in(out_.str());
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    out_.str({});
    return lines;
  }

 private:
  std::ostringstream out_;
  component::script::ScriptPlatform platform_;
  std::unique_ptr<component::Session> session_;
};

// A test with a person at a desk that has started up, and its form.
class DeskTest : public ::testing::Test {
 protected:
  void SetUp() override { desk.startUp(); }
  Desk desk;
  ui::UserForm1& f = desk.form();
};

// A message box with only an OK button, as shown() lists it.
inline std::string okBox(const std::string& text) { return "msgbox \"" + text + "\" OK"; }

// A whole file, and image bytes as numbers, for comparing with values written out by hand.
std::string readAll(const std::filesystem::path& path);
std::vector<int> bytesAt(const image::EepromImage& image, int first, int count);

// A folder of its own for one test, removed when the test ends.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  const std::filesystem::path& path() const { return path_; }
  std::string file(const std::string& name) const { return (path_ / name).string(); }
  std::string write(const std::string& name, const std::string& bytes) const;

 private:
  std::filesystem::path path_;
};

}  // namespace pellam::testing
