#include "editors/room_combine/views.h"

#include <string>

#include "editors/room_combine/list_lines.h"

namespace pellam::editors::room_combine {

namespace {

// Every view clears all line numbers first, then numbers its own lines from 1.
template <typename Matches, typename Line>
int rebuild(job::RoomCombineTable& table, ui::ListBox& list, int last, Matches matches, Line line) {
  std::vector<std::string> lines;
  for (int c = 0; c <= job::kLastChannel; ++c) {
    job::RoomCombineRecord& r = table.records[static_cast<std::size_t>(c)];
    r.CombineListLine = 0;
    if (c > last || !matches(r)) continue;
    lines.push_back(line(r));
    r.CombineListLine = static_cast<std::uint16_t>(lines.size());
  }
  const int count = static_cast<int>(lines.size());
  list.setItems(std::move(lines));
  return count;
}

bool inUse(const job::RoomCombineRecord& r) { return r.CombineChannel != 0; }

}  // namespace

void RebuildAllView(job::RoomCombineTable& table, ui::ListBox& list) {
  rebuild(table, list, job::kLastChannel, inUse, allLine);
}

int RebuildRoomView(job::RoomCombineTable& table, ui::ListBox& list, int room) {
  const auto inRoom = [room](const job::RoomCombineRecord& r) { return r.CombineRoom == room; };
  return rebuild(table, list, job::kLastScannedChannel, inRoom, roomLine);
}

int RebuildGroupView(job::RoomCombineTable& table, ui::ListBox& list, int group) {
  const auto inGroup = [group](const job::RoomCombineRecord& r) { return r.CombineGroup == group; };
  return rebuild(table, list, job::kLastScannedChannel, inGroup, groupLine);
}

void AllView::rebuild(job::RoomCombineTable& table, ui::ListBox& list) {
  if (renumber(table, list)) return;
  RebuildAllView(table, list);
  listed_.clear();
  for (int c = 0; c <= job::kLastChannel; ++c) {
    const job::RoomCombineRecord& r = table.records[static_cast<std::size_t>(c)];
    if (inUse(r)) listed_.push_back(entryOf(r));
  }
  known_ = true;
}

// The count guards against the list being emptied behind the page's back (start-up, unload).
bool AllView::renumber(job::RoomCombineTable& table, const ui::ListBox& list) const {
  if (!known_ || list.count() != static_cast<int>(listed_.size())) return false;
  std::size_t line = 0;
  for (int c = 0; c <= job::kLastChannel; ++c) {
    job::RoomCombineRecord& r = table.records[static_cast<std::size_t>(c)];
    r.CombineListLine = 0;
    if (!inUse(r)) continue;
    if (line == listed_.size() || listed_[line] != entryOf(r)) return false;
    r.CombineListLine = static_cast<std::uint16_t>(++line);
  }
  return line == listed_.size();
}

void AllView::appended(const job::RoomCombineRecord& r) {
  // Only a channel above every listed one lands where the view itself would put it.
  if (known_ && (listed_.empty() || listed_.back().channel < r.CombineChannel)) {
    listed_.push_back(entryOf(r));
  } else {
    known_ = false;
  }
}

}  // namespace pellam::editors::room_combine
