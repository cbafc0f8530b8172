#include "editors/station_link/list_lines.h"

namespace pellam::editors::station_link {

std::string_view stationTypeName(int code) {
  switch (code) {
    case 10: return "T3100 LCD";
    case 9: return "T6600 LCD";
    case 13: return "T6600 Slider";
    case 14: return "Wallport";
    case 7: return "T6600 Entry";
    default: return "";
  }
}

}  // namespace pellam::editors::station_link
