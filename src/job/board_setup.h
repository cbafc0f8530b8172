#pragma once

#include <cstdint>

namespace pellam::job {

// The board-wide values of the setup page. Choices are list positions (0 = nothing chosen).
struct BoardSetup {
  std::int16_t HardwareType = 0;
  std::int16_t OperatingMode = 0;
  std::int16_t MasterSlaveMode = 0;  // 1 master, 2 slaved
  std::int16_t SlaveId = 0;
  std::int16_t InputAction = 0;
  std::int32_t RefreshRate = 0;      // scan period in 50-millisecond units; wide enough for any two-byte timer read from a file
  std::int16_t InputScan = 0;
  std::int16_t BoardOptions = 0;     // bit 0: input scan with refresh and input numbering
  std::int16_t FurtherOption = 0;    // the room-combine option byte of the image
};

inline constexpr int kMaster = 1;
inline constexpr int kSlaved = 2;
inline constexpr int kMasterSlaveIdValue = 200;  // the slave id a master carries

}  // namespace pellam::job
