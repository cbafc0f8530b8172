#pragma once

#include <string>
#include <string_view>

#include "job/tables.h"
#include "ui/list_line.h"

namespace pellam::editors::station_link {

// The station-type list's text of a type code, empty when the list has none.
std::string_view stationTypeName(int code);

// "Room: 4 T6600 LCD  NetId: 21"
inline std::string linkLine(const job::StationLinkRecord& r, std::string_view typeText) {
  return ui::listLine("Room: ", r.LinkRoom, " ", typeText, "  NetId: ", r.LinkNetId);
}

}  // namespace pellam::editors::station_link
