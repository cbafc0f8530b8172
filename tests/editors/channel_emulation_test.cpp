#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "editors/channel_emulation/channel_emulation_page.h"
#include "image/channel_emulation_block.h"
#include "support/desk.h"

namespace pellam::editors::channel_emulation {
namespace {

using testing::Desk;
using Lines = std::vector<std::string>;

class ChannelEmulationPageTest : public ::testing::Test {
 protected:
  void SetUp() override {
    desk.startUp();
    f.ComboBox26.select(3);
    desk.shown();
  }

  // A range as a person enters it: first channel, last channel (0 = the first alone), level.
  void add(int from, int to, int level) {
    f.ComboBox45.select(from);
    if (to > 0) f.ComboBox46.select(to - from);
    f.ComboBox28.select(level);
    f.CommandButton19.click();
  }

  const job::ChannelEmulationRecord& record(int index) { return table.records[static_cast<std::size_t>(index)]; }

  Desk desk;
  ui::UserForm1& f = desk.form();
  job::ChannelEmulationTable& table = desk.job().channelEmulation;
};

TEST_F(ChannelEmulationPageTest, AddingTwiceKeepsOneSlotWithTheNewLevel) {
  add(5, 0, 40);
  add(5, 0, 75);
  EXPECT_EQ(f.ListBox8.items(), Lines{"Channel :5 @ % 75"});
  EXPECT_EQ(f.ListBox9.items(), Lines{"Channel :5 @ % 0"}) << "a new action-two entry starts at level 0";
  EXPECT_EQ(record(3).ChannelCount, 1);
  EXPECT_EQ(record(3).InputNumber, 3);
  EXPECT_EQ(record(3).PartnerIndex, 19);
  EXPECT_EQ(desk.shown(), Lines{});
}

TEST_F(ChannelEmulationPageTest, RangeListEndsAtTheLastChannel) {
  f.ComboBox45.select(1);
  EXPECT_EQ(f.ComboBox46.count(), 151);
  EXPECT_EQ(f.ComboBox46.items().back(), "Channel :151");
  f.ComboBox45.select(1898);
  EXPECT_EQ(f.ComboBox46.count(), 151);
  EXPECT_EQ(f.ComboBox46.items().back(), "Channel :2048");
  f.ComboBox45.select(2000);
  EXPECT_EQ(f.ComboBox46.count(), 49);
  EXPECT_EQ(f.ComboBox46.items().front(), "Channel :2000");
}

TEST_F(ChannelEmulationPageTest, TheHundredAndFiftyFirstChannelIsRefusedAndTheRestStay) {
  add(1, 140, 50);
  add(200, 215, 50);
  EXPECT_EQ(desk.shown(), Lines{"msgbox \"150 channels MAX per Input\" OK"});
  EXPECT_EQ(f.ListBox8.count(), 150);
  EXPECT_EQ(f.ListBox8.items().back(), "Channel :209 @ % 50");
  EXPECT_EQ(record(3).ChannelCount, 150);
  add(5, 0, 90);  // a channel already held only changes its level
  EXPECT_EQ(desk.shown(), Lines{});
  EXPECT_EQ(f.ListBox8.item(4), "Channel :5 @ % 90");
}

// Scattered channels at many levels would overflow the input's image block: the editor refuses
// the channel that no longer fits, so the save never has to drop one.
TEST_F(ChannelEmulationPageTest, AChannelThatNoLongerFitsTheBlockIsRefused) {
  Lines shown;
  for (int c = 1; c <= 299 && shown.empty(); c += 2) {
    add(c, 0, c % 100);
    shown = desk.shown();
  }
  // Four bytes a channel when no two neighbours share a level: 74 fill the block's 297 bytes.
  EXPECT_EQ(shown, Lines{"msgbox \"Input Memory Full: Channel 149 Not Added\" OK"});
  EXPECT_EQ(f.ListBox8.count(), 74);
  EXPECT_TRUE(image::channelsFit(record(3), record(19)));
  EXPECT_EQ(record(3).ChannelCount, f.ListBox8.count());
  EXPECT_EQ(record(19).ChannelCount, f.ListBox9.count());
}

TEST_F(ChannelEmulationPageTest, LevelChangesOfBothActionsAskFirst) {
  add(10, 12, 30);
  f.ListBox8.select(1);
  EXPECT_EQ(f.CommandButton19.caption(), "Action One Level");
  EXPECT_EQ(f.ListBox9.listIndex(), 1) << "the lists stay in step";
  EXPECT_FALSE(f.ComboBox45.enabled());
  f.ComboBox28.select(80);
  desk.answer(ui::Answer::Cancel);
  f.CommandButton19.click();
  EXPECT_EQ(f.ListBox8.item(1), "Channel :11 @ % 30");
  EXPECT_EQ(f.CommandButton19.caption(), "Add Channels");

  f.ListBox8.select(1);
  desk.answer(ui::Answer::OK);
  f.CommandButton19.click();
  EXPECT_EQ(f.ListBox8.item(1), "Channel :11 @ % 80");

  f.ListBox9.select(2);
  EXPECT_TRUE(f.CommandButton23.enabled());
  f.ComboBox47.select(55);
  desk.answer(ui::Answer::OK);
  f.CommandButton23.click();
  EXPECT_EQ(f.ListBox9.items(), (Lines{"Channel :10 @ % 0", "Channel :11 @ % 0", "Channel :12 @ % 55"}));
  EXPECT_EQ(f.ListBox8.item(2), "Channel :12 @ % 30") << "action one keeps its level";
  EXPECT_FALSE(f.CommandButton23.enabled());
  EXPECT_EQ(f.ListBox8.listIndex(), -1);
  EXPECT_EQ(desk.shown(), (Lines{"msgbox \"Change Channel: 11  Level to  80%\" OKCancel -> Cancel",
                                 "msgbox \"Change Channel: 11  Level to  80%\" OKCancel -> OK",
                                 "msgbox \"Change Channel: 12  Level to  55%\" OKCancel -> OK"}));
}

// A deleted slot is never reused in place: the next channel goes to slot ChannelCount, which
// holds the last listed channel after a middle delete.
TEST_F(ChannelEmulationPageTest, AddingAfterAMiddleDeleteReplacesTheLastListedChannel) {
  add(1, 3, 50);
  f.ListBox8.select(1);
  desk.answer(ui::Answer::OK);
  f.CommandButton6.click();
  EXPECT_EQ(f.ListBox8.items(), (Lines{"Channel :1 @ % 50", "Channel :3 @ % 50"}));
  EXPECT_EQ(record(3).Channels[1], job::kNotListed);
  EXPECT_EQ(record(19).Channels[1], job::kNotListed);
  EXPECT_EQ(record(3).ChannelCount, 2);

  add(9, 0, 60);
  EXPECT_EQ(f.ListBox8.items(), (Lines{"Channel :1 @ % 50", "Channel :9 @ % 60"}));
  EXPECT_EQ(record(3).ChannelCount, 3) << "the count goes on from where the add left it";
  add(10, 0, 60);
  EXPECT_EQ(f.ListBox8.items(), (Lines{"Channel :1 @ % 50", "Channel :9 @ % 60", "Channel :10 @ % 60"}));
  EXPECT_EQ(desk.shown(), Lines{"msgbox \"Delete Channel: 2\" OKCancel -> OK"});
}

TEST_F(ChannelEmulationPageTest, DeleteCancelledKeepsTheChannel) {
  add(7, 0, 20);
  f.ListBox9.select(0);
  desk.answer(ui::Answer::Cancel);
  f.CommandButton6.click();
  EXPECT_EQ(f.ListBox8.items(), Lines{"Channel :7 @ % 20"});
  EXPECT_FALSE(f.CommandButton6.enabled());
  EXPECT_TRUE(f.ComboBox45.enabled());
}

TEST_F(ChannelEmulationPageTest, RefusalsWithoutInputOrChannel) {
  f.MultiPage1.setValue(0);
  f.ComboBox26.select(0);  // the page is not showing: no message
  EXPECT_EQ(desk.shown(), Lines{});
  desk.session().channelEmulationPage.SelectedInput = 0;
  f.CommandButton19.click();
  f.ComboBox26.select(2);
  f.CommandButton19.click();
  EXPECT_EQ(desk.shown(), (Lines{"msgbox \"No Input Selected 2\" OK", "msgbox \"Channel Not Selected\" OK"}));
  EXPECT_EQ(f.ListBox8.count(), 0);
}

TEST_F(ChannelEmulationPageTest, ChoosingAnInputShowsItsChannelsAndFadeRates) {
  f.ComboBox27.select(61);
  f.ComboBox49.select(1);
  EXPECT_EQ(f.Label43.caption(), "Fade Rate: 1 Minutes");
  EXPECT_EQ(f.Label51.caption(), "Fade Rate: 0 Seconds");
  add(4, 0, 10);
  f.ComboBox26.select(5);
  EXPECT_EQ(f.ListBox8.count(), 0);
  EXPECT_EQ(f.Label42.caption(), "Input: 5");
  f.ComboBox27.select(3);
  f.ComboBox26.select(3);
  EXPECT_EQ(f.ListBox8.items(), Lines{"Channel :4 @ % 10"});
  EXPECT_EQ(f.Label45.caption(), "Input: 3");
  EXPECT_EQ(f.ComboBox27.listIndex(), 61) << "the input's own fade rate, kept by the next add";
  EXPECT_EQ(record(19).FadeRate, 1);
}

}  // namespace
}  // namespace pellam::editors::channel_emulation
