#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "job/tables.h"
#include "ui/dialogs.h"

namespace pellam::files {

// Rooms and groups in use, kept for the life of the session: each report clears entries
// 0..254 only, so a room or group 255 once in use stays listed, as it always has.
struct RoomsAndGroupsInUse {
  std::array<std::int16_t, 256> rooms{};
  std::array<std::int16_t, 256> groups{};
};
void RebuildRoomsAndGroupsInUse(const job::RoomCombineTable& table, RoomsAndGroupsInUse& use);

struct ReportLists {
  const std::vector<std::string>& roomCombine;  // the all view, line n - 1 for line number n
  const std::vector<std::string>& roomLinks;
  const std::vector<std::string>& stations;
};

// The readable room-combine listing: by room then group, by group then room, then the room
// links and station locations as their lists show them. Records 2048 and up are not in it.
std::string RoomCombineReport(const job::RoomCombineTable& table, const RoomsAndGroupsInUse& use,
                              const ReportLists& lists, const ui::DateTime& now);

}  // namespace pellam::files
