#include "editors/station_link/station_link_page.h"

#include "job/runtime_error.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "editors/station_link/list_lines.h"

namespace pellam::editors::station_link {

namespace {
constexpr int kSearchedSlots = 128;
constexpr int kRebuiltSlots = 127;
constexpr int kSlots = 129;
// The type code of each item of the station-type list; the blank item has none.
constexpr std::array<std::int16_t, 6> kTypeCodes{0, 10, 9, 13, 14, 7};

}  // namespace

StationLinkPage::StationLinkPage(ui::UserForm1& form, job::StationLinkTable& table, ui::Dialogs& dialogs)
    : form_(form), table_(table), dialogs_(dialogs) {
  form_.ComboBox34.onClick = [this] { chooseType(); };
  form_.ComboBox35.onClick = [this] { chooseNetId(); };
  form_.ComboBox33.onClick = [this] {
    if (RoomGate) SelectedRoom = job::narrow(form_.ComboBox33.listIndex());
  };
  form_.ListBox3.onClick = [this] { clickLine(); };
  form_.CommandButton8.onClick = [this] { add(); };
  form_.CommandButton21.onClick = [this] { remove(); };
}

void StationLinkPage::reset() {
  SelectedNetId = 0;
  SelectedStationType = 0;
  SelectedRoom = 0;
  RoomGate = false;
}

void StationLinkPage::clear() {
  job::ClearStationLink(table_);
  reset();
  form_.ListBox3.clear();
}

// Every decoded station is listed, slots 127 and 128 too: the list shows what the file holds.
void StationLinkPage::listDecoded() {
  if (seen) relist(kSlots - 1, true);
}

// Taking up a type starts a new link, so the person's room choices count from here on.
void StationLinkPage::chooseType() {
  const int item = form_.ComboBox34.listIndex();
  if (item >= 1 && item < static_cast<int>(kTypeCodes.size())) SelectedStationType = kTypeCodes[static_cast<std::size_t>(item)];
  form_.ComboBox33.setEnabled(true);
  form_.ComboBox35.setEnabled(true);
  form_.CommandButton8.setEnabled(true);
  form_.CommandButton21.setEnabled(true);
  RoomGate = true;
}

void StationLinkPage::chooseNetId() {
  SelectedNetId = job::narrow(form_.ComboBox35.listIndex());
  if (RoomGate) return;
  const job::StationLinkRecord* r = linkOf(SelectedNetId);
  selectLine(r ? r->LinkListPosition : -1);
}

void StationLinkPage::clickLine() {
  const int line = form_.ListBox3.listIndex();
  if (line < 0) return;
  for (int s = 0; s < kSearchedSlots; ++s) {
    const job::StationLinkRecord& r = table_.records[static_cast<std::size_t>(s)];
    // Slots never linked may still carry line 0 from before any list was built.
    if (r.LinkNetId > 0 && r.LinkListPosition == line) {
      showRecord(r);
      return;
    }
  }
}

void StationLinkPage::add() {
  if (SelectedNetId < 1) {
    dialogs_.msgBox("NetId Not Selected", ui::Buttons::OK);
    return;
  }
  if (SelectedStationType <= 0) {
    dialogs_.msgBox("StationType Not Selected", ui::Buttons::OK);
    return;
  }
  if (SelectedRoom <= 0) {
    dialogs_.msgBox("Room Not Selected", ui::Buttons::OK);
    return;
  }
  RoomGate = false;
  if (job::LinkInsert(table_, SelectedNetId, SelectedStationType, SelectedRoom) == 0) {
    dialogs_.msgBox("Duplicate Entry", ui::Buttons::OK);
    if (const job::StationLinkRecord* r = linkOf(SelectedNetId)) {
      selectLine(r->LinkListPosition);
      showRecord(*r);
    }
  } else {
    job::StationLinkRecord& r = table_.records[static_cast<std::size_t>(SelectedNetId)];
    form_.ListBox3.addItem(linkLine(r, form_.ComboBox34.text()));
    r.LinkListPosition = job::narrow(form_.ListBox3.count() - 1);
  }
  RoomGate = true;
}

void StationLinkPage::remove() {
  const int netId = SelectedNetId;
  if (netId <= 0) {
    dialogs_.msgBox("NetId Not Selected", ui::Buttons::OK);
    return;
  }
  job::StationLinkRecord& r = table_.records[static_cast<std::size_t>(netId)];
  if (dialogs_.msgBox("Delete NetId " + std::to_string(netId), ui::Buttons::YesNo) != ui::Answer::Yes) {
    showRecord(r);
    return;
  }
  r = {0, 0, 0, job::kNotListed};
  relist(kRebuiltSlots - 1, false);
  form_.ComboBox35.setListIndex(-1);
}

// The rebuild after a delete gives every line the type the combo shows now, as the page always
// has; a decoded table has only its codes to go by.
void StationLinkPage::relist(int lastSlot, bool ownTypes) {
  ui::ListBox& list = form_.ListBox3;
  list.clear();
  for (int s = 0; s <= lastSlot; ++s) {
    job::StationLinkRecord& r = table_.records[static_cast<std::size_t>(s)];
    r.LinkListPosition = job::kNotListed;
    if (r.LinkNetId <= 0) continue;
    if (ownTypes) {
      const std::string_view name = stationTypeName(r.LinkStationType);
      list.addItem(linkLine(r, name.empty() ? "Station Type Not Found" : name));
    } else {
      list.addItem(linkLine(r, form_.ComboBox34.text()));
    }
    r.LinkListPosition = job::narrow(list.count() - 1);
  }
}

void StationLinkPage::showRecord(const job::StationLinkRecord& r) {
  form_.ComboBox35.setListIndex(r.LinkNetId);
  form_.ComboBox33.setListIndex(r.LinkRoom);
}

// Slots 127 and 128 keep the line they had before a rebuild, which may be gone.
void StationLinkPage::selectLine(int line) { form_.ListBox3.setListIndex(line < form_.ListBox3.count() ? line : -1); }

const job::StationLinkRecord* StationLinkPage::linkOf(int netId) const {
  if (netId < 1) return nullptr;
  for (int s = 0; s < kSearchedSlots; ++s) {
    const job::StationLinkRecord& r = table_.records[static_cast<std::size_t>(s)];
    if (r.LinkNetId == netId) return &r;
  }
  return nullptr;
}

}  // namespace pellam::editors::station_link
