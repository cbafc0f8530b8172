#include <QApplication>
#include <QDir>
#include <QTabWidget>
#include <QTest>
#include <cstdlib>
#include <gmock/gmock.h>
#include <map>

#include "form_driver.h"
#include "support/longest_lines.h"
#include "form_view.h"
#include "report_viewer.h"
#include "setup/master_inputs.h"

// How the window looks and reads: texts that fit, the order of the Tab key, the pictures.
namespace pellam::qt::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

// Every page of a mode that shows it, with input scan on so that the numbering page and the
// refresh rate show too, and the upload frame open.
void confirmWithEverythingShown(FormDriver& app, int mode) {
  app.confirmBoard(mode);
  app.click("OptionButton4");
  app.choose("ComboBox55", 30);
  app.click("CommandButton4");
  app.form().Frame23.setVisible(true);
  app.window().form().flush();
}

std::vector<std::string> pagesShown(FormDriver& app) {
  std::vector<std::string> pages;
  for (int page = 0; page < 9; ++page)
    if (app.tabShown(page)) pages.push_back("Page" + std::to_string(page + 1));
  return pages;
}

class FontSize {
 public:
  explicit FontSize(int points) : saved_(QApplication::font()) {
    QFont font = saved_;
    if (points > 0) font.setPointSize(points);
    QApplication::setFont(font);
  }
  ~FontSize() { QApplication::setFont(saved_); }

 private:
  QFont saved_;
};

// Desktops often set 10 or 11 point text; the form is laid out in pixels, so it must leave
// that much room.
TEST(WindowLayout, EveryTextFitsAtTheDefaultFontAndAtElevenPoints) {
  for (int points : {0, 11}) {
    const FontSize font(points);
    for (int mode = 1; mode <= 5; ++mode) {
      FormDriver app;
      confirmWithEverythingShown(app, mode);
      pellam::testing::fillLongestLines(app.form());
      app.window().form().flush();
      for (const std::string& page : pagesShown(app)) {
        EXPECT_THAT(app.cutOffOn(page.c_str()), IsEmpty()) << page << " of mode " << mode << " at "
                                                           << QApplication::font().pointSize() << " pt";
      }
    }
  }
}

TEST(WindowLayout, FitsAScreenOf1024By768WithATitleBar) {
  FormDriver app;
  const QSize size = app.window().frameGeometry().size();
  EXPECT_LE(size.width(), 1024);
  EXPECT_LE(size.height(), 768 - 30);
}

// Tab from the page's first control: every control a person can use comes once, in order.
std::vector<std::string> tabWalk(FormDriver& app, const char* page, const char* first) {
  std::map<QWidget*, std::string> names;
  for (const ui::Control* control : app.form().controls())
    names[app.window().form().widgetFor(control->name())] = std::string(control->name());
  app.showPage(page);
  app.widget(first)->setFocus(Qt::TabFocusReason);
  std::vector<std::string> walk{first};
  QWidget* pageWidget = app.widget(page);
  for (int step = 0; step < 40; ++step) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QWidget* now = QApplication::focusWidget();
    if (!now || !pageWidget->isAncestorOf(now)) break;
    walk.push_back(names.count(now) ? names[now] : "?");
  }
  return walk;
}

TEST(WindowLayout, TabGoesThroughEachPageAsItReads) {
  struct Case {
    int mode;
    const char* page;
    std::vector<std::string> order;
  } cases[] = {
      {1, "Page2",
       {"ComboBox26", "ComboBox27", "ComboBox49", "ComboBox45", "ComboBox46", "ComboBox28", "ComboBox47",
        "CommandButton19", "CommandButton23", "CommandButton6", "ListBox8", "ListBox9"}},
      {5, "Page6",
       {"ComboBox34", "ComboBox35", "ComboBox33", "CommandButton8", "CommandButton21", "ListBox3", "ComboBox17",
        "ComboBox18", "ComboBox19", "ComboBox43", "CommandButton14", "CommandButton15", "ListBox7", "ComboBox20",
        "ComboBox22", "ComboBox23", "CommandButton3", "CommandButton16", "ListBox6"}},
      {3, "Page4",
       {"ComboBox36", "ComboBox37", "ComboBox38", "CommandButton11", "CommandButton12", "ListBox1", "ComboBox30",
        "ComboBox31", "ComboBox32", "CommandButton7", "CommandButton20", "ListBox2", "CommandButton9",
        "CommandButton10", "CommandButton30", "CommandButton40", "CommandButton41"}},
      {4, "Page5",
       {"ComboBox42", "ComboBox39", "ComboBox41", "ComboBox40", "ComboBox44", "CommandButton1", "CommandButton24",
        "ListBox5", "ListBox10"}},
      {3, "Page8",
       {"TextBox103", "ComboBox101", "CommandButton33", "ComboBox102", "CommandButton35", "ListBox12", "ComboBox58",
        "ListBox13", "ComboBox61", "TextBox104", "CommandButton37"}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.page);
    FormDriver app;
    app.confirmBoard(c.mode);
    EXPECT_THAT(tabWalk(app, c.page, c.order.front().c_str()), ElementsAreArray(c.order));
  }
  // The board page reads down its first column before the frames beside it.
  FormDriver app;
  confirmWithEverythingShown(app, 2);
  const auto walk = tabWalk(app, "Page1", "ComboBox48");
  ASSERT_GE(walk.size(), 10u);
  EXPECT_THAT(std::vector(walk.begin(), walk.begin() + 10),
              ElementsAre("ComboBox48", "ComboBox1", "ComboBox2", "ComboBox6", "ComboBox64", "CommandButton4",
                          "TextBox5", "OptionButton4", "OptionButton6", "ComboBox55"));
}

TEST(WindowLayout, APageCanBeWorkedWithTheKeyboardAlone) {
  FormDriver app;
  app.confirmBoard(2);
  app.showPage("Page3");
  app.window().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&app.window()));
  app.widget("ComboBox7")->setFocus(Qt::TabFocusReason);
  auto press = [&](Qt::Key key, int times = 1) {
    for (int i = 0; i < times; ++i) {
      QTest::keyClick(QApplication::focusWidget(), key);
      // A choice may bring a message box; the keys go on in the window once it is answered.
      ASSERT_TRUE(QTest::qWaitFor([] { return !QApplication::activeModalWidget(); }));
      app.window().activateWindow();
      ASSERT_TRUE(QTest::qWaitForWindowActive(&app.window()));
    }
  };
  // Each list starts with nothing chosen, then a blank line.
  press(Qt::Key_Down, 2);
  press(Qt::Key_Tab);
  press(Qt::Key_Down, 3);
  press(Qt::Key_Tab);
  press(Qt::Key_Down, 6);
  press(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), app.widget("CommandButton2"));
  press(Qt::Key_Return);
  EXPECT_THAT(app.boxes.seen, ElementsAre("msgbox \"No Entry for Input 1\" -> OK"));
  EXPECT_THAT(app.lines("ListBox4"), ElementsAre("Input:1  Links Rooms:  2 and 5"));
}

// Pictures of every page as a person sees it, for looking at rather than asserting on:
// tests/qt/screenshots.sh runs this under Xvfb with the sample jobs and maximal jobs built.
class Screenshots : public ::testing::Test {
 protected:
  void SetUp() override {
    const char* out = std::getenv("PELLAM_SCREENSHOTS");
    const char* samples = std::getenv("PELLAM_SAMPLES");
    if (!out || !samples) GTEST_SKIP() << "PELLAM_SCREENSHOTS and PELLAM_SAMPLES name the folders";
    out_ = QDir(out);
    samples_ = QDir(samples);
  }
  void grabTabs(FormDriver& app, const QString& stem) {
    for (const std::string& page : pagesShown(app)) {
      EXPECT_THAT(app.cutOffOn(page.c_str()), IsEmpty()) << stem.toStdString() << " " << page;
      QTest::qWait(20);
      const QString file = out_.filePath(QStringLiteral("%1-%2.png").arg(stem, QString::fromStdString(page)));
      EXPECT_TRUE(app.window().grab().save(file)) << file.toStdString();
    }
  }
  QDir out_, samples_;
};

TEST_F(Screenshots, EveryPageOfEverySampleJob) {
  for (const QString& job : samples_.entryList({"*.zpd"}, QDir::Files)) {
    FormDriver app;
    app.window().openJob(samples_.filePath(job));
    grabTabs(app, QFileInfo(job).completeBaseName());
  }
  FormDriver scan;
  confirmWithEverythingShown(scan, 2);
  grabTabs(scan, "InputScan");
  // The report's own viewer, as a room-combine save shows it.
  FormDriver report;
  report.confirmBoard(3);
  ASSERT_TRUE(report.window().saveTo(QString::fromStdString((report.folder / "Report.txt").string())));
  QTest::qWait(20);
  EXPECT_TRUE(report.window().viewer().window()->grab().save(out_.filePath("ReportViewer.png")));
}

}  // namespace
}  // namespace pellam::qt::testing
