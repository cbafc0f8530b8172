#include "image/decode.h"

#include <array>
#include <cmath>

#include "image/channel_emulation_block.h"

namespace pellam::image {

using namespace map;

DecodedBoard DecodeBoardSetup(const EepromImage& image) {
  DecodedBoard b;
  b.hardwareType = image.at(kHardwareTypeByte);
  b.masterSlave = image.at(kMasterSlaveByte) == 0 ? job::kSlaved : image.at(kMasterSlaveByte);
  b.slaveId = image.at(kSlaveIdByte);
  b.masterInputMode = image.at(kOffsetFlagByte);
  b.inputAction = image.at(kInputActionByte) + (b.masterInputMode == 1 ? kInputActionOffset : 0);
  b.operatingMode = image.at(kOperatingModeByte);
  b.inputScan = image.at(kInputScanByte);
  b.furtherOption = image.at(kFurtherOptionByte);
  b.optionFlags = image.at(kOptionFlagsByte);
  b.timer = image.at(kTimerHighByte) * 256 + image.at(kTimerLowByte);
  return b;
}

int timerSeconds(int timerUnits) { return static_cast<int>(std::lround(timerUnits * 0.05)); }

// Record i numbers input i. Its room is read from 5300+i only: the reverse map at 5000+room
// shares its bytes with the station slots.
void DecodeInputNumbering(const EepromImage& image, job::InputNumberTable& table) {
  for (int i = 0; i < kInputNumberingRecords; ++i) {
    job::InputNumberRecord& r = table.records[static_cast<std::size_t>(i)];
    r.RoomNumber = image.at(kInputNumberingPerInputBase + i);
    r.InputNumber = static_cast<std::int16_t>(r.RoomNumber != 0 ? i : 0);
  }
}

// A row is in use when it links a room; the record of input n is row n - 1.
void DecodeRoomLink(const EepromImage& image, job::RoomLinkTable& table) {
  for (int i = 0; i < kRoomLinkRows; ++i) {
    job::RoomLinkRecord& r = table.records[static_cast<std::size_t>(i)];
    r.FirstRoom = image.at(roomLinkRowBase(i));
    r.SecondRoom = image.at(roomLinkRowBase(i) + 1);
    r.LinkInput = static_cast<std::int16_t>(r.FirstRoom != 0 || r.SecondRoom != 0 ? i + 1 : 0);
    r.ListLine = job::kNotListed;
  }
}

// Channel 0 shares its bytes with the signature and is never in use.
void DecodeRoomCombine(const EepromImage& image, job::RoomCombineTable& table) {
  for (int c = 1; c <= kRoomCombineLastChannel; ++c) {
    job::RoomCombineRecord& r = table.records[static_cast<std::size_t>(c)];
    const int group = image.at(kRoomCombineMapBase + 2 * c);
    const int room = image.at(kRoomCombineMapBase + 2 * c + 1);
    const bool used = group != 0 || room != 0;
    const std::uint16_t listLine = used ? 0 : 65535;  // the editor's list rebuild numbers the used ones
    r = {static_cast<std::uint16_t>(used ? c : 0), static_cast<std::uint16_t>(group), static_cast<std::uint16_t>(room), listLine};
  }
}

namespace {

// The bytes 5000.. as input numbering alone leaves them: a later record wins a shared room.
std::array<int, 256> numberingBytes(const job::InputNumberTable* numbering) {
  std::array<int, 256> bytes{};
  if (!numbering) return bytes;
  for (const job::InputNumberRecord& r : numbering->records) {
    if (r.RoomNumber >= 0 && r.RoomNumber < 256) bytes[static_cast<std::size_t>(r.RoomNumber)] = r.InputNumber;
  }
  return bytes;
}

// The editor keeps every station in the slot of its net id, so a row is a station only when
// its net id is its own slot's; and a row that holds just what input numbering wrote is none.
void decodeStations(const EepromImage& image, int firstRow, job::StationLinkTable& table,
                    job::StationPersonalityTable* personalities, const job::InputNumberTable* numbering) {
  const std::array<int, 256> numbered = numberingBytes(numbering);
  auto numberedAt = [&](int offset) {
    const int room = offset - kInputNumberingReverseBase;
    return room >= 0 && room < 256 ? numbered[static_cast<std::size_t>(room)] : 0;
  };
  job::ClearStationLink(table);
  for (int s = 0; s < kStationRows; ++s) {
    const int at = kStationFormBBase + kStationSlotSize * s;
    const int room = image.at(at), type = image.at(at + 1), netId = image.at(at + 2);
    if (netId == 0 || netId != s + firstRow) continue;
    if (room == numberedAt(at) && type == numberedAt(at + 1) && netId == numberedAt(at + 2)) continue;
    job::LinkInsert(table, netId, type, room);
    if (!personalities) continue;
    const int personality = image.at(kPersonalityByNetIdBase + netId);
    if (personality == 0) continue;
    job::StationPersonalityRecord& p = personalities->records[static_cast<std::size_t>(netId - 1)];
    p.PersNetIdPlusOne = static_cast<std::int16_t>(netId);
    p.PersNumber = static_cast<std::int16_t>(personality);
    p.PersRoom = static_cast<std::int16_t>(room);
    p.PersListPosition = job::kNotListed;
  }
}
}  // namespace

// Form A numbers its rows from 1: row 1 is the first slot at 5000.
void DecodeStationsFormA(const EepromImage& image, job::StationLinkTable& table,
                         const job::InputNumberTable* numbering) {
  decodeStations(image, 1, table, nullptr, numbering);
}

void DecodeStationsFormB(const EepromImage& image, job::StationLinkTable& table,
                         job::StationPersonalityTable& personalities, const job::InputNumberTable* numbering) {
  decodeStations(image, 0, table, &personalities, numbering);
}

// Entries end at the first whose net id is 0 (packing leaves the rest of a block 0), or at
// the block's end.
void DecodePresetEmulation(const EepromImage& image, job::PresetEmulationTable& table) {
  job::ClearPresetEmulation(table);
  for (int k = 1; k <= 2 * kInputsPerBank; ++k) {
    const int base = blockBase(k);
    for (int e = 0; e < kPresetEntriesPerBlock; ++e) {
      const int at = base + kPresetEntrySize * e;
      const int netIdPlusOne = image.at(at + 2);
      if (netIdPlusOne == 0) break;
      if (netIdPlusOne > 127) continue;
      job::PresetRecord& r = table.at(netIdPlusOne - 1, k);
      r.NetIdPlusOne = static_cast<std::int16_t>(netIdPlusOne);
      r.StationKind = image.at(at);
      r.ActionNumber = image.at(at + 4);
      r.Personality = image.at(at + 6);
      r.ListPosition = job::kNotListed;
    }
  }
}

void DecodeChannelEmulation(const EepromImage& image, job::ChannelEmulationTable& table) {
  for (int k = 1; k <= 2 * kInputsPerBank; ++k) {
    job::ChannelEmulationRecord& r = table.records[static_cast<std::size_t>(k)];
    DecodeChannelBlock(image, k, r);
    const bool used = r.ChannelCount > 0;
    r.InputNumber = static_cast<std::int16_t>(used ? k : 0);
    r.PartnerIndex = static_cast<std::int16_t>(used && k <= kInputsPerBank ? k + kInputsPerBank : 0);
  }
  // Action two is not in the image. Where no second-bank input holds its record, it starts
  // again as the editor makes it: action one's channels, slot for slot, at level 0.
  for (int k = 1; k <= kInputsPerBank; ++k) {
    const job::ChannelEmulationRecord& one = table.records[static_cast<std::size_t>(k)];
    job::ChannelEmulationRecord& two = table.records[static_cast<std::size_t>(k + kInputsPerBank)];
    two.FadeRate = 0;
    if (job::inUse(two)) continue;
    two.Channels = one.Channels;
    two.Levels.fill(0);
    two.ChannelCount = one.ChannelCount;
  }
}

void DecodeRemoteCommands(const EepromImage& image, job::RemoteCommandTable& table) {
  for (int page = 1; page <= kRemoteCommandPages; ++page) {
    job::RemoteCommandBlock& block = table.blocks[static_cast<std::size_t>(page)];
    block.Listed.fill(0);
    block.Value.fill(0);
    block.Line.fill(0);
    const int base = remoteCommandPageBase(page);
    block.Mode = image.at(base);
    block.Page = image.at(base + 1);
    for (int at = base + 2; at < base + kRemoteCommandPageSize; at += 2) {
      const int netId = image.at(at);
      if (netId == 0) break;
      if (netId >= 127) continue;  // packing never stores slot 127 or above
      block.Listed[static_cast<std::size_t>(netId)] = static_cast<std::int16_t>(netId);
      block.Value[static_cast<std::size_t>(netId)] = image.at(at + 1);
    }
  }
}

void DecodeMasterInputs(const EepromImage& image, job::MasterInputs& inputs) {
  for (int i = 0; i < kMasterInputCount; ++i) inputs.entries[static_cast<std::size_t>(i)] = image.at(kMasterInputsBase + i);
}

}  // namespace pellam::image
