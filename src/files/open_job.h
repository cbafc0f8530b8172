#pragma once

#include <cstdint>
#include <fstream>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace pellam::files {

// The names of the folder's .zpd files, sorted; empty when there are none or the folder
// cannot be read.
std::vector<std::string> ListImageFiles(const std::string& folder);

// An image file opened for reading, or nothing when the path is not a readable file.
std::optional<std::ifstream> OpenImageFile(const std::string& path);
// Reads up to the span's size; returns how many bytes the file gave, or -1 on a read error.
long ReadImageBytes(std::ifstream& file, std::span<std::uint8_t> into);

// The room-combine report that a mode-3 save writes beside the image.
std::string companionReportPath(const std::string& zpdPath);
// A whole text file, or nothing when it cannot be read.
std::optional<std::string> ReadTextFile(const std::string& path);

}  // namespace pellam::files
