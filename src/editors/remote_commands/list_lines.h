#pragma once

#include <string>

namespace pellam::editors::remote_commands {

// "NetId 5 Led 3" in the LED mode (1), "NetId 5 Btn 3" in the button mode (2).
inline std::string commandLine(int netId, int value, int remoteMode) {
  return "NetId " + std::to_string(netId) + (remoteMode == 1 ? " Led " : " Btn ") + std::to_string(value);
}

}  // namespace pellam::editors::remote_commands
