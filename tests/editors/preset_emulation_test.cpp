#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "editors/preset_emulation/preset_emulation_page.h"
#include "image/decode.h"
#include "image/pack.h"
#include "support/desk.h"

namespace pellam::editors::preset_emulation {
namespace {

using testing::Desk;
using Lines = std::vector<std::string>;

// Station type items after the blank one.
constexpr int kT3100Lcd = 1;
constexpr int kT3100Entry = 2;
constexpr int kT6600Lcd = 3;
constexpr int kT6600Entry = 4;
constexpr int kContactClosure = 5;

class PresetEmulationPageTest : public ::testing::Test {
 protected:
  void SetUp() override {
    desk.startUp();
    chooseInput(3);
  }

  void chooseInput(int input) {
    f.ComboBox42.select(input);
    desk.shown();
  }

  // An entry as a person makes it: station type item, net id, action item (0-based) and,
  // when given, personality item; then the add of the bank.
  void add(ui::CommandButton& button, int type, int netId, int action, int personality = -1) {
    f.ComboBox39.select(type);
    f.ComboBox41.select(netId - 1);
    f.ComboBox40.select(action);
    if (personality >= 0) f.ComboBox44.select(personality);
    button.click();
  }
  void addKx(int type, int netId, int action, int personality = -1) {
    add(f.CommandButton1, type, netId, action, personality);
  }
  void addBoard(int type, int netId, int action, int personality = -1) {
    add(f.CommandButton24, type, netId, action, personality);
  }

  job::PresetRecord& record(int netId, int inputSlot) { return table.at(netId - 1, inputSlot); }

  Desk desk;
  ui::UserForm1& f = desk.form();
  job::PresetEmulationTable& table = desk.job().presetEmulation;
};

TEST_F(PresetEmulationPageTest, ANetIdIsHeldOncePerInputSlot) {
  addKx(kT3100Lcd, 5, 2);
  addKx(kContactClosure, 5, 7);
  EXPECT_EQ(desk.shown(), Lines{"msgbox \"Duplicate NetId Entry\" OK"}) << "refused whatever the action";
  EXPECT_EQ(record(5, 3).StationKind, 10);
  addBoard(kContactClosure, 5, 7);
  EXPECT_EQ(desk.shown(), Lines{}) << "the board's own input 3 is another slot";
  chooseInput(4);
  addKx(kContactClosure, 5, 7);
  EXPECT_EQ(desk.shown(), Lines{});
  EXPECT_EQ(record(5, 19).StationKind, 11);
  EXPECT_EQ(record(5, 4).StationKind, 11);
}

TEST_F(PresetEmulationPageTest, StationTypeFillsItsListsAndKeepsAPickedPersonality) {
  f.CommandButton17.setEnabled(true);
  f.ComboBox39.select(kT3100Lcd);
  EXPECT_EQ(f.ComboBox40.count(), 18);
  EXPECT_EQ(f.ComboBox40.item(0), "PreSet 1");
  EXPECT_EQ(f.ComboBox40.item(16), "Max On ");
  EXPECT_EQ(f.ComboBox40.item(17), "Max Off ");
  EXPECT_EQ(f.ComboBox44.items().back(), "Personality  8");
  EXPECT_TRUE(f.ComboBox44.enabled());
  EXPECT_FALSE(f.CommandButton17.enabled());

  f.ComboBox39.select(kT6600Entry);
  EXPECT_EQ(f.ComboBox40.count(), 16);
  EXPECT_EQ(f.ComboBox40.item(15), "Button Release");
  EXPECT_EQ(f.ComboBox44.count(), 255);

  f.ComboBox40.select(15);
  f.ComboBox44.select(2);
  f.ComboBox41.select(8);
  for (int type : {kT3100Entry, kContactClosure}) {
    f.ComboBox39.select(type);
    EXPECT_EQ(f.ComboBox44.count(), 0);
    EXPECT_FALSE(f.ComboBox44.enabled());
  }
  EXPECT_EQ(f.ComboBox40.item(0), "Preset 1");
  f.CommandButton1.click();
  EXPECT_EQ(record(9, 3).NetIdPlusOne, 0) << "the release picked for the old kind is no action of the new one";
  addKx(kContactClosure, 9, 0);
  EXPECT_EQ(f.ListBox5.items(), Lines{"Contact Closure  NetId: 9  Personality  3  Preset :1"});

  desk.session().presetEmulationPage.reset();
  chooseInput(3);
  addKx(kT3100Entry, 10, 9);
  EXPECT_EQ(record(10, 3).Personality, 0) << "nothing picked since the form was new";
}

TEST_F(PresetEmulationPageTest, AddedLinesEndInTheActionText) {
  addKx(kT3100Lcd, 5, 2, 1);
  addKx(kT3100Lcd, 6, 16);
  addKx(kT3100Lcd, 7, 17);
  addKx(kT6600Entry, 8, 15);
  addKx(kT6600Entry, 9, 3);
  f.Label41.setCaption("");
  addBoard(kT3100Entry, 10, 9);
  EXPECT_EQ(f.ListBox5.items(), (Lines{"T3100 LCD  NetId: 5  Personality  2  Preset :3",
                                       "T3100 LCD  NetId: 6  Personality  2  Max On",
                                       "T3100 LCD  NetId: 7  Personality  2  Max Off",
                                       "T6600 Entry  NetId: 8  Personality  2  Button : Release",
                                       "T6600 Entry  NetId: 9  Personality  2  Button :4"}));
  EXPECT_EQ(f.ListBox10.items(), Lines{"T3100 Entry  NetId: 10  Personality  2  Preset :10"});
  EXPECT_EQ(record(7, 3).ActionNumber, 18);
  EXPECT_EQ(record(9, 3).ListPosition, 4);
  EXPECT_EQ(record(10, 19).ListPosition, 0);
  EXPECT_EQ(f.Label41.caption(), "KX Input: 3") << "the board-input add captions the KX label as well";
}

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

TEST_F(PresetEmulationPageTest, DeleteAsksAndRenumbersTheLaterLines) {
  addKx(kT3100Lcd, 2, 0);
  addKx(kT6600Entry, 4, 15);
  addKx(kContactClosure, 9, 4);
  desk.answer(ui::Answer::Cancel);
  f.ListBox5.select(0);
  EXPECT_EQ(desk.shown(), Lines{"msgbox \"Delete T3100 LCD  NetId: 2  Personality  0  Preset :1\" OKCancel -> Cancel"});
  EXPECT_EQ(f.ListBox5.count(), 3);

  desk.answer(ui::Answer::OK);
  f.ListBox5.select(0);
  desk.shown();
  EXPECT_EQ(f.ListBox5.items(), (Lines{"T6600 Entry  NetId: 4  Personality  0  Button :16",
                                       "Contact Closure  NetId: 9  Personality  0  Preset :5"}))
      << "a rebuilt release shows its number";
  EXPECT_EQ(record(2, 3).NetIdPlusOne, 0);
  EXPECT_EQ(record(2, 3).ListPosition, job::kNotListed);
  EXPECT_EQ(record(4, 3).ListPosition, 0);
  EXPECT_EQ(record(9, 3).ListPosition, 1);
  EXPECT_EQ(f.ListBox5.listIndex(), -1);
  EXPECT_EQ(f.Label41.caption(), "Pellam Input: 3");

  addKx(kT3100Lcd, 12, 1);
  EXPECT_EQ(record(12, 3).ListPosition, 2) << "an add after a delete follows the rebuilt lines";
}

TEST_F(PresetEmulationPageTest, BoardInputDeleteLeavesNetId127) {
  addBoard(kContactClosure, 127, 0);
  addBoard(kContactClosure, 126, 0);
  addKx(kContactClosure, 127, 0);
  desk.answer(ui::Answer::OK);
  f.ListBox10.select(1);
  desk.answer(ui::Answer::OK);
  f.ListBox10.select(0);
  EXPECT_EQ(record(126, 19).NetIdPlusOne, 0);
  EXPECT_EQ(f.ListBox10.items(), Lines{"Contact Closure  NetId: 127  Personality  0  Preset :1"});
  EXPECT_EQ(f.Label151.caption(), "Input: 3");
  desk.answer(ui::Answer::OK);
  f.ListBox5.select(0);
  EXPECT_EQ(f.ListBox5.count(), 0) << "the KX list reaches net id 127";
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

TEST_F(PresetEmulationPageTest, AnInputTakesNoMoreEntriesThanItsBlockHolds) {
  for (int netId = 1; netId <= 37; ++netId) addKx(kContactClosure, netId, 0);
  addKx(kContactClosure, 38, 0);
  EXPECT_EQ(desk.shown(), Lines{"msgbox \"Input Memory Full: NetId 38 Not Added\" OK"});
  EXPECT_EQ(record(38, 3).NetIdPlusOne, 0);
  EXPECT_EQ(f.ListBox5.count(), 37);
  addBoard(kT3100Entry, 38, 1);
  EXPECT_EQ(desk.shown(), Lines{}) << "the board's own input has a block of its own";
  chooseInput(4);
  addKx(kT3100Entry, 38, 1);
  EXPECT_EQ(record(38, 4).NetIdPlusOne, 38);

  image::EepromImage image;
  image::PackPresetEmulation(image, table);
  EXPECT_EQ(testing::bytesAt(image, 8900 + 36 * 8, 8), (std::vector<int>{11, 0, 37, 0, 1, 0, 0, 0}));
  EXPECT_EQ(testing::bytesAt(image, 9200, 8), (std::vector<int>{12, 0, 38, 0, 2, 0, 0, 0}))
      << "input 4's block starts with its own entry";
}

TEST_F(PresetEmulationPageTest, DecodedJobShowsItsFirstInputWithEntries) {
  PresetEmulationPage& page = desk.session().presetEmulationPage;
  record(9, 22).NetIdPlusOne = 9;  // board input 6
  record(9, 22).StationKind = 9;
  record(9, 22).ActionNumber = 16;
  record(2, 7).NetIdPlusOne = 2;
  record(2, 7).StationKind = 12;
  record(2, 7).ActionNumber = 4;
  image::EepromImage image;
  image::PackPresetEmulation(image, table);
  desk.startUp();
  image::DecodePresetEmulation(image, table);
  page.ListDecoded();
  EXPECT_EQ(f.ComboBox42.listIndex(), 6);
  EXPECT_EQ(f.ListBox10.items(), Lines{"T6600 LCD  NetId: 9  Personality  0  Button : Release"})
      << "named before any station type is chosen";
  EXPECT_EQ(desk.shown(), Lines{});

  job::ClearPresetEmulation(table);
  page.ListDecoded();
  EXPECT_EQ(f.ComboBox42.listIndex(), -1);
  EXPECT_EQ(f.ListBox10.count(), 0);
  EXPECT_EQ(desk.shown(), Lines{}) << "an empty job opens without a message";
  f.ComboBox41.select(0);
  f.CommandButton1.click();
  EXPECT_EQ(desk.shown(), Lines{"msgbox \"No KX Input selected\" OK"});
}

}  // namespace
}  // namespace pellam::editors::preset_emulation
