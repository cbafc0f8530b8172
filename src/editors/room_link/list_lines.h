#pragma once

#include <string>

#include "job/tables.h"
#include "ui/list_line.h"

// The three groups of the room-link editor word their lines differently; each wording is kept.
namespace pellam::editors::room_link {

// Groups A and B: "Input:3  Links Rooms:  2 and 5".
inline std::string lineFormat1(const job::RoomLinkRecord& r) {
  return ui::listLine("Input:", r.LinkInput, "  Links Rooms:  ", r.FirstRoom, " and ", r.SecondRoom);
}

// Group C, a line just added.
inline std::string lineFormat2(const job::RoomLinkRecord& r) {
  return ui::listLine("Input:", r.LinkInput, ", Links Rooms, ", r.FirstRoom, ",and,", r.SecondRoom);
}

// Group C, lines rebuilt after a delete.
inline std::string lineFormat3(const job::RoomLinkRecord& r) {
  return ui::listLine("Input:", r.LinkInput, ",  Links Rooms: ,", r.FirstRoom, ",and ,", r.SecondRoom);
}

// Any group, lines listed when a job is opened.
inline std::string lineFormatDecoded(const job::RoomLinkRecord& r) {
  return ui::listLine("Input:", r.LinkInput, ",Links Rooms,", r.FirstRoom, ",and,", r.SecondRoom);
}

}  // namespace pellam::editors::room_link
