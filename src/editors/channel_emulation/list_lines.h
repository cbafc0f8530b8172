#pragma once

#include <string>

#include "ui/list_line.h"

namespace pellam::editors::channel_emulation {

// "Channel :12 @ % 75": the at-sign before the percent sign, as the editor has always shown it.
inline std::string channelLine(int channel, int level) {
  return ui::listLine("Channel :", channel, " @ % ", level);
}

}  // namespace pellam::editors::channel_emulation

namespace pellam::editors::channel_emulation {

// The fade label reads "Minutes" for code 61 where the list says "1 Minute"; kept so.
inline std::string fadeRateLabel(int code) {
  return code <= 60 ? ui::listLine("Fade Rate: ", code - 1, " Seconds")
                    : ui::listLine("Fade Rate: ", code - 60, " Minutes");
}

}  // namespace pellam::editors::channel_emulation
