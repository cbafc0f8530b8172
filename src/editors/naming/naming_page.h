#pragma once

#include "job/tables.h"
#include "ui/dialogs.h"
#include "ui/user_form.h"

namespace pellam::editors::naming {

// Presenter of Page8: labels for rooms and groups, each number labelled once.
class NamingPage {
 public:
  NamingPage(ui::UserForm1& form, job::RoomGroupNames& names, ui::Dialogs& dialogs);

  // The page's number lists, filled at start-up with the other choice lists.
  void fillLists();

 private:
  ui::UserForm1& form_;
  job::RoomGroupNames& names_;
  ui::Dialogs& dialogs_;
};

}  // namespace pellam::editors::naming
