#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "image/eeprom_image.h"
#include "image/pack.h"
#include "job/runtime_error.h"
#include "support/channel_slots.h"
#include "support/desk.h"

namespace pellam::image {
namespace {

using testing::bytesAt;

constexpr std::uint8_t kUntouched = 0xEE;

class Packing : public ::testing::Test {
 protected:
  void untouchedEverywhere() { image.fill(0, map::kImageSize - 1, kUntouched); }
  EepromImage image;
};

// A master's slave id is never looked at: 200 is stored whatever it holds. The step writes
// 6200, 6201, 6202, 6100, 6400, 6101 in that order and stops at the first value that is no byte.
TEST_F(Packing, BoardSetupStoresTheMasterSlaveChoiceAndStopsAtTheFirstValueThatIsNoByte) {
  constexpr int U = kUntouched;
  const std::pair<BoardValues, std::vector<int>> cases[] = {
      {{1, 7, 3, 2, 4}, {1, 200, 3, 2, 4, 11}},   {{1, 999, 3, 2, 4}, {1, 200, 3, 2, 4, 11}},
      {{2, 7, 3, 2, 5}, {0, 7, 3, 2, 5, 11}},     {{2, 7, 300, 2, 4}, {0, 7, U, U, U, U}},
      {{2, 7, 3, -1, 4}, {0, 7, 3, U, U, U}},     {{2, 7, 3, 2, 256}, {0, 7, 3, 2, U, U}},
  };
  for (const auto& [values, expected] : cases) {
    SCOPED_TRACE(::testing::Message() << "expecting " << ::testing::PrintToString(expected));
    untouchedEverywhere();
    if (expected.back() == U) {
      EXPECT_THROW(PackBoardSetup(image, values), job::RuntimeError);
    } else {
      PackBoardSetup(image, values);
    }
    EXPECT_EQ((std::vector<int>{image.at(6200), image.at(6201), image.at(6202), image.at(6100), image.at(6400),
                                image.at(6101)}),
              expected);
  }
}

TEST_F(Packing, TimerIsStoredHighByteFirstOnlyWithOptionBitZero) {
  PackTimerOption(image, 3, 1800);  // 90 s
  EXPECT_EQ(bytesAt(image, 6250, 3), (std::vector<int>{3, 7, 8}));
  PackTimerOption(image, 1, 65535);
  EXPECT_EQ(bytesAt(image, 6250, 3), (std::vector<int>{1, 255, 255}));
  untouchedEverywhere();
  PackTimerOption(image, 6, 1800);
  EXPECT_EQ(bytesAt(image, 6250, 3), (std::vector<int>{0, 0, 0})) << "bit 0 clear drops the other bits too";
  EXPECT_THROW(PackTimerOption(image, 1, 65536), job::RuntimeError);
}

TEST_F(Packing, InputNumberingOffClearsItsBytesAndTheSignature) {
  untouchedEverywhere();
  PackSignature(image);
  PackInputNumbering(image, 2, job::InputNumberTable{});
  for (int i = 0; i <= 255; ++i) ASSERT_EQ(image.at(i), 0) << "byte " << i;
  for (int i = 5300; i <= 5316; ++i) ASSERT_EQ(image.at(i), 0) << "byte " << i;
  EXPECT_EQ(image.at(256), kUntouched);
  EXPECT_EQ(image.at(5299), kUntouched);
  EXPECT_EQ(image.at(5317), kUntouched);
  EXPECT_EQ(image.at(5040), kUntouched) << "the reverse map is not cleared";
}

TEST_F(Packing, InputNumberingOnWritesBothMapsAndALaterRecordWinsARoom) {
  job::InputNumberTable table;
  table.records[1] = {1, 40};
  table.records[2] = {2, 41};
  table.records[5] = {5, 40};
  table.records[16] = {16, 255};
  PackSignature(image);
  PackInputNumbering(image, 1, table);
  EXPECT_EQ(bytesAt(image, 5300, 17), (std::vector<int>{0, 40, 41, 0, 0, 40, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 255}));
  EXPECT_EQ(image.at(5040), 5);
  EXPECT_EQ(image.at(5041), 2);
  EXPECT_EQ(image.at(5255), 16);
  EXPECT_EQ(image.at(0), 11) << "numbering on keeps the signature";
}

TEST_F(Packing, RemoteCommandPagesKeepTwentyNinePairsInSlotOrder) {
  auto table = std::make_unique<job::RemoteCommandTable>();
  job::RemoteCommandBlock& first = table->blocks[1];
  first.Mode = 2;
  first.Page = 4;
  auto slot = [&](std::size_t j, int listed, int value) {
    first.Listed[j] = static_cast<std::int16_t>(listed);
    first.Value[j] = static_cast<std::int16_t>(value);
  };
  slot(5, 5, 2);
  slot(9, -1, 7);  // a deleted entry
  slot(12, 12, 1);
  slot(127, 127, 3);  // beyond the slots a page reads
  job::RemoteCommandBlock& last = table->blocks[16];
  last.Mode = 1;
  last.Page = 16;
  for (int j = 1; j <= 30; ++j) last.Listed[static_cast<std::size_t>(j)] = static_cast<std::int16_t>(j);
  for (int j = 1; j <= 30; ++j) last.Value[static_cast<std::size_t>(j)] = static_cast<std::int16_t>(100 + j);
  PackRemoteCommands(image, *table);
  EXPECT_EQ(bytesAt(image, 25200, 8), (std::vector<int>{2, 4, 5, 2, 12, 1, 0, 0}));
  EXPECT_EQ(bytesAt(image, 25260, 2), (std::vector<int>{0, 0})) << "page 2 starts at 25260";
  EXPECT_EQ(bytesAt(image, 26100, 8), (std::vector<int>{1, 16, 1, 101, 2, 102, 3, 103}));
  EXPECT_EQ(bytesAt(image, 26156, 4), (std::vector<int>{28, 128, 29, 129})) << "the 29th pair fills the page";
  EXPECT_EQ(bytesAt(image, 26160, 2), (std::vector<int>{0, 0})) << "the 30th used slot is not stored";
}

TEST_F(Packing, MasterInputsAndTheOffsetFlag) {
  job::MasterInputs inputs;
  for (int i = 0; i < 16; ++i) inputs.entries[static_cast<std::size_t>(i)] = static_cast<std::int16_t>(3 * i + 1);
  PackMasterInputs(image, inputs);
  EXPECT_EQ(bytesAt(image, 6205, 16), (std::vector<int>{1, 4, 7, 10, 13, 16, 19, 22, 25, 28, 31, 34, 37, 40, 43, 46}));
  EXPECT_EQ(image.at(6221), 0);

  // The flag is only raised for an action the offset can express: a flag over action 3 would
  // read back as 7 and grow by 4 at every open and save.
  struct Case {
    int mode, companion, action, flag, stored;
  };
  for (const Case& c : {Case{1, 2, 7, 1, 3}, Case{1, 2, 3, 0, 3}, Case{1, 1, 7, 0, 7}, Case{2, 2, 7, 0, 7},
                        Case{0, 0, 7, 0, 7}}) {
    SCOPED_TRACE(::testing::Message() << "mode " << c.mode << " companion " << c.companion << " action " << c.action);
    inputs.Mode = static_cast<std::int16_t>(c.mode);
    inputs.Companion = static_cast<std::int16_t>(c.companion);
    PackOffsetFlag(image, inputs, c.action);
    EXPECT_EQ(image.at(6204), c.flag);
    EXPECT_EQ(inputActionForImage(inputs, c.action), c.stored);
  }
  inputs.entries[3] = 256;
  EXPECT_THROW(PackMasterInputs(image, inputs), job::RuntimeError);
}

TEST_F(Packing, RoomLinkRowsWithoutAnInputStayZero) {
  job::RoomLinkTable table;
  table.records[2] = {3, 12, 13, 0};
  table.records[5] = {0, 20, 21, 0};
  table.records[16] = {17, 1, 2, 0};
  PackRoomLink(image, table);
  EXPECT_EQ(bytesAt(image, 7878, 2), (std::vector<int>{12, 13}));
  EXPECT_EQ(bytesAt(image, 7884, 2), (std::vector<int>{0, 0}));
  EXPECT_EQ(bytesAt(image, 7906, 3), (std::vector<int>{1, 2, 0}));
  table.records[4] = {5, 256, 1, 0};
  EXPECT_THROW(PackRoomLink(image, table), job::RuntimeError);
}

TEST_F(Packing, RoomCombineClearsItsMapAndWritesChannelsInUse) {
  auto table = std::make_unique<job::RoomCombineTable>();
  table->records[17] = {17, 2, 5, 0};
  table->records[20] = {0, 4, 4, 0};
  untouchedEverywhere();
  PackRoomCombine(image, *table, 1);
  EXPECT_EQ(image.at(6450), 1);
  EXPECT_EQ(bytesAt(image, 34, 2), (std::vector<int>{2, 5}));
  EXPECT_EQ(bytesAt(image, 40, 2), (std::vector<int>{0, 0}));
  EXPECT_EQ(image.at(0), 0);
  EXPECT_EQ(image.at(4095), 0);
  EXPECT_EQ(bytesAt(image, 4096, 2), (std::vector<int>{kUntouched, kUntouched})) << "channel 2048 is not cleared";
  table->records[2048] = {2048, 3, 9, 0};
  PackRoomCombine(image, *table, 0);
  EXPECT_EQ(image.at(6450), 0);
  EXPECT_EQ(bytesAt(image, 4096, 2), (std::vector<int>{3, 9}));
}

TEST_F(Packing, StationsFormAStartThreeBytesBeforeFormB) {
  job::StationLinkTable table;
  table.records[1] = {1, 9, 4, 0};
  table.records[127] = {127, 14, 255, 0};
  PackStationsFormA(image, table);
  EXPECT_EQ(bytesAt(image, 4997, 6), (std::vector<int>{0, 0, 0, 4, 9, 1}));
  EXPECT_EQ(bytesAt(image, 5378, 3), (std::vector<int>{255, 14, 127}));
}

TEST_F(Packing, StationsFormBCarryThePersonalityByNetId) {
  job::StationLinkTable table;
  table.records[4] = {4, 9, 21, 0};
  table.records[7] = {7, 10, 3, 0};
  table.records[9] = {-1, 10, 3, 0};
  job::StationPersonalityTable personalities;
  personalities.records[3] = {4, 9, 6, 0, 21};
  PackStationsFormB(image, table, personalities);
  EXPECT_EQ(bytesAt(image, 5012, 3), (std::vector<int>{21, 9, 4}));
  EXPECT_EQ(bytesAt(image, 5021, 3), (std::vector<int>{3, 10, 7}));
  EXPECT_EQ(bytesAt(image, 5027, 3), (std::vector<int>{0, 0, 0})) << "a negative net id is not in use";
  EXPECT_EQ(image.at(5770), 6);
  EXPECT_EQ(image.at(5773), 0);
}

TEST_F(Packing, PresetEntriesArePackedWithoutGapsInBothBanks) {
  auto table = std::make_unique<job::PresetEmulationTable>();
  table->at(4, 16) = {5, 9, 2, 3, 0};
  table->at(10, 16) = {11, 10, 17, 0, 0};
  table->at(0, 17) = {1, 7, 1, 1, 0};
  PackPresetEmulation(image, *table);
  EXPECT_EQ(bytesAt(image, 12800, 18), (std::vector<int>{9, 0, 5, 0, 2, 0, 3, 0, 10, 0, 11, 0, 17, 0, 0, 0, 0, 0}));
  EXPECT_EQ(bytesAt(image, 20300, 9), (std::vector<int>{7, 0, 1, 0, 1, 0, 1, 0, 0}));
  EXPECT_EQ(image.at(13100), 0) << "nothing between the banks";
}

TEST_F(Packing, AThirtyEighthPresetEntryRunsIntoTheNextBlock) {
  auto table = std::make_unique<job::PresetEmulationTable>();
  for (int j = 0; j < 37; ++j) table->at(j, 1) = {static_cast<std::int16_t>(j + 1), 9, 1, 0, 0};
  table->at(37, 1) = {38, 13, 5, 6, 0};
  PackPresetEmulation(image, *table);
  EXPECT_EQ(bytesAt(image, 8588, 8), (std::vector<int>{9, 0, 37, 0, 1, 0, 0, 0}));
  EXPECT_EQ(bytesAt(image, 8596, 8), (std::vector<int>{13, 0, 38, 0, 5, 0, 6, 0}));
}

// Input 3's action two stays on the form; input 20, a second-bank input in use as an opened
// image leaves it, is written with its own setting at +0, not a fade rate.
TEST_F(Packing, ChannelBlocksHoldActionOneAndSecondBankInputsInUse) {
  auto table = std::make_unique<job::ChannelEmulationTable>();
  table->records[3] = testing::channelRecord(3, 61, {{10, 75}});
  table->records[19] = testing::channelRecord(0, 12, {{10, 40}});
  table->records[20] = testing::channelRecord(20, 33, {{7, 30}});
  table->records[20].Header6 = 9;
  untouchedEverywhere();
  for (int k = 1; k <= 32; ++k) PackChannelEmulationInput(image, *table, k);
  EXPECT_EQ(bytesAt(image, 8900, 8), (std::vector<int>{61, 0, 1, 1, 75, 0, 10, 0}));
  EXPECT_EQ(bytesAt(image, 20900, 3), (std::vector<int>{kUntouched, kUntouched, kUntouched})) << "action two";
  EXPECT_EQ(bytesAt(image, 21200, 8), (std::vector<int>{9, 0, 1, 1, 30, 0, 7, 0}));
}

}  // namespace
}  // namespace pellam::image
