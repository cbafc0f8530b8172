#pragma once

#include <charconv>
#include <concepts>
#include <string>
#include <string_view>

namespace pellam::ui {

namespace detail {

struct Digits {
  char text[12];
  std::size_t size;
  explicit Digits(int value) : size(static_cast<std::size_t>(std::to_chars(text, text + sizeof text, value).ptr - text)) {}
  operator std::string_view() const { return {text, size}; }
};

inline std::string_view piece(std::string_view text) { return text; }
template <std::size_t N>
std::string_view piece(const char (&text)[N]) {
  return {text, N - 1};
}
inline Digits piece(std::integral auto value) { return Digits(static_cast<int>(value)); }

template <class... Pieces>
std::string join(const Pieces&... pieces) {
  std::string line;
  line.reserve((std::string_view(pieces).size() + ...));
  (line.append(std::string_view(pieces)), ...);
  return line;
}

}  // namespace detail

// One list line from texts and numbers, numbers written as decimal: lines are rebuilt whole,
// thousands at a time when a job opens, so each takes a single allocation.
template <class... Parts>
std::string listLine(const Parts&... parts) {
  return detail::join(detail::piece(parts)...);
}

}  // namespace pellam::ui
