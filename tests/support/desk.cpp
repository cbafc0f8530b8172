#include "support/desk.h"

#include <fstream>
#include <random>

namespace pellam::testing {

std::string readAll(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

std::vector<int> bytesAt(const image::EepromImage& image, int first, int count) {
  std::vector<int> out;
  for (int i = first; i < first + count; ++i) out.push_back(image.at(i));
  return out;
}

TempFolder::TempFolder() {
  std::random_device seed;
  std::mt19937_64 random(seed());
  path_ = std::filesystem::temp_directory_path() / ("pellam-test-" + std::to_string(random()));
  std::filesystem::create_directories(path_);
}

TempFolder::~TempFolder() {
  std::error_code ec;
  std::filesystem::remove_all(path_, ec);
}

std::string TempFolder::write(const std::string& name, const std::string& bytes) const {
  const auto p = path_ / name;
  std::ofstream(p, std::ios::binary) << bytes;
  return p.string();
}

}  // namespace pellam::testing
