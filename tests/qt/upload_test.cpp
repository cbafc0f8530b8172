#include <QToolButton>
#include <QTest>
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "form_driver.h"
#include "form_view.h"
#include "support/controller_sim.h"
#include "upload_progress.h"

// The window's side of an upload against a controller that takes the file and never confirms.
namespace pellam::qt::testing {
namespace {

using ::testing::ElementsAre;
namespace fs = std::filesystem;

int entries(const fs::path& log) {
  std::ifstream in(log);
  int count = 0;
  for (std::string line; std::getline(in, line);) count += line.rfind(std::string(46, '*'), 0) == 0;
  return count;
}

TEST(AppUpload, TheWindowSavesFirstShowsProgressAndItsCancelOrCloseEndsTheTransfer) {
  pellam::testing::ControllerSim controller({"--stations=5", "--stall"});
  FormDriver app;
  const fs::path log = app.folder / "RQCLog.txt";
  app.window().session().uploadPage.settingsPath = (app.folder / "none.ini").string();
  auto* progress = dynamic_cast<UploadProgress*>(app.window().findChild<QWidget*>("UploadProgress"));
  ASSERT_NE(progress, nullptr);
  app.confirmBoard(1);
  app.window().session().navigation.showUploadFrame();
  app.window().form().flush();
  app.choose("ComboBox50", 5);
  app.type("TextBox7", QString("127.0.0.1:%1").arg(controller.port()));
  app.boxes.queue(QMessageBox::Cancel);
  app.click("CommandButton27");
  EXPECT_FALSE(progress->isVisible()) << "nothing is sent while the job on screen is not saved";

  ASSERT_TRUE(app.window().saveTo(QString::fromStdString((app.folder / "Hall.txt").string())));
  app.click("CommandButton27");
  QTRY_VERIFY_WITH_TIMEOUT(fs::exists(controller.received() / "Q9z5.zpd") && progress->isVisible(), 10000);
  QTest::mouseClick(progress->cancelButton(), Qt::LeftButton);
  QTRY_COMPARE_WITH_TIMEOUT(app.boxes.seen.size(), 2u, 5000);
  EXPECT_FALSE(progress->isVisible());
  EXPECT_EQ(entries(log), 1);

  // Closing the window ends a transfer as Cancel does, and shows nothing more of it.
  app.click("CommandButton27");
  QTRY_VERIFY_WITH_TIMEOUT(progress->isVisible(), 10000);
  EXPECT_TRUE(progress->cancelButton()->isEnabled()) << "a cancelled upload leaves the next one its Cancel";
  EXPECT_TRUE(app.window().close());
  QTRY_COMPARE_WITH_TIMEOUT(entries(log), 2, 5000);
  QTest::qWait(100);
  EXPECT_THAT(app.boxes.seen, ElementsAre("msgbox \"The upload sends the job as saved. Save the changes first?\" -> Cancel",
                                          "msgbox \"Down Load Cancelled\" -> OK"));
}

}  // namespace
}  // namespace pellam::qt::testing
