#include "tools/job_json.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <sstream>
#include <vector>

#include "component/job_files.h"
#include "component/operating_modes.h"
#include "component/unattended_session.h"
#include "editors/channel_emulation/list_lines.h"
#include "editors/preset_emulation/list_lines.h"
#include "editors/station_link/list_lines.h"
#include "image/channel_emulation_block.h"
#include "image/decode.h"
#include "image/memory_map.h"
#include "setup/master_inputs.h"
#include "ui/choice_lists.h"

namespace pellam::tools {

namespace {

using Json = nlohmann::ordered_json;
using image::map::kInputsPerBank;

constexpr const char* kFormat = "pellam-job";
constexpr int kVersion = 1;

// The name a list gives a stored value, without the padding some items carry; null when the
// list has no such item.
Json listName(const std::vector<std::string>& items, int value) {
  if (value < 1 || value >= static_cast<int>(items.size())) return nullptr;
  std::string name = items[static_cast<std::size_t>(value)];
  while (!name.empty() && name.back() == ' ') name.pop_back();
  return name;
}

Json named(const std::vector<std::string>& items, int value) { return {{"value", value}, {"name", listName(items, value)}}; }
Json named(std::string_view name, int value) {
  return {{"value", value}, {"name", name.empty() ? Json(nullptr) : Json(std::string(name))}};
}

std::vector<std::string> modeTables(int mode) {
  const component::OperatingMode* m = component::operatingMode(mode);
  return m ? m->tables : std::vector<std::string>{};
}

Json exportBoard(const job::Job& job) {
  const job::BoardSetup& b = job.board;
  return {
      {"hardwareType", named(ui::lists::hardwareTypes(), b.HardwareType)},
      {"operatingMode", named(ui::lists::operatingModes(), b.OperatingMode)},
      {"role", named(ui::lists::masterSlave(), b.MasterSlaveMode)},
      {"slaveId", b.SlaveId},
      {"inputAction", named(ui::lists::inputActions(0, b.OperatingMode), b.InputAction)},
      {"timer", {{"value", b.RefreshRate}, {"seconds", image::timerSeconds(b.RefreshRate)}}},
      {"optionFlags", b.BoardOptions},
      {"inputScan", b.InputScan},
      {"furtherOption", b.FurtherOption},
      {"masterInputMode", job.masterInputs.Mode},
  };
}

Json exportTable(const job::Job& job, const std::string& table) {
  Json rows = Json::array();
  if (table == "roomLinks") {
    for (const job::RoomLinkRecord& r : job.roomLink.records) {
      if (r.LinkInput > 0) rows.push_back({{"input", r.LinkInput}, {"firstRoom", r.FirstRoom}, {"secondRoom", r.SecondRoom}});
    }
  } else if (table == "stations") {
    for (const job::StationLinkRecord& r : job.stationLink.records) {
      if (r.LinkNetId <= 0) continue;
      rows.push_back({{"netId", r.LinkNetId},
                      {"type", named(editors::station_link::stationTypeName(r.LinkStationType), r.LinkStationType)},
                      {"room", r.LinkRoom}});
    }
  } else if (table == "personalities") {
    for (const job::StationPersonalityRecord& r : job.stationPersonality.records) {
      if (r.PersNetIdPlusOne > 0) rows.push_back({{"netId", r.PersNetIdPlusOne}, {"personality", r.PersNumber}});
    }
  } else if (table == "roomCombine") {
    for (const job::RoomCombineRecord& r : job.roomCombine.records) {
      if (r.CombineChannel != 0) rows.push_back({{"channel", r.CombineChannel}, {"group", r.CombineGroup}, {"room", r.CombineRoom}});
    }
  } else if (table == "presets") {
    for (int k = 1; k <= 2 * kInputsPerBank; ++k) {
      for (std::size_t j = 0; j <= 126; ++j) {
        const job::PresetRecord& r = job.presetEmulation.records[j][static_cast<std::size_t>(k)];
        if (r.NetIdPlusOne < 1) continue;
        rows.push_back({{"input", k},
                        {"netId", r.NetIdPlusOne},
                        {"kind", named(editors::preset_emulation::stationKindName(r.StationKind), r.StationKind)},
                        {"action", r.ActionNumber},
                        {"personality", r.Personality}});
      }
    }
  } else if (table == "channelEmulation") {
    for (int k = 1; k <= 2 * kInputsPerBank; ++k) {
      const job::ChannelEmulationRecord& r = job.channelEmulation.records[static_cast<std::size_t>(k)];
      const int setting = image::blockSetting(r, k);
      const bool written = k <= kInputsPerBank ? r.ChannelCount > 0 || setting != 0 : job::inUse(r);
      if (!written) continue;
      Json channels = Json::array();
      for (int s = 0; s < job::kChannelSlotsListed; ++s) {
        const auto slot = static_cast<std::size_t>(s);
        if (r.Channels[slot] > 0) channels.push_back({{"channel", r.Channels[slot]}, {"level", r.Levels[slot]}});
      }
      Json row = {{"input", k}, {"setting", setting}};
      if (k <= kInputsPerBank && setting > 0) row["fadeRate"] = editors::channel_emulation::fadeRateLabel(setting);
      row["channels"] = std::move(channels);
      rows.push_back(std::move(row));
    }
  }
  return rows;
}

// A problem of the document, with the JSON path of the value that has it.
struct Refusal {
  std::string path;
  std::string why;
};

// Reads the document's values, each checked against what the board can store.
class Reader {
 public:
  static const Json& member(const Json& object, const std::string& path, const char* name) {
    if (!object.is_object()) throw Refusal{path, "not an object"};
    const auto found = object.find(name);
    if (found == object.end()) throw Refusal{path + "." + name, "missing"};
    return *found;
  }
  static int number(const Json& object, const std::string& path, const char* name, int low, int high) {
    const Json& value = member(object, path, name);
    if (!value.is_number_integer()) throw Refusal{path + "." + name, "not a whole number"};
    const auto n = value.get<long long>();
    if (n < low || n > high) {
      throw Refusal{path + "." + name, std::to_string(n) + " is not " + std::to_string(low) + ".." + std::to_string(high)};
    }
    return static_cast<int>(n);
  }
  // A {"value": n, "name": ...} pair; the name is for a person and is not read back.
  static int value(const Json& object, const std::string& path, const char* name, int low, int high) {
    return number(member(object, path, name), path + "." + name, "value", low, high);
  }
  static const Json& array(const Json& object, const std::string& path, const char* name) {
    const Json& rows = member(object, path, name);
    if (!rows.is_array()) throw Refusal{path + "." + name, "not an array"};
    return rows;
  }
  static void only(const Json& object, const std::string& path, std::initializer_list<const char*> names) {
    if (!object.is_object()) throw Refusal{path, "not an object"};
    for (const auto& item : object.items()) {
      const std::string& key = item.key();
      if (std::find_if(names.begin(), names.end(), [&](const char* n) { return key == n; }) == names.end()) {
        throw Refusal{path + "." + key, "not a field of this record"};
      }
    }
  }
};

constexpr int kByte = 255;

void importBoard(const Json& doc, job::Job& job) {
  const std::string path = "$.board";
  const Json& b = Reader::member(doc, "$", "board");
  Reader::only(b, path, {"hardwareType", "operatingMode", "role", "slaveId", "inputAction", "timer", "optionFlags",
                         "inputScan", "furtherOption", "masterInputMode"});
  job::BoardSetup& board = job.board;
  board.HardwareType = static_cast<std::int16_t>(Reader::value(b, path, "hardwareType", 0, kByte));
  board.OperatingMode = static_cast<std::int16_t>(Reader::value(b, path, "operatingMode", 1, 5));
  board.MasterSlaveMode = static_cast<std::int16_t>(Reader::value(b, path, "role", 1, kByte));
  board.SlaveId = static_cast<std::int16_t>(Reader::number(b, path, "slaveId", 0, kByte));
  board.InputAction = static_cast<std::int16_t>(Reader::value(b, path, "inputAction", 0, kByte + image::map::kInputActionOffset));
  board.RefreshRate = Reader::value(b, path, "timer", 0, 65535);
  board.BoardOptions = static_cast<std::int16_t>(Reader::number(b, path, "optionFlags", 0, kByte));
  board.InputScan = static_cast<std::int16_t>(Reader::number(b, path, "inputScan", 0, kByte));
  board.FurtherOption = static_cast<std::int16_t>(Reader::number(b, path, "furtherOption", 0, kByte));
  job.masterInputs.Mode = static_cast<std::int16_t>(Reader::number(b, path, "masterInputMode", 0, kByte));
  // The companion setting an opened image with the offset flag carries.
  job.masterInputs.Companion = static_cast<std::int16_t>(job.masterInputs.Mode == 1 ? 2 : 0);
}

// The rows of one array, each an object with exactly the given fields.
template <typename Each>
void rows(const Json& doc, const char* name, std::initializer_list<const char*> fields, Each each) {
  const std::string arrayPath = std::string("$.") + name;
  const Json& all = Reader::array(doc, "$", name);
  for (std::size_t i = 0; i < all.size(); ++i) {
    const std::string path = arrayPath + "[" + std::to_string(i) + "]";
    if (!all[i].is_object()) throw Refusal{path, "not an object"};
    Reader::only(all[i], path, fields);
    each(all[i], path);
  }
}

void importSettings(const Json& doc, job::Job& job) {
  if (doc.contains("masterInputs")) {
    rows(doc, "masterInputs", {"input", "value", "line"}, [&](const Json& r, const std::string& p) {
      const int input = Reader::number(r, p, "input", 1, image::map::kMasterInputCount);
      job.masterInputs.entries[static_cast<std::size_t>(input - 1)] = static_cast<std::int16_t>(Reader::number(r, p, "value", 0, kByte));
    });
  }
  if (doc.contains("inputNumbering")) {
    rows(doc, "inputNumbering", {"input", "room"}, [&](const Json& r, const std::string& p) {
      const int input = Reader::number(r, p, "input", 0, image::map::kInputNumberingRecords - 1);
      job.inputNumbering.records[static_cast<std::size_t>(input)] = {static_cast<std::int16_t>(input),
                                                                      static_cast<std::int16_t>(Reader::number(r, p, "room", 1, kByte))};
    });
  }
  if (doc.contains("remoteCommands")) {
    rows(doc, "remoteCommands", {"page", "mode", "pageNumber", "commands"}, [&](const Json& r, const std::string& p) {
      job::RemoteCommandBlock& b = job.remoteCommands.blocks[static_cast<std::size_t>(Reader::number(r, p, "page", 1, 16))];
      b.Mode = static_cast<std::int16_t>(Reader::number(r, p, "mode", 0, kByte));
      b.Page = static_cast<std::int16_t>(Reader::number(r, p, "pageNumber", 0, kByte));
      const Json& commands = Reader::array(r, p, "commands");
      if (commands.size() > (image::map::kRemoteCommandPageSize - 2) / 2) throw Refusal{p + ".commands", "more commands than a page holds"};
      for (std::size_t i = 0; i < commands.size(); ++i) {
        const std::string cp = p + ".commands[" + std::to_string(i) + "]";
        Reader::only(commands[i], cp, {"netId", "value"});
        const int netId = Reader::number(commands[i], cp, "netId", 1, 126);
        b.Listed[static_cast<std::size_t>(netId)] = static_cast<std::int16_t>(netId);
        b.Value[static_cast<std::size_t>(netId)] = static_cast<std::int16_t>(Reader::number(commands[i], cp, "value", 0, kByte));
      }
    });
  }
}

std::string text(const Json& object, const std::string& path, const char* name) {
  const Json& value = Reader::member(object, path, name);
  if (!value.is_string()) throw Refusal{path + "." + name, "not a string"};
  return value.get<std::string>();
}

void importLabels(const Json& doc, job::RoomGroupNames& names) {
  if (!doc.contains("labels")) return;
  rows(doc, "labels", {"number", "roomLabel", "groupLabel", "roomName", "roomValue"}, [&](const Json& r, const std::string& p) {
    const int n = Reader::number(r, p, "number", 0, static_cast<int>(names.names.size()) - 1);
    names.names[static_cast<std::size_t>(n)] = {text(r, p, "roomLabel"), text(r, p, "groupLabel"), text(r, p, "roomName"),
                                               static_cast<std::int16_t>(Reader::number(r, p, "roomValue", 0, 32767))};
  });
}

void importTable(const Json& doc, const std::string& table, job::Job& job) {
  const char* name = table.c_str();
  if (table == "roomLinks") {
    rows(doc, name, {"input", "firstRoom", "secondRoom"}, [&](const Json& r, const std::string& p) {
      const int input = Reader::number(r, p, "input", 1, image::map::kRoomLinkRows);
      job.roomLink.records[static_cast<std::size_t>(input - 1)] = {
          static_cast<std::int16_t>(input), static_cast<std::int16_t>(Reader::number(r, p, "firstRoom", 0, kByte)),
          static_cast<std::int16_t>(Reader::number(r, p, "secondRoom", 0, kByte)), job::kNotListed};
    });
  } else if (table == "stations") {
    // Form A keeps net id n in row n - 1, form B in row n: both hold net ids 1..127.
    rows(doc, name, {"netId", "type", "room"}, [&](const Json& r, const std::string& p) {
      const int netId = Reader::number(r, p, "netId", 1, job.board.OperatingMode == 3 ? 128 : 127);
      if (!job::LinkInsert(job.stationLink, netId, Reader::value(r, p, "type", 0, kByte), Reader::number(r, p, "room", 0, kByte))) {
        throw Refusal{p + ".netId", "net id " + std::to_string(netId) + " is listed twice"};
      }
    });
  } else if (table == "personalities") {
    rows(doc, name, {"netId", "personality"}, [&](const Json& r, const std::string& p) {
      const int netId = Reader::number(r, p, "netId", 1, 127);
      job.stationPersonality.records[static_cast<std::size_t>(netId - 1)] = {
          static_cast<std::int16_t>(netId), 0, static_cast<std::int16_t>(Reader::number(r, p, "personality", 1, kByte)), job::kNotListed, 0};
    });
  } else if (table == "roomCombine") {
    rows(doc, name, {"channel", "group", "room"}, [&](const Json& r, const std::string& p) {
      const int channel = Reader::number(r, p, "channel", 1, job::kLastChannel);
      job.roomCombine.records[static_cast<std::size_t>(channel)] = {
          static_cast<std::uint16_t>(channel), static_cast<std::uint16_t>(Reader::number(r, p, "group", 0, kByte)),
          static_cast<std::uint16_t>(Reader::number(r, p, "room", 0, kByte)), 0};
    });
  } else if (table == "presets") {
    std::array<int, 2 * kInputsPerBank + 1> entries{};
    rows(doc, name, {"input", "netId", "kind", "action", "personality"}, [&](const Json& r, const std::string& p) {
      const int input = Reader::number(r, p, "input", 1, 2 * kInputsPerBank);
      if (++entries[static_cast<std::size_t>(input)] > image::map::kPresetEntriesPerBlock) {
        throw Refusal{p, "more than " + std::to_string(image::map::kPresetEntriesPerBlock) + " stations on input " + std::to_string(input)};
      }
      const int netId = Reader::number(r, p, "netId", 1, 127);
      job::PresetRecord& record = job.presetEmulation.at(netId - 1, input);
      if (record.NetIdPlusOne != 0) throw Refusal{p + ".netId", "net id " + std::to_string(netId) + " is listed twice on this input"};
      record = {static_cast<std::int16_t>(netId), static_cast<std::int16_t>(Reader::value(r, p, "kind", 0, kByte)),
                static_cast<std::int16_t>(Reader::number(r, p, "action", 0, kByte)),
                static_cast<std::int16_t>(Reader::number(r, p, "personality", 0, kByte)), job::kNotListed};
    });
  } else if (table == "channelEmulation") {
    rows(doc, name, {"input", "setting", "fadeRate", "channels"}, [&](const Json& r, const std::string& p) {
      const int input = Reader::number(r, p, "input", 1, 2 * kInputsPerBank);
      job::ChannelEmulationRecord& record = job.channelEmulation.records[static_cast<std::size_t>(input)];
      (input <= kInputsPerBank ? record.FadeRate : record.Header6) = static_cast<std::int16_t>(Reader::number(r, p, "setting", 0, kByte));
      const Json& channels = Reader::array(r, p, "channels");
      if (channels.size() > image::kChannelsPerInput) throw Refusal{p + ".channels", "more than 150 channels"};
      record.Channels.fill(0);
      record.Levels.fill(0);
      for (std::size_t s = 0; s < channels.size(); ++s) {
        const std::string cp = p + ".channels[" + std::to_string(s) + "]";
        Reader::only(channels[s], cp, {"channel", "level"});
        record.Channels[s] = static_cast<std::int16_t>(Reader::number(channels[s], cp, "channel", 1, job::kLastChannel));
        record.Levels[s] = static_cast<std::int16_t>(Reader::number(channels[s], cp, "level", 0, kByte));
      }
      record.ChannelCount = static_cast<std::int16_t>(channels.size());
      record.InputNumber = static_cast<std::int16_t>(channels.empty() ? 0 : input);
      if (!image::channelsFit(record, job::ChannelEmulationRecord{})) throw Refusal{p + ".channels", "more than the input's block holds"};
    });
  }
}

// The session's messages in one line, without the prefix the unattended dialogs give each.
std::string said(const std::string& log) {
  std::string text;
  std::istringstream lines(log);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("pellam: ")) line.erase(0, 8);
    text += (text.empty() ? "" : "; ") + line;
  }
  return text;
}

const std::vector<std::string> kSettingsTables = {"masterInputs", "inputNumbering", "remoteCommands", "labels"};

}  // namespace

std::string exportJob(const component::Session& session) {
  const job::Job& job = session.job;
  Json doc = {{"format", kFormat}, {"version", kVersion}, {"board", exportBoard(job)}};
  Json masters = Json::array();
  for (std::size_t i = 0; i < job.masterInputs.entries.size(); ++i) {
    const int value = job.masterInputs.entries[i];
    if (value != 0) masters.push_back({{"input", i + 1}, {"value", value}, {"line", setup::masterInputLine(static_cast<int>(i) + 1, value)}});
  }
  doc["masterInputs"] = std::move(masters);
  Json numbering = Json::array();
  for (std::size_t i = 0; i < job.inputNumbering.records.size(); ++i) {
    const int room = job.inputNumbering.records[i].RoomNumber;
    if (room != 0) numbering.push_back({{"input", i}, {"room", room}});
  }
  doc["inputNumbering"] = std::move(numbering);
  Json remote = Json::array();
  for (int page = 1; page <= image::map::kRemoteCommandPages; ++page) {
    const job::RemoteCommandBlock& b = job.remoteCommands.blocks[static_cast<std::size_t>(page)];
    Json commands = Json::array();
    for (std::size_t n = 0; n < b.Listed.size(); ++n) {
      if (b.Listed[n] > 0) commands.push_back({{"netId", b.Listed[n]}, {"value", b.Value[n]}});
    }
    if (b.Mode != 0 || b.Page != 0 || !commands.empty()) {
      remote.push_back({{"page", page}, {"mode", b.Mode}, {"pageNumber", b.Page}, {"commands", std::move(commands)}});
    }
  }
  doc["remoteCommands"] = std::move(remote);
  // Kept beside the image, not in it, but part of the job all the same.
  Json labels = Json::array();
  for (std::size_t n = 0; n < job.roomGroupNames.names.size(); ++n) {
    const job::RoomGroupName& r = job.roomGroupNames.names[n];
    if (r.RoomLabel.empty() && r.GroupLabel.empty() && r.RoomName.empty() && r.RoomValue == 0) continue;
    labels.push_back({{"number", n}, {"roomLabel", r.RoomLabel}, {"groupLabel", r.GroupLabel}, {"roomName", r.RoomName},
                      {"roomValue", r.RoomValue}});
  }
  doc["labels"] = std::move(labels);
  for (const std::string& table : modeTables(job.board.OperatingMode)) doc[table] = exportTable(job, table);
  return doc.dump(2) + "\n";
}

Imported importJob(std::string_view document, const std::string& jobPath) {
  std::ostringstream messages;
  component::UnattendedSession session(messages);
  component::Session& s = *session;
  job::RoomGroupNames labels;
  try {
    const Json doc = Json::parse(document);
    if (!doc.is_object()) throw Refusal{"$", "not an object"};
    if (Reader::member(doc, "$", "format") != kFormat) throw Refusal{"$.format", std::string("not \"") + kFormat + "\""};
    Reader::number(doc, "$", "version", kVersion, kVersion);
    importBoard(doc, s.job);
    const std::vector<std::string> tables = modeTables(s.job.board.OperatingMode);
    for (const auto& [key, unused] : doc.items()) {
      const bool known = key == "format" || key == "version" || key == "board" ||
                         std::find(kSettingsTables.begin(), kSettingsTables.end(), key) != kSettingsTables.end() ||
                         std::find(tables.begin(), tables.end(), key) != tables.end();
      if (!known) throw Refusal{"$." + key, "not a table of operating mode " + std::to_string(s.job.board.OperatingMode)};
    }
    importSettings(doc, s.job);
    importLabels(doc, labels);
    for (const std::string& table : tables) {
      if (doc.contains(table)) importTable(doc, table, s.job);
    }
  } catch (const nlohmann::json::parse_error& e) {
    return {{}, std::string("not JSON: ") + e.what()};
  } catch (const Refusal& r) {
    return {{}, r.path + ": " + r.why};
  }
  // The board reads the packed image back as it reads a saved one, so the save that follows is
  // the one a person makes after opening that image.
  component::PackJobImage(s);
  if (!messages.str().empty()) return {{}, "the board cannot hold this job: " + said(messages.str())};
  const std::vector<std::uint8_t> packed(s.image.bytes().begin(), s.image.bytes().begin() + image::map::kZpdSize);
  component::OpenImageBytes(s, packed);
  s.job.roomGroupNames = std::move(labels);
  const std::string zpd = component::SaveJobSequence(s, jobPath, "No Folder: " + jobPath);
  if (zpd.empty()) return {{}, said(messages.str())};
  return {zpd, {}};
}

}  // namespace pellam::tools
