#pragma once

#include "job/domain.h"

// The board's EEPROM layout: every offset the set-up tool reads or writes, and no offset
// anywhere else. Offsets are image indices; below kZpdSize they are also .zpd file offsets.
//
//   OFFSET          SIZE         CONTENT
//   0               1            signature byte, 11 in a saved image
//   0..4097         2/channel    room-combine map: 2c group, 2c+1 room, channels 0..2048
//   0..255          256          cleared when input numbering is off
//   4997+3i         3/row        station slots form A (room, type, net id), rows 1-based
//   5000+3i         3/row        station slots form B (room, type, net id), rows 0-based
//   5000+n          1/room       input-numbering reverse map (room n -> input number)
//   5300..5316      17           input numbering: room number of record i
//   5766+n          1/net id     station personality by net id (form B)
//   6100            1            hardware type (ComboBox48)
//   6101            1            file-type marker, always 11
//   6200            1            master/slave: 1 master, 0 slaved
//   6201            1            slave id, 200 for a master
//   6202            1            input action (ComboBox6)
//   6204            1            offset flag: input action shows 4 higher
//   6205..6220      16           master inputs
//   6250            1            option flags, whole byte when bit 0 is set
//   6251..6252      2            timer in 50 ms units, high byte first
//   6400            1            operating mode 1..5
//   6401            1            further option byte (mode 3)
//   6450            1            input-scan flag (mode 3)
//   7874+2i         2/row        room link rows 0..16: first room, second room
//   8000+300k       300/input    per-input blocks, inputs 1..16 (preset or channel emulation)
//   20000+300(k-16) 300/input    per-input blocks, inputs 17..32
//   25200+60(p-1)   60/page      remote LED/button commands, pages 1..16
namespace pellam::image::map {

inline constexpr int kImageSize = 34002;
inline constexpr int kZpdSize = 32767;
inline constexpr int kClearFirst = 1;  // a clear keeps byte 0 and 33999..34001
inline constexpr int kClearLast = 33998;

inline constexpr int kSignatureByte = 0;
inline constexpr int kSignatureValue = 11;

inline constexpr int kRoomCombineMapBase = 0;
inline constexpr int kRoomCombineMapClearLast = 4095;
inline constexpr int kRoomCombineLastChannel = job::kLastChannel;
inline constexpr int kRoomCombineMapLast = kRoomCombineMapBase + 2 * kRoomCombineLastChannel + 1;

inline constexpr int kInputNumberingClearLast = 255;

inline constexpr int kStationSlotSize = 3;
inline constexpr int kStationRows = 128;
inline constexpr int kStationFormABase = 4997;
inline constexpr int kStationFormBBase = 5000;
inline constexpr int kStationSlotsLast = 5383;

inline constexpr int kInputNumberingReverseBase = 5000;
inline constexpr int kInputNumberingPerInputBase = 5300;
inline constexpr int kInputNumberingRecords = 17;

inline constexpr int kPersonalityByNetIdBase = 5766;

inline constexpr int kHardwareTypeByte = 6100;
inline constexpr int kProductTypeByte = 6101;
inline constexpr int kProductTypeValue = 11;
inline constexpr int kMasterSlaveByte = 6200;
inline constexpr int kSlaveIdByte = 6201;
inline constexpr int kInputActionByte = 6202;
inline constexpr int kOffsetFlagByte = 6204;
inline constexpr int kInputActionOffset = 4;
inline constexpr int kMasterInputsBase = 6205;
inline constexpr int kMasterInputCount = 16;
inline constexpr int kOptionFlagsByte = 6250;
inline constexpr int kTimerHighByte = 6251;
inline constexpr int kTimerLowByte = 6252;
inline constexpr int kOperatingModeByte = 6400;
inline constexpr int kFurtherOptionByte = 6401;
inline constexpr int kInputScanByte = 6450;

inline constexpr int kRoomLinkBase = 7874;
inline constexpr int kRoomLinkRows = 17;

inline constexpr int kBlockSize = 300;
inline constexpr int kBank1Base = 8000;
inline constexpr int kBank2Base = 20000;
inline constexpr int kInputsPerBank = 16;
inline constexpr int kPresetEntrySize = 8;
inline constexpr int kPresetEntriesPerBlock = 37;

inline constexpr int kRemoteCommandBase = 25200;
inline constexpr int kRemoteCommandPageSize = 60;
inline constexpr int kRemoteCommandPages = 16;

// Input k (1..32) of the per-input blocks; the second bank starts at 20000, not after input 16.
constexpr int blockBase(int input) {
  return input <= kInputsPerBank ? kBank1Base + kBlockSize * input : kBank2Base + kBlockSize * (input - kInputsPerBank);
}
constexpr int remoteCommandPageBase(int page) { return kRemoteCommandBase + kRemoteCommandPageSize * (page - 1); }
constexpr int roomLinkRowBase(int row) { return kRoomLinkBase + 2 * row; }

static_assert(kRoomCombineMapLast == 4097);
static_assert(kStationFormBBase + kStationSlotSize * kStationRows - 1 == kStationSlotsLast);
static_assert(kStationFormABase + kStationSlotSize == kStationFormBBase, "form A row 1 is form B row 0");
static_assert(kPersonalityByNetIdBase + 255 == 6021);
static_assert(kMasterInputsBase + kMasterInputCount - 1 == 6220);
static_assert(roomLinkRowBase(kRoomLinkRows - 1) + 1 == 7907);
static_assert(blockBase(1) == 8300 && blockBase(16) == 12800);
static_assert(blockBase(17) == 20300 && blockBase(32) + kBlockSize - 1 == 25099);
static_assert(blockBase(32) + kBlockSize <= kRemoteCommandBase, "the second bank ends before the remote commands");
static_assert(kPresetEntriesPerBlock * kPresetEntrySize <= kBlockSize);
static_assert(remoteCommandPageBase(kRemoteCommandPages) + kRemoteCommandPageSize - 1 == 26159);
static_assert(kZpdSize <= kImageSize && kClearLast == kImageSize - 4);

}  // namespace pellam::image::map
