#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "component/form_members.h"
#include "component/job_files.h"
#include "editors/remote_commands/remote_commands_page.h"
#include "support/desk.h"

namespace pellam::editors::remote_commands {
namespace {

using testing::Desk;
using Lines = std::vector<std::string>;

std::string box(const std::string& text) { return "msgbox \"" + text + "\" OK"; }

class RemoteCommandsPageTest : public ::testing::Test {
 protected:
  void SetUp() override { desk.startUp(); }

  // Chooses the input, whose rebuild may say "No Entries": the caller reads desk.shown().
  void chooseInput(int input) { f.ComboBox69.select(input); }
  // One add as a person makes it; value is what the LED/button list shows (1..16).
  void add(int netId, int value, int page = 1) {
    f.ComboBox68.select(netId);
    f.ComboBox70.select(page);
    f.ListBox17.select(value - 1);
    f.CommandButton38.click();
  }
  bool anyListed() const {
    for (const job::RemoteCommandBlock& b : table.blocks) {
      for (std::int16_t n : b.Listed) {
        if (n != 0) return true;
      }
    }
    return false;
  }

  Desk desk;
  ui::UserForm1& f = desk.form();
  job::RemoteCommandTable& table = desk.job().remoteCommands;
};

TEST_F(RemoteCommandsPageTest, EachModeEnablesItsControls) {
  const std::vector<ui::Control*> entryControls = {&f.ComboBox68, &f.ComboBox69, &f.ListBox17, &f.CommandButton38,
                                                   &f.ListBox19,  &f.Label70};
  f.OptionButton14.choose();
  EXPECT_EQ(table.RemoteMode, 0);
  EXPECT_EQ(f.Frame104.caption(), "Remote To Disabled");
  for (const ui::Control* c : entryControls) EXPECT_FALSE(c->enabled()) << c->name();
  EXPECT_FALSE(f.ComboBox70.enabled());
  EXPECT_TRUE(f.OptionButton12.enabled()) << "the disabled mode can be left";
  chooseInput(2);
  desk.shown();
  add(5, 3);
  EXPECT_EQ(desk.shown(), Lines{}) << "no add is possible in the disabled mode";
  EXPECT_FALSE(anyListed());

  f.OptionButton12.choose();
  EXPECT_EQ(table.RemoteMode, 1);
  EXPECT_EQ(f.Frame104.caption(), "Remote To LED's");
  for (const ui::Control* c : entryControls) EXPECT_TRUE(c->enabled()) << c->name();
  EXPECT_FALSE(f.ComboBox70.enabled()) << "LED entries have no page";

  f.OptionButton13.choose();
  EXPECT_EQ(table.RemoteMode, 2);
  EXPECT_EQ(f.Frame104.caption(), "Remote To Buttons");
  EXPECT_TRUE(f.ComboBox70.enabled());
  EXPECT_FALSE(f.OptionButton12.value());

  // Loading the form shows the mode in force, whatever the options showed before.
  table.RemoteMode = 1;
  component::LoadUserForm(desk.session());
  EXPECT_TRUE(f.OptionButton12.value());
  EXPECT_FALSE(f.OptionButton13.value());
  EXPECT_FALSE(f.ComboBox70.enabled());
}

TEST_F(RemoteCommandsPageTest, AddRefusesInItsOrderAndStoresNothing) {
  f.OptionButton13.choose();
  struct Case {
    int netId, input, page, value;
    const char* message;
  };
  const Case cases[] = {
      {-1, 0, 0, 0, "NetId Not Selected"},
      {128, 0, 0, 0, "NetId Must Be Less Than 127"},
      {255, 3, 2, 1, "NetId Must Be Less Than 127"},
      {127, 0, 0, 0, "Input Not Selected"},
      {127, 3, 0, 0, "Page Not Selected"},
      {127, 3, 2, 0, "Button Not Selected"},
      // The blank item is net id 0, which every block reads as listed.
      {0, 3, 2, 1, "Duplicate NetID"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.message);
    chooseInput(c.input);
    desk.shown();
    f.ComboBox68.select(c.netId);
    f.ComboBox70.select(c.page);
    f.ListBox17.select(c.value - 1);
    f.CommandButton38.click();
    EXPECT_EQ(desk.shown(), Lines{box(c.message)});
    EXPECT_FALSE(anyListed());
    EXPECT_EQ(f.ListBox19.count(), 0);
  }

  add(127, 16, 2);
  EXPECT_EQ(desk.shown(), Lines{}) << "net id 127 is accepted";
  EXPECT_EQ(f.ListBox19.items(), Lines{"NetId 127 Btn 16"});
  EXPECT_EQ(f.Label70.caption(), "Input 3 Page 2");
  const job::RemoteCommandBlock& b = table.blocks[3];
  EXPECT_EQ(b.Mode, 2);
  EXPECT_EQ(b.Page, 2);
  EXPECT_EQ(b.Listed[127], 127);
  EXPECT_EQ(b.Value[127], 16) << "the value is the one the list shows";
  EXPECT_EQ(b.Line[127], 0);
}

TEST_F(RemoteCommandsPageTest, TheThirtyFirstAddOnAnInputIsRefusedWhateverTheNetId) {
  f.OptionButton13.choose();
  chooseInput(6);
  for (int netId = 1; netId <= 30; ++netId) add(netId, 1);
  ASSERT_EQ(f.ListBox19.count(), 30);
  desk.shown();
  for (int netId : {31, 5, 127}) {
    add(netId, 2);
    EXPECT_EQ(desk.shown(), Lines{box("Max of 30 Stations Per Input")}) << netId;
  }
  EXPECT_EQ(table.blocks[6].Listed[31], 0);
  EXPECT_EQ(table.blocks[6].Value[5], 1);
  chooseInput(7);
  desk.shown();
  add(31, 2);
  EXPECT_EQ(desk.shown(), Lines{}) << "another input has room";
}

TEST_F(RemoteCommandsPageTest, LedEntriesAllBelongToInputOne) {
  f.OptionButton12.choose();
  chooseInput(3);
  desk.shown();
  add(5, 2);
  EXPECT_EQ(desk.shown(), Lines{});
  EXPECT_EQ(f.ListBox19.items(), Lines{"NetId 5 Led 2"});
  EXPECT_EQ(f.Label70.caption(), "Input 3 Page 1") << "the chosen input keeps the page";
  EXPECT_EQ(table.blocks[1].Listed[5], 5);
  EXPECT_EQ(table.blocks[1].Mode, 1);
  EXPECT_EQ(table.blocks[3].Listed[5], 0);
  EXPECT_EQ(table.blocks[3].Page, 1);

  chooseInput(4);
  EXPECT_EQ(desk.shown(), Lines{box("No Entries")});
  add(5, 7);
  EXPECT_EQ(desk.shown(), Lines{box("Duplicate NetID")});
  EXPECT_EQ(table.blocks[1].Value[5], 2);
  chooseInput(1);
  EXPECT_EQ(f.ListBox19.items(), Lines{"NetId 5 Led 2"});
}

TEST_F(RemoteCommandsPageTest, TheRebuildNumbersTheLinesByNetId) {
  f.OptionButton13.choose();
  chooseInput(3);
  add(40, 1, 2);
  add(7, 4, 2);
  const job::RemoteCommandBlock& b = table.blocks[3];
  EXPECT_EQ(b.Line[40], 0) << "an add appends";
  chooseInput(3);
  EXPECT_EQ(b.Line[7], 0);
  EXPECT_EQ(b.Line[40], 1);
  desk.shown();

  desk.answer(ui::Answer::Yes);
  f.ListBox19.select(0);
  EXPECT_EQ(b.Listed[7], 0);
  EXPECT_EQ(b.Value[7], 0);
  EXPECT_EQ(b.Line[7], job::kNotListed);
  EXPECT_EQ(b.Line[40], 0);
  desk.answer(ui::Answer::Yes);
  f.ListBox19.select(0);
  EXPECT_EQ(desk.shown(), (Lines{"msgbox \"Delete NetId 7 Btn 4\" YesNo -> Yes",
                                 "msgbox \"Delete NetId 40 Btn 1\" YesNo -> Yes", box("No Entries")}));
  EXPECT_EQ(f.Label70.caption(), "Input 3 Page 2");
}

// An LED line appended to another input's list has that list's line number, which an entry
// of input 1 may share: the delete must remove the entry the line names.
TEST_F(RemoteCommandsPageTest, DeletingAnLedLineRemovesTheEntryItNames) {
  f.OptionButton12.choose();
  chooseInput(1);
  add(9, 1);
  add(20, 2);
  chooseInput(2);
  add(30, 3);
  ASSERT_EQ(f.ListBox19.items(), Lines{"NetId 30 Led 3"});
  desk.shown();
  desk.answer(ui::Answer::Yes);
  f.ListBox19.select(0);
  EXPECT_EQ(desk.shown(), Lines{"msgbox \"Delete NetId 30 Led 3\" YesNo -> Yes"});
  EXPECT_EQ(table.blocks[1].Listed[30], 0);
  EXPECT_EQ(table.blocks[1].Listed[9], 9);
  EXPECT_EQ(f.ComboBox69.listIndex(), 1) << "the list shows the input the entries belong to";
  EXPECT_EQ(f.ListBox19.items(), (Lines{"NetId 9 Led 1", "NetId 20 Led 2"}));
}

TEST_F(RemoteCommandsPageTest, AnOpenedImageShowsItsModeAndFirstInputWithEntries) {
  image::EepromImage& image = desk.session().image;
  image.put(6400, 1);
  image.put(6200, 1);
  image.put(25380, 2);  // input 4 (25200 + 60 * 3): buttons, page 3, net ids 8 and 2
  image.put(25381, 3);
  for (int at = 25382; int v : {8, 5, 2, 1}) image.put(at++, v);
  desk.shown();
  component::DecodeImage(desk.session());
  EXPECT_EQ(desk.shown(), Lines{});
  EXPECT_EQ(table.RemoteMode, 2);
  EXPECT_TRUE(f.OptionButton13.value());
  EXPECT_TRUE(f.Page7.visible()) << "a channel-emulation job edits its remote commands";
  EXPECT_EQ(f.ComboBox69.listIndex(), 4);
  EXPECT_EQ(f.Label70.caption(), "Input 4 Page 3");
  EXPECT_EQ(f.ListBox19.items(), (Lines{"NetId 2 Btn 1", "NetId 8 Btn 5"}));

  image.fill(25200, 26159, 0);
  component::DecodeImage(desk.session());
  EXPECT_EQ(desk.shown(), Lines{}) << "an image without entries shows none, without a message";
  EXPECT_EQ(table.RemoteMode, 0);
  EXPECT_TRUE(f.OptionButton14.value());
  EXPECT_EQ(f.ListBox19.count(), 0);
}

}  // namespace
}  // namespace pellam::editors::remote_commands
