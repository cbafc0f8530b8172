#include "editors/naming/naming_page.h"

namespace pellam::editors::naming {

NamingPage::NamingPage(ui::UserForm1& form, job::RoomGroupNames& names, ui::Dialogs& dialogs)
    : form_(form), names_(names), dialogs_(dialogs) {}

void NamingPage::fillLists() {}

}  // namespace pellam::editors::naming
