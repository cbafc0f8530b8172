#include "files/date_text.h"

#include <cstdio>

namespace pellam::files {

std::string dateText(const ui::DateTime& t) {
  return std::to_string(t.month) + "/" + std::to_string(t.day) + "/" + std::to_string(t.year);
}

std::string timeText(const ui::DateTime& t) {
  const int hour12 = t.hour % 12 == 0 ? 12 : t.hour % 12;
  char text[24];
  std::snprintf(text, sizeof text, "%d:%02d:%02d %s", hour12, t.minute, t.second, t.hour < 12 ? "AM" : "PM");
  return text;
}

}  // namespace pellam::files
