#include "files/file_type.h"

#include <filesystem>
#include <fstream>
#include <system_error>

#include "files/job_paths.h"
#include "files/replace_files.h"
#include "files/save_job.h"
#include "image/memory_map.h"

namespace pellam::files {

std::int16_t CheckFileType(const std::string& path, image::EepromImage& image, ui::Dialogs& dialogs) {
  std::error_code ec;
  const auto file = fsPath(path);
  std::ifstream in;
  if (!path.empty()) RecoverInterruptedSave(jobPrefix(path));
  if (!path.empty() && std::filesystem::is_regular_file(file, ec)) in.open(file, std::ios::binary);
  if (!in.is_open()) {
    dialogs.msgBox("Cannot Open File: " + path, ui::Buttons::OK);
    return -1;
  }
  // A file too short to hold the byte reads as 0 there.
  char byte = 0;
  in.seekg(image::map::kProductTypeByte);
  if (!in.get(byte)) byte = 0;
  image.put(image::map::kProductTypeByte, static_cast<unsigned char>(byte));
  if (image.at(image::map::kProductTypeByte) == image::map::kProductTypeValue) return 1;
  const auto answer = dialogs.msgBox("Select File is not Pellam Type Continue Loading?", ui::Buttons::YesNo);
  return answer == ui::Answer::Yes ? 1 : -1;
}

}  // namespace pellam::files
