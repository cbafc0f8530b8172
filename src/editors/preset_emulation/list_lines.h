#pragma once

#include <string>
#include <string_view>

#include "job/tables.h"

namespace pellam::editors::preset_emulation {

// The name of a station kind code: 7, 9, 10, 11, 12; empty for any other.
std::string_view stationKindName(int kind);

// The action text of a rebuilt line; `previous` is reused for an unknown kind, as the list
// has always done.
std::string rebuiltActionText(const job::PresetRecord& r, const std::string& previous);

// The action text of a line the input chooser lists: a button release by name, the rest as
// rebuilt.
std::string chosenActionText(const job::PresetRecord& r, const std::string& previous);

// The action text of the line an add appends for the record at (net id slot, input slot).
// A T6600 LCD line reads its neighbours (the next net id, the next input), as the page always has.
std::string addedActionText(job::PresetEmulationTable& table, int netIdSlot, int inputSlot);

// Type name + "  NetId: " + net id + "  Personality  " + personality + action text.
std::string entryLine(std::string_view kindName, const job::PresetRecord& r, const std::string& actionText);

}  // namespace pellam::editors::preset_emulation
