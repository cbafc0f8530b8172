#include "image/eeprom_image.h"

#include <algorithm>

#include "job/runtime_error.h"

namespace pellam::image {

std::uint8_t toByte(int value) {
  if (value < 0 || value > 255) throw job::RuntimeError(job::kOverflow);
  return static_cast<std::uint8_t>(value);
}

void EepromImage::outOfRange() { throw job::RuntimeError(job::kSubscriptOutOfRange); }

void EepromImage::put(int index, int value) {
  checkIndex(index);
  bytes_[static_cast<std::size_t>(index)] = toByte(value);
}

void EepromImage::fill(int first, int last, std::uint8_t value) {
  checkIndex(first);
  checkIndex(last);
  std::fill(bytes_.begin() + first, bytes_.begin() + last + 1, value);
}

}  // namespace pellam::image
