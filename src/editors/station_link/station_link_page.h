#pragma once

#include <cstdint>

#include "job/tables.h"
#include "ui/dialogs.h"
#include "ui/editor_page.h"
#include "ui/user_form.h"

namespace pellam::editors::station_link {

// Presenter of the station links on Page6: which station (net id) stands in which room.
class StationLinkPage final : public ui::EditorPage {
 public:
  StationLinkPage(ui::UserForm1& form, job::StationLinkTable& table, ui::Dialogs& dialogs);

  // The editor state the form keeps, back to 0 as when the form is created.
  void reset() override;
  // A new job: no record, no line.
  void clear() override;
  // Lists a decoded table, each line with the name of its own type.
  void listDecoded() override;

  // The editor state, named as the form has always named it.
  std::int16_t SelectedNetId = 0;
  std::int16_t SelectedStationType = 0;
  std::int16_t SelectedRoom = 0;
  // Up while the person holds the choosers: a room chosen counts and a net id chosen leaves
  // the list alone. Down from a new job until a type is chosen, and while an add moves the
  // choosers itself, so that the room it shows does not become the next link's.
  bool RoomGate = false;

 private:
  void chooseType();
  void chooseNetId();
  void clickLine();
  void add();
  void remove();
  void relist(int lastSlot, bool ownTypes);
  void showRecord(const job::StationLinkRecord& r);
  void selectLine(int line);
  // The record that links the net id, searched as the page always has: slots 0..127.
  const job::StationLinkRecord* linkOf(int netId) const;

  ui::UserForm1& form_;
  job::StationLinkTable& table_;
  ui::Dialogs& dialogs_;
};

}  // namespace pellam::editors::station_link
