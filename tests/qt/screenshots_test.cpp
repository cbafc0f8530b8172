#include <QDir>
#include <QTabWidget>
#include <QTest>
#include <cstdlib>
#include <gmock/gmock.h>

#include "form_driver.h"

namespace pellam::qt::testing {
namespace {

// Pictures of every page as a person sees it, for looking at rather than asserting on:
// tests/qt/screenshots.sh runs this under Xvfb with the sample jobs built.
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
    auto* tabs = app.as<QTabWidget>("MultiPage1");
    for (int i = 0; i < tabs->count(); ++i) {
      if (!tabs->isTabVisible(i)) continue;
      tabs->setCurrentIndex(i);
      QTest::qWait(20);
      const QString file = out_.filePath(QStringLiteral("%1-Page%2.png").arg(stem).arg(i + 1));
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
  scan.confirmBoard(2);
  scan.click("OptionButton4");
  scan.choose("ComboBox55", 30);
  scan.click("CommandButton4");
  grabTabs(scan, "InputScan");
}

}  // namespace
}  // namespace pellam::qt::testing
