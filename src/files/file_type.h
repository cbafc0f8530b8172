#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "image/eeprom_image.h"

namespace pellam::files {

enum class FileKind { Unreadable, PellamJob, OtherKind };

// Reads the product-type byte of an image file into the image (0 when the file is too short to
// hold it) and tells what the file is; a save of it that was cut off is settled first.
FileKind ReadProductType(const std::string& path, image::EepromImage& image);

// A file that is to go to a station: its bytes when it is exactly a job image of this board,
// otherwise why not, in the words every face shows.
struct JobImage {
  std::vector<std::uint8_t> bytes;
  std::string problem;
};
JobImage ReadJobImage(const std::string& path);

}  // namespace pellam::files
