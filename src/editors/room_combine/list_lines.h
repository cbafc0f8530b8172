#pragma once

#include <string>

#include "job/tables.h"

namespace pellam::editors::room_combine {

// "Room 5,  Group 3, Channel:12"
inline std::string allLine(const job::RoomCombineRecord& r) {
  return "Room " + std::to_string(r.CombineRoom) + ",  Group " + std::to_string(r.CombineGroup) +
         ", Channel:" + std::to_string(r.CombineChannel);
}

// The add button builds its line from the three choices' texts; with the start-up lists it
// reads as the "all" line.
inline std::string addedLine(const std::string& roomText, const std::string& groupText,
                             const std::string& channelText) {
  return roomText + ",  " + groupText + ", " + "Channel:" + channelText;
}

inline std::string roomLine(const job::RoomCombineRecord& r) {
  return "Room:" + std::to_string(r.CombineRoom) + ", Group: " + std::to_string(r.CombineGroup) +
         ",  Channel:" + std::to_string(r.CombineChannel);
}

inline std::string groupLine(const job::RoomCombineRecord& r) {
  return "Group:" + std::to_string(r.CombineGroup) + ",  Room: " + std::to_string(r.CombineRoom) +
         ", Channel:" + std::to_string(r.CombineChannel);
}

}  // namespace pellam::editors::room_combine
