#include "image/regions.h"

#include <array>
#include <utility>

#include "image/memory_map.h"

namespace pellam::image {

using namespace map;

namespace {

// The single bytes of the board setup, as memory_map.h lists them.
constexpr std::array<std::pair<int, const char*>, 13> kBoardBytes = {{
    {kHardwareTypeByte, "hardware type"},
    {kProductTypeByte, "file type"},
    {kMasterSlaveByte, "master/slave"},
    {kSlaveIdByte, "slave id"},
    {kInputActionByte, "input action"},
    {kOffsetFlagByte, "offset flag"},
    {kOptionFlagsByte, "option flags"},
    {kTimerHighByte, "timer"},
    {kTimerLowByte, "timer"},
    {kOperatingModeByte, "operating mode"},
    {kFurtherOptionByte, "further option"},
    {kInputScanByte, "input scan"},
    {kSignatureByte, "signature"},
}};

}  // namespace

std::string regionName(int offset) {
  for (const auto& [at, name] : kBoardBytes) {
    if (offset == at) return std::string(at == kSignatureByte ? "" : "board setup: ") + name;
  }
  if (offset >= kMasterInputsBase && offset < kMasterInputsBase + kMasterInputCount) {
    return "master input " + std::to_string(offset - kMasterInputsBase + 1);
  }
  if (offset <= kRoomCombineMapLast) return "room-combine map (channel " + std::to_string((offset - kRoomCombineMapBase) / 2) + ")";
  if (offset >= kInputNumberingPerInputBase && offset < kInputNumberingPerInputBase + kInputNumberingRecords) {
    return "input numbering (input " + std::to_string(offset - kInputNumberingPerInputBase) + ")";
  }
  if (offset >= kStationFormBBase && offset <= kStationSlotsLast) {
    return "station slots (row " + std::to_string((offset - kStationFormBBase) / kStationSlotSize) + ")";
  }
  if (offset > kPersonalityByNetIdBase && offset <= kPersonalityByNetIdBase + 255) {
    return "station personality (net id " + std::to_string(offset - kPersonalityByNetIdBase) + ")";
  }
  if (offset >= kRoomLinkBase && offset < roomLinkRowBase(kRoomLinkRows)) {
    return "room links (row " + std::to_string((offset - kRoomLinkBase) / 2) + ")";
  }
  for (int k = 1; k <= 2 * kInputsPerBank; ++k) {
    if (offset >= blockBase(k) && offset < blockBase(k) + kBlockSize) {
      return "per-input block " + std::to_string(k) + " (+" + std::to_string(offset - blockBase(k)) + ")";
    }
  }
  for (int page = 1; page <= kRemoteCommandPages; ++page) {
    const int base = remoteCommandPageBase(page);
    if (offset >= base && offset < base + kRemoteCommandPageSize) return "remote commands page " + std::to_string(page);
  }
  return "unused";
}

}  // namespace pellam::image
