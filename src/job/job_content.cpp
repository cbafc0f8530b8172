#include "job/job_content.h"

#include <algorithm>
#include <tuple>

namespace pellam::job {

namespace {

auto content(const BoardSetup& b) {
  return std::tie(b.HardwareType, b.OperatingMode, b.MasterSlaveMode, b.SlaveId, b.InputAction, b.RefreshRate,
                  b.InputScan, b.BoardOptions, b.FurtherOption);
}
auto content(const ChannelEmulationRecord& r) {
  return std::tie(r.InputNumber, r.PartnerIndex, r.FadeRate, r.Header6, r.Levels, r.Channels);
}
auto content(const RoomLinkRecord& r) { return std::tie(r.LinkInput, r.FirstRoom, r.SecondRoom); }
auto content(const RoomCombineRecord& r) { return std::tie(r.CombineChannel, r.CombineGroup, r.CombineRoom); }
auto content(const RoomGroupName& n) { return std::tie(n.RoomLabel, n.GroupLabel, n.RoomName, n.RoomValue); }
auto content(const PresetRecord& r) { return std::tie(r.NetIdPlusOne, r.StationKind, r.ActionNumber, r.Personality); }
auto content(const StationLinkRecord& r) { return std::tie(r.LinkNetId, r.LinkStationType, r.LinkRoom); }
auto content(const StationPersonalityRecord& r) {
  return std::tie(r.PersNetIdPlusOne, r.PersSeries, r.PersNumber, r.PersRoom);
}
auto content(const RemoteCommandBlock& b) { return std::tie(b.Mode, b.Page, b.Listed, b.Value); }
auto content(const InputNumberRecord& r) { return std::tie(r.InputNumber, r.RoomNumber); }

template <typename Records>
bool sameRecords(const Records& a, const Records& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const auto& x, const auto& y) { return content(x) == content(y); });
}

}  // namespace

bool sameContent(const Job& a, const Job& b) {
  return content(a.board) == content(b.board) &&
         sameRecords(a.channelEmulation.records, b.channelEmulation.records) &&
         sameRecords(a.roomLink.records, b.roomLink.records) &&
         sameRecords(a.roomCombine.records, b.roomCombine.records) &&
         sameRecords(a.roomGroupNames.names, b.roomGroupNames.names) &&
         std::equal(a.presetEmulation.records.begin(), a.presetEmulation.records.end(),
                    b.presetEmulation.records.begin(), [](const auto& x, const auto& y) { return sameRecords(x, y); }) &&
         sameRecords(a.stationLink.records, b.stationLink.records) &&
         sameRecords(a.stationPersonality.records, b.stationPersonality.records) &&
         sameRecords(a.remoteCommands.blocks, b.remoteCommands.blocks) &&
         a.remoteCommands.RemoteMode == b.remoteCommands.RemoteMode &&
         sameRecords(a.inputNumbering.records, b.inputNumbering.records) &&
         a.masterInputs.entries == b.masterInputs.entries && a.masterInputs.Mode == b.masterInputs.Mode &&
         a.masterInputs.Companion == b.masterInputs.Companion;
}

}  // namespace pellam::job
