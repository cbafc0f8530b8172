#pragma once

#include "component/session.h"

namespace pellam::win {

// The process's one session, given Windows' dialogs, or the test answers when the unattended
// switch is set, the first time a host creates a Class1.
component::Session& hostSession();

}  // namespace pellam::win
