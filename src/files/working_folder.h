#pragma once

#include <filesystem>

namespace pellam::files {

// One upload's own folder under the system's temporary folder. It is made new, so nothing a
// person or another upload keeps is ever used or removed, and it goes with all it holds.
class WorkingFolder {
 public:
  WorkingFolder();  // throws CannotWriteFile
  ~WorkingFolder();
  WorkingFolder(const WorkingFolder&) = delete;
  WorkingFolder& operator=(const WorkingFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace pellam::files
