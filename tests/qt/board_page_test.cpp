#include <QRadioButton>
#include <gmock/gmock.h>

#include "form_driver.h"

namespace pellam::qt::testing {
namespace {

using ::testing::IsEmpty;

TEST(BoardPageWidgets, ConfirmingAModeShowsItsTabsAndTheSummary) {
  FormDriver app;
  EXPECT_TRUE(app.tabShown(0));
  EXPECT_FALSE(app.tabShown(3));
  app.confirmBoard(3);
  EXPECT_THAT(app.boxes.seen, IsEmpty());
  EXPECT_EQ(app.shownText("ComboBox1"), "Room Combine");
  EXPECT_EQ(app.form().ComboBox1.listIndex(), 3);
  // Room combine brings its own page and the names page, nothing else.
  for (int page = 1; page < 9; ++page) {
    SCOPED_TRACE(page);
    EXPECT_EQ(app.tabShown(page), page == 3 || page == 7);
  }
  const QString summary = app.shownText("TextBox5");
  EXPECT_FALSE(summary.isEmpty());
  EXPECT_EQ(summary, QString::fromStdString(app.form().TextBox5.text()).replace("\r\n", "\n"));
}

TEST(BoardPageWidgets, OptionButtonsFollowTheFormNotQtsGrouping) {
  FormDriver app;
  app.confirmBoard(2);
  EXPECT_FALSE(app.widget("ComboBox55")->isVisible());
  app.click("OptionButton4");
  EXPECT_TRUE(app.as<QRadioButton>("OptionButton4")->isChecked());
  EXPECT_TRUE(app.widget("ComboBox55")->isVisible());
  app.click("OptionButton6");
  EXPECT_FALSE(app.as<QRadioButton>("OptionButton4")->isChecked());
  EXPECT_TRUE(app.as<QRadioButton>("OptionButton6")->isChecked());
  EXPECT_EQ(app.form().OptionButton6.value(), true);
}

}  // namespace
}  // namespace pellam::qt::testing
