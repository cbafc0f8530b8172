#include "files/save_job.h"

#include <optional>
#include <vector>

#include "files/command_text.h"
#include "files/replace_files.h"
#include "image/pack.h"
#include "ui/trap.h"

namespace pellam::files {

std::string jobPrefix(const std::string& jobPath) { return jobPath.substr(0, jobPath.find('.')); }

std::string reportPath(const std::string& jobPath) { return jobPrefix(jobPath) + "UserData.txt"; }

bool hasTxtExtension(const std::string& jobPath) {
  const auto dot = jobPath.find('.');
  return dot != std::string::npos && jobPath.compare(dot + 1, std::string::npos, "txt") == 0;
}

namespace {

struct Output {
  std::string path;
  std::string bytes;
};

const std::string kFileEnd = std::string(kCrLf) + kCrLf;

// Each input's text goes at a running position that moves on by the position of the text's
// first ":"; every text here holds exactly one, at its end.
void writeAtRunningPosition(std::string& file, std::size_t& position, const std::string& text) {
  if (file.size() < position + text.size()) file.resize(position + text.size());
  file.replace(position, text.size(), text);
  const auto colon = text.find(':');
  position += colon == std::string::npos ? 0 : colon + 1;
}

// An input of the second bank is written after its partner of the first, and only when the
// partner has text of its own.
template <typename TextOf>
std::string perInputFile(int first, int last, int inputBank, TextOf textOf) {
  std::string file;
  std::size_t position = 0;
  for (int k = first; k <= last; ++k) {
    const std::string own = textOf(k);
    if (own.empty()) continue;
    writeAtRunningPosition(file, position, own);
    if (inputBank != kFirstBankOnly) writeAtRunningPosition(file, position, textOf(k + image::map::kInputsPerBank));
  }
  return file;
}

// Every output is named after the job's prefix, so it goes to the replacement as its suffix.
bool replaceAll(const std::string& prefix, const std::vector<Output>& outputs, ui::Dialogs& dialogs) {
  std::vector<JobFile> files;
  for (const Output& o : outputs) files.push_back({o.path.substr(prefix.size()), o.bytes});
  const std::optional<std::string> refused = ReplaceJobFiles(prefix, files);
  if (refused) dialogs.msgBox(*refused, ui::Buttons::OK);
  return !refused;
}

}  // namespace

std::string SaveJob(const std::string& jobPath, int inputBank, const job::Job& job, image::EepromImage& image,
                    ui::Dialogs& dialogs, const std::function<std::string()>& makeReport) {
  if (!hasTxtExtension(jobPath)) {
    dialogs.msgBox("File extension must be .txt", ui::Buttons::OK);
    return {};
  }
  const std::string prefix = jobPrefix(jobPath);
  RecoverInterruptedSave(prefix);
  constexpr int kBank = image::map::kInputsPerBank;
  std::vector<Output> outputs;
  auto wholeFile = [&](const std::string& path, const std::string& text) { outputs.push_back({path, text + kFileEnd}); };

  switch (job.board.OperatingMode) {
    case 1:
      outputs.push_back({jobPath, perInputFile(1, kBank, inputBank,
                                               [&](int k) { return ChannelInputText(job.channelEmulation, k); })});
      // An input that cannot be stored is named and skipped; the others are still packed.
      for (int k = 1; k <= 2 * kBank; ++k) {
        ui::trap(dialogs, "Error module WriteChannelEmulation Input " + std::to_string(k),
                 [&] { image::PackChannelEmulationInput(image, job.channelEmulation, k); });
      }
      break;
    case 2:
      wholeFile(jobPath, RoomLinkText(job.roomLink));
      ui::trap(dialogs, "Error module WriteRoomLink", [&] { image::PackRoomLink(image, job.roomLink); });
      break;
    case 3:
      outputs.push_back({reportPath(jobPath), makeReport ? makeReport() : std::string()});
      wholeFile(prefix + "LnkData.txt", RoomLinkText(job.roomLink));
      ui::trap(dialogs, "Error module WriteRoomLink", [&] { image::PackRoomLink(image, job.roomLink); });
      wholeFile(prefix + "NetData.txt", StationTextFormA(job.stationLink));
      ui::trap(dialogs, "Error module WriteStations", [&] { image::PackStationsFormA(image, job.stationLink); });
      wholeFile(prefix + "GrpRoom.txt", RoomCombineText(job.roomCombine));
      ui::trap(dialogs, "Error module WriteRoomCombine", [&] {
        image::PackRoomCombine(image, job.roomCombine, job.board.InputScan);
      });
      ui::trap(dialogs, "Error module PackFurtherOption", [&] { image::PackFurtherOption(image, job.board.FurtherOption); });
      break;
    case 4:
      outputs.push_back({prefix + "PreSetData.txt",
                         perInputFile(0, kBank, inputBank, [&](int k) { return PresetInputText(job.presetEmulation, k); })});
      ui::trap(dialogs, "Error module WritePresetEmulation", [&] { image::PackPresetEmulation(image, job.presetEmulation); });
      break;
    case 5:
      wholeFile(prefix + "LnkData.txt", RoomLinkText(job.roomLink));
      ui::trap(dialogs, "Error module WriteRoomLink", [&] { image::PackRoomLink(image, job.roomLink); });
      wholeFile(prefix + "NetData.txt", StationTextFormB(job.stationLink));
      ui::trap(dialogs, "Error module WriteStations", [&] {
        image::PackStationsFormB(image, job.stationLink, job.stationPersonality);
      });
      break;
    default:
      break;
  }

  const auto bytes = image.bytes();
  const std::string zpd = prefix + ".zpd";
  outputs.push_back({zpd, std::string(bytes.begin(), bytes.begin() + image::map::kZpdSize)});
  return replaceAll(prefix, outputs, dialogs) ? zpd : std::string{};
}

}  // namespace pellam::files
