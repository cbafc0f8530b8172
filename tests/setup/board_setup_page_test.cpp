#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/desk.h"

namespace pellam::setup {
namespace {

using testing::Desk;
using Lines = std::vector<std::string>;

std::string box(const std::string& text) { return "msgbox \"" + text + "\" OK"; }

class BoardSetupPageTest : public ::testing::Test {
 protected:
  void SetUp() override { desk.startUp(); }

  // A complete master set-up in the given operating mode.
  void chooseValidMaster(int mode = 3) {
    f.ComboBox48.select(2);
    f.ComboBox1.select(mode);
    f.ComboBox2.select(1);
    f.ComboBox6.select(1);
  }
  std::vector<std::string_view> visibleModePages() {
    std::vector<std::string_view> shown;
    for (const ui::Page* p : {&f.Page2, &f.Page3, &f.Page4, &f.Page5, &f.Page6, &f.Page7, &f.Page8, &f.Page9}) {
      if (p->visible()) shown.push_back(p->name());
    }
    return shown;
  }

  Desk desk;
  ui::UserForm1& f = desk.form();
  job::BoardSetup& board = desk.job().board;
};

TEST_F(BoardSetupPageTest, EachCheckStandsAlone) {
  struct Case {
    const char* name;
    std::function<void(ui::UserForm1&)> spoil;
    std::string message;
    bool hidesConfirm;
  };
  const std::vector<Case> cases = {
      {"hardware", [](ui::UserForm1& f) { f.ComboBox48.select(0); }, "Hardware type not Selected", true},
      {"mode", [](ui::UserForm1& f) { f.ComboBox1.select(0); }, "Operating Mode Not Selected", true},
      {"master/slave", [](ui::UserForm1& f) { f.ComboBox2.select(0); }, "Master Slave Mode Not Selected", true},
      {"slave id", [](ui::UserForm1& f) { f.ComboBox2.select(2); }, "Slave ID not Selected", true},
      {"input action", [](ui::UserForm1& f) { f.ComboBox6.select(0); }, "Input Action Not Selected", true},
      {"refresh rate", [](ui::UserForm1& f) { f.OptionButton4.choose(); }, "Please Select a Refresh Rate", false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    desk.startUp();
    chooseValidMaster();
    c.spoil(f);
    desk.shown();
    f.CommandButton4.click();
    EXPECT_EQ(desk.shown(), Lines{box(c.message)});
    EXPECT_EQ(f.CommandButton4.visible(), !c.hidesConfirm);
    EXPECT_TRUE(visibleModePages().empty()) << "a failed confirm shows no editor";
    EXPECT_EQ(f.TextBox5.text(), "");
  }
}

TEST_F(BoardSetupPageTest, RefreshRateIsCountedIn50MillisecondUnits) {
  const std::pair<int, int> cases[] = {{0, 0}, {1, 20}, {90, 1800}, {180, 3600}, {181, 1200}, {182, 2400}, {200, 24000}};
  for (const auto& [index, units] : cases) {
    f.ComboBox55.select(index);
    EXPECT_EQ(board.RefreshRate, units) << "list index " << index;
  }
}

TEST_F(BoardSetupPageTest, OptionButtonsSetTheirBits) {
  f.OptionButton4.choose();
  EXPECT_EQ(board.BoardOptions, 1);
  EXPECT_TRUE(f.ComboBox55.visible());
  EXPECT_TRUE(f.Label67.visible());
  f.OptionButton7.choose();
  EXPECT_EQ(board.BoardOptions, 1 | 2);
  f.OptionButton8.choose();
  EXPECT_EQ(board.BoardOptions, 1 | 4);
  f.OptionButton9.choose();
  EXPECT_EQ(board.BoardOptions, 1 | 2 | 4);
  f.OptionButton6.choose();
  EXPECT_EQ(board.BoardOptions, 2 | 4) << "bit 0 cleared, the others kept";
  EXPECT_FALSE(f.ComboBox55.visible());
  f.OptionButton1.choose();
  EXPECT_EQ(board.InputScan, 1);
  f.OptionButton2.choose();
  EXPECT_EQ(board.InputScan, 0);
}

}  // namespace
}  // namespace pellam::setup
