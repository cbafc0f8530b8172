#pragma once

#include <optional>
#include <string>

#include "job/tables.h"

// The room and group labels have no place in the board's image, so a job keeps them in a small
// text file of its own beside the image.
namespace pellam::files {

inline constexpr const char* kLabelsSuffix = "Labels.txt";

// One line a label or name: "room<TAB>4<TAB>Lobby", "group<TAB>2<TAB>East",
// "name<TAB>4<TAB>7<TAB>Front"; a tab, line break or backslash in a text is escaped. Empty
// when the job has none.
std::string LabelsText(const job::RoomGroupNames& names);

// The labels of a file written by LabelsText, or the number of the first line that is not
// one of its lines.
struct ReadLabels {
  job::RoomGroupNames names;
  int badLine = 0;
};
ReadLabels ParseLabels(const std::string& text);

}  // namespace pellam::files
