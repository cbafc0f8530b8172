#include "job/tables.h"

#include "job/runtime_error.h"

namespace pellam::job {

void ClearChannelEmulation(ChannelEmulationTable& table) {
  // Slot 0, slots 300 and 301 and records 0 and 33 stay as they are; choosing an input
  // recounts its records.
  for (int r = 1; r <= 32; ++r) {
    ChannelEmulationRecord& rec = table.records[static_cast<std::size_t>(r)];
    for (std::size_t s = 1; s <= 299; ++s) {
      rec.Levels[s] = 0;
      rec.Channels[s] = 0;
      rec.ListChannels[s] = kNotListed;
    }
    rec.ChannelCount = 1;
    rec.InputNumber = 0;
    rec.PartnerIndex = 0;
  }
}

void PresetEmulationTable::outOfRange() { throw RuntimeError(kSubscriptOutOfRange); }

void ClearPresetEmulation(PresetEmulationTable& table) {
  // Input slots 32, 33 and net id slots 127, 128 are left as they are.
  for (std::size_t n = 0; n <= 126; ++n) {
    for (std::size_t i = 0; i <= 31; ++i) table.records[n][i] = PresetRecord{0, 0, 0, 0, kNotListed};
  }
}

void ClearStationLink(StationLinkTable& table) {
  // LinkRoom survives a clear, and slots 127 and 128 are not touched.
  for (std::size_t s = 0; s <= 126; ++s) {
    StationLinkRecord& rec = table.records[s];
    rec.LinkNetId = 0;
    rec.LinkStationType = 0;
    rec.LinkListPosition = kNotListed;
  }
}

int LinkInsert(StationLinkTable& table, int netId, int stationType, int room) {
  if (netId < 0 || netId > 128) throw RuntimeError(kSubscriptOutOfRange);
  StationLinkRecord& rec = table.records[static_cast<std::size_t>(netId)];
  if (rec.LinkNetId == netId) return 0;
  rec.LinkNetId = static_cast<std::int16_t>(netId);
  rec.LinkStationType = static_cast<std::int16_t>(stationType);
  rec.LinkRoom = static_cast<std::int16_t>(room);
  return 1;
}

int personalityOf(const StationPersonalityTable& table, int netId) {
  if (netId < 1 || netId > 129) return 0;
  const StationPersonalityRecord& rec = table.records[static_cast<std::size_t>(netId - 1)];
  return rec.PersNetIdPlusOne == netId ? rec.PersNumber : 0;
}

void ClearRemoteCommands(RemoteCommandTable& table) { table.blocks = {}; }

void ClearInputNumbering(InputNumberTable& table) { table.records = {}; }

void ClearMasterInputs(MasterInputs& inputs) { inputs.entries = {}; }

}  // namespace pellam::job
