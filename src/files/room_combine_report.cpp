#include "files/room_combine_report.h"

#include <algorithm>

#include "files/command_text.h"
#include "files/date_text.h"
#include "job/domain.h"
#include "job/runtime_error.h"

namespace pellam::files {

namespace {

constexpr auto kLastReported = static_cast<std::size_t>(job::kLastScannedChannel);
const std::string kDashes(36, '-');
const std::string kCrLfs = std::string(kCrLf);

struct Entry {
  int room, group, channel;
};

std::vector<Entry> entriesInUse(const job::RoomCombineTable& table) {
  std::vector<Entry> entries;
  for (std::size_t c = 0; c <= kLastReported; ++c) {
    const job::RoomCombineRecord& r = table.records[c];
    if (r.CombineChannel > 0) entries.push_back({r.CombineRoom, r.CombineGroup, static_cast<int>(c)});
  }
  return entries;
}

// One pass of the body. Sorting once stands in for the room x group x record walk; headings
// still follow the in-use tables, so a kept room 255 gets its heading even without lines.
template <typename Outer, typename Inner>
void pass(std::string& out, std::vector<Entry> entries, const std::array<std::int16_t, 256>& outerInUse,
          const std::array<std::int16_t, 256>& innerInUse, const std::vector<std::string>& lines,
          const job::RoomCombineTable& table, Outer outerOf, Inner innerOf, const std::string& headingWord) {
  std::stable_sort(entries.begin(), entries.end(), [&](const Entry& a, const Entry& b) {
    return std::pair(outerOf(a), innerOf(a)) < std::pair(outerOf(b), innerOf(b));
  });
  auto at = entries.begin();
  for (int outer = 1; outer <= 255; ++outer) {
    if (outerInUse[static_cast<std::size_t>(outer)] == 0) continue;
    out.append(kDashes).append(kCrLf).append(kCrLf).append("    ####").append(headingWord);
    out.append(std::to_string(outer)).append(" #####").append(kCrLf).append(kCrLf);
    while (at != entries.end() && outerOf(*at) < outer) ++at;
    for (; at != entries.end() && outerOf(*at) == outer; ++at) {
      if (innerInUse[static_cast<std::size_t>(innerOf(*at))] == 0) continue;
      const int line = table.records[static_cast<std::size_t>(at->channel)].CombineListLine;
      if (line < 1 || line > static_cast<int>(lines.size())) throw job::RuntimeError(job::kSubscriptOutOfRange);
      out.append(lines[static_cast<std::size_t>(line - 1)]).append(kCrLf);
    }
    out.append(kDashes).append(kCrLf).append(kCrLf);
  }
}

}  // namespace

void RebuildRoomsAndGroupsInUse(const job::RoomCombineTable& table, RoomsAndGroupsInUse& use) {
  std::fill(use.rooms.begin(), use.rooms.begin() + 255, 0);
  std::fill(use.groups.begin(), use.groups.begin() + 255, 0);
  for (std::size_t c = 0; c <= kLastReported; ++c) {
    const job::RoomCombineRecord& r = table.records[c];
    if (r.CombineChannel == 0) continue;
    if (r.CombineRoom > 255 || r.CombineGroup > 255) throw job::RuntimeError(job::kSubscriptOutOfRange);
    use.rooms[r.CombineRoom] = static_cast<std::int16_t>(r.CombineRoom);
    use.groups[r.CombineGroup] = static_cast<std::int16_t>(r.CombineGroup);
  }
}

std::string RoomCombineReport(const job::RoomCombineTable& table, const RoomsAndGroupsInUse& use,
                              const ReportLists& lists, const ui::DateTime& now) {
  std::string out = std::string(35, '*') + kCrLf + "Date " + dateText(now) + kCrLf + "Time " + timeText(now) + kCrLf +
                    "Combine Data is Sorted By Room Then By Group" + kCrLf + kCrLf +
                    "Comma delimited Text file listing of room combine data" + kCrLf;
  // Sized once: a maximal report is larger than the allocator keeps on its heap, and growing
  // it step by step maps and faults in fresh pages every time.
  std::size_t size = out.size() + 2 * 255 * 96;
  for (const std::vector<std::string>* list : {&lists.roomCombine, &lists.roomCombine, &lists.roomLinks, &lists.stations}) {
    for (const std::string& line : *list) size += line.size() + 2;
  }
  out.reserve(size + 256);
  const std::vector<Entry> entries = entriesInUse(table);
  pass(out, entries, use.rooms, use.groups, lists.roomCombine, table, [](const Entry& e) { return e.room; },
       [](const Entry& e) { return e.group; }, "Room ");
  pass(out, entries, use.groups, use.rooms, lists.roomCombine, table, [](const Entry& e) { return e.group; },
       [](const Entry& e) { return e.room; }, " Group ");
  out += kCrLfs + kCrLf + "****Room Links****" + kCrLf + kCrLf;
  for (const std::string& line : lists.roomLinks) out.append(line).append(kCrLf);
  out += kCrLfs + kCrLf + "**Station Locations**" + kCrLf + kCrLf;
  for (const std::string& line : lists.stations) out.append(line).append(kCrLf);
  return out;
}

}  // namespace pellam::files
