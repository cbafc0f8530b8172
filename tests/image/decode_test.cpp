#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <vector>

#include "image/decode.h"
#include "image/pack.h"
#include "support/channel_slots.h"

namespace pellam::image {
namespace {

TEST(DecodeBoardSetup, SlavedChoiceTheActionOffsetAndTheTimer) {
  auto image = std::make_unique<EepromImage>();
  image->put(6100, 2);
  image->put(6201, 7);
  image->put(6202, 3);
  image->put(6204, 1);
  image->put(6250, 5);
  image->put(6251, 7);
  image->put(6252, 8);
  image->put(6400, 3);
  image->put(6401, 9);
  image->put(6450, 1);
  const DecodedBoard b = DecodeBoardSetup(*image);
  EXPECT_EQ(b.masterSlave, 2) << "a stored 0 is the slaved choice";
  EXPECT_EQ(b.slaveId, 7);
  EXPECT_EQ(b.masterInputMode, 1);
  EXPECT_EQ(b.inputAction, 7) << "3 plus the offset of 4";
  EXPECT_EQ(b.hardwareType, 2);
  EXPECT_EQ(b.optionFlags, 5);
  EXPECT_EQ(b.timer, 1800);
  EXPECT_EQ(b.operatingMode, 3);
  EXPECT_EQ(b.furtherOption, 9);
  EXPECT_EQ(b.inputScan, 1);

  image->put(6200, 1);
  image->put(6204, 0);
  EXPECT_EQ(DecodeBoardSetup(*image).masterSlave, 1);
  EXPECT_EQ(DecodeBoardSetup(*image).inputAction, 3);
}

// Packed and decoded again, the entries of both banks come back, inputs at the bank edges too.
TEST(DecodeRoundTrip, PresetsComeBackInTheirSavedOrder) {
  auto image = std::make_unique<EepromImage>();
  auto saved = std::make_unique<job::Job>();
  auto back = std::make_unique<job::Job>();
  std::mt19937 rng(5);
  for (int k : {1, 2, 16, 17, 32}) {
    for (int j = 0; j <= 126; ++j) {
      if (rng() % 5 != 0) continue;
      const auto byte = [&] { return static_cast<std::int16_t>(rng() % 256); };
      saved->presetEmulation.at(j, k) = {static_cast<std::int16_t>(j + 1), static_cast<std::int16_t>(7 + j % 8), byte(),
                                         byte(), 0};
    }
  }
  PackPresetEmulation(*image, saved->presetEmulation);
  DecodePresetEmulation(*image, back->presetEmulation);
  for (int k = 1; k <= 32; ++k) {
    for (int j = 0; j <= 126; ++j) {
      SCOPED_TRACE(::testing::Message() << "input " << k << " slot " << j);
      const job::PresetRecord &s = saved->presetEmulation.at(j, k), &b = back->presetEmulation.at(j, k);
      ASSERT_EQ(b.NetIdPlusOne, s.NetIdPlusOne);
      ASSERT_EQ(b.StationKind, s.StationKind);
      ASSERT_EQ(b.ActionNumber, s.ActionNumber);
      ASSERT_EQ(b.Personality, s.Personality);
    }
  }
  auto again = std::make_unique<EepromImage>();
  PackPresetEmulation(*again, back->presetEmulation);
  const auto first = image->bytes().subspan(8300, 16800), second = again->bytes().subspan(8300, 16800);
  EXPECT_TRUE(std::equal(first.begin(), first.end(), second.begin())) << "packed again, the blocks are the same";
}

// A second-bank block is an input of its own: its channels come back as they are, byte +0 into
// word 6 and the record in use. Without one, action two is action one's channels at 0%.
TEST(DecodeChannelEmulation, SecondBankBlocksAreInputsOfTheirOwn) {
  auto image = std::make_unique<EepromImage>();
  const auto put = [&](int base, const std::vector<int>& bytes) {
    for (std::size_t i = 0; i < bytes.size(); ++i) image->put(base + static_cast<int>(i), bytes[i]);
  };
  put(8900, {5, 0, 2, 2, 100, 0, 10, 128, 11});      // input 3: 10..11 at 100%
  put(20900, {9, 0, 3, 2, 60, 0, 50, 0, 52, 1, 80, 0, 54});  // input 19
  put(9200, {6, 0, 1, 1, 20, 0, 70});               // input 4, with no input 20
  auto table = std::make_unique<job::ChannelEmulationTable>();
  table->records[19].FadeRate = table->records[20].FadeRate = 12;  // left from the job before
  DecodeChannelEmulation(*image, *table);

  using testing::Slots;
  const auto live = [&](int k) { return testing::liveSlots(table->records[static_cast<std::size_t>(k)]); };
  const job::ChannelEmulationRecord &three = table->records[3], &nineteen = table->records[19],
                                    &twenty = table->records[20];
  EXPECT_EQ(three.FadeRate, 5);
  EXPECT_EQ(live(3), (Slots{{10, 100}, {11, 100}}));
  EXPECT_TRUE(job::inUse(nineteen));
  EXPECT_EQ(nineteen.Header6, 9);
  EXPECT_EQ(nineteen.FadeRate, 0);
  EXPECT_EQ(live(19), (Slots{{50, 60}, {52, 60}, {54, 80}}));
  EXPECT_FALSE(job::inUse(twenty));
  EXPECT_EQ(twenty.FadeRate, 0);
  EXPECT_EQ(live(20), (Slots{{70, 0}}));
  EXPECT_EQ(twenty.ChannelCount, 1);
}

}  // namespace
}  // namespace pellam::image
