#include "files/command_text.h"

#include "image/channel_emulation_block.h"
#include "image/memory_map.h"

namespace pellam::files {

namespace {

constexpr int kBank = image::map::kInputsPerBank;

std::string n(int value) { return std::to_string(value); }

std::string stationText(const job::StationLinkTable& table, bool formB) {
  std::string text;
  for (int i = 0; i < image::map::kStationRows; ++i) {
    const job::StationLinkRecord& r = table.records[static_cast<std::size_t>(i)];
    if (formB ? r.LinkNetId <= 0 : r.LinkNetId == 0) continue;
    text += std::string(kCrLf) + kCrLf + kCrLf + "R," + n(r.LinkRoom) + ",T," + n(r.LinkStationType) + ",N," +
            n(r.LinkNetId) + ",:";
  }
  return text;
}

}  // namespace

std::string RoomLinkText(const job::RoomLinkTable& table) {
  std::string text;
  for (int i = 0; i < image::map::kRoomLinkRows; ++i) {
    const job::RoomLinkRecord& r = table.records[static_cast<std::size_t>(i)];
    if (r.LinkInput == 0) continue;
    text += std::string(kCrLf) + kCrLf + kCrLf + "I," + n(r.LinkInput) + ",L," + n(r.FirstRoom) + "," +
            n(r.SecondRoom) + ",:";
  }
  return text;
}

// No comma after the letters and none before ":", unlike every other file.
std::string RoomCombineText(const job::RoomCombineTable& table) {
  std::string text;
  for (int c = 0; c <= image::map::kRoomCombineLastChannel; ++c) {
    const job::RoomCombineRecord& r = table.records[static_cast<std::size_t>(c)];
    if (r.CombineChannel == 0) continue;
    text += std::string(kCrLf) + "G" + n(r.CombineGroup) + ",R" + n(r.CombineRoom) + ",C" + n(r.CombineChannel) + ":";
  }
  return text;
}

std::string StationTextFormA(const job::StationLinkTable& table) { return stationText(table, false); }
std::string StationTextFormB(const job::StationLinkTable& table) { return stationText(table, true); }

std::string PresetInputText(const job::PresetEmulationTable& table, int input) {
  std::string text;
  for (std::size_t j = 0; j <= 126; ++j) {
    const job::PresetRecord& r = table.records[j][static_cast<std::size_t>(input)];
    if (r.NetIdPlusOne < 1) continue;
    if (text.empty()) {
      text = std::string(kCrLf) + kCrLf + "P," + (input > kBank ? "2" : "1") + ",I," +
             n(input >= kBank ? input - kBank : input) + ",";
    }
    text += std::string(kCrLf) + "T," + n(r.StationKind) + ",N," + n(r.NetIdPlusOne) + ",B," + n(r.ActionNumber) + ",";
  }
  return text.empty() ? text : text + ":";
}

// Inputs 1..16 are action one of the editor's inputs; inputs 17..32 are the board's second
// bank, written only when an opened image held them (action two is never in use). The groups
// and the fade are the image block's.
std::string ChannelInputText(const job::ChannelEmulationTable& table, int input) {
  const job::ChannelEmulationRecord& r = table.records[static_cast<std::size_t>(input)];
  if (!job::inUse(r)) return {};
  const std::vector<image::ChannelGroup> groups = image::channelGroups(r);
  if (groups.empty()) return {};
  std::string text = std::string(kCrLf) + kCrLf + kCrLf + "P," + (input > kBank ? "2" : "1") + ",I," +
                     n(input > kBank ? input - kBank : input) + ",F," + n(image::blockSetting(r, input)) + ",";
  for (const image::ChannelGroup& g : groups) {
    text += std::string(kCrLf) + "L," + n(g.level) + ",C,";
    for (int channel : g.channels) text += n(channel) + ",";
  }
  return text + ":";
}

}  // namespace pellam::files
