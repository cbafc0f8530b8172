#include "editors/room_link/room_link_page.h"

#include "job/runtime_error.h"

#include <cstddef>
#include <stdexcept>

#include "editors/room_link/list_lines.h"
#include "ui/trap.h"

namespace pellam::editors::room_link {

namespace {
constexpr int kSearchedRecords = 16;
constexpr int kRecords = 18;
constexpr int kGroupBMode = 2;
constexpr int kGroupCMode = 3;
constexpr int kGroupAMode = 5;

job::RoomLinkRecord& recordOf(job::RoomLinkTable& table, int input) {
  if (input < 1 || input > kRecords) throw std::out_of_range("Subscript out of range");
  return table.records[static_cast<std::size_t>(input - 1)];
}

}  // namespace

std::int16_t StoreRoomLink(job::RoomLinkTable& table, int input, int firstRoom, int secondRoom) {
  for (int i = 0; i < kSearchedRecords; ++i) {
    if (table.records[static_cast<std::size_t>(i)].LinkInput == input) return kInputAlreadyLinked;
  }
  // Input 0 is refused above while an empty record is left; once all are taken it has no record either.
  if (input < 1 || input > kRecords) return kInputAlreadyLinked;
  job::RoomLinkRecord& r = recordOf(table, input);
  r.LinkInput = job::narrow(input);
  r.FirstRoom = job::narrow(firstRoom);
  r.SecondRoom = job::narrow(secondRoom);
  return kLinkStored;
}

RoomLinkPage::RoomLinkPage(ui::UserForm1& form, job::RoomLinkTable& table, ui::Dialogs& dialogs)
    : form_(form),
      table_(table),
      dialogs_(dialogs),
      a_{form.ComboBox20, form.ComboBox22, form.ComboBox23, form.ListBox6, lineFormat1, lineFormat1, false},
      b_{form.ComboBox7, form.ComboBox8, form.ComboBox9, form.ListBox4, lineFormat1, lineFormat1, true},
      c_{form.ComboBox30, form.ComboBox31, form.ComboBox32, form.ListBox2, lineFormat2, lineFormat3, false} {
  for (Group* g : {&a_, &b_, &c_}) attachRoomLists(*g);
  form_.CommandButton3.onClick = [this] { add(a_); };
  form_.CommandButton2.onClick = [this] { add(b_); };
  form_.CommandButton7.onClick = [this] { addGroupC(); };
  form_.CommandButton16.onClick = [this] { remove(a_); };
  form_.CommandButton18.onClick = [this] { remove(b_); };
  form_.CommandButton20.onClick = [this] { remove(c_); };
  form_.ComboBox7.onClick = [this] {
    ui::trap(dialogs_, "Error InputLnk ", [this] { chooseInput(b_, form_.ComboBox7.listIndex()); });
  };
  form_.ComboBox30.onClick = [this] {
    const int input = form_.ComboBox30.listIndex();
    // Kept when the list goes back to the blank item: group C's add links the last input chosen.
    if (input >= 1) table_.LinkInputGroupC = job::narrow(input);
    chooseInput(c_, input);
  };
  form_.ListBox4.onClick = [this] { ui::trap(dialogs_, "Error LnkScr", [this] { clickLine(b_); }); };
  form_.ListBox6.onClick = [this] { clickLine(a_); };
  form_.ListBox2.onClick = [this] { clickLine(c_); };
}

void RoomLinkPage::attachRoomLists(Group& g) {
  g.firstRoom.onClick = [this, &g] { table_.LinkFirstRoom = job::narrow(g.firstRoom.listIndex()); };
  g.secondRoom.onClick = [this, &g] { table_.LinkSecondRoom = job::narrow(g.secondRoom.listIndex()); };
}

// Nothing of this editor lives on the form alone: the inputs of groups A and B are their lists'
// positions, and group C's input and the rooms are module-wide.
void RoomLinkPage::clear() {
  for (const Group* g : {&a_, &b_, &c_}) g->list.clear();
}

void RoomLinkPage::listDecodedFor(int operatingMode) {
  switch (operatingMode) {
    case kGroupBMode: relist(b_.list, lineFormatDecoded); break;
    case kGroupCMode: relist(c_.list, lineFormatDecoded); break;
    case kGroupAMode: relist(a_.list, lineFormatDecoded); break;
    default: break;
  }
}

bool RoomLinkPage::equalRoomsRefused() {
  return table_.LinkFirstRoom == table_.LinkSecondRoom &&
         dialogs_.msgBox("Link Error Room Numbers Equal", ui::Buttons::OKCancel) == ui::Answer::Cancel;
}

void RoomLinkPage::appendLine(Group& g, job::RoomLinkRecord& r) {
  g.list.addItem(g.addedLine(r));
  r.ListLine = job::narrow(g.list.count() - 1);
  g.list.setListIndex(r.ListLine);
}

void RoomLinkPage::add(Group& g) {
  const int input = g.input.listIndex();
  if (input < 1) {
    dialogs_.msgBox("Input Not Selected", ui::Buttons::OK);
    return;
  }
  if (table_.LinkFirstRoom > 0 && table_.LinkSecondRoom > 0) {
    if (equalRoomsRefused()) return;
    if (StoreRoomLink(table_, input, table_.LinkFirstRoom, table_.LinkSecondRoom) > kLinkStored) {
      dialogs_.msgBox("Entry Already Selected", ui::Buttons::OK);
      return;
    }
    appendLine(g, recordOf(table_, input));
    return;
  }
  // An input that is already linked lacks nothing, so it is not reported.
  const job::RoomLinkRecord& r = recordOf(table_, input);
  if (r.FirstRoom > 0 && r.SecondRoom > 0) return;
  dialogs_.msgBox("No Rooms Selected", ui::Buttons::OK);
}

// Group C lets the blank items through, so room 0 can be linked and a blank input stands for
// the last one chosen.
void RoomLinkPage::addGroupC() {
  if (c_.input.listIndex() < 0 || c_.firstRoom.listIndex() < 0 || c_.secondRoom.listIndex() < 0) {
    dialogs_.msgBox("No Rooms Selected", ui::Buttons::OK);
    return;
  }
  if (equalRoomsRefused()) return;
  const int input = table_.LinkInputGroupC;
  if (StoreRoomLink(table_, input, table_.LinkFirstRoom, table_.LinkSecondRoom) <= kLinkStored) {
    appendLine(c_, recordOf(table_, input));
    return;
  }
  dialogs_.msgBox("Entry Already Selected", ui::Buttons::OK);
  if (input >= 1 && input <= kRecords) setPosition(c_, c_.list, recordOf(table_, input).ListLine);
}

void RoomLinkPage::remove(Group& g) {
  const int input = g.input.listIndex();
  if (input < 1) {
    dialogs_.msgBox("Input Not Selected", ui::Buttons::OK);
    return;
  }
  if (dialogs_.msgBox("Delete Input " + std::to_string(input), ui::Buttons::YesNo) == ui::Answer::No) return;
  recordOf(table_, input) = {0, 0, 0, job::kNotListed};
  relist(g.list, g.rebuiltLine);
}

void RoomLinkPage::relist(ui::ListBox& list, LineFormat line) {
  list.clear();
  for (job::RoomLinkRecord& r : table_.records) {
    r.ListLine = job::kNotListed;
    if (r.LinkInput > 0) {
      list.addItem(line(r));
      r.ListLine = job::narrow(list.count() - 1);
    }
  }
}

void RoomLinkPage::chooseInput(Group& g, int input) {
  if (input < 1) return;
  for (const job::RoomLinkRecord& r : table_.records) {
    if (r.LinkInput != input) continue;
    setPosition(g, g.list, r.ListLine);
    setPosition(g, g.firstRoom, r.FirstRoom);
    setPosition(g, g.secondRoom, r.SecondRoom);
    return;
  }
  dialogs_.msgBox("No Entry for Input " + std::to_string(input), ui::Buttons::OK);
}

void RoomLinkPage::clickLine(Group& g) {
  const int line = g.list.listIndex();
  if (line < 0) return;
  for (const job::RoomLinkRecord& r : table_.records) {
    // Records never linked may still carry line 0 from before any list was built.
    if (r.LinkInput < 1 || r.ListLine != line) continue;
    setPosition(g, g.input, r.LinkInput);
    setPosition(g, g.firstRoom, r.FirstRoom);
    setPosition(g, g.secondRoom, r.SecondRoom);
    return;
  }
}

void RoomLinkPage::setPosition(const Group& g, ui::ListControl& list, int index) {
  if (g.strict || (index >= -1 && index < list.count())) list.setListIndex(index);
}

}  // namespace pellam::editors::room_link
