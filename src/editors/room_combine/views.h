#pragma once

#include "job/tables.h"
#include "ui/controls.h"

namespace pellam::editors::room_combine {

// The "all" view: every record in use, channels 0..2048, each record numbering its line from 1.
void RebuildAllView(job::RoomCombineTable& table, ui::ListBox& list);

}  // namespace pellam::editors::room_combine
