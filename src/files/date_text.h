#pragma once

#include <string>

#include "ui/dialogs.h"

namespace pellam::files {

// The date and time as the board's files have always printed them: "11/23/2026", "1:33:10 AM".
std::string dateText(const ui::DateTime& t);
std::string timeText(const ui::DateTime& t);

}  // namespace pellam::files
