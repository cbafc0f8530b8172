#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <set>
#include <utility>
#include <vector>

#include "image/channel_emulation_block.h"
#include "job/runtime_error.h"
#include "support/channel_slots.h"
#include "support/desk.h"

namespace pellam::image {
namespace {

using testing::bytesAt;
using testing::liveSlots;
using Record = job::ChannelEmulationRecord;
using Slot = std::pair<int, int>;

constexpr int kInput = 3;
constexpr int kBase = map::blockBase(kInput);
constexpr std::uint8_t kSentinel = 0xEE;

Record recordOf(int fade, const testing::Slots& slots) { return testing::channelRecord(0, fade, slots); }

// Every byte outside [first, first + 300) still holds the sentinel.
bool onlyBlockTouched(const EepromImage& image, int first) {
  const auto bytes = image.bytes();
  const auto untouched = [](std::uint8_t b) { return b == kSentinel; };
  return std::all_of(bytes.begin(), bytes.begin() + first, untouched) &&
         std::all_of(bytes.begin() + first + 300, bytes.end(), untouched);
}

class ChannelBlock : public ::testing::Test {
 protected:
  void SetUp() override { image->fill(0, map::kImageSize - 1, kSentinel); }
  std::unique_ptr<EepromImage> image = std::make_unique<EepromImage>();
};

TEST_F(ChannelBlock, GroupsFollowSlotOrderAndSkipHoles) {
  struct Case {
    const char* name;
    testing::Slots slots;
    std::vector<int> expected;
  };
  const Case cases[] = {
      {"one level again later is a new group, a descending run no range",
       {{5, 50}, {6, 60}, {7, 50}, {9, 40}, {8, 40}},
       {0, 0, 5, 1, 50, 0, 5, 1, 60, 0, 6, 1, 50, 0, 7, 2, 40, 0, 9, 0, 8, 0}},
      {"holes take no room and do not split a group",
       {{1, 10}, {-1, 99}, {0, 99}, {2, 10}, {3, 10}, {-1, 50}, {7, 10}},
       {0, 0, 4, 3, 10, 0, 1, 128, 3, 0, 7, 0}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    PackChannelBlock(*image, kInput, recordOf(0, c.slots));
    EXPECT_EQ(bytesAt(*image, kBase, static_cast<int>(c.expected.size())), c.expected);
  }
}

TEST_F(ChannelBlock, ManyShapesComeBackAsPacked) {
  std::mt19937 rng(20261123);
  auto pick = [&](int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(rng); };
  int packed = 0;
  for (int round = 0; round < 400; ++round) {
    testing::Slots slots;
    std::set<int> taken;
    const int levels[] = {0, 25, 50, 75, 100, pick(0, 100)};
    while (slots.size() < 280 && taken.size() < 150 && pick(0, 30) != 0) {
      if (pick(0, 5) == 0) slots.emplace_back(pick(-1, 0), pick(0, 100));
      const int level = levels[pick(0, 5)];
      for (int c = pick(1, 2048), n = pick(1, 12); n > 0 && c <= 2048 && taken.size() < 150; ++c, --n) {
        if (taken.insert(c).second) slots.emplace_back(c, level);
      }
    }
    const Record r = recordOf(pick(0, 240), slots);
    SCOPED_TRACE(::testing::Message() << "round " << round << ", " << taken.size() << " channels");
    image->fill(0, map::kImageSize - 1, kSentinel);
    if (!channelsFit(r, r)) {
      EXPECT_THROW(PackChannelBlock(*image, kInput, r), job::RuntimeError);
      continue;
    }
    ++packed;
    PackChannelBlock(*image, kInput, r);
    ASSERT_TRUE(onlyBlockTouched(*image, kBase));
    auto back = std::make_unique<Record>();
    DecodeChannelBlock(*image, kInput, *back);
    EXPECT_EQ(back->FadeRate, r.FadeRate);
    EXPECT_EQ(back->ChannelCount, static_cast<int>(taken.size()));
    EXPECT_EQ(liveSlots(*back), liveSlots(r));
    EXPECT_EQ(back->Channels[taken.size()], 0) << "decoded slots are packed from slot 0";
  }
  EXPECT_GT(packed, 200) << "most shapes should fit";
}

TEST_F(ChannelBlock, ScatteredChannelsAtAlternatingLevelsDoNotFit) {
  testing::Slots slots;
  for (int i = 0; i < 150; ++i) slots.emplace_back(2 * i + 1, i % 2 == 0 ? 10 : 20);
  const Record r = recordOf(3, slots);
  EXPECT_THROW(PackChannelBlock(*image, kInput, r), job::RuntimeError);
  EXPECT_TRUE(onlyBlockTouched(*image, kBase));
  EXPECT_EQ(bytesAt(*image, kBase, 3), (std::vector<int>{kSentinel, kSentinel, kSentinel})) << "nothing written";

  // Action two never reaches the board, so only a second-bank input in its record can refuse.
  const Record empty;
  Record secondBank = r;
  secondBank.InputNumber = 19;
  EXPECT_FALSE(channelsFit(r, empty));
  EXPECT_TRUE(channelsFit(empty, r));
  EXPECT_FALSE(channelsFit(empty, secondBank));
}

TEST_F(ChannelBlock, OneHundredFiftyChannelsAsRangesFit) {
  testing::Slots slots;
  for (int range = 0; range < 15; ++range) {
    for (int c = 1; c <= 10; ++c) slots.emplace_back(20 * range + c, range % 2 == 0 ? 10 : 20);
  }
  const Record r = recordOf(3, slots);
  ASSERT_TRUE(channelsFit(r, r));
  PackChannelBlock(*image, kInput, r);
  EXPECT_EQ(image->at(kBase + 2), 150);
  auto back = std::make_unique<Record>();
  DecodeChannelBlock(*image, kInput, *back);
  EXPECT_EQ(liveSlots(*back), slots);

  slots.emplace_back(301, 10);
  EXPECT_FALSE(channelsFit(recordOf(3, slots), r)) << "a 151st channel never fits";
}

TEST_F(ChannelBlock, DecodingCraftedGarbageStaysInTheBlock) {
  struct Case {
    const char* name;
    std::vector<int> block;
    testing::Slots expected;
  };
  testing::Slots firstHundredFifty;
  for (int c = 1; c <= 150; ++c) firstHundredFifty.emplace_back(c, 80);
  const Case cases[] = {
      {"a count of 0 at +2 is an unused input", {7, 0, 0, 1, 50, 0, 9}, {}},
      {"a range that goes backwards adds nothing", {0, 0, 2, 2, 30, 0, 100, 128, 50}, {{100, 30}}},
      {"a range over every channel stops at 150", {0, 0, 150, 2, 80, 0, 1, 136, 0}, firstHundredFifty},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    image->fill(kBase, kBase + 299, 0);
    for (std::size_t i = 0; i < c.block.size(); ++i) image->put(kBase + static_cast<int>(i), c.block[i]);
    auto back = std::make_unique<Record>();
    DecodeChannelBlock(*image, kInput, *back);
    EXPECT_EQ(liveSlots(*back), c.expected);
    EXPECT_EQ(back->ChannelCount, static_cast<int>(c.expected.size()));
  }
}

// Bytes outside the last block are drawn again between two reads: a read past the block would
// change what it decodes.
TEST_F(ChannelBlock, DecodingRandomBytesNeverReadsPastTheBlock) {
  constexpr int kLastInput = 32;
  const int first = map::blockBase(kLastInput);
  std::mt19937 rng(7);
  std::uniform_int_distribution<int> byte(0, 255);
  auto back = std::make_unique<Record>();
  auto again = std::make_unique<Record>();
  for (int round = 0; round < 300; ++round) {
    SCOPED_TRACE(::testing::Message() << "round " << round);
    for (auto& b : image->bytes()) b = static_cast<std::uint8_t>(byte(rng));
    if (round % 2 == 0) image->put(first + 3, 255);  // a count that claims more than fits
    ASSERT_NO_THROW(DecodeChannelBlock(*image, kLastInput, *back));
    EXPECT_LE(back->ChannelCount, 150);
    EXPECT_EQ(static_cast<int>(liveSlots(*back).size()), back->ChannelCount);
    for (const Slot& s : liveSlots(*back)) ASSERT_LE(s.first, 2048);
    for (int i = first + 300; i < map::kImageSize; ++i) image->put(i, byte(rng));
    DecodeChannelBlock(*image, kLastInput, *again);
    ASSERT_EQ(liveSlots(*again), liveSlots(*back));
  }
}

}  // namespace
}  // namespace pellam::image
