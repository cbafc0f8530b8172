#pragma once

#include <string>
#include <string_view>

#include "job/tables.h"

namespace pellam::editors::station_link {

// The station-type list's text of a type code, empty when the list has none.
std::string_view stationTypeName(int code);

// "Room: 4 T6600 LCD  NetId: 21"
inline std::string linkLine(const job::StationLinkRecord& r, std::string_view typeText) {
  return "Room: " + std::to_string(r.LinkRoom) + " " + std::string(typeText) + "  NetId: " + std::to_string(r.LinkNetId);
}

}  // namespace pellam::editors::station_link
