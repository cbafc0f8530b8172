#include "setup/master_inputs.h"

#include <algorithm>
#include <array>
#include <vector>

#include "ui/choice_lists.h"

namespace pellam::setup {

namespace {

// Action list position n stores entry value n - 1, so that the blank item means no choice.
constexpr std::array<const char*, 3> kActions = {"Ordinary Input", "Master On", "Master Off"};

std::int16_t& entryOf(job::MasterInputs& inputs, int input) { return inputs.entries[static_cast<std::size_t>(input - 1)]; }

}  // namespace

std::string masterInputLine(int input, int value) {
  const std::string action = value >= 0 && value < static_cast<int>(kActions.size())
                                 ? kActions[static_cast<std::size_t>(value)]
                                 : "Value " + std::to_string(value);
  return "Input " + std::to_string(input) + ": " + action;
}

MasterInputsPage::MasterInputsPage(ui::UserForm1& form, job::MasterInputs& inputs, ui::Dialogs& dialogs)
    : form_(form), inputs_(inputs), dialogs_(dialogs) {
  form_.ComboBox64.onClick = [this] { inputs_.Mode = static_cast<std::int16_t>(std::max(0, form_.ComboBox64.listIndex())); };
  form_.CommandButton113.onClick = [this] { setChosenInput(); };
  // A line brings back its input and action, ready to be changed.
  form_.ListBox102.onClick = [this] {
    const int line = form_.ListBox102.listIndex();
    if (line < 0) return;
    form_.ComboBox65.setListIndex(line + 1);
    const int value = entryOf(inputs_, line + 1);
    form_.ComboBox112.setListIndex(value + 1 < form_.ComboBox112.count() ? value + 1 : -1);
  };
}

void MasterInputsPage::fillLists() {
  form_.ComboBox64.setItems(ui::lists::withBlank({"Master Inputs On", "Master Inputs Off"}));
  form_.ComboBox65.setItems(ui::lists::inputs());
  form_.ComboBox112.setItems(ui::lists::withBlank({kActions.begin(), kActions.end()}));
}

void MasterInputsPage::clear() {
  job::ClearMasterInputs(inputs_);
  inputs_.Mode = 0;
  inputs_.Companion = 0;
  form_.ComboBox64.setListIndex(-1);
  relist();
}

void MasterInputsPage::listDecoded() {
  form_.ComboBox64.setListIndex(inputs_.Mode < form_.ComboBox64.count() ? inputs_.Mode : -1);
  relist();
}

void MasterInputsPage::relist() {
  std::vector<std::string> lines;
  for (int input = 1; input <= static_cast<int>(inputs_.entries.size()); ++input) {
    lines.push_back(masterInputLine(input, entryOf(inputs_, input)));
  }
  form_.ListBox102.setItems(std::move(lines));
}

void MasterInputsPage::setChosenInput() {
  const int input = form_.ComboBox65.listIndex();
  const int action = form_.ComboBox112.listIndex();
  if (input < 1) {
    dialogs_.msgBox("Input Not Selected", ui::Buttons::OK);
    return;
  }
  if (action < 1) {
    dialogs_.msgBox("Master Action Not Selected", ui::Buttons::OK);
    return;
  }
  entryOf(inputs_, input) = static_cast<std::int16_t>(action - 1);
  relist();
}

}  // namespace pellam::setup
