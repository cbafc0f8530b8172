#pragma once

#include "job/tables.h"
#include "ui/dialogs.h"
#include "ui/user_form.h"

namespace pellam::editors::room_combine {

// Presenter of Page4's room combine: channels by room and group, three views, deletes.
class RoomCombinePage {
 public:
  RoomCombinePage(ui::UserForm1& form, job::RoomCombineTable& table, ui::Dialogs& dialogs);

  // The editor state the form keeps, back to 0 as when the form is created.
  void reset();
  // Lists the decoded table in the "all" view.
  void ListDecoded();

 private:
  ui::UserForm1& form_;
  job::RoomCombineTable& table_;
  ui::Dialogs& dialogs_;
};

}  // namespace pellam::editors::room_combine
