#include "image/channel_emulation_block.h"

#include <algorithm>

#include "job/runtime_error.h"

namespace pellam::image {

namespace {

constexpr int kRangeEnd = 0x80;
constexpr int kChannelHighMask = 0x0F;

// One pair per single channel, two per range of consecutive channels.
int pairsOf(const ChannelGroup& group) {
  int pairs = 0;
  for (std::size_t i = 0; i < group.channels.size();) {
    std::size_t j = i;
    while (j + 1 < group.channels.size() && group.channels[j + 1] == group.channels[j] + 1) ++j;
    pairs += j > i ? 2 : 1;
    i = j + 1;
  }
  return pairs;
}

// Action two's fade rate never reaches the board: a second-bank block starts with word 6.
std::int16_t job::ChannelEmulationRecord::*settingField(int input) {
  return input <= map::kInputsPerBank ? &job::ChannelEmulationRecord::FadeRate : &job::ChannelEmulationRecord::Header6;
}

int liveChannels(const job::ChannelEmulationRecord& record) {
  int live = 0;
  for (int s = 0; s < job::kChannelSlotsListed; ++s) live += record.Channels[static_cast<std::size_t>(s)] > 0;
  return live;
}

}  // namespace

std::vector<ChannelGroup> channelGroups(const job::ChannelEmulationRecord& record) {
  std::vector<ChannelGroup> groups;
  for (std::size_t s = 0; s < static_cast<std::size_t>(job::kChannelSlotsListed); ++s) {
    if (record.Channels[s] <= 0) continue;
    if (groups.empty() || groups.back().level != record.Levels[s]) groups.push_back({record.Levels[s], {}});
    groups.back().channels.push_back(record.Channels[s]);
  }
  return groups;
}

int channelGroupBytes(const job::ChannelEmulationRecord& record) {
  int bytes = 0;
  for (const ChannelGroup& group : channelGroups(record)) bytes += 2 + 2 * pairsOf(group);
  return bytes;
}

namespace {

bool blockFits(const job::ChannelEmulationRecord& record) {
  return liveChannels(record) <= kChannelsPerInput &&
         channelGroupBytes(record) <= map::kBlockSize - kChannelBlockGroupsStart;
}

}  // namespace

std::int16_t blockSetting(const job::ChannelEmulationRecord& record, int input) { return record.*settingField(input); }

bool channelsFit(const job::ChannelEmulationRecord& actionOne, const job::ChannelEmulationRecord& actionTwo) {
  return blockFits(actionOne) && (!job::inUse(actionTwo) || blockFits(actionTwo));
}

void PackChannelBlock(EepromImage& image, int input, const job::ChannelEmulationRecord& record) {
  // The whole block is built and checked first, so that a record that cannot be stored
  // leaves the image as it was.
  const int base = map::blockBase(input);
  std::vector<std::uint8_t> block{toByte(blockSetting(record, input)), 0, toByte(liveChannels(record))};
  auto putPair = [&](int channel, bool rangeEnd) {
    if (channel > job::kLastChannel) throw job::RuntimeError(job::kOverflow);
    block.push_back(static_cast<std::uint8_t>((channel >> 8) | (rangeEnd ? kRangeEnd : 0)));
    block.push_back(static_cast<std::uint8_t>(channel & 0xFF));
  };
  for (const ChannelGroup& group : channelGroups(record)) {
    block.push_back(toByte(pairsOf(group)));
    block.push_back(toByte(group.level));
    const auto& c = group.channels;
    for (std::size_t i = 0; i < c.size();) {
      std::size_t j = i;
      while (j + 1 < c.size() && c[j + 1] == c[j] + 1) ++j;
      putPair(c[i], false);
      if (j > i) putPair(c[j], true);
      i = j + 1;
    }
  }
  if (liveChannels(record) > kChannelsPerInput || block.size() > static_cast<std::size_t>(map::kBlockSize)) {
    throw job::RuntimeError(job::kSubscriptOutOfRange);
  }
  if (block.size() < static_cast<std::size_t>(map::kBlockSize)) block.push_back(0);
  for (std::size_t i = 0; i < block.size(); ++i) image.put(base + static_cast<int>(i), block[i]);
}

void DecodeChannelBlock(const EepromImage& image, int input, job::ChannelEmulationRecord& record) {
  const int base = map::blockBase(input);
  image.at(base + map::kBlockSize - 1);  // the whole block lies inside the image
  const std::uint8_t* const block = image.bytes().data() + base;
  record.*settingField(input) = block[0];
  int slot = 0;
  auto take = [&](int channel, int level) {
    if (channel < 1 || channel > job::kLastChannel || slot >= kChannelsPerInput) return;
    record.Channels[static_cast<std::size_t>(slot)] = static_cast<std::int16_t>(channel);
    record.Levels[static_cast<std::size_t>(slot)] = static_cast<std::int16_t>(level);
    ++slot;
  };
  int at = block[2] == 0 ? map::kBlockSize : kChannelBlockGroupsStart;
  while (at + 1 < map::kBlockSize && block[at] != 0) {
    const int pairs = block[at];
    const int level = block[at + 1];
    at += 2;
    int previous = 0;
    for (int p = 0; p < pairs && at + 1 < map::kBlockSize; ++p, at += 2) {
      const int channel = ((block[at] & kChannelHighMask) << 8) | block[at + 1];
      if ((block[at] & kRangeEnd) != 0 && previous > 0) {
        const int last = std::min(channel, job::kLastChannel);
        const int n = std::min(last - previous, kChannelsPerInput - slot);
        for (int i = 0; i < n; ++i) {
          record.Channels[static_cast<std::size_t>(slot + i)] = static_cast<std::int16_t>(previous + 1 + i);
          record.Levels[static_cast<std::size_t>(slot + i)] = static_cast<std::int16_t>(level);
        }
        slot += std::max(n, 0);
      } else {
        take(channel, level);
      }
      previous = channel;
    }
  }
  record.ChannelCount = static_cast<std::int16_t>(slot);
  // Slots past the decoded channels are emptied once, here.
  std::fill(record.Channels.begin() + slot, record.Channels.end(), 0);
  std::fill(record.Levels.begin() + slot, record.Levels.end(), 0);
}

}  // namespace pellam::image
