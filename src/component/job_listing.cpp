#include "component/job_listing.h"

#include "component/operating_modes.h"

#include <sstream>

#include "editors/channel_emulation/list_lines.h"
#include "editors/input_numbering/input_numbering_page.h"
#include "editors/preset_emulation/list_lines.h"
#include "editors/remote_commands/list_lines.h"
#include "editors/room_combine/list_lines.h"
#include "editors/room_link/list_lines.h"
#include "editors/station_link/list_lines.h"
#include "editors/station_personality/list_lines.h"
#include "image/memory_map.h"

namespace pellam::component {

namespace {

constexpr int kBank = image::map::kInputsPerBank;

void heading(std::ostream& out, const char* title) { out << '\n' << title << ":\n"; }

}  // namespace

void listRoomLinks(std::ostream& out, const job::Job& job) {
  heading(out, "Room links");
  for (const job::RoomLinkRecord& r : job.roomLink.records) {
    if (r.LinkInput > 0) out << "  " << editors::room_link::lineFormat1(r) << '\n';
  }
}

void listStations(std::ostream& out, const job::Job& job) {
  heading(out, "Stations");
  for (const job::StationLinkRecord& r : job.stationLink.records) {
    if (r.LinkNetId > 0) {
      out << "  " << editors::station_link::linkLine(r, editors::station_link::stationTypeName(r.LinkStationType))
          << '\n';
    }
  }
}

void listChannelEmulation(std::ostream& out, const job::Job& job) {
  namespace ce = editors::channel_emulation;
  heading(out, "Channel emulation");
  for (int k = 1; k <= kBank; ++k) {
    for (int action : {1, 2}) {
      const job::ChannelEmulationRecord& r = job.channelEmulation.records[static_cast<std::size_t>(action == 1 ? k : k + kBank)];
      std::string lines;
      for (int s = 0; s < job::kChannelSlotsListed; ++s) {
        const auto slot = static_cast<std::size_t>(s);
        if (r.Channels[slot] > 0) lines += "    " + ce::channelLine(r.Channels[slot], r.Levels[slot]) + "\n";
      }
      if (lines.empty()) continue;
      out << "  Input: " << k << (action == 1 ? ", action one, " : ", action two, ")
          << (r.FadeRate > 0 ? ce::fadeRateLabel(r.FadeRate) : "no fade rate") << '\n'
          << lines;
    }
  }
}

void listPresets(std::ostream& out, const job::Job& job) {
  namespace pe = editors::preset_emulation;
  heading(out, "Preset emulation");
  for (int k = 1; k <= 2 * kBank; ++k) {
    std::string action;
    std::string lines;
    for (std::size_t j = 0; j <= 126; ++j) {
      const job::PresetRecord& r = job.presetEmulation.records[j][static_cast<std::size_t>(k)];
      if (r.NetIdPlusOne < 1) continue;
      action = pe::rebuiltActionText(r, action);
      lines += "    " + pe::entryLine(pe::stationKindName(r.StationKind), r, action) + "\n";
    }
    if (lines.empty()) continue;
    out << (k <= kBank ? "  KX Input: " : "  Pellam Input: ") << (k <= kBank ? k : k - kBank) << '\n' << lines;
  }
}

void listPersonalities(std::ostream& out, const job::Job& job) {
  namespace sp = editors::station_personality;
  heading(out, "Station personalities");
  for (const job::StationPersonalityRecord& r : job.stationPersonality.records) {
    if (r.PersNetIdPlusOne > 0) out << "  " << sp::personalityLine(sp::seriesName(r.PersSeries), r) << '\n';
  }
}

void listRoomCombine(std::ostream& out, const job::Job& job) {
  heading(out, "Room combine");
  for (const job::RoomCombineRecord& r : job.roomCombine.records) {
    if (r.CombineChannel != 0) out << "  " << editors::room_combine::allLine(r) << '\n';
  }
}

// Remote commands, master inputs and input numbering are carried by every mode.
namespace {

void listSettings(std::ostream& out, const job::Job& job) {
  std::ostringstream remote;
  for (int page = 1; page <= kBank; ++page) {
    const job::RemoteCommandBlock& b = job.remoteCommands.blocks[static_cast<std::size_t>(page)];
    std::string lines;
    for (std::size_t n = 0; n < b.Listed.size(); ++n) {
      if (b.Listed[n] > 0) lines += "    " + editors::remote_commands::commandLine(b.Listed[n], b.Value[n], b.Mode) + "\n";
    }
    if (!lines.empty() || b.Page != 0) remote << "  Input " << page << " Page " << b.Page << '\n' << lines;
  }
  if (!remote.str().empty()) {
    heading(out, "Remote commands");
    out << remote.str();
  }
  std::string masters;
  for (std::size_t i = 0; i < job.masterInputs.entries.size(); ++i) {
    if (job.masterInputs.entries[i] != 0) masters += "  Master input " + std::to_string(i + 1) + ": " + std::to_string(job.masterInputs.entries[i]) + "\n";
  }
  if (!masters.empty()) {
    heading(out, "Master inputs");
    out << masters;
  }
  std::string numbering;
  for (const job::InputNumberRecord& r : job.inputNumbering.records) {
    if (r.RoomNumber != 0) numbering += "  " + editors::input_numbering::numberingLine(r) + "\n";
  }
  if ((job.board.BoardOptions & 1) != 0 && !numbering.empty()) {
    heading(out, "Input numbering");
    out << numbering;
  }
}

}  // namespace

std::string listJob(Session& session) {
  std::ostringstream out;
  for (const char c : session.boardPage.summary()) {
    if (c != '\r') out << c;
  }
  out << '\n';
  const job::Job& job = session.job;
  if (const OperatingMode* mode = operatingMode(job.board.OperatingMode)) mode->list(out, job);
  listSettings(out, job);
  return out.str();
}

}  // namespace pellam::component
