#pragma once

#include <cstdint>
#include <vector>

#include "job/tables.h"
#include "ui/controls.h"

namespace pellam::editors::room_combine {

// The "all" view: every record in use, channels 0..2048, each record numbering its line from 1.
void RebuildAllView(job::RoomCombineTable& table, ui::ListBox& list);
// One room's or one group's records, channels 0..2047; each returns how many lines it listed.
int RebuildRoomView(job::RoomCombineTable& table, ui::ListBox& list, int room);
int RebuildGroupView(job::RoomCombineTable& table, ui::ListBox& list, int group);

// The page rebuilds the "all" view before every add. Knowing which records the list already
// shows lets it renumber them instead of rewriting thousands of unchanged lines each time.
class AllView {
 public:
  void rebuild(job::RoomCombineTable& table, ui::ListBox& list);
  // The record's "all" line was just appended to a list that showed this view.
  void appended(const job::RoomCombineRecord& r);
  // The list shows something else now.
  void forget() { known_ = false; }

 private:
  struct Entry {
    std::uint16_t channel, group, room;
    bool operator==(const Entry&) const = default;
  };
  static Entry entryOf(const job::RoomCombineRecord& r) { return {r.CombineChannel, r.CombineGroup, r.CombineRoom}; }
  bool renumber(job::RoomCombineTable& table, const ui::ListBox& list) const;

  std::vector<Entry> listed_;
  bool known_ = false;
};

}  // namespace pellam::editors::room_combine
