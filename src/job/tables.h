#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "job/domain.h"

// The editors' record tables. Fields are the board's 16-bit integers; 65535 is kept as -1 in
// the signed tables ("not listed", "deleted"). Each table's clear rule is kept as the editor
// always had it, including the slots a clear leaves alone.
namespace pellam::job {

// Channel emulation: record n is action one of input n, record n + 16 its action two. Records
// 17..32 are also where an opened image keeps the board's inputs 17..32 (its second bank).
struct ChannelEmulationRecord {
  std::int16_t Header0 = 0;
  std::int16_t InputNumber = 0;  // non-zero: the record is in use, see inUse below
  std::int16_t PartnerIndex = 0;
  std::int16_t Header3 = 0;
  std::int16_t Header4 = 0;
  std::int16_t FadeRate = 0;
  std::int16_t Header6 = 0;  // byte +0 of a second-bank block; only an opened image fills it
  std::int16_t Header7 = 0;
  std::array<std::int16_t, 302> Levels{};
  std::array<std::int16_t, 302> Channels{};  // 0 never used, -1 deleted
  std::int16_t ChannelCount = 0;
  std::array<std::int16_t, 302> ListChannels{};
};
// The editor lists, packs and writes slots 0..299 of a record.
inline constexpr int kChannelSlotsListed = 300;
// Only a record in use is written as text, and a second-bank block only then. The editor marks
// action-one records alone, so action two never reaches the board; the decoder marks the
// second-bank inputs it reads, so that a save keeps them.
inline bool inUse(const ChannelEmulationRecord& record) { return record.InputNumber != 0; }
struct ChannelEmulationTable {
  std::array<ChannelEmulationRecord, 34> records{};
};
void ClearChannelEmulation(ChannelEmulationTable& table);

// Room link: the record of input n is at index n - 1.
struct RoomLinkRecord {
  std::int16_t LinkInput = 0;
  std::int16_t FirstRoom = 0;
  std::int16_t SecondRoom = 0;
  std::int16_t ListLine = 0;
};
struct RoomLinkTable {
  std::array<RoomLinkRecord, 18> records{};
  // The editor's working values, shared by its three control groups.
  std::int16_t LinkFirstRoom = 0;
  std::int16_t LinkSecondRoom = 0;
  std::int16_t LinkInputGroupC = 0;
};

// Room combine: record c belongs to channel c.
struct RoomCombineRecord {
  std::uint16_t CombineChannel = 0;
  std::uint16_t CombineGroup = 0;
  std::uint16_t CombineRoom = 0;
  std::uint16_t CombineListLine = 0;
};
struct RoomCombineTable {
  std::array<RoomCombineRecord, 2050> records{};
};

struct RoomGroupName {
  std::string RoomLabel;
  std::string GroupLabel;
  std::string RoomName;
  std::int16_t RoomValue = 0;
};
struct RoomGroupNames {
  std::array<RoomGroupName, 256> names{};
};

// Preset emulation: one record per (net id slot, input slot); input slot k + 16 is the
// board's second bank.
struct PresetRecord {
  std::int16_t NetIdPlusOne = 0;
  std::int16_t StationKind = 0;
  std::int16_t ActionNumber = 0;
  std::int16_t Personality = 0;
  std::int16_t ListPosition = 0;
};
struct PresetEmulationTable {
  std::array<std::array<PresetRecord, 34>, 129> records{};  // [net id slot][input slot]
  PresetRecord& at(int netIdSlot, int inputSlot) {
    if (netIdSlot < 0 || netIdSlot > 128 || inputSlot < 0 || inputSlot > 33) outOfRange();
    return records[static_cast<std::size_t>(netIdSlot)][static_cast<std::size_t>(inputSlot)];
  }
  [[noreturn]] static void outOfRange();
};
void ClearPresetEmulation(PresetEmulationTable& table);

struct StationLinkRecord {
  std::int16_t LinkNetId = 0;
  std::int16_t LinkStationType = 0;
  std::int16_t LinkRoom = 0;
  std::int16_t LinkListPosition = 0;
};
struct StationLinkTable {
  std::array<StationLinkRecord, 129> records{};
};
void ClearStationLink(StationLinkTable& table);
// Links a net id: 1 when its slot took the link, 0 when the net id is already linked.
int LinkInsert(StationLinkTable& table, int netId, int stationType, int room);

struct StationPersonalityRecord {
  std::int16_t PersNetIdPlusOne = 0;
  std::int16_t PersSeries = 0;
  std::int16_t PersNumber = 0;
  std::int16_t PersListPosition = 0;
  std::int16_t PersRoom = 0;
};
struct StationPersonalityTable {
  std::array<StationPersonalityRecord, 129> records{};
};
// The personality recorded for a net id (slot net id - 1), 0 when none is.
int personalityOf(const StationPersonalityTable& table, int netId);

// Remote LED and button commands: one block per input 0..16.
struct RemoteCommandBlock {
  std::int16_t Mode = 0;
  std::int16_t Page = 0;
  std::array<std::int16_t, 128> Listed{};  // n when net id n is listed
  std::array<std::int16_t, 128> Value{};   // its LED or button
  std::array<std::int16_t, 128> Line{};    // its line in the command list
};
struct RemoteCommandTable {
  std::array<RemoteCommandBlock, 17> blocks{};
  std::int16_t RemoteMode = 0;  // 0 disabled, 1 LEDs, 2 buttons
};
void ClearRemoteCommands(RemoteCommandTable& table);

// Input numbering: record i gives input i (first field, i while the record is in use) its
// room number (second field).
struct InputNumberRecord {
  std::int16_t InputNumber = 0;
  std::int16_t RoomNumber = 0;
};
struct InputNumberTable {
  std::array<InputNumberRecord, 17> records{};
};
void ClearInputNumbering(InputNumberTable& table);

struct MasterInputs {
  std::array<std::int16_t, 16> entries{};
  std::int16_t Mode = 0;       // the master-input mode value
  std::int16_t Companion = 0;  // its companion setting
};
void ClearMasterInputs(MasterInputs& inputs);

}  // namespace pellam::job
