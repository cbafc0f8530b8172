#include <QApplication>
#include <QFileDialog>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <fstream>
#include <stdexcept>
#include <gmock/gmock.h>

#include "form_driver.h"
#include "qt_dialogs.h"

namespace pellam::qt::testing {
namespace {

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
  EXPECT_THAT(boxes.seen, ElementsAre("msgbox \"Delete?\" -> Cancel", "msgbox \"Create?\" -> Yes",
                                      "msgbox \"Really?\" -> No", "msgbox \"Line one\nLine two\" -> OK"));
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

TEST(AppAsHost, AFileOfAnotherKindIsOpenedOnlyAfterYes) {
  FormDriver app;
  const auto path = app.folder / "notes.zpd";
  std::ofstream(path) << "not an image";
  app.boxes.queue(QMessageBox::No);
  app.window().openJob(QString::fromStdString(path.string()));
  EXPECT_THAT(app.boxes.seen, ElementsAre("msgbox \"Select File is not Pellam Type Continue Loading?\" -> No"));
  EXPECT_EQ(app.window().windowTitle(), "New Job - Pellam Setup");
}

TEST(AppAsHost, SavedJobOpensWithItsModeAndName) {
  FormDriver app;
  app.confirmBoard(5);
  EXPECT_TRUE(app.window().session().modified());
  ASSERT_TRUE(app.window().saveTo(QString::fromStdString((app.folder / "Hall.txt").string())));
  EXPECT_FALSE(app.window().session().modified());

  FormDriver other;
  other.window().openJob(QString::fromStdString((app.folder / "Hall.zpd").string()));
  EXPECT_THAT(other.boxes.seen, IsEmpty());
  EXPECT_EQ(other.shownText("ComboBox1"), "Station Link");
  EXPECT_TRUE(other.tabShown(5));
  EXPECT_EQ(other.window().windowTitle(), "Hall.txt - Pellam Setup");
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
  app.showPage("Page3");
  app.showPage("Page1");
  EXPECT_EQ(app.window().windowTitle(), "Hall.txt - Pellam Setup");
  app.choose("ComboBox48", 1);
  EXPECT_EQ(app.window().windowTitle(), "Hall.txt* - Pellam Setup");
  app.choose("ComboBox48", 2);
  EXPECT_EQ(app.window().windowTitle(), "Hall.txt - Pellam Setup") << "a change taken back is no change";
  app.choose("ComboBox48", 1);
  app.type("TextBox101", QString::fromStdString((app.folder / "Hall.txt").string()));
  app.click("CommandButton26");
  EXPECT_FALSE(app.window().session().modified());
}

TEST(AppAsHost, ClosingAChangedJobAsksFirst) {
  FormDriver app;
  app.choose("ComboBox48", 2);
  EXPECT_EQ(app.window().windowTitle(), "New Job* - Pellam Setup");
  app.boxes.queue(QMessageBox::Cancel);
  EXPECT_FALSE(app.window().close());
  EXPECT_TRUE(app.window().isVisible());
  app.boxes.queue(QMessageBox::Discard);
  EXPECT_TRUE(app.window().close());
  EXPECT_EQ(app.boxes.seen.size(), 2u);
}

}  // namespace
}  // namespace pellam::qt::testing
