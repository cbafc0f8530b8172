#pragma once

#include <optional>
#include <string>

namespace pellam::files {

// A controller's address as typed: an IPv4 or IPv6 address or a host name, with an optional
// port. Nothing else gets through, since the text ends up in a URL and a command line.
struct ControllerAddress {
  std::string host;  // without brackets
  int port = 21;
  bool ipv6 = false;

  std::string urlHost() const { return ipv6 ? "[" + host + "]" : host; }
};

std::optional<ControllerAddress> parseControllerAddress(const std::string& text);

}  // namespace pellam::files
