#include "editors/room_combine/room_combine_page.h"

namespace pellam::editors::room_combine {

RoomCombinePage::RoomCombinePage(ui::UserForm1& form, job::RoomCombineTable& table, ui::Dialogs& dialogs)
    : form_(form), table_(table), dialogs_(dialogs) {}

void RoomCombinePage::reset() {}

void RoomCombinePage::ListDecoded() {}

}  // namespace pellam::editors::room_combine
