#include "files/controller_address.h"

#include <algorithm>
#include <cctype>
#include <string_view>
#include <vector>

namespace pellam::files {

namespace {

bool allOf(std::string_view s, int (*test)(int)) {
  return !s.empty() && std::all_of(s.begin(), s.end(), [test](char c) { return test(static_cast<unsigned char>(c)) != 0; });
}

std::vector<std::string_view> split(std::string_view s, char by) {
  std::vector<std::string_view> parts;
  for (std::size_t from = 0;;) {
    const std::size_t at = s.find(by, from);
    parts.push_back(s.substr(from, at == std::string_view::npos ? std::string_view::npos : at - from));
    if (at == std::string_view::npos) return parts;
    from = at + 1;
  }
}

std::optional<int> port(std::string_view s) {
  if (!allOf(s, isdigit) || s.size() > 5) return std::nullopt;
  const int p = std::stoi(std::string(s));
  return p >= 1 && p <= 65535 ? std::optional<int>(p) : std::nullopt;
}

bool isIPv4(std::string_view s) {
  const auto parts = split(s, '.');
  if (parts.size() != 4) return false;
  return std::all_of(parts.begin(), parts.end(),
                     [](std::string_view p) { return allOf(p, isdigit) && p.size() <= 3 && std::stoi(std::string(p)) <= 255; });
}

bool isIPv6(std::string_view s) {
  if (s.size() < 2 || s.size() > 45) return false;
  const std::size_t gap = s.find("::");
  if (gap != std::string_view::npos && s.find("::", gap + 1) != std::string_view::npos) return false;
  int groups = 0;
  auto part = [&](std::string_view half, bool mayEndInIPv4) {
    if (half.empty()) return true;
    const auto pieces = split(half, ':');
    for (std::size_t i = 0; i < pieces.size(); ++i) {
      if (mayEndInIPv4 && i + 1 == pieces.size() && isIPv4(pieces[i])) {
        groups += 2;
      } else if (allOf(pieces[i], isxdigit) && pieces[i].size() <= 4) {
        ++groups;
      } else {
        return false;
      }
    }
    return true;
  };
  if (gap == std::string_view::npos) return part(s, true) && groups == 8;
  return part(s.substr(0, gap), false) && part(s.substr(gap + 2), true) && groups <= 7;
}

bool isHostName(std::string_view s) {
  if (s.empty() || s.size() > 253) return false;
  const auto labels = split(s, '.');
  const bool labelsFine = std::all_of(labels.begin(), labels.end(), [](std::string_view l) {
    return !l.empty() && l.size() <= 63 && l.front() != '-' && l.back() != '-' &&
           std::all_of(l.begin(), l.end(), [](char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '-'; });
  });
  // All-numeric names are addresses, and a wrong one ("300.1.1.1") must not pass as a name.
  return labelsFine && !allOf(labels.back(), isdigit);
}

}  // namespace

std::optional<ControllerAddress> parseControllerAddress(const std::string& text) {
  std::string_view s = text;
  if (s.empty()) return std::nullopt;
  if (s.front() == '[') {
    const std::size_t close = s.find(']');
    if (close == std::string_view::npos) return std::nullopt;
    const std::string_view host = s.substr(1, close - 1);
    const std::string_view rest = s.substr(close + 1);
    if (!isIPv6(host)) return std::nullopt;
    if (rest.empty()) return ControllerAddress{std::string(host), 21, true};
    if (rest.front() != ':') return std::nullopt;
    const auto p = port(rest.substr(1));
    if (!p) return std::nullopt;
    return ControllerAddress{std::string(host), *p, true};
  }
  if (std::count(s.begin(), s.end(), ':') >= 2) {
    if (!isIPv6(s)) return std::nullopt;
    return ControllerAddress{std::string(s), 21, true};
  }
  int portNumber = 21;
  if (const std::size_t colon = s.find(':'); colon != std::string_view::npos) {
    const auto p = port(s.substr(colon + 1));
    if (!p) return std::nullopt;
    portNumber = *p;
    s = s.substr(0, colon);
  }
  if (!isIPv4(s) && !isHostName(s)) return std::nullopt;
  return ControllerAddress{std::string(s), portNumber, false};
}

}  // namespace pellam::files
