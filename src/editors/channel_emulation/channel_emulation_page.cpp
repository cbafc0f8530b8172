#include "editors/channel_emulation/channel_emulation_page.h"

namespace pellam::editors::channel_emulation {

ChannelEmulationPage::ChannelEmulationPage(ui::UserForm1& form, job::ChannelEmulationTable& table, ui::Dialogs& dialogs)
    : form_(form), table_(table), dialogs_(dialogs) {}

void ChannelEmulationPage::reset() {}

}  // namespace pellam::editors::channel_emulation
