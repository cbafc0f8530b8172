#pragma once

#include <string>

#include "job/tables.h"
#include "ui/dialogs.h"
#include "ui/editor_page.h"
#include "ui/user_form.h"

namespace pellam::editors::input_numbering {

// Gives input 1..16 the room number 1..255; true when stored, false after telling the person
// why not. A room belongs to one input: the board maps room n back to its input at 5000 + n.
bool NumberInput(job::InputNumberTable& table, ui::Dialogs& dialogs, int input, int room);

// "Input 3: Room 41"
std::string numberingLine(const job::InputNumberRecord& record);

// Presenter of Page9: which room each input reports, one line per numbered input.
class InputNumberingPage final : public ui::EditorPage {
 public:
  InputNumberingPage(ui::UserForm1& form, job::InputNumberTable& table, ui::Dialogs& dialogs);

  // The input and room lists, filled at start-up with the other choice lists.
  void fillLists() override;
  // A new job: no input numbered, no line listed.
  void clear() override;
  // Lists the table as an opened image left it.
  void listDecoded() override;

 private:
  // The input of the chosen line, 0 when no line is chosen.
  int chosenInput() const;
  void add();
  void removeChosenLine();
  void clearAll();
  void relist();

  ui::UserForm1& form_;
  job::InputNumberTable& table_;
  ui::Dialogs& dialogs_;
};

}  // namespace pellam::editors::input_numbering
