#include "editors/naming/naming_page.h"

#include <algorithm>

#include "job/runtime_error.h"
#include "ui/choice_lists.h"

namespace pellam::editors::naming {

namespace {

constexpr int kLastNumber = 255;

job::RoomGroupName& recordOf(job::RoomGroupNames& names, int number) {
  if (number < 0 || number > kLastNumber) throw job::RuntimeError(job::kSubscriptOutOfRange);
  return names.names[static_cast<std::size_t>(number)];
}

// "4: Lobby"
std::string labelLine(const std::string& numberText, const std::string& label) { return numberText + ": " + label; }

// The number lists open with the blank item, so a position below 1 is no number chosen.
int chosenNumber(const ui::ListControl& list) { return list.listIndex() >= 1 ? list.listIndex() : -1; }

}  // namespace

int SetRoomLabel(job::RoomGroupNames& names, ui::Dialogs& dialogs, const std::string& label, int room) {
  job::RoomGroupName& r = recordOf(names, room);
  if (!r.RoomLabel.empty()) {
    dialogs.msgBox("Dulpicate Room Number", ui::Buttons::OK);
    return -1;
  }
  r.RoomLabel = label;
  return 0;
}

int SetGroupLabel(job::RoomGroupNames& names, ui::Dialogs& dialogs, const std::string& label, int group) {
  if (group < 0) {
    dialogs.msgBox("Group Not Selected", ui::Buttons::OK);
    return -1;
  }
  job::RoomGroupName& r = recordOf(names, group);
  if (!r.GroupLabel.empty()) {
    dialogs.msgBox("Dulpicate Group Number", ui::Buttons::OK);
    return -1;
  }
  r.GroupLabel = label;
  return 0;
}

void SetRoomName(job::RoomGroupNames& names, const std::string& name, int room, int value) {
  job::RoomGroupName& r = recordOf(names, room);
  r.RoomName = name;
  r.RoomValue = job::narrow(value);
}

NamingPage::NamingPage(ui::UserForm1& form, job::RoomGroupNames& names, ui::Dialogs& dialogs)
    : form_(form), names_(names), dialogs_(dialogs) {
  form_.CommandButton33.onClick = [this] { labelRoom(); };
  form_.CommandButton35.onClick = [this] { labelGroup(); };
  form_.CommandButton37.onClick = [this] { storeRoomName(); };
}

// A list position is the number itself; the label lists stay, as the table does.
void NamingPage::fillLists() {
  static const ui::FixedList numbers("", kLastNumber);
  form_.ComboBox101.setItems(numbers);
  form_.ComboBox102.setItems(numbers);
  form_.ListBox13.setItems(numbers);
  form_.ComboBox61.setItems(numbers);
}

void NamingPage::clear() {
  names_ = {};
  form_.ListBox12.clear();
  form_.ComboBox58.clear();
}

void NamingPage::listDecoded() {
  if (!seen) return;
  form_.ListBox12.clear();
  form_.ComboBox58.clear();
  for (std::size_t i = 0; i < names_.names.size(); ++i) {
    const int number = static_cast<int>(i);
    if (!names_.names[i].RoomLabel.empty()) ListRoomLabel(number, std::to_string(number));
    if (!names_.names[i].GroupLabel.empty()) ListGroupLabel(number, std::to_string(number));
  }
}

void NamingPage::ListRoomLabel(int room, const std::string& numberText) {
  form_.ListBox12.addItem(labelLine(numberText, recordOf(names_, room).RoomLabel));
}

void NamingPage::ListGroupLabel(int group, const std::string& numberText) {
  form_.ComboBox58.addItem(labelLine(numberText, recordOf(names_, group).GroupLabel));
}

void NamingPage::labelRoom() {
  // Rooms have no "not chosen" message: with no room there is nothing to label.
  const int room = chosenNumber(form_.ComboBox101);
  if (room < 0) return;
  if (SetRoomLabel(names_, dialogs_, form_.TextBox103.text(), room) == 0) ListRoomLabel(room, form_.ComboBox101.text());
}

void NamingPage::labelGroup() {
  const int group = chosenNumber(form_.ComboBox102);
  if (SetGroupLabel(names_, dialogs_, form_.TextBox103.text(), group) == 0) {
    ListGroupLabel(group, form_.ComboBox102.text());
  }
}

// Nothing chosen as the value stores 0, as with every other choice.
void NamingPage::storeRoomName() {
  const int room = chosenNumber(form_.ListBox13);
  if (room < 0) return;
  SetRoomName(names_, form_.TextBox104.text(), room, std::max(chosenNumber(form_.ComboBox61), 0));
}

}  // namespace pellam::editors::naming
