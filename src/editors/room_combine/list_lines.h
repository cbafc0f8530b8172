#pragma once

#include <string>

#include "job/tables.h"

namespace pellam::editors::room_combine {

// "Room 5,  Group 3, Channel:12"
inline std::string allLine(const job::RoomCombineRecord& r) {
  return "Room " + std::to_string(r.CombineRoom) + ",  Group " + std::to_string(r.CombineGroup) +
         ", Channel:" + std::to_string(r.CombineChannel);
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
