#include "editors/preset_emulation/preset_emulation_page.h"

#include "ui/scoped.h"

#include "job/runtime_error.h"

#include <vector>

#include "editors/preset_emulation/list_lines.h"
#include "image/memory_map.h"
#include "ui/choice_lists.h"

namespace pellam::editors::preset_emulation {

namespace {

constexpr int kBoardBankOffset = 16;
constexpr int kLastInput = 16;
constexpr int kLastListedNetIdSlot = 126;
// The kind code of each item of the station type list, after its blank item.
constexpr std::array<int, 5> kKindOfItem{10, 12, 9, 7, 11};

std::vector<std::string> actionItems(int kind) {
  namespace lists = ui::lists;
  std::vector<std::string> items;
  switch (kind) {
    case 10:
      items = lists::numbered("PreSet ", 1, 16);
      items.insert(items.end(), {"Max On ", "Max Off "});
      break;
    case 12: items = lists::numbered("Preset ", 1, 10); break;
    case 9:
    case 7:
      items = lists::numbered("Button ", 1, 15);
      items.emplace_back("Button Release");
      break;
    case 11: items = lists::numbered("Preset ", 1, 16); break;
    default: break;
  }
  return items;
}

int personalityCount(int kind) {
  switch (kind) {
    case 10: return 8;
    case 9:
    case 7: return 255;
    default: return 0;
  }
}


}  // namespace

PresetEmulationPage::PresetEmulationPage(ui::UserForm1& form, job::PresetEmulationTable& table,
                                         ui::Dialogs& dialogs)
    : form_(form),
      table_(table),
      dialogs_(dialogs),
      kx_{form.ListBox5, form.Label41, 0, kLastListedNetIdSlot, "No KX Input selected", "Pellam Input: "},
      // Net id 127 is left out of a board-input delete, as the page has always done.
      board_{form.ListBox10, form.Label151, kBoardBankOffset, kLastListedNetIdSlot - 1, "No Pellam Input selected",
             "Input: "} {
  // Set up before any station type is chosen too, so that an opened job lists its kinds by name.
  setUpStationKindNames();
  form_.ComboBox39.onClick = [this] { chooseStationType(); };
  form_.ComboBox40.onClick = [this] { SelectedAction = job::narrow(form_.ComboBox40.listIndex()); };
  form_.ComboBox41.onClick = [this] { SelectedNetId = job::narrow(form_.ComboBox41.listIndex()); };
  form_.ComboBox44.onClick = [this] { Personality = job::narrow(form_.ComboBox44.listIndex() + 1); };
  form_.CommandButton1.onClick = [this] { add(kx_); };
  form_.CommandButton24.onClick = [this] { add(board_); };
  form_.ListBox5.onClick = [this] { clickLine(kx_); };
  form_.ListBox10.onClick = [this] { clickLine(board_); };
  form_.ComboBox42.onClick = [this] { chooseInput(); };
}

void PresetEmulationPage::reset() {
  SelectedNetId = StationKindCode = SelectedAction = -1;
  SelectedInput = Personality = 0;
  ListRefreshing = false;
}

void PresetEmulationPage::clear() {
  job::ClearPresetEmulation(table_);
  form_.ListBox5.clear();
  form_.ListBox10.clear();
}

void PresetEmulationPage::listDecoded() {
  for (int input = 1; input <= kLastInput; ++input) {
    if (entriesOf(input) + entriesOf(input + kBoardBankOffset) > 0) {
      form_.ComboBox42.select(input);
      return;
    }
  }
  // A job without entries opens with no input chosen, and without telling the person so.
  {
    const ui::Scoped refreshing(ListRefreshing, true);
    form_.ComboBox42.setListIndex(-1);
  }
  SelectedInput = -1;
  emptyBoth();
}

void PresetEmulationPage::setUpStationKindNames() {
  for (std::size_t item = 1; item <= kKindOfItem.size(); ++item) {
    StationKindNames[item] = stationKindName(kKindOfItem[item - 1]);
  }
  for (int kind : kKindOfItem) StationKindNames[static_cast<std::size_t>(kind)] = stationKindName(kind);
}

std::string PresetEmulationPage::kindName(int kind) const {
  return kind >= 0 && kind < static_cast<int>(StationKindNames.size()) ? StationKindNames[static_cast<std::size_t>(kind)]
                                                                      : "";
}

// A personality picked before stays in force, even for a kind that has none. The action does
// not: its index would name an item of the old list.
void PresetEmulationPage::chooseStationType() {
  setUpStationKindNames();
  const int item = form_.ComboBox39.listIndex();
  StationKindCode = job::narrow(item >= 1 && item <= static_cast<int>(kKindOfItem.size())
                               ? kKindOfItem[static_cast<std::size_t>(item - 1)]
                               : -1);
  SelectedAction = -1;
  form_.ComboBox40.setItems(actionItems(StationKindCode));
  const int personalities = personalityCount(StationKindCode);
  form_.ComboBox44.setItems(ui::lists::numbered("Personality  ", 1, personalities));
  form_.ComboBox44.setEnabled(personalities > 0);
  form_.CommandButton17.setEnabled(false);
}

int PresetEmulationPage::entriesOf(int inputSlot) {
  int entries = 0;
  for (int n = 0; n <= kLastListedNetIdSlot; ++n) {
    if (table_.at(n, inputSlot).NetIdPlusOne >= 1) ++entries;
  }
  return entries;
}

void PresetEmulationPage::add(Bank& b) {
  if (SelectedNetId < 0) {
    dialogs_.msgBox("No NetId Selected", ui::Buttons::OK);
    return;
  }
  if (SelectedInput < 1) {
    dialogs_.msgBox(b.noInput, ui::Buttons::OK);
    return;
  }
  if (StationKindCode < 0 || SelectedAction < 0) return;
  const int slot = SelectedInput + b.slotOffset;
  const int netId = SelectedNetId + 1;
  job::PresetRecord& r = table_.at(SelectedNetId, slot);
  if (r.NetIdPlusOne == netId) {
    dialogs_.msgBox("Duplicate NetId Entry", ui::Buttons::OK);
    return;
  }
  // The board's block of an input holds 37 entries; a 38th would be saved over the next input's.
  if (entriesOf(slot) >= image::map::kPresetEntriesPerBlock) {
    dialogs_.msgBox("Input Memory Full: NetId " + std::to_string(netId) + " Not Added", ui::Buttons::OK);
    return;
  }
  r = {job::narrow(netId), StationKindCode, job::narrow(SelectedAction + 1), Personality, 0};
  form_.Label41.setCaption("KX Input: " + std::to_string(SelectedInput));
  b.list.addItem(entryLine(form_.ComboBox39.text(), r, addedActionText(table_, SelectedNetId, slot)));
  r.ListPosition = job::narrow(b.list.count() - 1);
}

void PresetEmulationPage::clickLine(Bank& b) {
  if (ListRefreshing) return;
  if (dialogs_.msgBox("Delete " + b.list.text(), ui::Buttons::OKCancel) != ui::Answer::OK) return;
  const int line = b.list.listIndex();
  // Lines are listed for a chosen input only; without one no record can be meant.
  if (line < 0 || SelectedInput < 1) {
    dialogs_.msgBox("Entry Not Found", ui::Buttons::OK);
    return;
  }
  const int slot = SelectedInput + b.slotOffset;
  for (int n = 0; n <= b.lastDeletableSlot; ++n) {
    job::PresetRecord& r = table_.at(n, slot);
    if (r.ListPosition == line) r = {0, 0, 0, 0, job::kNotListed};
  }
  b.label.setCaption(b.captionAfterDelete + std::to_string(SelectedInput));
  relist(b, rebuiltActionText);
}

void PresetEmulationPage::chooseInput() {
  if (ListRefreshing) return;
  SelectedInput = job::narrow(form_.ComboBox42.listIndex());
  emptyBoth();
  if (SelectedInput < 1) {
    dialogs_.msgBox("Input Not Selected", ui::Buttons::OK);
    return;
  }
  for (Bank* b : {&kx_, &board_}) {
    b->label.setCaption("KX Input: " + std::to_string(SelectedInput));
    relist(*b, chosenActionText);
  }
  if (kx_.list.count() == 0 && board_.list.count() == 0) dialogs_.msgBox("No entries found", ui::Buttons::OK);
}

void PresetEmulationPage::emptyBoth() {
  for (Bank* b : {&kx_, &board_}) {
    b->label.setCaption("");
    b->list.clear();
  }
}

void PresetEmulationPage::relist(Bank& b, ActionText actionText) {
  const ui::Scoped refreshing(ListRefreshing, true);
  b.list.clear();
  const int slot = SelectedInput + b.slotOffset;
  std::string action;
  for (int n = 0; n <= kLastListedNetIdSlot; ++n) {
    job::PresetRecord& r = table_.at(n, slot);
    if (r.NetIdPlusOne < 1) continue;
    action = actionText(r, action);
    b.list.addItem(entryLine(kindName(r.StationKind), r, action));
    r.ListPosition = job::narrow(b.list.count() - 1);
  }
}

}  // namespace pellam::editors::preset_emulation
