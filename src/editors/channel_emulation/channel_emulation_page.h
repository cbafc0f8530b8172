#pragma once

#include "job/tables.h"
#include "ui/dialogs.h"
#include "ui/user_form.h"

namespace pellam::editors::channel_emulation {

// Presenter of Page2: an input's two actions, their fade rates, channels and levels.
class ChannelEmulationPage {
 public:
  ChannelEmulationPage(ui::UserForm1& form, job::ChannelEmulationTable& table, ui::Dialogs& dialogs);

  // The editor state the form keeps, back to 0 as when the form is created.
  void reset();

 private:
  ui::UserForm1& form_;
  job::ChannelEmulationTable& table_;
  ui::Dialogs& dialogs_;
};

}  // namespace pellam::editors::channel_emulation
