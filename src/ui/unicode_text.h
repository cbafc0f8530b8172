#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Texts are kept as UTF-8, but a host counts their characters as UTF-16 units: lengths and
// positions a host can see are taken in those units.
namespace pellam::ui {

// The number of UTF-16 units of a text; a byte that starts no valid sequence counts as one.
std::size_t utf16Length(std::string_view utf8);

// The last `units` UTF-16 units of a text, never cut inside a character: a character of two
// units that would be cut in half is left out.
std::string rightUtf16Units(std::string_view utf8, std::size_t units);

}  // namespace pellam::ui
