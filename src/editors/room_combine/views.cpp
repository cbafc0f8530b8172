#include "editors/room_combine/views.h"

#include <vector>

#include "editors/room_combine/list_lines.h"

namespace pellam::editors::room_combine {

namespace {
constexpr std::size_t kLastChannel = 2048;
}

void RebuildAllView(job::RoomCombineTable& table, ui::ListBox& list) {
  std::vector<std::string> lines;
  for (std::size_t c = 0; c <= kLastChannel; ++c) {
    job::RoomCombineRecord& r = table.records[c];
    r.CombineListLine = 0;
    if (r.CombineChannel == 0) continue;
    lines.push_back(allLine(r));
    r.CombineListLine = static_cast<std::uint16_t>(lines.size());
  }
  list.setItems(std::move(lines));
}

}  // namespace pellam::editors::room_combine
