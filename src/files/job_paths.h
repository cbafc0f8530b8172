#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace pellam::files {

// Paths are kept as UTF-8 text; these turn them into the file system's paths and back.
std::filesystem::path fsPath(const std::string& utf8);
std::string utf8Text(const std::filesystem::path& path);

// Folder separators: "/" everywhere, "\" as well on Windows.
bool isSeparator(char c);

// The folder part of a job path: cut after the last separator when the path holds a "."
// (anywhere, so a dot in a folder name counts too); a path without a dot is a folder itself.
std::string folderPart(const std::string& jobPath);

// Folder levels a save created, removed again (when still empty) unless the save kept them:
// a refused save leaves no folder behind.
class CreatedFolders {
 public:
  CreatedFolders() = default;
  ~CreatedFolders();
  CreatedFolders(const CreatedFolders&) = delete;
  CreatedFolders& operator=(const CreatedFolders&) = delete;
  void add(std::filesystem::path level) { levels_.push_back(std::move(level)); }
  void keep() { levels_.clear(); }
  void takeFrom(CreatedFolders& other) {
    levels_.insert(levels_.end(), other.levels_.begin(), other.levels_.end());
    other.keep();
  }

 private:
  std::vector<std::filesystem::path> levels_;
};

bool isFolder(const std::string& folder);

// Creates each missing level of a folder path; false, with nothing left created, when a level
// could not be made.
bool CreateFolderPath(const std::string& folder, CreatedFolders* created = nullptr);

}  // namespace pellam::files
