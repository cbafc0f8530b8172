#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ui/controls.h"

// The fixed choice lists of the form. Combo boxes open with a blank item " " at position 0
// (nothing chosen), so that a choice's list position is the value stored.
namespace pellam::ui::lists {

inline constexpr std::string_view kBlank = " ";

// prefix + n + suffix for n = first..last.
std::vector<std::string> numbered(std::string_view prefix, int first, int last, std::string_view suffix = {});
std::vector<std::string> withBlank(std::vector<std::string> items);

std::vector<std::string> operatingModes();
std::vector<std::string> masterSlave();
std::vector<std::string> slaveIds();
std::vector<std::string> hardwareTypes();
// selector 1 reduces the list to "Toggle"; "Latch Unlatch" only for channel and preset emulation.
std::vector<std::string> inputActions(int selector, int operatingMode);
std::vector<std::string> refreshRates();

std::vector<std::string> fadeRates();
std::vector<std::string> levels();
const FixedList& firstChannels();
std::vector<std::string> inputs();
const FixedList& rooms();
const FixedList& groups();
const FixedList& channels();

std::vector<std::string> presetStationKinds();
std::vector<std::string> linkStationTypes();
std::vector<std::string> personalitySeries();
std::vector<std::string> netIds();        // " ", "1" .. "127": list index = net id
std::vector<std::string> netIdNames();    // "NetID 1" .. "NetID 127": list index + 1 = net id
const FixedList& personalities();  // " ", "Personality 1" .. "Personality 255"

const FixedList& remoteNetIds();
std::vector<std::string> remotePages();
std::vector<std::string> remoteButtons();

}  // namespace pellam::ui::lists
