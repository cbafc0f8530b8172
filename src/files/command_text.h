#pragma once

#include <string>
#include <vector>

#include "job/job.h"

// The text command files a terminal program sends to the board: one-letter codes, decimal
// numbers, "," and ":", with CR LF written before a command, not after it.
namespace pellam::files {

inline constexpr const char* kCrLf = "\r\n";

// Whole-file texts: every row in use, in index order (the file adds CR LF CR LF at its end).
std::string RoomLinkText(const job::RoomLinkTable& table);
std::string RoomCombineText(const job::RoomCombineTable& table);
std::string StationTextFormA(const job::StationLinkTable& table);
std::string StationTextFormB(const job::StationLinkTable& table);

// Per-input texts, each ending in its only ":"; empty for an input with nothing to send.
// Input 16 of the presets is written as input 0 of bank 1, as the board expects.
std::string PresetInputText(const job::PresetEmulationTable& table, int input);
std::string ChannelInputText(const job::ChannelEmulationTable& table, int input);

}  // namespace pellam::files
