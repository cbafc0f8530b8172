#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "component/job_files.h"
#include "editors/input_numbering/input_numbering_page.h"
#include "image/memory_map.h"
#include "support/desk.h"

namespace pellam::editors::input_numbering {
namespace {

using testing::Desk;
using Lines = std::vector<std::string>;

std::string box(const std::string& text) { return "msgbox \"" + text + "\" OK"; }

TEST(NumberInputTest, RefusesWhatTheBoardCouldNotKeep) {
  Desk desk;
  job::InputNumberTable table;
  ui::Dialogs& dialogs = desk.session().dialogs();
  ASSERT_TRUE(NumberInput(table, dialogs, 5, 41));
  ASSERT_TRUE(NumberInput(table, dialogs, 16, 255));
  const job::InputNumberTable before = table;

  struct Case {
    int input, room;
    const char* message;
  };
  const Case cases[] = {
      {0, 7, "Input Not Selected"},       {-1, 7, "Input Not Selected"},
      {3, 0, "Room Not Selected"},        {0, 0, "Input Not Selected"},
      {17, 7, "Input Out Of Range"},      {3, 256, "Room Out Of Range"},
      {5, 42, "Input Already Numbered"},  {3, 41, "Room Already Used By Input 5"},
      {3, 255, "Room Already Used By Input 16"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.message);
    EXPECT_FALSE(NumberInput(table, dialogs, c.input, c.room));
    EXPECT_EQ(desk.shown(), Lines{box(c.message)});
  }
  for (std::size_t i = 0; i < table.records.size(); ++i) {
    EXPECT_EQ(table.records[i].InputNumber, before.records[i].InputNumber) << "record " << i;
    EXPECT_EQ(table.records[i].RoomNumber, before.records[i].RoomNumber) << "record " << i;
  }
}

class InputNumberingPageTest : public ::testing::Test {
 protected:
  void SetUp() override { desk.startUp(); }

  void confirmBoard(int mode, int masterSlave, bool numbering) {
    f.ComboBox48.select(2);
    f.ComboBox1.select(mode);
    f.ComboBox2.select(masterSlave);
    if (masterSlave == job::kSlaved) f.ComboBox25.select(4);
    f.ComboBox6.select(1);
    if (numbering) {
      f.OptionButton4.choose();
      f.ComboBox55.select(30);
    } else {
      f.OptionButton6.choose();
    }
    f.CommandButton4.click();
    ASSERT_EQ(desk.shown(), Lines{});
  }

  void number(int input, int room) {
    f.ComboBox110.select(input);
    f.ComboBox111.select(room);
    f.CommandButton110.click();
  }

  Desk desk;
  ui::UserForm1& f = desk.form();
};

TEST_F(InputNumberingPageTest, ThePageComesWithOptionBitZeroInEveryModeOfAMaster) {
  for (int mode = 1; mode <= 5; ++mode) {
    SCOPED_TRACE(mode);
    confirmBoard(mode, job::kMaster, true);
    EXPECT_TRUE(f.Page9.visible());
    confirmBoard(mode, job::kMaster, false);
    EXPECT_FALSE(f.Page9.visible());
    confirmBoard(mode, job::kSlaved, true);
    EXPECT_FALSE(f.Page9.visible()) << "a slaved station gets no editor page";
  }
  confirmBoard(2, job::kMaster, true);
  f.OptionButton6.choose();
  EXPECT_FALSE(f.Page9.visible()) << "turning numbering off takes the page away until the next confirm";
  EXPECT_FALSE(f.Page3.visible());
  EXPECT_EQ(f.TextBox5.text(), "");
}

TEST_F(InputNumberingPageTest, ANewJobAndAnImageWithoutNumberingListNothing) {
  confirmBoard(2, job::kMaster, true);
  number(4, 60);
  ASSERT_EQ(f.ListBox101.items(), Lines{"Input 4: Room 60"});
  desk.startUp();
  EXPECT_EQ(f.ListBox101.count(), 0);
  EXPECT_EQ(desk.job().inputNumbering.records[4].InputNumber, 0);

  number(4, 60);
  image::EepromImage& img = desk.session().image;
  img.put(image::map::kOperatingModeByte, 2);
  img.put(image::map::kMasterSlaveByte, job::kMaster);
  img.put(image::map::kInputNumberingPerInputBase + 7, 9);  // left over, but bit 0 is clear
  component::DecodeImage(desk.session());
  EXPECT_EQ(f.ListBox101.count(), 0);
  EXPECT_EQ(desk.job().inputNumbering.records[7].RoomNumber, 0);

  img.put(image::map::kOptionFlagsByte, 1);
  component::DecodeImage(desk.session());
  EXPECT_EQ(f.ListBox101.items(), Lines{"Input 7: Room 9"});
  EXPECT_TRUE(f.Page9.visible());
}

TEST_F(InputNumberingPageTest, RoomsOfDeletedInputsAreFreeAgain) {
  confirmBoard(2, job::kMaster, true);
  number(9, 12);
  number(2, 13);
  EXPECT_EQ(f.ListBox101.items(), (Lines{"Input 2: Room 13", "Input 9: Room 12"})) << "listed by input";
  f.ListBox101.select(1);
  EXPECT_EQ(f.ComboBox110.listIndex(), 9);
  EXPECT_EQ(f.ComboBox111.listIndex(), 12);
  desk.answer(ui::Answer::Yes);
  f.CommandButton111.click();
  EXPECT_EQ(desk.shown(), Lines{"msgbox \"Delete Input 9\" YesNo -> Yes"});
  number(3, 12);
  EXPECT_EQ(desk.shown(), Lines{});
  EXPECT_EQ(f.ListBox101.items(), (Lines{"Input 2: Room 13", "Input 3: Room 12"}));

  desk.answer(ui::Answer::Yes);
  f.CommandButton112.click();
  EXPECT_EQ(f.ListBox101.count(), 0);
  number(2, 12);
  EXPECT_EQ(f.ListBox101.items(), Lines{"Input 2: Room 12"}) << "clear all freed inputs and rooms";
}

}  // namespace
}  // namespace pellam::editors::input_numbering
