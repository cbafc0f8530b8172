#include "files/file_type.h"

#include <filesystem>
#include <fstream>
#include <system_error>

#include "files/job_paths.h"
#include "files/replace_files.h"
#include "files/save_job.h"
#include "image/memory_map.h"

namespace pellam::files {

FileKind ReadProductType(const std::string& path, image::EepromImage& image) {
  std::error_code ec;
  const auto file = fsPath(path);
  std::ifstream in;
  if (!path.empty()) RecoverInterruptedSave(jobPrefix(path));
  if (!path.empty() && std::filesystem::is_regular_file(file, ec)) in.open(file, std::ios::binary);
  if (!in.is_open()) return FileKind::Unreadable;
  // A file too short to hold the byte reads as 0 there.
  char byte = 0;
  in.seekg(image::map::kProductTypeByte);
  if (!in.get(byte)) byte = 0;
  image.put(image::map::kProductTypeByte, static_cast<unsigned char>(byte));
  return image.at(image::map::kProductTypeByte) == image::map::kProductTypeValue ? FileKind::PellamJob
                                                                                : FileKind::OtherKind;
}

JobImage ReadJobImage(const std::string& path) {
  namespace map = image::map;
  JobImage job;
  std::error_code ec;
  const auto file = fsPath(path);
  std::ifstream in;
  if (!path.empty() && std::filesystem::is_regular_file(file, ec)) in.open(file, std::ios::binary);
  if (!in.is_open()) {
    job.problem = "Cannot Open File: " + path;
    return job;
  }
  // One byte more than an image, so that a longer file is told apart without reading it all.
  job.bytes.resize(map::kZpdSize + 1);
  in.read(reinterpret_cast<char*>(job.bytes.data()), static_cast<std::streamsize>(job.bytes.size()));
  if (in.bad()) {
    job.problem = "Cannot Open File: " + path;
    job.bytes.clear();
    return job;
  }
  job.bytes.resize(static_cast<std::size_t>(in.gcount()));
  const bool typed = job.bytes.size() > map::kProductTypeByte;
  const int type = typed ? job.bytes[map::kProductTypeByte] : -1;
  if (job.bytes.size() == map::kZpdSize && type == map::kProductTypeValue) return job;
  const auto size = std::filesystem::file_size(file, ec);
  job.problem = "Not A Pellam Job Image: " + path + " (" + std::to_string(ec ? job.bytes.size() : size) +
                " bytes, type byte " + (typed ? std::to_string(type) : std::string("missing")) + "; a job is " +
                std::to_string(map::kZpdSize) + " bytes with type byte " + std::to_string(map::kProductTypeValue) +
                ")";
  job.bytes.clear();
  return job;
}

}  // namespace pellam::files
