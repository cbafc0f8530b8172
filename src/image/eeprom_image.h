#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "image/memory_map.h"

namespace pellam::image {

// A value converted for storage: outside 0..255 is a run-time error, never a wrap.
std::uint8_t toByte(int value);

// The board's EEPROM as the tool mirrors it. Every access is checked against the image's bounds.
class EepromImage {
 public:
  std::uint8_t at(int index) const {
    checkIndex(index);
    return bytes_[static_cast<std::size_t>(index)];
  }
  void put(int index, int value);
  void fill(int first, int last, std::uint8_t value);
  std::span<const std::uint8_t, map::kImageSize> bytes() const { return bytes_; }
  std::span<std::uint8_t, map::kImageSize> bytes() { return bytes_; }

 private:
  static void checkIndex(int index) {
    if (index < 0 || index >= map::kImageSize) outOfRange();
  }
  [[noreturn]] static void outOfRange();
  std::array<std::uint8_t, map::kImageSize> bytes_{};
};

}  // namespace pellam::image
