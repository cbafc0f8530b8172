#include "files/job_paths.h"

#include <filesystem>
#include <system_error>

namespace pellam::files {

namespace fs = std::filesystem;

fs::path fsPath(const std::string& utf8) { return fs::path(std::u8string(utf8.begin(), utf8.end())); }

std::string utf8Text(const fs::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

bool isSeparator(char c) {
#ifdef _WIN32
  return c == '\\' || c == '/';
#else
  return c == '/';
#endif
}

std::string folderPart(const std::string& jobPath) {
  if (jobPath.find('.') == std::string::npos) return jobPath;
  for (std::size_t i = jobPath.size(); i-- > 0;) {
    if (isSeparator(jobPath[i])) return jobPath.substr(0, i + 1);
  }
  return {};
}

bool isFolder(const std::string& folder) {
  std::error_code ec;
  return !folder.empty() && fs::is_directory(fsPath(folder), ec);
}

CreatedFolders::~CreatedFolders() {
  std::error_code ec;
  for (auto level = levels_.rbegin(); level != levels_.rend(); ++level) fs::remove(*level, ec);
}

// Each level that ends in a separator: a last part without one is not a folder of the job.
bool CreateFolderPath(const std::string& folder, CreatedFolders* created) {
  CreatedFolders made;
  for (std::size_t i = 0; i < folder.size(); ++i) {
    if (!isSeparator(folder[i])) continue;
    const std::string level = folder.substr(0, i + 1);
    if (level.size() == 1 || isFolder(level)) continue;
    std::error_code ec;
    if (fs::create_directory(fsPath(level), ec)) made.add(fsPath(level));
    if (!isFolder(level)) return false;
  }
  if (created) created->takeFrom(made);
  made.keep();
  return true;
}

}  // namespace pellam::files
