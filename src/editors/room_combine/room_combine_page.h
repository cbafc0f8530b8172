#pragma once

#include <cstdint>
#include <string>

#include "editors/room_combine/views.h"
#include "job/tables.h"
#include "ui/dialogs.h"
#include "ui/editor_page.h"
#include "ui/user_form.h"

namespace pellam::editors::room_combine {

// Presenter of Page4's room combine: channels by room and group, three views, deletes.
class RoomCombinePage final : public ui::EditorPage {
 public:
  RoomCombinePage(ui::UserForm1& form, job::RoomCombineTable& table, ui::Dialogs& dialogs);

  // The editor state the form keeps, back to 0 as when the form is created.
  void reset() override;
  // A new job: no line (the table is emptied with the image).
  void clear() override;
  // Lists the decoded table in the "all" view.
  void listDecoded() override;

 private:
  using Field = std::uint16_t job::RoomCombineRecord::*;
  using FilteredView = int (*)(job::RoomCombineTable&, ui::ListBox&, int);

  void add();
  int listedLineOf(int channel) const;
  void remove();
  void viewBy(const ui::ComboBox& choice, FilteredView rebuild, const std::string& noneChosen,
              const std::string& caption, const std::string& word);
  void viewAll();
  void removeAll(int number, Field field, const std::string& noneChosen, const std::string& question,
                 const std::string& trapText);
  void clickLine();
  void selectLine(int line);

  ui::UserForm1& form_;
  job::RoomCombineTable& table_;
  ui::Dialogs& dialogs_;
  AllView allView_;
  // The form's selection flag: set while the page selects a line itself, so that the list's
  // click handler leaves the choices alone.
  bool selecting_ = false;
};

}  // namespace pellam::editors::room_combine
