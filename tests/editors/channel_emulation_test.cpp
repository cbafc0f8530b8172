#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "editors/channel_emulation/channel_emulation_page.h"
#include "image/channel_emulation_block.h"
#include "support/desk.h"

// The page as a person walks it is in tests/scripts/channel_emulation; these are its limits.
namespace pellam::editors::channel_emulation {
namespace {

using Lines = std::vector<std::string>;

class ChannelEmulationPageTest : public testing::DeskTest {
 protected:
  void SetUp() override {
    DeskTest::SetUp();
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

  job::ChannelEmulationTable& table = desk.job().channelEmulation;
};

TEST_F(ChannelEmulationPageTest, RangeListEndsAtTheLastChannel) {
  const std::tuple<int, int, const char*, const char*> cases[] = {
      {1, 151, "Channel :1", "Channel :151"},
      {1898, 151, "Channel :1898", "Channel :2048"},
      {2000, 49, "Channel :2000", "Channel :2048"},
  };
  for (const auto& [from, count, first, last] : cases) {
    f.ComboBox45.select(from);
    EXPECT_EQ(f.ComboBox46.count(), count) << from;
    EXPECT_EQ(f.ComboBox46.items().front(), first);
    EXPECT_EQ(f.ComboBox46.items().back(), last);
  }
}

// An opened job shows its first input in use, the last input too.
TEST_F(ChannelEmulationPageTest, AnOpenedJobShowsItsFirstInputInUse) {
  f.ComboBox26.select(16);
  add(5, 0, 1);
  f.ComboBox26.select(1);
  desk.session().channelEmulationPage.listDecoded();
  EXPECT_EQ(f.ComboBox26.listIndex(), 16);
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
  EXPECT_EQ(f.ListBox8.count(), 150);
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

}  // namespace
}  // namespace pellam::editors::channel_emulation
