#pragma once

#include <string>

#include "job/tables.h"
#include "ui/dialogs.h"
#include "ui/editor_page.h"
#include "ui/user_form.h"

namespace pellam::setup {

// "Input 3: Master Off"; a value this page does not offer, as read from an image, by number.
std::string masterInputLine(int input, int value);

// Presenter of the board page's master inputs: the master-input mode (ComboBox64) and, in
// Frame28, what each of the 16 inputs does as a master input. The companion setting is not a
// choice of the page: only an opened image sets it, and a new job starts it at 0.
class MasterInputsPage final : public ui::EditorPage {
 public:
  MasterInputsPage(ui::UserForm1& form, job::MasterInputs& inputs, ui::Dialogs& dialogs);

  void fillLists() override;
  // A new job: mode, companion and every entry 0.
  void clear() override;
  // Shows the mode and the entries as an opened image left them.
  void listDecoded() override;

 private:
  void setChosenInput();
  void relist();

  ui::UserForm1& form_;
  job::MasterInputs& inputs_;
  ui::Dialogs& dialogs_;
};

}  // namespace pellam::setup
