#pragma once

#include <string>

#include "job/tables.h"
#include "ui/list_line.h"

namespace pellam::editors::room_combine {

// "Room 5,  Group 3, Channel:12"
inline std::string allLine(const job::RoomCombineRecord& r) {
  return ui::listLine("Room ", r.CombineRoom, ",  Group ", r.CombineGroup, ", Channel:", r.CombineChannel);
}

// The add button builds its line from the three choices' texts; with the start-up lists it
// reads as the "all" line.
inline std::string addedLine(const std::string& roomText, const std::string& groupText,
                             const std::string& channelText) {
  return ui::listLine(roomText, ",  ", groupText, ", Channel:", channelText);
}

inline std::string roomLine(const job::RoomCombineRecord& r) {
  return ui::listLine("Room:", r.CombineRoom, ", Group: ", r.CombineGroup, ",  Channel:", r.CombineChannel);
}

inline std::string groupLine(const job::RoomCombineRecord& r) {
  return ui::listLine("Group:", r.CombineGroup, ",  Room: ", r.CombineRoom, ", Channel:", r.CombineChannel);
}

}  // namespace pellam::editors::room_combine
