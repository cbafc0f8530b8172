#include "editors/remote_commands/remote_commands_page.h"

#include "job/runtime_error.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <vector>

#include "editors/remote_commands/list_lines.h"
#include "ui/trap.h"

namespace pellam::editors::remote_commands {

namespace {

constexpr int kDisabled = 0;
constexpr int kLeds = 1;
constexpr int kButtons = 2;
constexpr int kLastNetId = 127;
constexpr int kStationsPerInput = 30;
constexpr int kLedInput = 1;
constexpr int kLastInput = 16;


job::RemoteCommandBlock& blockOf(job::RemoteCommandTable& table, int input) {
  return table.blocks.at(static_cast<std::size_t>(input));
}

std::string inputCaption(int input, int page) {
  return "Input " + std::to_string(input) + " " + "Page " + std::to_string(page);
}

bool hasEntries(const job::RemoteCommandBlock& block) {
  return std::any_of(block.Listed.begin(), block.Listed.end(), [](std::int16_t n) { return n > 0; });
}

}  // namespace

RemoteCommandsPage::RemoteCommandsPage(ui::UserForm1& form, job::RemoteCommandTable& table, ui::Dialogs& dialogs)
    : form_(form), table_(table), dialogs_(dialogs) {
  form_.OptionButton12.onClick = [this] { chooseMode(kLeds); };
  form_.OptionButton13.onClick = [this] { chooseMode(kButtons); };
  form_.OptionButton14.onClick = [this] { chooseMode(kDisabled); };
  form_.CommandButton38.onClick = [this] { add(); };
  form_.ComboBox69.onClick = [this] {
    const int input = form_.ComboBox69.listIndex();
    if (input >= 1) {
      relist(input);
      return;
    }
    // No input chosen, so no input's entries are shown: an add or delete has none to go to.
    form_.ListBox19.clear();
    form_.Label70.setCaption("");
  };
  form_.ListBox19.onClick = [this] { removeChosenLine(); };
}

void RemoteCommandsPage::clear() {
  job::ClearRemoteCommands(table_);
  form_.ListBox19.clear();
  form_.Label70.setCaption("");
  for (ui::OptionButton* option : {&form_.OptionButton12, &form_.OptionButton13, &form_.OptionButton14}) {
    option->setValue(false);
  }
}

void RemoteCommandsPage::formLoaded() { showMode(); }

// The option of the remote mode in force, and what it enables.
void RemoteCommandsPage::showMode() {
  const int mode = table_.RemoteMode;
  const std::array<ui::OptionButton*, 3> options = {&form_.OptionButton14, &form_.OptionButton12,
                                                    &form_.OptionButton13};
  for (std::size_t m = 0; m < options.size(); ++m) options[m]->setValue(static_cast<int>(m) == mode);
  if (mode >= kDisabled && mode <= kButtons) {
    form_.Frame104.setCaption(options[static_cast<std::size_t>(mode)]->caption());
  }
  // The mode options stay usable, or the disabled mode could never be left.
  for (ui::Control* c : std::initializer_list<ui::Control*>{
           &form_.Label138, &form_.ComboBox68, &form_.Label139, &form_.ComboBox69, &form_.Label140, &form_.ComboBox70,
           &form_.Label141, &form_.ListBox17, &form_.CommandButton38, &form_.Label70, &form_.ListBox19}) {
    c->setEnabled(mode != kDisabled);
  }
  // LED entries all belong to input 1 and carry no page of their own.
  form_.ComboBox70.setEnabled(mode == kButtons);
}

void RemoteCommandsPage::listDecoded() {
  int mode = kDisabled;
  int first = 0;
  // Scanned downwards, so that the lowest input with a mode or with entries wins.
  for (int input = kLastInput; input >= 1; --input) {
    const job::RemoteCommandBlock& b = blockOf(table_, input);
    if (b.Mode == kLeds || b.Mode == kButtons) mode = b.Mode;
    if (hasEntries(b)) first = input;
  }
  table_.RemoteMode = job::narrow(mode);
  showMode();
  form_.ComboBox69.select(first);
}

void RemoteCommandsPage::chooseMode(int mode) {
  table_.RemoteMode = job::narrow(mode);
  showMode();
}

bool RemoteCommandsPage::refused(bool condition, const char* text) {
  if (condition) dialogs_.msgBox(text, ui::Buttons::OK);
  return condition;
}

// A check with its own trap: a fault there is reported and the add goes on.
template <typename Check>
bool RemoteCommandsPage::refusedUnderTrap(const char* trapText, Check check) {
  bool refusal = false;
  ui::trap(dialogs_, trapText, [&] { refusal = check(); });
  return refusal;
}

// All LED entries belong to input 1, whichever input is chosen.
int RemoteCommandsPage::entryInput(int chosenInput) const {
  return table_.RemoteMode == kLeds ? kLedInput : chosenInput;
}

void RemoteCommandsPage::add() {
  // Automation can click the disabled button; the disabled mode takes no entries.
  if (table_.RemoteMode == kDisabled) return;
  const int netId = form_.ComboBox68.listIndex();
  const int input = form_.ComboBox69.listIndex();
  const int page = std::max(0, form_.ComboBox70.listIndex());
  const int value = form_.ListBox17.listIndex() + 1;  // the list offers 1..16 from index 0
  // 127 itself passes although the text says "less than"; kept so on purpose.
  if (refused(netId < 0, "NetId Not Selected") || refused(netId > kLastNetId, "NetId Must Be Less Than 127") ||
      refused(form_.ComboBox69.enabled() && input < 1, "Input Not Selected") ||
      refused(form_.ComboBox70.enabled() && page < 1, "Page Not Selected") ||
      refused(form_.ListBox17.enabled() && value < 1, "Button Not Selected")) {
    return;
  }
  ui::trap(dialogs_, "Error M11Trap13", [&] {
    blockOf(table_, input).Page = job::narrow(page);
    form_.Label70.setCaption(inputCaption(input, page));
  });
  if (refusedUnderTrap("Error M11Trap4", [&] {
        return refused(form_.ListBox19.count() >= kStationsPerInput, "Max of 30 Stations Per Input");
      })) {
    return;
  }
  const int target = entryInput(input);
  const auto n = static_cast<std::size_t>(netId);
  // The blank item is net id 0, which reads as listed in every block: it is refused here.
  if (refusedUnderTrap("Error M11Trap11",
                       [&] { return refused(blockOf(table_, target).Listed.at(n) == netId, "Duplicate NetID"); })) {
    return;
  }
  ui::trap(dialogs_, "Error M11Trap12", [&] {
    job::RemoteCommandBlock& b = blockOf(table_, target);
    b.Mode = table_.RemoteMode;
    b.Listed.at(n) = job::narrow(netId);
    b.Value.at(n) = job::narrow(value);
    form_.ListBox19.addItem(commandLine(netId, value, table_.RemoteMode));
    b.Line.at(n) = job::narrow(form_.ListBox19.count() - 1);
  });
}

// The line names its net id; matching by it stays right when LED entries were appended to
// another input's list, whose line numbers they do not share.
void RemoteCommandsPage::removeChosenLine() {
  const int line = form_.ListBox19.listIndex();
  if (line < 0) return;
  const std::string text = form_.ListBox19.item(line);
  if (dialogs_.msgBox("Delete " + text, ui::Buttons::YesNo) != ui::Answer::Yes) return;
  ui::trap(dialogs_, "Error M11Trap8", [&] {
    const int input = entryInput(form_.ComboBox69.listIndex());
    job::RemoteCommandBlock& b = blockOf(table_, input);
    // A line naming no net id (-1) is out of range and reported here.
    const auto n = static_cast<std::size_t>(netIdOfLine(text));
    b.Listed.at(n) = 0;
    b.Value.at(n) = 0;
    // Choosing the input rebuilds its list, and keeps the input shown the one chosen.
    form_.ComboBox69.select(input);
  });
}

void RemoteCommandsPage::relist(int input) {
  ui::trap(dialogs_, "Error M11Trap10", [&] {
    job::RemoteCommandBlock& b = blockOf(table_, input);
    form_.Label70.setCaption(inputCaption(input, b.Page));
    std::vector<std::string> lines;
    for (std::size_t n = 0; n < b.Listed.size(); ++n) {
      b.Line[n] = job::kNotListed;
      if (b.Listed[n] <= 0) continue;
      b.Line[n] = job::narrow(static_cast<int>(lines.size()));
      lines.push_back(commandLine(static_cast<int>(n), b.Value[n], table_.RemoteMode));
    }
    form_.ListBox19.setItems(std::move(lines));
    if (form_.ListBox19.count() == 0) dialogs_.msgBox("No Entries", ui::Buttons::OK);
  });
}

}  // namespace pellam::editors::remote_commands
