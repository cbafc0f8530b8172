#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <csignal>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <unistd.h>
#include <gmock/gmock.h>

#include "form_driver.h"
#include "qt_dialogs.h"
#include "report_viewer.h"

namespace pellam::qt::testing {
namespace {

using pellam::testing::readAll;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(QtDialogs, FiltersBecomeQtNameFilters) {
  struct Case {
    std::string filter;
    QStringList expected;
  } cases[] = {
      {"Image Files (*.zpd)|*.zpd|All Files (*.*)|*.*", {"Image Files (*.zpd)", "All Files (*.*)"}},
      {"Jobs|*.txt;*.zpd", {"Jobs (*.txt *.zpd)"}},
      {"", {}},
      {"Dangling|", {"Dangling ()"}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.filter);
    EXPECT_EQ(nameFilters(c.filter), c.expected);
  }
}

TEST(QtDialogs, MessageBoxesOfferTheButtonsAsked) {
  QtDialogs dialogs;
  BoxAnswerer boxes;
  boxes.queue(QMessageBox::Cancel);
  EXPECT_EQ(dialogs.msgBox("Delete?", ui::Buttons::OKCancel), ui::Answer::Cancel);
  boxes.queue(QMessageBox::Yes);
  EXPECT_EQ(dialogs.msgBox("Create?", ui::Buttons::YesNo), ui::Answer::Yes);
  // A question nobody answers on purpose takes its careful button, as Escape does.
  EXPECT_EQ(dialogs.msgBox("Really?", ui::Buttons::YesNo), ui::Answer::No);
  EXPECT_EQ(dialogs.msgBox("Line one\r\nLine two", ui::Buttons::OK), ui::Answer::OK);
  EXPECT_EQ(dialogs.errorBox("Error M2Trap20"), ui::Answer::OK);
  EXPECT_THAT(boxes.seen, ElementsAre("msgbox \"Delete?\" -> Cancel", "msgbox \"Create?\" -> Yes",
                                      "msgbox \"Really?\" -> No", "msgbox \"Line one\nLine two\" -> OK",
                                      "msgbox \"Error M2Trap20\" -> OK"));
  // A question asks, a refusal informs, an error trap warns; each box leaves room for its title.
  EXPECT_THAT(boxes.icons, ElementsAre(QMessageBox::Question, QMessageBox::Question, QMessageBox::Question,
                                       QMessageBox::Information, QMessageBox::Warning));
  for (int room : boxes.roomBesideTitle) EXPECT_GE(room, 100);
}

TEST(QtDialogs, FileDialogShowsTheHostsFilterAndIndex) {
  QtDialogs dialogs;
  QString shownFilter;
  QStringList offered;
  QTimer::singleShot(50, [&] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    offered = dialog->nameFilters();
    shownFilter = dialog->selectedNameFilter();
    dialog->reject();
  });
  const std::string chosen = dialogs.openFile({"Text (*.txt)|*.txt|All (*.*)|*.*|Images (*.zpd)|*.zpd", 3, true});
  EXPECT_EQ(chosen, "");
  EXPECT_EQ(offered.size(), 3);
  EXPECT_EQ(shownFilter, "Images (*.zpd)");
}

TEST(AppAsHost, SavedJobOpensWithItsModeAndName) {
  FormDriver app;
  app.confirmBoard(5);
  EXPECT_TRUE(app.window().session().modified());
  ASSERT_TRUE(app.window().saveTo(QString::fromStdString((app.folder / "Hall.txt").string())));
  EXPECT_FALSE(app.window().session().modified());

  // The title names the job and its folder; that name opens it again.
  FormDriver other;
  other.window().openJob(QString::fromStdString((app.folder / "Hall").string()));
  EXPECT_THAT(other.boxes.seen, IsEmpty());
  EXPECT_EQ(other.shownText("ComboBox1"), "Station Link");
  EXPECT_TRUE(other.tabShown(5));
  EXPECT_EQ(other.window().windowTitle(), "Hall (" + QString::fromStdString(app.folder.string()) + ") - Pellam Setup");
  EXPECT_EQ(other.window().recentJobs().value(0).toStdString(), (app.folder / "Hall.zpd").string());
}

// Nothing a person does ends the program: the tab bar's keys pass over hidden pages, and an
// error that escapes the core comes as a message box with the job kept.
TEST(AppAsHost, NothingAPersonDoesEndsTheProgram) {
  FormDriver app;
  app.confirmBoard(3);
  auto* tabs = qobject_cast<QTabWidget*>(app.widget("MultiPage1"));
  tabs->tabBar()->setFocus();
  const std::pair<Qt::Key, Qt::KeyboardModifiers> keys[] = {
      {Qt::Key_Right, Qt::NoModifier}, {Qt::Key_Right, Qt::NoModifier}, {Qt::Key_Right, Qt::NoModifier},
      {Qt::Key_Left, Qt::NoModifier},  {Qt::Key_Tab, Qt::ControlModifier}, {Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier}};
  std::vector<int> shown;
  for (const auto& [key, modifiers] : keys) {
    QTest::keyClick(key == Qt::Key_Right || key == Qt::Key_Left ? static_cast<QWidget*>(tabs->tabBar()) : tabs, key, modifiers);
    shown.push_back(app.form().MultiPage1.value());
    EXPECT_EQ(tabs->currentIndex(), shown.back());
    EXPECT_TRUE(app.tabShown(shown.back()));
  }
  EXPECT_EQ(shown.front(), 3);

  app.form().CommandButton4.onClick = [] { throw std::logic_error("a fault of ours"); };
  app.click("CommandButton4");
  EXPECT_THAT(app.boxes.seen, ElementsAre("msgbox \"Unexpected Error: a fault of ours\" -> OK"));
  EXPECT_EQ(app.form().ComboBox1.listIndex(), 3) << "the job is still there";
}

// Looking at a job changes nothing; the form's own Save Job button saves it as the menu does.
TEST(AppAsHost, OnlyChangesMarkTheJobAndEverySaveClearsTheMark) {
  FormDriver app;
  app.confirmBoard(2);
  ASSERT_TRUE(app.window().saveTo(QString::fromStdString((app.folder / "Hall.txt").string())));
  const QString saved = "Hall (" + QString::fromStdString(app.folder.string()) + ") - Pellam Setup";
  app.showPage("Page3");
  app.showPage("Page1");
  app.type("TextBox102", QString::fromStdString(app.folder.string()));
  app.click("CommandButton101");
  app.clickLine("ListBox11", 0);
  EXPECT_EQ(app.window().windowTitle(), saved) << "tabs, the folder box and the job list are not the job";
  app.choose("ComboBox48", 1);
  EXPECT_EQ(app.window().windowTitle(), "Hall* (" + QString::fromStdString(app.folder.string()) + ") - Pellam Setup");
  app.choose("ComboBox48", 2);
  EXPECT_EQ(app.window().windowTitle(), saved) << "a change taken back is no change";
  app.choose("ComboBox48", 1);
  app.type("TextBox101", QString::fromStdString((app.folder / "Hall.txt").string()));
  app.click("CommandButton26");
  EXPECT_FALSE(app.window().session().modified());
}

// The room-combine report opens in the app's own viewer, which prints and saves it as a PDF.
TEST(AppAsHost, TheReportOpensInTheAppsOwnViewer) {
  FormDriver app;
  app.confirmBoard(3);
  ASSERT_TRUE(app.window().saveTo(QString::fromStdString((app.folder / "Hall.txt").string())));
  ReportWindow* report = app.window().viewer().window();
  ASSERT_NE(report, nullptr);
  EXPECT_TRUE(report->isVisible());
  EXPECT_EQ(report->text(), QString::fromStdString(readAll(app.folder / "HallUserData.txt")).replace("\r\n", "\n"));
  const auto pdf = app.folder / "Hall.pdf";
  ASSERT_TRUE(report->savePdf(QString::fromStdString(pdf.string())));
  EXPECT_EQ(readAll(pdf).substr(0, 5), "%PDF-");
  EXPECT_THAT(app.boxes.seen, IsEmpty());
}

TEST(AppAsHost, ControlsWithoutACaptionSayWhatTheyAre) {
  FormDriver app;
  app.choose("ComboBox2", 1);
  for (const char* name : {"ComboBox2", "ComboBox64", "ComboBox65", "ComboBox112", "Frame29", "Frame31", "OptionButton4",
                           "ComboBox50", "TextBox7"}) {
    EXPECT_FALSE(app.widget(name)->toolTip().isEmpty()) << name;
  }
}

// Whatever path replaces the job, and whatever a save would write over, a person's work is
// asked about first and kept when they say Cancel or No.
class KeepingWork : public ::testing::Test {
 protected:
  QString path(const char* name) { return QString::fromStdString((app.folder / name).string()); }
  std::string bytes(const char* name) { return readAll(app.folder / name); }
  FormDriver app;
};

TEST_F(KeepingWork, EveryPathThatReplacesTheJobAsksFirst) {
  app.confirmBoard(5);
  ASSERT_TRUE(app.window().saveTo(path("Hall.txt")));
  app.type("TextBox102", QString::fromStdString(app.folder.string()));
  app.click("CommandButton101");
  EXPECT_THAT(app.lines("ListBox11"), ElementsAre("Hall.zpd"));
  app.clickLine("ListBox11", 0);
  const std::pair<const char*, std::function<void()>> paths[] = {
      {"board page's Open Job", [&] { app.click("CommandButton102"); }},
      {"menu's New", [&] { app.menuAction("&New")->trigger(); }},
      {"menu's Open", [&] { app.menuAction("&Open...")->trigger(); }},
  };
  for (const auto& [name, replace] : paths) {
    SCOPED_TRACE(name);
    app.choose("ComboBox48", 1);
    app.boxes.seen.clear();
    app.boxes.queue(QMessageBox::Cancel);
    replace();
    EXPECT_THAT(app.boxes.seen, ElementsAre("msgbox \"Save the changes to this job?\" -> Cancel"));
    EXPECT_TRUE(app.window().session().modified()) << "the change is still there";
    EXPECT_EQ(app.form().ComboBox48.listIndex(), 1);
    app.boxes.queue(QMessageBox::Discard);
    app.boxes.queuePath(path("Hall.zpd"));
    replace();
    EXPECT_FALSE(app.window().session().modified());
    if (std::string(name) != "menu's New") {
      EXPECT_TRUE(app.window().windowTitle().startsWith("Hall (")) << app.window().windowTitle().toStdString();
      EXPECT_EQ(app.as<QComboBox>("ComboBox48")->currentIndex(), 2) << "the saved job is back";
      EXPECT_TRUE(app.tabShown(5));
      app.showPage("Page1");
    } else {
      EXPECT_EQ(app.window().windowTitle(), "New Job - Pellam Setup");
      app.confirmBoard(5);
    }
  }
}

// The file dialog shows jobs by their image; typing an existing job's name asks before any
// of its files is replaced.
TEST_F(KeepingWork, SaveAsShowsJobsAndAsksBeforeReplacingAny) {
  app.confirmBoard(3);
  ASSERT_TRUE(app.window().saveTo(path("Hall.txt")));
  FormDriver other;
  other.confirmBoard(1);
  const std::string before = bytes("Hall.zpd");
  other.boxes.queuePath(path("Hall"));
  other.boxes.queue(QMessageBox::No);
  EXPECT_FALSE(other.window().saveAs());
  EXPECT_EQ(bytes("Hall.zpd"), before);
  ASSERT_EQ(other.boxes.filters.size(), 1u) << ::testing::PrintToString(other.boxes.seen);
  EXPECT_THAT(other.boxes.filters.at(0), ElementsAre("Pellam Jobs (*.zpd)"));
  const std::string question = "msgbox \"Replace The Existing Job?\n" + (app.folder / "Hall.zpd").string() + "\" -> ";
  EXPECT_THAT(other.boxes.seen, ElementsAre("file dialog -> " + path("Hall").toStdString(), question + "No"));

  other.boxes.queuePath(path("Hall.zpd"));
  other.boxes.queue(QMessageBox::Yes);
  EXPECT_TRUE(other.window().saveAs());
  EXPECT_NE(bytes("Hall.zpd"), before);
  EXPECT_TRUE(std::filesystem::exists(app.folder / "Hall.txt")) << "the mode-1 job's own text file";
}

// A file of another kind is opened only after Yes, and never becomes the file Save writes over.
TEST_F(KeepingWork, AJobNotOfOurSavingIsSavedAs) {
  std::ofstream(app.folder / "Lobby.txt") << "P,1,I,1,text of another program\r\n";
  std::ofstream(app.folder / "notes.zpd") << "not an image";
  app.boxes.queue(QMessageBox::No);
  app.window().openJob(path("notes.zpd"));
  EXPECT_THAT(app.boxes.seen, ElementsAre("msgbox \"Select File is not Pellam Type Continue Loading?\" -> No"));
  for (const char* name : {"Lobby.txt", "notes.zpd"}) {
    SCOPED_TRACE(name);
    const std::string before = bytes(name);
    app.boxes.queue(QMessageBox::Yes);
    app.window().openJob(path(name));
    EXPECT_EQ(app.window().windowTitle(), "New Job - Pellam Setup");
    app.choose("ComboBox48", 2);
    app.boxes.seen.clear();
    EXPECT_FALSE(app.window().save());
    EXPECT_THAT(app.boxes.seen, ElementsAre("file dialog -> "));
    EXPECT_EQ(bytes(name), before);
    EXPECT_FALSE(std::filesystem::exists(app.folder / "Lobby.zpd"));
  }
}

// A window that ends without closing leaves a copy of its unsaved job, offered at the next
// start; a window closed normally leaves nothing to offer.
// A real kill, in a process of its own: nothing of the window runs at its end, its lock is left
// behind, and the copy is the one the window's own timer wrote.
TEST(Recovery, AKilledProgramLeavesACopyOfferedAtTheNextStart) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto dataOf = [](pid_t parent) {
    return std::filesystem::temp_directory_path() / ("pellam-qt-killed-" + std::to_string(parent));
  };
  EXPECT_EXIT(
      {
        FormDriver app(dataOf(getppid()));
        app.confirmBoard(3);
        app.showPage("Page8");
        app.type("TextBox103", "Lobby");
        app.choose("ComboBox101", 4);
        app.click("CommandButton33");
        const std::filesystem::path copies = app.data / "recovery";
        const bool copied = QTest::qWaitFor([&] {
          std::error_code ec;
          for (const auto& folder : std::filesystem::directory_iterator(copies, ec))
            if (std::filesystem::exists(folder.path() / "job.zpd")) return true;
          return false;
        }, 10000);
        if (!copied) std::_Exit(1);
        std::raise(SIGKILL);
      },
      ::testing::KilledBySignal(SIGKILL), "");

  const std::filesystem::path data = dataOf(getpid());
  FormDriver next(data, QMessageBox::Yes);
  ASSERT_EQ(next.boxes.seen.size(), 1u);
  EXPECT_THAT(next.boxes.seen[0], ::testing::StartsWith("msgbox \"Pellam Setup did not close normally. Recover the "
                                                        "unsaved changes to a new job ("));
  EXPECT_EQ(next.window().windowTitle(), "New Job* - Pellam Setup");
  EXPECT_EQ(next.shownText("ComboBox1"), "Room Combine");
  EXPECT_THAT(next.lines("ListBox12"), ElementsAre("4: Lobby"));

  // Closing a changed job asks first: Cancel keeps the window.
  next.boxes.queue(QMessageBox::Cancel);
  EXPECT_FALSE(next.window().close());
  EXPECT_TRUE(next.window().isVisible());
  next.boxes.queue(QMessageBox::Discard);
  EXPECT_TRUE(next.window().close());
  {
    FormDriver after(data);
    EXPECT_THAT(after.boxes.seen, IsEmpty()) << "a normal close leaves no copy";
  }
  std::filesystem::remove_all(data);
}

}  // namespace
}  // namespace pellam::qt::testing
