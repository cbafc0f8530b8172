#include "component/operating_modes.h"

#include <algorithm>
#include <array>
#include <string>

#include "component/job_listing.h"
#include "component/session.h"
#include "files/command_text.h"
#include "image/decode.h"
#include "image/pack.h"
#include "ui/trap.h"

namespace pellam::component {

namespace {

using ui::UserForm1;

const job::InputNumberTable* numbering(Session& s) {
  return image::optionBitZero(s.job.board.BoardOptions) ? &s.job.inputNumbering : nullptr;
}

// Each step that packs a table runs under its own trap: the save goes on without it.
void roomLinkFile(Session& s, files::JobFiles& files, const std::string& suffix) {
  files.whole(suffix, files::RoomLinkText(s.job.roomLink));
  ui::trap(s.dialogs(), "Error module WriteRoomLink", [&] { image::PackRoomLink(s.image, s.job.roomLink); });
}

void decodeRoomLink(Session& s, int mode) {
  image::DecodeRoomLink(s.image, s.job.roomLink);
  s.roomLinkPage.listDecodedFor(mode);
}

const std::array<OperatingMode, 5> kModes = {{
    {1, &UserForm1::Page2, &UserForm1::Page7, false, {".txt"}, {"channelEmulation"},
     [](Session& s, files::JobFiles& files) {
       files.perInput(".txt", 1, [&](int k) { return files::ChannelInputText(s.job.channelEmulation, k); });
       // An input that cannot be stored is named and skipped; the others are still packed.
       for (int k = 1; k <= 2 * image::map::kInputsPerBank; ++k) {
         ui::trap(s.dialogs(), "Error module WriteChannelEmulation Input " + std::to_string(k),
                  [&] { image::PackChannelEmulationInput(s.image, s.job.channelEmulation, k); });
       }
     },
     [](Session& s) {
       image::DecodeChannelEmulation(s.image, s.job.channelEmulation);
       s.channelEmulationPage.listDecoded();
     },
     listChannelEmulation},
    {2, &UserForm1::Page3, nullptr, false, {".txt"}, {"roomLinks"}, [](Session& s, files::JobFiles& files) { roomLinkFile(s, files, ".txt"); },
     [](Session& s) { decodeRoomLink(s, 2); }, listRoomLinks},
    {3, &UserForm1::Page4, &UserForm1::Page8, true, {files::kReportSuffix, "LnkData.txt", "NetData.txt", "GrpRoom.txt"},
     {"roomLinks", "stations", "roomCombine"},
     [](Session& s, files::JobFiles& files) {
       roomLinkFile(s, files, "LnkData.txt");
       files.whole("NetData.txt", files::StationTextFormA(s.job.stationLink));
       ui::trap(s.dialogs(), "Error module WriteStations", [&] { image::PackStationsFormA(s.image, s.job.stationLink); });
       files.whole("GrpRoom.txt", files::RoomCombineText(s.job.roomCombine));
       ui::trap(s.dialogs(), "Error module WriteRoomCombine",
                [&] { image::PackRoomCombine(s.image, s.job.roomCombine, s.job.board.InputScan); });
       ui::trap(s.dialogs(), "Error module PackFurtherOption",
                [&] { image::PackFurtherOption(s.image, s.job.board.FurtherOption); });
     },
     [](Session& s) {
       decodeRoomLink(s, 3);
       image::DecodeRoomCombine(s.image, s.job.roomCombine);
       s.roomCombinePage.listDecoded();
       image::DecodeStationsFormA(s.image, s.job.stationLink, numbering(s));
       s.stationLinkPage.listDecoded();
     },
     [](std::string& out, const job::Job& job) {
       listRoomLinks(out, job);
       listStations(out, job);
       listRoomCombine(out, job);
     }},
    {4, &UserForm1::Page5, nullptr, false, {"PreSetData.txt"}, {"presets"},
     [](Session& s, files::JobFiles& files) {
       files.perInput("PreSetData.txt", 0, [&](int k) { return files::PresetInputText(s.job.presetEmulation, k); });
       ui::trap(s.dialogs(), "Error module WritePresetEmulation",
                [&] { image::PackPresetEmulation(s.image, s.job.presetEmulation); });
     },
     [](Session& s) {
       image::DecodePresetEmulation(s.image, s.job.presetEmulation);
       s.presetEmulationPage.listDecoded();
     },
     listPresets},
    {5, &UserForm1::Page6, nullptr, false, {"LnkData.txt", "NetData.txt"}, {"roomLinks", "stations", "personalities"},
     [](Session& s, files::JobFiles& files) {
       roomLinkFile(s, files, "LnkData.txt");
       files.whole("NetData.txt", files::StationTextFormB(s.job.stationLink));
       ui::trap(s.dialogs(), "Error module WriteStations",
                [&] { image::PackStationsFormB(s.image, s.job.stationLink, s.job.stationPersonality); });
     },
     [](Session& s) {
       decodeRoomLink(s, 5);
       image::DecodeStationsFormB(s.image, s.job.stationLink, s.job.stationPersonality, numbering(s));
       s.stationLinkPage.listDecoded();
       s.stationPersonalityPage.listDecoded();
     },
     [](std::string& out, const job::Job& job) {
       listRoomLinks(out, job);
       listStations(out, job);
       listPersonalities(out, job);
     }},
}};

}  // namespace

const OperatingMode* operatingMode(int number) {
  const auto found = std::find_if(kModes.begin(), kModes.end(), [&](const OperatingMode& m) { return m.number == number; });
  return found != kModes.end() ? &*found : nullptr;
}

const std::vector<ui::Page UserForm1::*>& modePages() {
  static const std::vector<ui::Page UserForm1::*> pages = [] {
    std::vector<ui::Page UserForm1::*> all;
    for (const OperatingMode& m : kModes) {
      for (auto page : {m.page, m.alsoShows}) {
        if (page && std::find(all.begin(), all.end(), page) == all.end()) all.push_back(page);
      }
    }
    return all;
  }();
  return pages;
}

}  // namespace pellam::component
