#pragma once

#include <charconv>
#include <string>
#include <string_view>

#include "ui/list_line.h"

namespace pellam::editors::remote_commands {

// "NetId 5 Led 3" in the LED mode (1), "NetId 5 Btn 3" in the button mode (2).
inline std::string commandLine(int netId, int value, int remoteMode) {
  return ui::listLine("NetId ", netId, remoteMode == 1 ? " Led " : " Btn ", value);
}

// The net id a command line stands for, in either wording; -1 when the text is no command line.
inline int netIdOfLine(std::string_view line) {
  constexpr std::string_view kPrefix = "NetId ";
  if (!line.starts_with(kPrefix)) return -1;
  line.remove_prefix(kPrefix.size());
  int netId = -1;
  if (std::from_chars(line.data(), line.data() + line.size(), netId).ec != std::errc{}) return -1;
  return netId;
}

}  // namespace pellam::editors::remote_commands
