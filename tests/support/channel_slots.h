#pragma once

#include <utility>
#include <vector>

#include "job/tables.h"

namespace pellam::testing {

// A channel-emulation slot as a person reads it: channel (0 never used, -1 deleted), level.
using Slots = std::vector<std::pair<int, int>>;

// A record with `slots` from slot 0 on, as an editor leaves it before packing.
inline job::ChannelEmulationRecord channelRecord(int inputNumber, int fade, const Slots& slots) {
  job::ChannelEmulationRecord r;
  r.InputNumber = static_cast<std::int16_t>(inputNumber);
  r.FadeRate = static_cast<std::int16_t>(fade);
  for (std::size_t s = 0; s < slots.size(); ++s) {
    r.Channels[s] = static_cast<std::int16_t>(slots[s].first);
    r.Levels[s] = static_cast<std::int16_t>(slots[s].second);
  }
  return r;
}

// The slots in use, in slot order.
inline Slots liveSlots(const job::ChannelEmulationRecord& r) {
  Slots live;
  for (std::size_t s = 0; s < r.Channels.size(); ++s) {
    if (r.Channels[s] > 0) live.emplace_back(r.Channels[s], r.Levels[s]);
  }
  return live;
}

}  // namespace pellam::testing
