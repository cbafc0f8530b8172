#include "tools/job_check.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>

#include "component/job_files.h"
#include "component/unattended_session.h"
#include "editors/preset_emulation/list_lines.h"
#include "files/job_paths.h"
#include "image/channel_emulation_block.h"
#include "image/decode.h"
#include "image/memory_map.h"
#include "image/regions.h"
#include "ui/choice_lists.h"

namespace pellam::tools {

using namespace image::map;

namespace {

// One session for every image a process checks: starting a session builds the form's lists,
// which costs more than a check. Each image starts from the job a new session has.
component::Session& checkingSession() {
  static std::ostringstream messages;
  static component::UnattendedSession session(messages);
  static const job::Job fresh = session->job;
  session->job = fresh;
  messages.str("");
  return *session;
}

class Checker {
 public:
  Checker(const std::string& file, std::span<const std::uint8_t> bytes) : file_(file) {
    std::copy_n(bytes.begin(), std::min<std::size_t>(bytes.size(), kZpdSize), image_.begin());
  }

  std::vector<Finding> run(std::size_t size) {
    if (size != static_cast<std::size_t>(kZpdSize)) {
      findings_.push_back({file_, static_cast<int>(std::min<std::size_t>(size, kZpdSize)), "file size", true,
                           std::to_string(size) + " bytes, not 32,767"});
    }
    if (at(kProductTypeByte) != kProductTypeValue) add(true, kProductTypeByte, "file type " + std::to_string(at(kProductTypeByte)) + ", not 11");
    const int mode = at(kOperatingModeByte);
    if (mode < 1 || mode > 5) add(true, kOperatingModeByte, "operating mode " + std::to_string(mode) + " is not 1..5");
    board(mode);
    remoteCommands();
    if (mode == 1) channelBlocks();
    if (mode == 4) presetBlocks();
    if (mode == 3) roomCombine();
    if (mode == 3 || mode == 5) stationsNamed(mode);
    if (at(kMasterSlaveByte) == 0 && mode >= 1 && mode <= 5) slavedTables();
    if (mode >= 1 && mode <= 5) notKept();
    std::stable_sort(findings_.begin(), findings_.end(), [](const Finding& a, const Finding& b) { return a.offset < b.offset; });
    return std::move(findings_);
  }

 private:
  int at(int offset) const { return image_[static_cast<std::size_t>(offset)]; }
  void add(bool error, int offset, std::string text) {
    findings_.push_back({file_, offset, image::regionName(offset), error, std::move(text)});
  }
  // A value the page's list has no item for, so the form cannot show it.
  void listed(int offset, int value, std::size_t items, const char* what) {
    if (value >= static_cast<int>(items)) add(true, offset, what + std::string(" ") + std::to_string(value) + " that no list shows");
  }

  void board(int mode) {
    listed(kHardwareTypeByte, at(kHardwareTypeByte), ui::lists::hardwareTypes().size(), "hardware type");
    if (at(kMasterSlaveByte) > 1) add(true, kMasterSlaveByte, "master/slave " + std::to_string(at(kMasterSlaveByte)) + ", not 0 or 1");
    if (at(kMasterSlaveByte) == 0) listed(kSlaveIdByte, at(kSlaveIdByte), ui::lists::slaveIds().size(), "slave id");
    const image::DecodedBoard b = image::DecodeBoardSetup(image());
    listed(kInputActionByte, b.inputAction, ui::lists::inputActions(0, mode).size(), "input action");
  }

  // Pages of net id and value pairs, ended by a 0 net id.
  void remoteCommands() {
    for (int page = 1; page <= kRemoteCommandPages; ++page) {
      std::set<int> seen;
      const int base = remoteCommandPageBase(page);
      for (int a = base + 2; a < base + kRemoteCommandPageSize && at(a) != 0; a += 2) {
        if (at(a) >= 127) add(true, a, "net id " + std::to_string(at(a)) + " that no list shows");
        if (!seen.insert(at(a)).second) add(false, a, "net id " + std::to_string(at(a)) + " used twice on this page");
        netIdsNamed_.insert({a, at(a)});
      }
    }
  }

  void channelBlocks() {
    for (int k = 1; k <= 2 * kInputsPerBank; ++k) {
      const int base = blockBase(k);
      if (at(base + 2) > image::kChannelsPerInput) {
        add(true, base + 2, "count " + std::to_string(at(base + 2)) + " past the 150 channels of an input");
      }
      if (k <= kInputsPerBank) listed(base, at(base), ui::lists::fadeRates().size(), "fade rate");
      int a = at(base + 2) == 0 ? kBlockSize : image::kChannelBlockGroupsStart;
      while (a + 1 < kBlockSize && at(base + a) != 0) {
        const int pairs = at(base + a);
        const int level = at(base + a + 1);
        if (level > 100) add(true, base + a + 1, "level " + std::to_string(level) + " that no list shows");
        if (a + 2 + 2 * pairs > kBlockSize) {
          add(true, base + a, "entries run past the end of the block");
          break;
        }
        for (int p = 0; p < pairs; ++p) {
          const int pair = base + a + 2 + 2 * p;
          const int channel = ((at(pair) & 0x0F) << 8) | at(pair + 1);
          if (channel < 1 || channel > job::kLastChannel) add(true, pair, "channel " + std::to_string(channel) + " that no list shows");
        }
        a += 2 + 2 * pairs;
      }
    }
  }

  void presetBlocks() {
    for (int k = 1; k <= 2 * kInputsPerBank; ++k) {
      std::set<int> seen;
      for (int e = 0; e < kPresetEntriesPerBlock; ++e) {
        const int a = blockBase(k) + kPresetEntrySize * e;
        const int netId = at(a + 2);
        if (netId == 0) break;
        if (netId > 127) add(true, a + 2, "net id " + std::to_string(netId) + " that no list shows");
        if (editors::preset_emulation::stationKindName(at(a)).empty()) {
          add(true, a, "station kind " + std::to_string(at(a)) + " that no list shows");
        }
        if (!seen.insert(netId).second) add(false, a + 2, "net id " + std::to_string(netId) + " used twice on this input");
      }
    }
  }

  void roomCombine() {
    std::set<int> linked;
    for (int row = 0; row < kRoomLinkRows; ++row) {
      linked.insert(at(roomLinkRowBase(row)));
      linked.insert(at(roomLinkRowBase(row) + 1));
    }
    std::map<int, std::pair<int, int>> unlinked;  // room: its first channel's offset, channels
    for (int c = 1; c <= kRoomCombineLastChannel; ++c) {
      const int a = kRoomCombineMapBase + 2 * c;
      if (at(a) == 0 && at(a + 1) == 0) continue;
      if (at(a) == 0 || at(a + 1) == 0) {
        add(true, at(a) == 0 ? a : a + 1, "channel " + std::to_string(c) + " with " + (at(a) == 0 ? "group" : "room") + " 0, which no list shows");
      } else if (!linked.contains(at(a + 1))) {
        auto& [first, count] = unlinked.try_emplace(at(a + 1), a + 1, 0).first->second;
        ++count;
      }
    }
    for (const auto& [room, where] : unlinked) {
      const int channel = (where.first - kRoomCombineMapBase) / 2;
      add(false, where.first, "room " + std::to_string(room) + " has " + std::to_string(where.second) +
                                  (where.second == 1 ? " channel" : " channels") + " from channel " + std::to_string(channel) +
                                  " on, and no room link combines it");
    }
  }

  // Commands and personalities reach stations by net id; one no station lists reaches nothing.
  void stationsNamed(int mode) {
    const int firstRow = mode == 3 ? 1 : 0;
    std::set<int> stations;
    for (int s = 0; s < kStationRows; ++s) {
      const int netId = at(kStationFormBBase + kStationSlotSize * s + 2);
      if (netId != 0 && netId == s + firstRow) stations.insert(netId);
    }
    for (const auto& [offset, netId] : netIdsNamed_) {
      if (!stations.contains(netId)) add(false, offset, "remote command names net id " + std::to_string(netId) + ", which no station lists");
    }
    if (mode != 5) return;
    for (int netId = 1; netId <= 255; ++netId) {
      if (at(kPersonalityByNetIdBase + netId) != 0 && !stations.contains(netId)) {
        add(false, kPersonalityByNetIdBase + netId, "personality for net id " + std::to_string(netId) + ", which no station lists");
      }
    }
  }

  // A slaved board follows its master; tables of its own are never used.
  void slavedTables() {
    const std::pair<int, int> regions[] = {{kRoomCombineMapBase + 2, kRoomCombineMapLast},
                                           {kRoomLinkBase, roomLinkRowBase(kRoomLinkRows) - 1},
                                           {blockBase(1), blockBase(2 * kInputsPerBank) + kBlockSize - 1}};
    for (const auto& [first, last] : regions) {
      for (int a = first; a <= last; ++a) {
        if (at(a) != 0) {
          add(false, a, "a slaved board still carries tables");
          return;
        }
      }
    }
  }

  // What the form would write back after opening this image: bytes it would not keep are
  // entries it cannot read or cannot store. One warning per region, and none where an error
  // already stands.
  void notKept() {
    component::Session& session = checkingSession();
    component::OpenImageBytes(session, image_);
    component::PackJobImage(session);
    const auto saved = session.image.bytes();
    std::set<std::string> errored;
    for (const Finding& f : findings_) {
      if (f.error) errored.insert(image::regionOf(f.offset).name);
    }
    image::Region region{-1, -1, {}};
    int first = 0, count = 0;
    auto report = [&] {
      if (count == 0 || errored.contains(region.name)) return;
      add(false, first, std::to_string(count) + (count == 1 ? " byte" : " bytes") + " that a save would not keep (the first " +
                            std::to_string(at(first)) + ", saved as " + std::to_string(saved[static_cast<std::size_t>(first)]) + ")");
    };
    for (int a = 0; a < kZpdSize; ++a) {
      if (saved[static_cast<std::size_t>(a)] == image_[static_cast<std::size_t>(a)]) continue;
      if (a > region.last) {
        image::Region next = image::regionOf(a);
        if (next.name != region.name) {
          report();
          first = a;
          count = 0;
        }
        region = std::move(next);
      }
      ++count;
    }
    report();
  }

  const image::EepromImage& image() {
    std::copy(image_.begin(), image_.end(), scratch_.bytes().begin());
    return scratch_;
  }

  std::string file_;
  std::array<std::uint8_t, kZpdSize> image_{};
  image::EepromImage scratch_;
  std::set<std::pair<int, int>> netIdsNamed_;
  std::vector<Finding> findings_;
};

}  // namespace

std::vector<Finding> checkImage(const std::string& file, std::span<const std::uint8_t> bytes) {
  return Checker(file, bytes).run(bytes.size());
}

std::vector<Finding> checkJobFile(const std::string& path) {
  std::ifstream in(files::fsPath(path), std::ios::binary);
  std::vector<std::uint8_t> bytes;
  if (in) bytes.assign(std::istreambuf_iterator<char>(in), {});
  if (!in && !in.eof()) return {{path, 0, "", true, "cannot read the file"}};
  return checkImage(path, bytes);
}

std::string findingLine(const Finding& f) {
  return f.file + ":" + std::to_string(f.offset) + ": " + (f.error ? "error" : "warning") + ": " +
         (f.region.empty() ? "" : f.region + ": ") + f.text;
}

std::string findingsJson(const std::vector<Finding>& findings) {
  nlohmann::ordered_json all = nlohmann::ordered_json::array();
  for (const Finding& f : findings) {
    all.push_back({{"file", f.file}, {"offset", f.offset}, {"region", f.region}, {"severity", f.error ? "error" : "warning"},
                   {"message", f.text}});
  }
  return all.dump(2) + "\n";
}

int checkStatus(const std::vector<Finding>& findings) {
  if (std::any_of(findings.begin(), findings.end(), [](const Finding& f) { return f.error; })) return 2;
  return findings.empty() ? 0 : 1;
}

}  // namespace pellam::tools
