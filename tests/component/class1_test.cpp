#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>
#include <thread>

#include "component/platform.h"
#include "component/shared_session.h"
#include "support/desk.h"

namespace pellam::component {
namespace {

using testing::Desk;

// Product_Type and the members a script can see are walked through in tests/scripts/host_members.
TEST(Class1ReturnFileNamePath, ShowsTheFileDialogAndGivesThePath) {
  struct Recorder : ui::Dialogs {
    ui::FileDialogRequest request;
    std::string answer;
    ui::Answer msgBox(const std::string&, ui::Buttons) override { return ui::Answer::OK; }
    std::string openFile(const ui::FileDialogRequest& r) override {
      request = r;
      return answer;
    }
  } dialogs;
  NoViewer shell;
  SystemClock clock;
  auto session = std::make_unique<Session>(dialogs, shell, clock);
  Class1 c(*session);
  std::string filter = "Pellam Files (*.zpd)|*.zpd";
  dialogs.answer = "/jobs/a.zpd";
  EXPECT_EQ(c.Return_FileName_Path(filter), "/jobs/a.zpd");
  EXPECT_EQ(dialogs.request.filter, filter);
  EXPECT_EQ(dialogs.request.filterIndex, 3);
  EXPECT_TRUE(dialogs.request.hideReadOnly);
  dialogs.answer = "";
  EXPECT_EQ(c.Return_FileName_Path(filter), "") << "a cancel gives an empty string";
}

// The host_members script walks load, hide and unload; this checks what a script cannot see.
// The host's strings count UTF-16 units, so a name is never cut inside a character.
TEST(Class1ReturnFileName, CountsCharactersAsTheHostDoes) {
  const struct {
    std::string path, name, expected;
  } cases[] = {
      {"/jobs/Caf\u00e9.txt", "abcdefgh", "Caf\u00e9.txt"},
      {"/jobs/\u5927\u697c.txt", "abcdef", "\u5927\u697c.txt"},
      {"/j/\U0001F600.txt", "abcdef", "\U0001F600.txt"},
      {"/j/\U0001F600.txt", "abcde", ".txt"},
      {"a.txt", "a much longer name", "a.txt"},
  };
  Desk desk;
  for (auto c : cases) EXPECT_EQ(desk.class1().Return_File_Name(c.path, c.name), c.expected) << c.path;
}

TEST(Class1FormMembers, UnloadKeepsTheTablesAndLoadHonoursTheHost) {
  Desk desk;
  Class1 c = desk.class1();
  c.Initailize_Pellam_Variables_And_Form();
  desk.job().roomCombine.records[12].CombineChannel = 12;
  c.Load_User_Form();
  EXPECT_FALSE(desk.form().modal()) << "shown modeless when the host allows it";
  c.Unload_Pellam_Form();
  EXPECT_EQ(desk.job().roomCombine.records[12].CombineChannel, 12) << "the tables survive";
  desk.session().hostAllowsModelessForms = false;
  int modalRuns = 0;
  desk.session().runModalForm = [&] { ++modalRuns; };
  c.Load_User_Form();
  EXPECT_TRUE(desk.form().modal());
  EXPECT_EQ(modalRuns, 1) << "the face runs the form until the person is done with it";
  EXPECT_FALSE(desk.form().Page2.visible()) << "a reloaded form shows no editor before a confirm";
}

// Every Class1 of a process shares one session, which outlives its users until the component
// may be unloaded and answers only the thread that made it.
TEST(Class1, EveryInstanceSharesTheProcessSessionWhileOneLives) {
  {
    const SharedSession::User watch;
    Class1 first;
    Class1 second;
    first.Initailize_Pellam_Variables_And_Form();
    watch->form.ComboBox1.select(2);
    second.Initailize_Pellam_Variables_And_Form();
    EXPECT_EQ(watch->form.ComboBox1.listIndex(), -1) << "the second instance reset the first one's form";
    EXPECT_EQ(SharedSession::users(), 3);
    std::thread([&] { EXPECT_THROW(first.Load_User_Form(), std::logic_error); }).join();
  }
  EXPECT_EQ(SharedSession::users(), 0);
  {
    const SharedSession::User later;
    EXPECT_TRUE(later->form.loaded()) << "the job is the component's, not an object's";
    EXPECT_FALSE(SharedSession::endIfUnused());
  }
  EXPECT_TRUE(SharedSession::endIfUnused());
  const SharedSession::User fresh;
  EXPECT_FALSE(fresh->form.loaded()) << "unloading the component ended the session";
}

// A face that goes away leaves no dangling dialogs behind; withdrawing another face's does nothing.
TEST(Class1, AFaceTakesItsPlatformBackWhenItGoes) {
  std::ostringstream shown, other;
  UnattendedDialogs face(shown), stranger(other);
  NoViewer viewer;
  SystemClock clock;
  const SharedSession::User user;
  SharedSession::setPlatform(face, viewer, clock);
  SharedSession::withdrawPlatform(stranger);
  user->dialogs().msgBox("while the face is here", ui::Buttons::OK);
  SharedSession::withdrawPlatform(face);
  user->dialogs().msgBox("after it went", ui::Buttons::OK);
  EXPECT_NE(shown.str().find("while the face is here"), std::string::npos);
  EXPECT_EQ(shown.str().find("after it went"), std::string::npos);
  EXPECT_TRUE(other.str().empty());
}

}  // namespace
}  // namespace pellam::component
