#include "editors/room_combine/room_combine_page.h"

#include "ui/scoped.h"

#include "job/runtime_error.h"

#include <cstddef>

#include "editors/room_combine/list_lines.h"
#include "ui/trap.h"

namespace pellam::editors::room_combine {

namespace {
constexpr int kNoLine = job::kLastChannel + 1;

}  // namespace

RoomCombinePage::RoomCombinePage(ui::UserForm1& form, job::RoomCombineTable& table, ui::Dialogs& dialogs)
    : form_(form), table_(table), dialogs_(dialogs) {
  form_.CommandButton11.onClick = [this] { add(); };
  form_.CommandButton12.onClick = [this] { remove(); };
  form_.CommandButton9.onClick = [this] {
    viewBy(form_.ComboBox36, RebuildRoomView, "No Rooms Selected", "View By Room:", "Room: ");
  };
  form_.CommandButton10.onClick = [this] {
    viewBy(form_.ComboBox37, RebuildGroupView, "No Groups Selected", "View By Group:", "Group: ");
  };
  form_.CommandButton30.onClick = [this] { viewAll(); };
  form_.CommandButton40.onClick = [this] {
    removeAll(form_.ComboBox36.listIndex(), &job::RoomCombineRecord::CombineRoom, "No Room Selected", "Delete Room ",
              "Error M15trap4");
  };
  form_.CommandButton41.onClick = [this] {
    removeAll(form_.ComboBox37.listIndex(), &job::RoomCombineRecord::CombineGroup, "No Group Selected",
              "Delete Group ", "Error M15trap3");
  };
  form_.ListBox1.onClick = [this] { clickLine(); };
}

void RoomCombinePage::reset() {
  selecting_ = false;
  allView_.forget();
}

void RoomCombinePage::clear() { form_.ListBox1.clear(); }

void RoomCombinePage::listDecoded() {
  if (!seen) return;
  form_.Label38.setCaption("");
  allView_.rebuild(table_, form_.ListBox1);
}

void RoomCombinePage::add() {
  form_.Label38.setCaption("");
  const int room = form_.ComboBox36.listIndex();
  const int group = form_.ComboBox37.listIndex();
  const int channel = form_.ComboBox38.listIndex();
  if (room < 1 || group < 1 || channel < 1) {
    dialogs_.msgBox("You Must Select a Room, Group and Channel", ui::Buttons::OK);
    return;
  }
  ui::ListBox& list = form_.ListBox1;
  allView_.rebuild(table_, list);
  const int line = listedLineOf(channel);
  if (line < kNoLine) {
    dialogs_.msgBox("Duplicate Channel", ui::Buttons::OK);
    selectLine(line - 1);
    return;
  }
  job::RoomCombineRecord& r = table_.records[static_cast<std::size_t>(channel)];
  r = {job::narrow<std::uint16_t>(channel), job::narrow<std::uint16_t>(group), job::narrow<std::uint16_t>(room), 0};
  list.addItem(addedLine(form_.ComboBox36.text(), form_.ComboBox37.text(), form_.ComboBox38.text()));
  r.CombineListLine = job::narrow<std::uint16_t>(list.count());
  allView_.appended(r);
  selectLine(list.count() - 1);
}

// The line the channel's record was given by the last view, kNoLine when no record holds it.
int RoomCombinePage::listedLineOf(int channel) const {
  for (int c = 1; c <= job::kLastChannel; ++c) {
    const job::RoomCombineRecord& r = table_.records[static_cast<std::size_t>(c)];
    if (r.CombineChannel == channel) return r.CombineListLine;
  }
  return kNoLine;
}

void RoomCombinePage::remove() {
  const int channel = form_.ComboBox38.listIndex();
  if (channel < 0) return;
  job::RoomCombineRecord& r = table_.records[static_cast<std::size_t>(channel)];
  if (r.CombineChannel == 0) return;
  const std::string question = "Deleting Room:" + std::to_string(r.CombineRoom) + "Group:" +
                               std::to_string(r.CombineGroup) + "Channel:" + std::to_string(r.CombineChannel);
  if (dialogs_.msgBox(question, ui::Buttons::OKCancel) == ui::Answer::Cancel) return;
  r.CombineChannel = 0;
  r.CombineGroup = 0;
  r.CombineRoom = 0;
  form_.Label38.setCaption("");
  allView_.rebuild(table_, form_.ListBox1);
  r.CombineListLine = job::kNotListedUnsigned;
  form_.ComboBox36.setListIndex(0);
  form_.ComboBox37.setListIndex(0);
  dialogs_.msgBox("Entry Has Been Deleted", ui::Buttons::OK);
}

void RoomCombinePage::viewBy(const ui::ComboBox& choice, FilteredView rebuild, const std::string& noneChosen,
                             const std::string& caption, const std::string& word) {
  const int number = choice.listIndex();
  if (number < 1) {
    dialogs_.msgBox(noneChosen, ui::Buttons::OK);
    return;
  }
  allView_.forget();
  const int listed = rebuild(table_, form_.ListBox1, number);
  form_.Label38.setCaption(caption + std::to_string(number));
  if (listed == 0) dialogs_.msgBox(word + choice.text() + " Not Found", ui::Buttons::OK);
}

void RoomCombinePage::viewAll() {
  allView_.rebuild(table_, form_.ListBox1);
  form_.Label38.setCaption("View All");
}

// Deleting a room or a group leaves the list as it is until the next view.
void RoomCombinePage::removeAll(int number, Field field, const std::string& noneChosen, const std::string& question,
                                const std::string& trapText) {
  ui::trap(dialogs_, trapText, [&] {
    if (number < 1) {
      dialogs_.msgBox(noneChosen, ui::Buttons::OK);
      return;
    }
    if (dialogs_.msgBox(question + std::to_string(number), ui::Buttons::YesNo) == ui::Answer::No) return;
    for (int c = 0; c <= job::kLastScannedChannel; ++c) {
      job::RoomCombineRecord& r = table_.records[static_cast<std::size_t>(c)];
      if (r.*field == number) r = {0, 0, 0, job::kNotListedUnsigned};
    }
  });
}

// A line shows its record's room, group and channel in the three choices, ready for a delete.
void RoomCombinePage::clickLine() {
  const int line = form_.ListBox1.listIndex() + 1;
  if (selecting_ || line < 1) return;
  for (const job::RoomCombineRecord& r : table_.records) {
    if (r.CombineChannel == 0 || r.CombineListLine != line) continue;
    form_.ComboBox36.setListIndex(r.CombineRoom);
    form_.ComboBox37.setListIndex(r.CombineGroup);
    form_.ComboBox38.setListIndex(r.CombineChannel);
    return;
  }
}

void RoomCombinePage::selectLine(int line) {
  const ui::Scoped selecting(selecting_, true);
  form_.ListBox1.setListIndex(line);
}

}  // namespace pellam::editors::room_combine
