#include "image/pack.h"

#include "image/channel_emulation_block.h"

namespace pellam::image {

using namespace map;

bool optionBitZero(int optionFlags) { return (optionFlags & 1) != 0; }

void PackBoardSetup(EepromImage& image, BoardValues v) {
  const int masterSlave = v.masterSlave == job::kSlaved ? 0 : v.masterSlave;
  const int slaveId = masterSlave == job::kMaster ? job::kMasterSlaveIdValue : v.slaveId;
  image.put(kMasterSlaveByte, masterSlave);
  image.put(kSlaveIdByte, slaveId);
  image.put(kInputActionByte, v.inputAction);
  image.put(kHardwareTypeByte, v.hardwareType);
  image.put(kOperatingModeByte, v.operatingMode);
  image.put(kProductTypeByte, kProductTypeValue);
}

void PackSignature(EepromImage& image) { image.put(kSignatureByte, kSignatureValue); }

void PackTimerOption(EepromImage& image, int optionFlags, int timer) {
  image.put(kOptionFlagsByte, 0);
  if (optionBitZero(optionFlags)) {
    image.put(kOptionFlagsByte, optionFlags);
    image.put(kTimerHighByte, timer / 256);
    image.put(kTimerLowByte, timer & 255);
  } else {
    image.put(kTimerHighByte, 0);
    image.put(kTimerLowByte, 0);
  }
}

// With numbering off this also clears the signature written just before; kept so.
void PackInputNumbering(EepromImage& image, int optionFlags, const job::InputNumberTable& table) {
  if (!optionBitZero(optionFlags)) {
    image.fill(kInputNumberingPerInputBase, kInputNumberingPerInputBase + kInputNumberingRecords - 1, 0);
    image.fill(0, kInputNumberingClearLast, 0);
    return;
  }
  for (int i = 0; i < kInputNumberingRecords; ++i) {
    const job::InputNumberRecord& r = table.records[static_cast<std::size_t>(i)];
    image.put(kInputNumberingPerInputBase + i, r.RoomNumber);
    image.put(kInputNumberingReverseBase + r.RoomNumber, r.InputNumber);
  }
}

void PackRemoteCommands(EepromImage& image, const job::RemoteCommandTable& table) {
  for (int page = 1; page <= kRemoteCommandPages; ++page) {
    const job::RemoteCommandBlock& block = table.blocks[static_cast<std::size_t>(page)];
    const int base = remoteCommandPageBase(page);
    image.put(base, block.Mode);
    image.put(base + 1, block.Page);
    int at = base + 2;
    for (std::size_t j = 0; j < 127 && at < base + kRemoteCommandPageSize; ++j) {
      if (block.Listed[j] <= 0) continue;
      image.put(at, block.Listed[j]);
      image.put(at + 1, block.Value[j]);
      at += 2;
    }
  }
}

void PackMasterInputs(EepromImage& image, const job::MasterInputs& inputs) {
  for (int i = 0; i < kMasterInputCount; ++i) image.put(kMasterInputsBase + i, inputs.entries[static_cast<std::size_t>(i)]);
}

bool inputActionOffset(const job::MasterInputs& inputs, int inputAction) {
  return inputs.Mode == 1 && inputs.Companion == 2 && inputAction > kInputActionOffset;
}

int inputActionForImage(const job::MasterInputs& inputs, int inputAction) {
  return inputAction - (inputActionOffset(inputs, inputAction) ? kInputActionOffset : 0);
}

void PackOffsetFlag(EepromImage& image, const job::MasterInputs& inputs, int inputAction) {
  image.put(kOffsetFlagByte, inputActionOffset(inputs, inputAction) ? 1 : 0);
}

void PackRoomLink(EepromImage& image, const job::RoomLinkTable& table) {
  for (int i = 0; i < kRoomLinkRows; ++i) {
    const job::RoomLinkRecord& r = table.records[static_cast<std::size_t>(i)];
    if (r.LinkInput == 0) continue;
    image.put(roomLinkRowBase(i), r.FirstRoom);
    image.put(roomLinkRowBase(i) + 1, r.SecondRoom);
  }
}

void PackRoomCombine(EepromImage& image, const job::RoomCombineTable& table, int inputScan) {
  image.put(kInputScanByte, inputScan);
  image.fill(kRoomCombineMapBase, kRoomCombineMapClearLast, 0);
  for (int c = 0; c <= kRoomCombineLastChannel; ++c) {
    const job::RoomCombineRecord& r = table.records[static_cast<std::size_t>(c)];
    if (r.CombineChannel == 0) continue;
    image.put(kRoomCombineMapBase + 2 * c, r.CombineGroup);
    image.put(kRoomCombineMapBase + 2 * c + 1, r.CombineRoom);
  }
}

namespace {
void putStation(EepromImage& image, int at, const job::StationLinkRecord& r) {
  image.put(at, r.LinkRoom);
  image.put(at + 1, r.LinkStationType);
  image.put(at + 2, r.LinkNetId);
}
}  // namespace

void PackStationsFormA(EepromImage& image, const job::StationLinkTable& table) {
  for (int i = 0; i < kStationRows; ++i) {
    const job::StationLinkRecord& r = table.records[static_cast<std::size_t>(i)];
    if (r.LinkNetId != 0) putStation(image, kStationFormABase + kStationSlotSize * i, r);
  }
}

void PackStationsFormB(EepromImage& image, const job::StationLinkTable& table,
                       const job::StationPersonalityTable& personalities) {
  for (int i = 0; i < kStationRows; ++i) {
    const job::StationLinkRecord& r = table.records[static_cast<std::size_t>(i)];
    if (r.LinkNetId <= 0) continue;
    putStation(image, kStationFormBBase + kStationSlotSize * i, r);
    image.put(kPersonalityByNetIdBase + r.LinkNetId, job::personalityOf(personalities, r.LinkNetId));
  }
}

void PackFurtherOption(EepromImage& image, int option) { image.put(kFurtherOptionByte, option); }

// A 38th station of an input runs on into the next input's block: no bound is enforced here.
void PackPresetEmulation(EepromImage& image, const job::PresetEmulationTable& table) {
  for (int k = 1; k <= 2 * kInputsPerBank; ++k) {
    int at = blockBase(k);
    for (std::size_t j = 0; j <= 126; ++j) {
      const job::PresetRecord& r = table.records[j][static_cast<std::size_t>(k)];
      if (r.NetIdPlusOne < 1) continue;
      image.put(at, r.StationKind);
      image.put(at + 2, r.NetIdPlusOne);
      image.put(at + 4, r.ActionNumber);
      image.put(at + 6, r.Personality);
      at += kPresetEntrySize;
    }
  }
}

void PackChannelEmulationInput(EepromImage& image, const job::ChannelEmulationTable& table, int input) {
  const job::ChannelEmulationRecord& record = table.records.at(static_cast<std::size_t>(input));
  if (input <= kInputsPerBank || job::inUse(record)) PackChannelBlock(image, input, record);
}

}  // namespace pellam::image
