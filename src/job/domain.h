#pragma once

#include <cstdint>

// Facts of the board and its job that every layer shares, each stated once.
namespace pellam::job {

// Channels of the lighting network are numbered 1..2048.
inline constexpr int kLastChannel = 2048;
// The first-channel list, the filtered room-combine views, their deletes and the room-combine
// report have always scanned channels only up to here, so channel 2048 never shows in them.
inline constexpr int kLastScannedChannel = 2047;

// A record with no line in its list box: 65535 in the board's 16-bit fields, kept as -1 in the
// signed tables and as 65535 in the unsigned ones.
inline constexpr std::int16_t kNotListed = -1;
inline constexpr std::uint16_t kNotListedUnsigned = 65535;

}  // namespace pellam::job
