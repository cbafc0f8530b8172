#include "editors/input_numbering/input_numbering_page.h"

#include <vector>

#include "ui/choice_lists.h"
#include "ui/list_line.h"

namespace pellam::editors::input_numbering {

namespace {

constexpr int kLastInput = 16;  // record 0 numbers no input: the board's inputs start at 1
// Room 0 is what every unused record writes at 5000, so it would never survive a save.
constexpr int kLastRoom = 255;

bool numbered(const job::InputNumberRecord& r) { return r.InputNumber != 0; }

// The numbered inputs in list order.
std::vector<int> numberedInputs(const job::InputNumberTable& table) {
  std::vector<int> inputs;
  for (int i = 1; i <= kLastInput; ++i) {
    if (numbered(table.records[static_cast<std::size_t>(i)])) inputs.push_back(i);
  }
  return inputs;
}

bool refused(ui::Dialogs& dialogs, const std::string& why) {
  dialogs.msgBox(why, ui::Buttons::OK);
  return false;
}

}  // namespace

bool NumberInput(job::InputNumberTable& table, ui::Dialogs& dialogs, int input, int room) {
  if (input < 1) return refused(dialogs, "Input Not Selected");
  if (room < 1) return refused(dialogs, "Room Not Selected");
  if (input > kLastInput) return refused(dialogs, "Input Out Of Range");
  if (room > kLastRoom) return refused(dialogs, "Room Out Of Range");
  job::InputNumberRecord& r = table.records[static_cast<std::size_t>(input)];
  if (numbered(r)) return refused(dialogs, "Input Already Numbered");
  for (int other : numberedInputs(table)) {
    // Two inputs on one room: the later would silently take the room at 5000 + room.
    if (table.records[static_cast<std::size_t>(other)].RoomNumber == room) {
      return refused(dialogs, "Room Already Used By Input " + std::to_string(other));
    }
  }
  r.InputNumber = static_cast<std::int16_t>(input);
  r.RoomNumber = static_cast<std::int16_t>(room);
  return true;
}

std::string numberingLine(const job::InputNumberRecord& record) {
  return ui::listLine("Input ", record.InputNumber, ": Room ", record.RoomNumber);
}

InputNumberingPage::InputNumberingPage(ui::UserForm1& form, job::InputNumberTable& table, ui::Dialogs& dialogs)
    : form_(form), table_(table), dialogs_(dialogs) {
  form_.CommandButton110.onClick = [this] { add(); };
  form_.CommandButton111.onClick = [this] { removeChosenLine(); };
  form_.CommandButton112.onClick = [this] { clearAll(); };
  // A line brings back its input and room, ready for a delete.
  form_.ListBox101.onClick = [this] {
    const int input = chosenInput();
    if (input == 0) return;
    form_.ComboBox110.setListIndex(input);
    form_.ComboBox111.setListIndex(table_.records[static_cast<std::size_t>(input)].RoomNumber);
  };
}

// A list position is the input or room number itself.
void InputNumberingPage::fillLists() {
  form_.ComboBox110.setItems(ui::lists::inputs());
  form_.ComboBox111.setItems(ui::lists::rooms());
}

void InputNumberingPage::clear() {
  job::ClearInputNumbering(table_);
  form_.ListBox101.clear();
}

void InputNumberingPage::listDecoded() {
  if (seen) relist();
}

void InputNumberingPage::relist() {
  std::vector<std::string> lines;
  for (int input : numberedInputs(table_)) lines.push_back(numberingLine(table_.records[static_cast<std::size_t>(input)]));
  form_.ListBox101.setItems(std::move(lines));
}

void InputNumberingPage::add() {
  if (NumberInput(table_, dialogs_, form_.ComboBox110.listIndex(), form_.ComboBox111.listIndex())) relist();
}

int InputNumberingPage::chosenInput() const {
  const int line = form_.ListBox101.listIndex();
  const std::vector<int> inputs = numberedInputs(table_);
  return line >= 0 && line < static_cast<int>(inputs.size()) ? inputs[static_cast<std::size_t>(line)] : 0;
}

void InputNumberingPage::removeChosenLine() {
  const int input = chosenInput();
  if (input == 0) {
    dialogs_.msgBox("Line Not Selected", ui::Buttons::OK);
    return;
  }
  if (dialogs_.msgBox("Delete Input " + std::to_string(input), ui::Buttons::YesNo) != ui::Answer::Yes) return;
  table_.records[static_cast<std::size_t>(input)] = {};
  relist();
}

void InputNumberingPage::clearAll() {
  if (form_.ListBox101.count() == 0) {
    dialogs_.msgBox("No Input Numbered", ui::Buttons::OK);
    return;
  }
  if (dialogs_.msgBox("Clear All Input Numbers", ui::Buttons::YesNo) != ui::Answer::Yes) return;
  clear();
}

}  // namespace pellam::editors::input_numbering
