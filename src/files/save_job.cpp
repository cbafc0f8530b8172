#include "files/save_job.h"

#include <optional>
#include <vector>

#include "files/command_text.h"
#include "files/replace_files.h"
#include "image/memory_map.h"

namespace pellam::files {

std::string jobPrefix(const std::string& jobPath) { return jobPath.substr(0, jobPath.find('.')); }

std::string reportPath(const std::string& jobPath) { return jobPrefix(jobPath) + kReportSuffix; }

bool hasTxtExtension(const std::string& jobPath) {
  const auto dot = jobPath.find('.');
  return dot != std::string::npos && jobPath.compare(dot + 1, std::string::npos, "txt") == 0;
}

namespace {

const std::string kFileEnd = std::string(kCrLf) + kCrLf;

// Each input's text goes at a running position that moves on by the position of the text's
// first ":"; every text here holds exactly one, at its end.
void writeAtRunningPosition(std::string& file, std::size_t& position, const std::string& text) {
  if (file.size() < position + text.size()) file.resize(position + text.size());
  file.replace(position, text.size(), text);
  const auto colon = text.find(':');
  position += colon == std::string::npos ? 0 : colon + 1;
}

}  // namespace

JobFiles::JobFiles(const std::string& jobPath, int inputBank) : prefix_(jobPrefix(jobPath)), inputBank_(inputBank) {}

void JobFiles::whole(const std::string& suffix, const std::string& text) { files_.push_back({suffix, text + kFileEnd}); }

void JobFiles::exact(const std::string& suffix, std::string text) { files_.push_back({suffix, std::move(text)}); }

void JobFiles::image(const image::EepromImage& image) {
  const auto bytes = image.bytes();
  files_.push_back({".zpd", std::string(bytes.begin(), bytes.begin() + image::map::kZpdSize)});
}

void JobFiles::remove(const std::string& suffix) { files_.push_back({suffix, {}, true}); }

// An input of the second bank is written after its partner of the first, and only when the
// partner has text of its own.
void JobFiles::perInput(const std::string& suffix, int first, const std::function<std::string(int)>& textOf) {
  std::string file;
  std::size_t position = 0;
  for (int k = first; k <= image::map::kInputsPerBank; ++k) {
    const std::string own = textOf(k);
    if (own.empty()) continue;
    writeAtRunningPosition(file, position, own);
    if (inputBank_ != kFirstBankOnly) writeAtRunningPosition(file, position, textOf(k + image::map::kInputsPerBank));
  }
  files_.push_back({suffix, std::move(file)});
}

Saved SaveJob(const std::string& jobPath, int inputBank, image::EepromImage& image,
             const std::function<void(JobFiles&)>& writeModeFiles) {
  if (!hasTxtExtension(jobPath)) return {{}, "File extension must be .txt"};
  JobFiles files(jobPath, inputBank);
  RecoverInterruptedSave(files.prefix());
  if (writeModeFiles) writeModeFiles(files);

  files.image(image);
  if (std::optional<std::string> refused = ReplaceJobFiles(files.prefix(), files.files())) return {{}, *refused};
  return {files.prefix() + ".zpd", {}};
}

}  // namespace pellam::files
