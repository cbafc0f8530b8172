#include "ui/unicode_text.h"

#include <vector>

namespace pellam::ui {

namespace {

struct Character {
  std::size_t start;
  std::size_t units;  // 2 for a character beyond the basic plane
};

// Splits at character starts; an invalid byte stands for itself, as the host's conversion
// would give one replacement character for it.
std::vector<Character> characters(std::string_view s) {
  std::vector<Character> out;
  out.reserve(s.size());
  for (std::size_t i = 0; i < s.size();) {
    const auto lead = static_cast<unsigned char>(s[i]);
    std::size_t length = lead < 0x80 ? 1 : lead >= 0xC2 && lead < 0xE0 ? 2 : lead >= 0xE0 && lead < 0xF0 ? 3
                       : lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
    for (std::size_t k = 1; k < length; ++k) {
      if (i + k >= s.size() || (static_cast<unsigned char>(s[i + k]) & 0xC0) != 0x80) length = 0;
    }
    if (length == 0) length = 1;
    out.push_back({i, length == 4 ? 2u : 1u});
    i += length;
  }
  return out;
}

}  // namespace

std::size_t utf16Length(std::string_view utf8) {
  std::size_t units = 0;
  for (const Character& c : characters(utf8)) units += c.units;
  return units;
}

std::string rightUtf16Units(std::string_view utf8, std::size_t units) {
  const std::vector<Character> chars = characters(utf8);
  std::size_t start = utf8.size();
  for (auto c = chars.rbegin(); c != chars.rend() && c->units <= units; ++c) {
    units -= c->units;
    start = c->start;
  }
  return std::string(utf8.substr(start));
}

}  // namespace pellam::ui
