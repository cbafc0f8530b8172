#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "editors/preset_emulation/preset_emulation_page.h"
#include "image/decode.h"
#include "image/pack.h"
#include "support/desk.h"

// The page as a person walks it is in tests/scripts/preset_emulation and preset_open; these
// cases need records no form can make, or a full input, which takes 38 adds.
namespace pellam::editors::preset_emulation {
namespace {

using Lines = std::vector<std::string>;

// Station type items after the blank one.
constexpr int kT3100Lcd = 1;
constexpr int kT6600Lcd = 3;
constexpr int kT6600Entry = 4;
constexpr int kContactClosure = 5;

class PresetEmulationPageTest : public testing::DeskTest {
 protected:
  void SetUp() override {
    DeskTest::SetUp();
    chooseInput(3);
  }

  void chooseInput(int input) {
    f.ComboBox42.select(input);
    desk.shown();
  }

  // A KX entry as a person makes it: station type item, net id, action item (0-based).
  void addKx(int type, int netId, int action) {
    f.ComboBox39.select(type);
    f.ComboBox41.select(netId - 1);
    f.ComboBox40.select(action);
    f.CommandButton1.click();
  }

  job::PresetRecord& record(int netId, int inputSlot) { return table.at(netId - 1, inputSlot); }

  job::PresetEmulationTable& table = desk.job().presetEmulation;
};

// A T6600 LCD line shows the next input's action at its net id, or a release when the next
// net id of its input holds one: kept as the page has always listed it.
TEST_F(PresetEmulationPageTest, T6600LcdLinesReadTheirNeighbours) {
  record(5, 4).ActionNumber = 7;
  addKx(kT6600Lcd, 5, 3);
  addKx(kT6600Entry, 7, 15);
  addKx(kT6600Lcd, 6, 3);
  EXPECT_EQ(f.ListBox5.items(), (Lines{"T6600 LCD  NetId: 5  Personality  0  Button :7",
                                       "T6600 Entry  NetId: 7  Personality  0  Button : Release",
                                       "T6600 LCD  NetId: 6  Personality  0  Button : Release"}));
  chooseInput(3);
  EXPECT_EQ(f.ListBox5.items(), (Lines{"T6600 LCD  NetId: 5  Personality  0  Button :4",
                                       "T6600 LCD  NetId: 6  Personality  0  Button :4",
                                       "T6600 Entry  NetId: 7  Personality  0  Button : Release"}))
      << "the chooser lists each record's own action";
}

TEST_F(PresetEmulationPageTest, RebuildReusesTheActionOfTheLineBefore) {
  addKx(kT3100Lcd, 1, 17);
  addKx(kT3100Lcd, 2, 4);
  addKx(kT3100Lcd, 3, 4);
  record(3, 3).StationKind = 8;
  desk.answer(ui::Answer::OK);
  f.ListBox5.select(1);
  EXPECT_EQ(f.ListBox5.items(), (Lines{"T3100 LCD  NetId: 1  Personality  0  Max Off",
                                       "  NetId: 3  Personality  0  Max Off"}));
}

// An input holds 37 entries, as many as its block; the board's own input has a block of its own.
TEST_F(PresetEmulationPageTest, AFullInputLeavesTheNextInputsBlockAlone) {
  for (int netId = 1; netId <= 38; ++netId) addKx(kContactClosure, netId, 0);
  EXPECT_EQ(desk.shown(), Lines{"msgbox \"Input Memory Full: NetId 38 Not Added\" OK"});
  EXPECT_EQ(f.ListBox5.count(), 37);
  f.CommandButton24.click();
  EXPECT_EQ(f.ListBox10.items(), Lines{"Contact Closure  NetId: 38  Personality  0  Preset :1"});
  chooseInput(4);
  addKx(kT6600Entry, 38, 1);
  image::EepromImage image;
  image::PackPresetEmulation(image, table);
  EXPECT_EQ(testing::bytesAt(image, 8900 + 36 * 8, 8), (std::vector<int>{11, 0, 37, 0, 1, 0, 0, 0}));
  EXPECT_EQ(testing::bytesAt(image, 9200, 8), (std::vector<int>{7, 0, 38, 0, 2, 0, 0, 0}))
      << "input 4's block starts with its own entry";
}

// Station kinds are named before any type is chosen, so an opened job lists them.
TEST_F(PresetEmulationPageTest, DecodedJobShowsItsFirstInputWithEntries) {
  record(9, 22) = {9, 9, 16, 0, 0};  // board input 6
  record(2, 7) = {2, 12, 4, 0, 0};
  image::EepromImage image;
  image::PackPresetEmulation(image, table);
  desk.startUp();
  image::DecodePresetEmulation(image, table);
  desk.session().presetEmulationPage.listDecoded();
  EXPECT_EQ(f.ComboBox42.listIndex(), 6);
  EXPECT_EQ(f.ListBox10.items(), Lines{"T6600 LCD  NetId: 9  Personality  0  Button : Release"});
  EXPECT_EQ(desk.shown(), Lines{});
}

}  // namespace
}  // namespace pellam::editors::preset_emulation
