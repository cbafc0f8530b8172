#pragma once

#include <string>
#include <string_view>

#include "job/tables.h"
#include "ui/list_line.h"

namespace pellam::editors::station_personality {

inline std::string_view seriesName(int series) {
  return series == 10 ? "T3100 Series" : series == 9 ? "T6600 Series" : "";
}

// "T6600 Series  NetId: 21  Personality  3  Room : 4"
inline std::string personalityLine(std::string_view seriesText, const job::StationPersonalityRecord& r) {
  return ui::listLine(seriesText, "  NetId: ", r.PersNetIdPlusOne, "  Personality  ", r.PersNumber, "  Room : ",
                      r.PersRoom);
}

}  // namespace pellam::editors::station_personality
