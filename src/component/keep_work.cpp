#include "component/keep_work.h"

#include <filesystem>
#include <system_error>

#include "component/job_files.h"
#include "component/operating_modes.h"
#include "files/job_paths.h"
#include "files/room_labels.h"
#include "files/save_job.h"

namespace pellam::component {

bool MayReplaceJob(Session& s) {
  if (!s.modified() || !s.keeper.askUnsaved) return true;
  switch (s.keeper.askUnsaved()) {
    case UnsavedChoice::Save: return SaveJob(s);
    case UnsavedChoice::Discard: return true;
    case UnsavedChoice::Cancel: return false;
  }
  return false;
}

bool SaveJob(Session& s) {
  if (s.saveTarget.empty()) return SaveJobAs(s);
  return !SaveJobSequence(s, s.saveTarget, "Directory Not Found").empty();
}

bool SaveJobAs(Session& s) {
  if (!s.keeper.chooseSavePath) return false;
  const std::string path = s.keeper.chooseSavePath(s.saveTarget);
  if (path.empty()) return false;
  const std::vector<std::string> existing = FilesASaveReplaces(s, path);
  if (!existing.empty()) {
    std::string question = "Replace The Existing Job?";
    for (const std::string& file : existing) question += "\r\n" + file;
    if (s.dialogs().msgBox(question, ui::Buttons::YesNo) != ui::Answer::Yes) return false;
  }
  return !SaveJobSequence(s, path, "Directory Not Found").empty();
}

std::string JobImageFor(const std::string& path) {
  const std::string zpd = files::jobPrefix(path) + ".zpd";
  std::error_code ec;
  return path != zpd && std::filesystem::is_regular_file(files::fsPath(zpd), ec) ? zpd : path;
}

std::vector<std::string> FilesASaveReplaces(const Session& s, const std::string& jobPath) {
  const std::string prefix = files::jobPrefix(jobPath);
  std::vector<std::string> suffixes;
  if (const OperatingMode* mode = operatingMode(s.job.board.OperatingMode)) suffixes = mode->fileSuffixes;
  suffixes.push_back(files::kLabelsSuffix);  // written, or taken away when the job has no labels
  suffixes.push_back(".zpd");
  std::vector<std::string> existing;
  for (const std::string& suffix : suffixes) {
    std::error_code ec;
    if (std::filesystem::exists(files::fsPath(prefix + suffix), ec)) existing.push_back(prefix + suffix);
  }
  return existing;
}

}  // namespace pellam::component
