#include "component/job_listing.h"

#include "component/operating_modes.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "editors/channel_emulation/list_lines.h"
#include "editors/input_numbering/input_numbering_page.h"
#include "editors/preset_emulation/list_lines.h"
#include "editors/remote_commands/list_lines.h"
#include "editors/room_combine/list_lines.h"
#include "editors/room_link/list_lines.h"
#include "editors/station_link/list_lines.h"
#include "editors/station_personality/list_lines.h"
#include "image/memory_map.h"
#include "ui/list_line.h"

namespace pellam::component {

namespace {

constexpr int kBank = image::map::kInputsPerBank;

// Texts and numbers added to a listing that runs to thousands of lines, without a stream.
template <class... Parts>
void put(std::string& out, const Parts&... parts) {
  (out.append(std::string_view(ui::detail::piece(parts))), ...);
}

void heading(std::string& out, const char* title) { put(out, "\n", title, ":\n"); }

}  // namespace

void listRoomLinks(std::string& out, const job::Job& job) {
  heading(out, "Room links");
  for (const job::RoomLinkRecord& r : job.roomLink.records) {
    if (r.LinkInput > 0) put(out, "  ", editors::room_link::lineFormat1(r), "\n");
  }
}

void listStations(std::string& out, const job::Job& job) {
  heading(out, "Stations");
  for (const job::StationLinkRecord& r : job.stationLink.records) {
    if (r.LinkNetId > 0) {
      const auto type = editors::station_link::stationTypeName(r.LinkStationType);
      put(out, "  ", editors::station_link::linkLine(r, type), "\n");
    }
  }
}

void listChannelEmulation(std::string& out, const job::Job& job) {
  namespace ce = editors::channel_emulation;
  heading(out, "Channel emulation");
  for (int k = 1; k <= kBank; ++k) {
    for (int action : {1, 2}) {
      const job::ChannelEmulationRecord& r = job.channelEmulation.records[static_cast<std::size_t>(action == 1 ? k : k + kBank)];
      const auto slots = static_cast<std::size_t>(job::kChannelSlotsListed);
      // Written straight into the listing, an input's heading once it is known to have lines.
      if (std::none_of(r.Channels.begin(), r.Channels.begin() + job::kChannelSlotsListed, [](int c) { return c > 0; }))
        continue;
      put(out, "  Input: ", k, action == 1 ? ", action one, " : ", action two, ",
          r.FadeRate > 0 ? ce::fadeRateLabel(r.FadeRate) : "no fade rate", "\n");
      for (std::size_t s = 0; s < slots; ++s) {
        if (r.Channels[s] > 0) put(out, "    ", ce::channelLine(r.Channels[s], r.Levels[s]), "\n");
      }
    }
  }
}

void listPresets(std::string& out, const job::Job& job) {
  namespace pe = editors::preset_emulation;
  heading(out, "Preset emulation");
  for (int k = 1; k <= 2 * kBank; ++k) {
    std::string action;
    std::string lines;
    for (std::size_t j = 0; j <= 126; ++j) {
      const job::PresetRecord& r = job.presetEmulation.records[j][static_cast<std::size_t>(k)];
      if (r.NetIdPlusOne < 1) continue;
      action = pe::rebuiltActionText(r, action);
      put(lines, "    ", pe::entryLine(pe::stationKindName(r.StationKind), r, action), "\n");
    }
    if (lines.empty()) continue;
    put(out, k <= kBank ? "  KX Input: " : "  Pellam Input: ", k <= kBank ? k : k - kBank, "\n", lines);
  }
}

void listPersonalities(std::string& out, const job::Job& job) {
  namespace sp = editors::station_personality;
  heading(out, "Station personalities");
  for (const job::StationPersonalityRecord& r : job.stationPersonality.records) {
    if (r.PersNetIdPlusOne > 0) put(out, "  ", sp::personalityLine(sp::seriesName(r.PersSeries), r), "\n");
  }
}

void listRoomCombine(std::string& out, const job::Job& job) {
  heading(out, "Room combine");
  for (const job::RoomCombineRecord& r : job.roomCombine.records) {
    if (r.CombineChannel != 0) put(out, "  ", editors::room_combine::allLine(r), "\n");
  }
}

// Remote commands, master inputs and input numbering are carried by every mode.
namespace {

void listSettings(std::string& out, const job::Job& job) {
  std::string remote;
  for (int page = 1; page <= kBank; ++page) {
    const job::RemoteCommandBlock& b = job.remoteCommands.blocks[static_cast<std::size_t>(page)];
    std::string lines;
    for (std::size_t n = 0; n < b.Listed.size(); ++n) {
      if (b.Listed[n] > 0) {
        put(lines, "    ", editors::remote_commands::commandLine(b.Listed[n], b.Value[n], b.Mode), "\n");
      }
    }
    if (!lines.empty() || b.Page != 0) put(remote, "  Input ", page, " Page ", b.Page, "\n", lines);
  }
  if (!remote.empty()) {
    heading(out, "Remote commands");
    out += remote;
  }
  std::string masters;
  for (std::size_t i = 0; i < job.masterInputs.entries.size(); ++i) {
    const int entry = job.masterInputs.entries[i];
    if (entry != 0) put(masters, "  Master input ", i + 1, ": ", entry, "\n");
  }
  if (!masters.empty()) {
    heading(out, "Master inputs");
    out += masters;
  }
  std::string numbering;
  for (const job::InputNumberRecord& r : job.inputNumbering.records) {
    if (r.RoomNumber != 0) put(numbering, "  ", editors::input_numbering::numberingLine(r), "\n");
  }
  if ((job.board.BoardOptions & 1) != 0 && !numbering.empty()) {
    heading(out, "Input numbering");
    out += numbering;
  }
}

}  // namespace

std::string listJob(Session& session) {
  std::string out;
  out.reserve(1 << 18);  // a maximal job lists some 130 kB: made once, not copied as it grows
  for (const char c : session.boardPage.summary()) {
    if (c != '\r') out += c;
  }
  out += '\n';
  const job::Job& job = session.job;
  if (const OperatingMode* mode = operatingMode(job.board.OperatingMode)) mode->list(out, job);
  listSettings(out, job);
  return out;
}

}  // namespace pellam::component
