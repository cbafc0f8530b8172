#include "editors/station_personality/station_personality_page.h"

#include "ui/scoped.h"

#include "job/runtime_error.h"

#include <cstddef>
#include <cstdint>
#include <string>

#include "editors/station_personality/list_lines.h"

namespace pellam::editors::station_personality {

namespace {
constexpr int kRebuiltSlots = 127;
constexpr int kSearchedSlots = 128;
constexpr std::int16_t kT3100Series = 10;
constexpr std::int16_t kT6600Series = 9;


void showIndex(ui::ListControl& list, int index) {
  if (index >= 0 && index < list.count()) list.setListIndex(index);
}
}  // namespace

StationPersonalityPage::StationPersonalityPage(ui::UserForm1& form, job::StationPersonalityTable& table,
                                               ui::Dialogs& dialogs)
    : form_(form), table_(table), dialogs_(dialogs) {
  form_.ComboBox18.onClick = [this] { choosePersonality(); };
  form_.CommandButton14.onClick = [this] { add(); };
  form_.CommandButton15.onClick = [this] { remove(); };
  form_.ListBox7.onClick = [this] { clickLine(); };
}

// The room chooser is the fourth selection an add and a delete need.
bool StationPersonalityPage::everyChooserSet() const {
  return form_.ComboBox17.listIndex() >= 0 && form_.ComboBox18.listIndex() >= 0 && form_.ComboBox19.listIndex() >= 0 &&
         form_.ComboBox43.listIndex() >= 0;
}

// Personalities belong to a series: the list does not open before one is chosen.
void StationPersonalityPage::choosePersonality() {
  if (fillingChoosers_ || form_.ComboBox17.listIndex() >= 0 || form_.ComboBox18.listIndex() < 0) return;
  dialogs_.msgBox("Station Type Not Selected", ui::Buttons::OK);
  form_.ComboBox18.setListIndex(-1);
}

void StationPersonalityPage::add() {
  if (!everyChooserSet()) return;
  const int slot = form_.ComboBox19.listIndex();
  job::StationPersonalityRecord& r = table_.records[static_cast<std::size_t>(slot)];
  if (r.PersNetIdPlusOne == slot + 1) {
    dialogs_.msgBox("Duplicate NetId Entry", ui::Buttons::OK);
    return;
  }
  r.PersNetIdPlusOne = job::narrow(slot + 1);
  r.PersNumber = job::narrow(form_.ComboBox18.listIndex());
  const int series = form_.ComboBox17.listIndex();
  if (series == 0) r.PersSeries = kT3100Series;
  if (series == 1) r.PersSeries = kT6600Series;
  r.PersRoom = job::narrow(form_.ComboBox43.listIndex());
  form_.ListBox7.addItem(personalityLine(form_.ComboBox17.text(), r));
  r.PersListPosition = job::narrow(form_.ListBox7.count() - 1);
}

void StationPersonalityPage::remove() {
  if (!everyChooserSet()) return;
  const int slot = form_.ComboBox19.listIndex();
  job::StationPersonalityRecord& r = table_.records[static_cast<std::size_t>(slot)];
  if (r.PersNetIdPlusOne != slot + 1) {
    dialogs_.msgBox("Entry Not Found", ui::Buttons::OK);
    return;
  }
  if (dialogs_.msgBox("Delete NetId " + std::to_string(r.PersNetIdPlusOne), ui::Buttons::YesNo) != ui::Answer::Yes) return;
  r = {0, 0, 0, job::kNotListed, 0};
  relist();
}

// Every line shows the series the combo shows now, whatever each record's own; records that
// are not listed keep the line they had.
void StationPersonalityPage::clear() {
  table_ = {};
  form_.ListBox7.clear();
}

void StationPersonalityPage::relist() {
  ui::ListBox& list = form_.ListBox7;
  list.clear();
  for (int s = 0; s < kRebuiltSlots; ++s) {
    job::StationPersonalityRecord& r = table_.records[static_cast<std::size_t>(s)];
    if (r.PersNetIdPlusOne <= 0) continue;
    list.addItem(personalityLine(form_.ComboBox17.text(), r));
    r.PersListPosition = job::narrow(list.count() - 1);
  }
}

void StationPersonalityPage::clickLine() {
  const int line = form_.ListBox7.listIndex();
  if (line < 0) return;
  for (int s = 0; s < kSearchedSlots; ++s) {
    const job::StationPersonalityRecord& r = table_.records[static_cast<std::size_t>(s)];
    // Records never added may still carry line 0 from before any list was built.
    if (r.PersNetIdPlusOne <= 0 || r.PersListPosition != line) continue;
    const ui::Scoped filling(fillingChoosers_, true);
    // A decoded record has no series: the one chosen stays.
    if (r.PersSeries == kT3100Series) form_.ComboBox17.setListIndex(0);
    if (r.PersSeries == kT6600Series) form_.ComboBox17.setListIndex(1);
    showIndex(form_.ComboBox18, r.PersNumber);
    showIndex(form_.ComboBox19, r.PersNetIdPlusOne - 1);
    showIndex(form_.ComboBox43, r.PersRoom);
    return;
  }
}

}  // namespace pellam::editors::station_personality
