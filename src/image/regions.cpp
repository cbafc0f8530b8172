#include "image/regions.h"

#include <array>
#include <utility>

#include "image/memory_map.h"

namespace pellam::image {

using namespace map;

namespace {

// The single bytes of the board setup, as memory_map.h lists them.
constexpr std::array<std::pair<int, const char*>, 13> kBoardBytes = {{
    {kSignatureByte, "signature"},
    {kHardwareTypeByte, "board setup: hardware type"},
    {kProductTypeByte, "board setup: file type"},
    {kMasterSlaveByte, "board setup: master/slave"},
    {kSlaveIdByte, "board setup: slave id"},
    {kInputActionByte, "board setup: input action"},
    {kOffsetFlagByte, "board setup: offset flag"},
    {kOptionFlagsByte, "board setup: option flags"},
    {kTimerHighByte, "board setup: timer"},
    {kTimerLowByte, "board setup: timer"},
    {kOperatingModeByte, "board setup: operating mode"},
    {kFurtherOptionByte, "board setup: further option"},
    {kInputScanByte, "board setup: input scan"},
}};

// "row 3": built in place, as g++ 12 warns wrongly of a literal put before a temporary string.
std::string numbered(const char* label, int n) {
  std::string text = label;
  text += std::to_string(n);
  return text;
}

// The first offset after `offset` where a region starts, or the image's end.
int nextRegion(int offset) {
  int next = kImageSize;
  auto consider = [&](int first) {
    if (first > offset && first < next) next = first;
  };
  for (const auto& [at, name] : kBoardBytes) consider(at);
  for (int first : {kMasterInputsBase, kInputNumberingPerInputBase, kStationFormBBase, kPersonalityByNetIdBase + 1, kRoomLinkBase}) {
    consider(first);
  }
  for (int k = 1; k <= 2 * kInputsPerBank; ++k) consider(blockBase(k));
  for (int page = 1; page <= kRemoteCommandPages; ++page) consider(remoteCommandPageBase(page));
  return next;
}

// A region and, for a person, where in it the offset lies.
std::pair<Region, std::string> locate(int offset) {
  auto in = [&](int first, int last) { return offset >= first && offset <= last; };
  for (const auto& [at, name] : kBoardBytes) {
    if (offset == at) return {{at, at, name}, {}};
  }
  if (in(kMasterInputsBase, kMasterInputsBase + kMasterInputCount - 1)) {
    return {{kMasterInputsBase, kMasterInputsBase + kMasterInputCount - 1, "master inputs"}, numbered("input ", offset - kMasterInputsBase + 1)};
  }
  if (in(kRoomCombineMapBase, kRoomCombineMapLast)) {
    return {{kRoomCombineMapBase, kRoomCombineMapLast, "room-combine map"}, numbered("channel ", (offset - kRoomCombineMapBase) / 2)};
  }
  const int numberingLast = kInputNumberingPerInputBase + kInputNumberingRecords - 1;
  if (in(kInputNumberingPerInputBase, numberingLast)) {
    return {{kInputNumberingPerInputBase, numberingLast, "input numbering"}, numbered("input ", offset - kInputNumberingPerInputBase)};
  }
  if (in(kStationFormBBase, kStationSlotsLast)) {
    return {{kStationFormBBase, kStationSlotsLast, "station slots"}, numbered("row ", (offset - kStationFormBBase) / kStationSlotSize)};
  }
  if (in(kPersonalityByNetIdBase + 1, kPersonalityByNetIdBase + 255)) {
    return {{kPersonalityByNetIdBase + 1, kPersonalityByNetIdBase + 255, "station personalities"}, numbered("net id ", offset - kPersonalityByNetIdBase)};
  }
  if (in(kRoomLinkBase, roomLinkRowBase(kRoomLinkRows) - 1)) {
    return {{kRoomLinkBase, roomLinkRowBase(kRoomLinkRows) - 1, "room links"}, numbered("row ", (offset - kRoomLinkBase) / 2)};
  }
  for (int k = 1; k <= 2 * kInputsPerBank; ++k) {
    if (in(blockBase(k), blockBase(k) + kBlockSize - 1)) {
      return {{blockBase(k), blockBase(k) + kBlockSize - 1, numbered("per-input block ", k)}, numbered("+", offset - blockBase(k))};
    }
  }
  for (int page = 1; page <= kRemoteCommandPages; ++page) {
    const int base = remoteCommandPageBase(page);
    if (in(base, base + kRemoteCommandPageSize - 1)) return {{base, base + kRemoteCommandPageSize - 1, numbered("remote commands page ", page)}, {}};
  }
  return {{offset, nextRegion(offset) - 1, "unused"}, {}};
}

}  // namespace

Region regionOf(int offset) { return locate(offset).first; }

std::string regionName(int offset) {
  auto [region, where] = locate(offset);
  if (where.empty()) return region.name;
  region.name += " (";
  region.name += where;
  region.name += ")";
  return region.name;
}

}  // namespace pellam::image
