#include "host_session.h"

#include "component/platform.h"
#include "unattended_host.h"
#include "win_dialogs.h"

namespace pellam::win {

component::Session& hostSession() {
  // The platform is made before the session, so it outlives it when the DLL unloads.
  static UnattendedHost* const unattended = UnattendedHost::fromEnvironment();
  static WinDialogs dialogs;
  static component::DesktopViewer notepad;
  static component::SystemClock clock;
  static component::Session& session = []() -> component::Session& {
    component::Session& s = component::Session::shared();
    if (unattended) {
      s.setPlatform(*unattended, *unattended, *unattended);
    } else {
      s.setPlatform(dialogs, notepad, clock);
    }
    return s;
  }();
  return session;
}

}  // namespace pellam::win
