#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>

#include "image/decode.h"
#include "image/pack.h"

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

// Each decoder is the inverse of its packer: pack a table, decode it into a fresh one.
class DecodeRoundTrip : public ::testing::Test {
 protected:
  std::unique_ptr<EepromImage> image = std::make_unique<EepromImage>();
  std::unique_ptr<job::Job> saved = std::make_unique<job::Job>();
  std::unique_ptr<job::Job> back = std::make_unique<job::Job>();
};

TEST_F(DecodeRoundTrip, StationsGoToTheSlotOfTheirNetId) {
  auto expectSameStations = [&] {
    for (std::size_t n = 0; n <= 128; ++n) {
      SCOPED_TRACE(::testing::Message() << "net id " << n);
      const job::StationLinkRecord &s = saved->stationLink.records[n], &b = back->stationLink.records[n];
      EXPECT_EQ(b.LinkNetId, s.LinkNetId);
      EXPECT_EQ(b.LinkStationType, s.LinkStationType);
      EXPECT_EQ(b.LinkRoom, s.LinkRoom);
    }
  };
  for (int n : {1, 21, 127}) job::LinkInsert(saved->stationLink, n, n % 2 == 0 ? 9 : 10, 128 - n);
  PackStationsFormA(*image, saved->stationLink);
  DecodeStationsFormA(*image, back->stationLink, nullptr);
  expectSameStations();

  image = std::make_unique<EepromImage>();
  back = std::make_unique<job::Job>();
  job::LinkInsert(saved->stationLink, 4, 13, 21);
  saved->stationPersonality.records[3] = {4, 9, 6, 0, 21};
  saved->stationPersonality.records[126] = {127, 10, 2, 0, 1};
  PackStationsFormB(*image, saved->stationLink, saved->stationPersonality);
  DecodeStationsFormB(*image, back->stationLink, back->stationPersonality, nullptr);
  expectSameStations();
  for (int n = 1; n <= 127; ++n) {
    EXPECT_EQ(job::personalityOf(back->stationPersonality, n), job::personalityOf(saved->stationPersonality, n))
        << "net id " << n;
  }
}

TEST_F(DecodeRoundTrip, PresetsComeBackInTheirSavedOrder) {
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

TEST_F(DecodeRoundTrip, ChannelEmulationBothActions) {
  job::ChannelEmulationRecord &one = saved->channelEmulation.records[3], &two = saved->channelEmulation.records[19];
  const std::int16_t channels[] = {12, 13, 14, 15, 2048, 7, 1, 900};
  for (std::size_t s = 0; s < std::size(channels); ++s) {
    one.Channels[s] = two.Channels[s] = channels[s];
    one.Levels[s] = static_cast<std::int16_t>(s < 4 ? 75 : 10 * s);
    two.Levels[s] = static_cast<std::int16_t>(s % 3 == 0 ? 0 : 100);
  }
  one.FadeRate = 61;
  two.FadeRate = 240;
  PackChannelEmulationInput(*image, saved->channelEmulation, 3);
  DecodeChannelEmulation(*image, back->channelEmulation);
  for (std::size_t r : {3u, 19u}) {
    SCOPED_TRACE(::testing::Message() << "record " << r);
    const job::ChannelEmulationRecord &s = saved->channelEmulation.records[r], &b = back->channelEmulation.records[r];
    EXPECT_EQ(b.FadeRate, s.FadeRate);
    EXPECT_EQ(b.Channels, s.Channels);
    EXPECT_EQ(b.Levels, s.Levels);
    EXPECT_EQ(b.ChannelCount, 8);
  }
  EXPECT_EQ(back->channelEmulation.records[3].InputNumber, 3);
  EXPECT_EQ(back->channelEmulation.records[3].PartnerIndex, 19);
  EXPECT_EQ(back->channelEmulation.records[4].InputNumber, 0);
  EXPECT_EQ(back->channelEmulation.records[4].ChannelCount, 0);
}

}  // namespace
}  // namespace pellam::image
