#include "files/open_job.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

#include "files/job_paths.h"
#include <fstream>
#include <system_error>

#include "files/replace_files.h"
#include "files/save_job.h"

namespace pellam::files {

namespace fs = std::filesystem;

std::vector<std::string> ListImageFiles(const std::string& folder) {
  std::vector<std::string> names;
  std::error_code ec;
  for (fs::directory_iterator it(fsPath(folder), ec), end; !ec && it != end; it.increment(ec)) {
    std::string extension = utf8Text(it->path().extension());
    for (char& c : extension) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    if (extension == ".zpd" && it->is_regular_file(ec)) names.push_back(utf8Text(it->path().filename()));
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::optional<std::ifstream> OpenImageFile(const std::string& path) {
  std::error_code ec;
  const fs::path p = fsPath(path);
  if (!path.empty()) RecoverInterruptedSave(jobPrefix(path));
  if (path.empty() || !fs::is_regular_file(p, ec)) return std::nullopt;
  std::optional<std::ifstream> in(std::in_place);
  // The image is read in one call, so the stream needs no buffer of its own.
  in->rdbuf()->pubsetbuf(nullptr, 0);
  in->open(p, std::ios::binary);
  if (!in->is_open()) return std::nullopt;
  return in;
}

long ReadImageBytes(std::ifstream& file, std::span<std::uint8_t> into) {
  file.read(reinterpret_cast<char*>(into.data()), static_cast<std::streamsize>(into.size()));
  return file.bad() ? -1 : static_cast<long>(file.gcount());
}

std::string companionReportPath(const std::string& zpdPath) { return reportPath(zpdPath); }

std::optional<std::string> ReadTextFile(const std::string& path) {
  std::error_code ec;
  const fs::path p = fsPath(path);
  const auto size = fs::file_size(p, ec);
  if (ec) return std::nullopt;
  std::ifstream in(p, std::ios::binary);
  std::string text(static_cast<std::size_t>(size), '\0');
  in.read(text.data(), static_cast<std::streamsize>(size));
  if (!in) return std::nullopt;
  return text;
}

}  // namespace pellam::files
