#pragma once

#include <string>

#include "job/tables.h"
#include "ui/dialogs.h"
#include "ui/editor_page.h"
#include "ui/user_form.h"

namespace pellam::editors::naming {

// Each returns 0 when the label was stored and -1, after telling why, when it was refused: a
// number is labelled once. A negative group is no group chosen. A number outside 0..255 throws.
int SetRoomLabel(job::RoomGroupNames& names, ui::Dialogs& dialogs, const std::string& label, int room);
int SetGroupLabel(job::RoomGroupNames& names, ui::Dialogs& dialogs, const std::string& label, int group);
// Never refuses; a room outside 0..255 throws.
void SetRoomName(job::RoomGroupNames& names, const std::string& name, int room, int value);

// Presenter of Page8: labels for rooms and groups, each number labelled once.
class NamingPage final : public ui::EditorPage {
 public:
  NamingPage(ui::UserForm1& form, job::RoomGroupNames& names, ui::Dialogs& dialogs);

  // The page's number lists, filled at start-up with the other choice lists.
  void fillLists() override;
  // A new job has no labels; an opened one lists those read beside its image.
  void clear() override;
  void listDecoded() override;

 private:
  void ListRoomLabel(int room, const std::string& numberText);
  void ListGroupLabel(int group, const std::string& numberText);
  void labelRoom();
  void labelGroup();
  void storeRoomName();

  ui::UserForm1& form_;
  job::RoomGroupNames& names_;
  ui::Dialogs& dialogs_;
};

}  // namespace pellam::editors::naming
