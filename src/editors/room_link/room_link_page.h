#pragma once

#include <cstdint>
#include <string>

#include "job/tables.h"
#include "ui/dialogs.h"
#include "ui/editor_page.h"
#include "ui/user_form.h"

namespace pellam::editors::room_link {

inline constexpr std::int16_t kLinkStored = 16;
inline constexpr std::int16_t kInputAlreadyLinked = 18;

// Writes the pair into the record of the input; kInputAlreadyLinked when one of the first 16
// records already holds the input. Inputs 17 and 18 are not searched, so they are rewritten.
std::int16_t StoreRoomLink(job::RoomLinkTable& table, int input, int firstRoom, int secondRoom);

// Presenter of the three room-link groups: A on Page6, B on Page3, C on Page4.
class RoomLinkPage final : public ui::EditorPage {
 public:
  RoomLinkPage(ui::UserForm1& form, job::RoomLinkTable& table, ui::Dialogs& dialogs);

  // A new job: no line (the table is emptied with the image).
  void clear() override;
  // Lists the decoded table in the group of the operating mode's page (2: B, 3: C, 5: A).
  void listDecodedFor(int operatingMode);

 private:
  using LineFormat = std::string (*)(const job::RoomLinkRecord&);
  struct Group {
    ui::ComboBox& input;
    ui::ComboBox& firstRoom;
    ui::ComboBox& secondRoom;
    ui::ListBox& list;
    LineFormat addedLine;
    LineFormat rebuiltLine;
    // Group B traps its errors, so a line or input its lists do not hold is reported there;
    // the other groups pass over it.
    bool strict;
  };

  void attachRoomLists(Group& g);
  void add(Group& g);
  void addGroupC();
  bool equalRoomsRefused();
  void appendLine(Group& g, job::RoomLinkRecord& r);
  void remove(Group& g);
  void relist(ui::ListBox& list, LineFormat line);
  void chooseInput(Group& g, int input);
  void clickLine(Group& g);
  void setPosition(const Group& g, ui::ListControl& list, int index);

  ui::UserForm1& form_;
  job::RoomLinkTable& table_;
  ui::Dialogs& dialogs_;
  Group a_;
  Group b_;
  Group c_;
};

}  // namespace pellam::editors::room_link
