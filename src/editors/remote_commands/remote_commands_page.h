#pragma once

#include <string>

#include "job/tables.h"
#include "ui/dialogs.h"
#include "ui/editor_page.h"
#include "ui/user_form.h"

namespace pellam::editors::remote_commands {

// Presenter of Page7: per input, the stations whose LED or button the input drives.
class RemoteCommandsPage final : public ui::EditorPage {
 public:
  RemoteCommandsPage(ui::UserForm1& form, job::RemoteCommandTable& table, ui::Dialogs& dialogs);

  // A new job: no entry, no line, no remote mode chosen.
  void clear() override;
  // When the form is loaded: the option of the remote mode in force and what it enables.
  void formLoaded() override;
  // After an image is opened: the remote mode its blocks were written in, and the first
  // input with entries (none, without a message, when no input has any).
  void listDecoded() override;

 private:
  void showMode();
  void chooseMode(int mode);
  void add();
  bool refused(bool condition, const char* text);
  template <typename Check>
  bool refusedUnderTrap(const char* trapText, Check check);
  int entryInput(int chosenInput) const;
  void removeChosenLine();
  void relist(int input);

  ui::UserForm1& form_;
  job::RemoteCommandTable& table_;
  ui::Dialogs& dialogs_;
};

}  // namespace pellam::editors::remote_commands
