#pragma once

#include <string>

namespace pellam::editors::channel_emulation {

// "Channel :12 @ % 75": the at-sign before the percent sign, as the editor has always shown it.
inline std::string channelLine(int channel, int level) {
  return "Channel :" + std::to_string(channel) + " @ % " + std::to_string(level);
}

}  // namespace pellam::editors::channel_emulation

namespace pellam::editors::channel_emulation {

// The fade label reads "Minutes" for code 61 where the list says "1 Minute"; kept so.
inline std::string fadeRateLabel(int code) {
  return code <= 60 ? "Fade Rate: " + std::to_string(code - 1) + " Seconds"
                    : "Fade Rate: " + std::to_string(code - 60) + " Minutes";
}

}  // namespace pellam::editors::channel_emulation
