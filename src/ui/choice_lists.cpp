#include "ui/choice_lists.h"

#include "job/domain.h"

namespace pellam::ui::lists {

std::vector<std::string> numbered(std::string_view prefix, int first, int last, std::string_view suffix) {
  std::vector<std::string> items;
  items.reserve(static_cast<std::size_t>(last >= first ? last - first + 2 : 1));
  for (int n = first; n <= last; ++n) {
    std::string item(prefix);
    item += std::to_string(n);
    item += suffix;
    items.push_back(std::move(item));
  }
  return items;
}

std::vector<std::string> withBlank(std::vector<std::string> items) {
  items.insert(items.begin(), std::string(kBlank));
  return items;
}

namespace {
void append(std::vector<std::string>& to, std::vector<std::string> more) {
  to.insert(to.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}
}  // namespace

std::vector<std::string> operatingModes() {
  return {" ", "Channel Emulation", "Room Link ", "Room Combine", "Preset Emulation", "Station Link"};
}

std::vector<std::string> masterSlave() { return {" ", "Master Station", "Slaved Station"}; }

std::vector<std::string> slaveIds() { return withBlank(numbered("", 1, 127)); }

std::vector<std::string> hardwareTypes() { return {" ", "T3100 Room Combine Station", "Pellam"}; }

std::vector<std::string> inputActions(int selector, int operatingMode) {
  if (selector == 1) return {" ", "Toggle"};
  std::vector<std::string> items{" ", "Toggle", "Momentary", "Normal Action", "Continuous"};
  if (operatingMode == 1 || operatingMode == 4) items.emplace_back("Latch Unlatch");
  return items;
}

std::vector<std::string> refreshRates() {
  std::vector<std::string> items{" ", "1 Second"};
  append(items, numbered("", 2, 180, " Seconds"));
  items.emplace_back("1 Minute");
  append(items, numbered("", 2, 20, " Minutes"));
  return items;
}

// "1 Seconds" is plural on purpose: the fade list has always read so.
std::vector<std::string> fadeRates() {
  std::vector<std::string> items{" "};
  append(items, numbered("", 0, 59, " Seconds"));
  items.emplace_back("1 Minute");
  append(items, numbered("", 2, 180, " Minutes"));
  return items;
}

std::vector<std::string> levels() { return numbered("", 0, 100, "%"); }
std::vector<std::string> inputs() { return withBlank(numbered("Input ", 1, 16)); }

// The long lists, so that none is made before it is read.
const FixedList& firstChannels() {
  static const FixedList list("Channel :", job::kLastScannedChannel);
  return list;
}
const FixedList& rooms() {
  static const FixedList list("Room ", 255);
  return list;
}
const FixedList& groups() {
  static const FixedList list("Group ", 255);
  return list;
}
const FixedList& channels() {
  static const FixedList list("", job::kLastChannel);
  return list;
}
const FixedList& personalities() {
  static const FixedList list("Personality ", 255);
  return list;
}
// Net ids above 127 are offered so that the page can refuse them by name.
const FixedList& remoteNetIds() {
  static const FixedList list("", 255);
  return list;
}

std::vector<std::string> presetStationKinds() {
  return {" ", "T3100 LCD", "T3100 Entry", "T6600 LCD", "T6600 Entry", "Contact Closure"};
}
std::vector<std::string> linkStationTypes() {
  return {" ", "T3100 LCD", "T6600 LCD", "T6600 Slider", "Wallport", "T6600 Entry"};
}
std::vector<std::string> personalitySeries() { return {"T3100 Series", "T6600 Series"}; }
std::vector<std::string> netIds() { return withBlank(numbered("", 1, 127)); }
std::vector<std::string> netIdNames() { return numbered("NetID ", 1, 127); }

std::vector<std::string> remotePages() { return withBlank(numbered("", 1, 16)); }
std::vector<std::string> remoteButtons() { return numbered("", 1, 16); }

}  // namespace pellam::ui::lists

namespace pellam::ui {

const std::vector<std::string>& FixedList::items() const {
  std::call_once(made_, [this] { items_ = lists::withBlank(lists::numbered(prefix_, 1, last_)); });
  return items_;
}

}  // namespace pellam::ui
