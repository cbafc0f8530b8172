#pragma once

#include <functional>
#include <string>
#include <vector>

#include "files/replace_files.h"
#include "image/eeprom_image.h"

namespace pellam::files {

// The job path cut before its first "." (anywhere in the path, a folder's dot too).
std::string jobPrefix(const std::string& jobPath);
// Whether the text after the first "." is exactly "txt".
bool hasTxtExtension(const std::string& jobPath);

// With any other setting the second bank's text (inputs 17..32) is written too.
inline constexpr int kFirstBankOnly = 2;

// The files a save writes besides the image, each named by the job's prefix and a suffix.
class JobFiles {
 public:
  JobFiles(const std::string& jobPath, int inputBank);
  // A file of command lines, closed by the file end every whole file carries.
  void whole(const std::string& suffix, const std::string& text);
  // A file as it is given (the room-combine report).
  void exact(const std::string& suffix, std::string text);
  // The image file, the first 32,767 bytes of the image.
  void image(const image::EepromImage& image);
  // A file an earlier save may have left that this job no longer has: the save takes it away.
  void remove(const std::string& suffix);
  // One text per input from `first` to 16, each followed by its second-bank partner's.
  void perInput(const std::string& suffix, int first, const std::function<std::string(int)>& textOf);

  const std::string& prefix() const { return prefix_; }
  const std::vector<JobFile>& files() const { return files_; }

 private:
  std::string prefix_;
  int inputBank_;
  std::vector<JobFile> files_;
};

// What a save did: the .zpd it wrote, or why it wrote nothing.
struct Saved {
  std::string zpd;
  std::string refusal;
};

// Writes the files the operating mode's steps add, packing its tables into the image as they
// go, then the 32,767-byte image file, all or nothing. A path whose extension is not "txt" is
// refused before any step runs.
Saved SaveJob(const std::string& jobPath, int inputBank, image::EepromImage& image,
              const std::function<void(JobFiles&)>& writeModeFiles);

// The report a room-combine save writes beside its job.
inline constexpr const char* kReportSuffix = "UserData.txt";
std::string reportPath(const std::string& jobPath);

}  // namespace pellam::files
