#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "image/eeprom_image.h"
#include "ui/dialogs.h"

namespace pellam::files {

// Reads the product-type byte of an image file into the image and tells whether to open the
// file: 1 go on, -1 stop. A file of another kind is opened only when the person says so.
std::int16_t CheckFileType(const std::string& path, image::EepromImage& image, ui::Dialogs& dialogs);

// A file that is to go to a station: its bytes when it is exactly a job image of this board,
// otherwise why not, in the words every face shows.
struct JobImage {
  std::vector<std::uint8_t> bytes;
  std::string problem;
};
JobImage ReadJobImage(const std::string& path);

}  // namespace pellam::files
