#include "host_session.h"

#include "component/platform.h"
#include "component/shared_session.h"
#include "unattended_host.h"
#include "win_dialogs.h"

namespace pellam::win {

namespace {
WinDialogs& dialogs() {
  static WinDialogs d;
  return d;
}
}  // namespace

void setDialogOwner(HWND owner) { dialogs().setOwner(owner); }

void giveHostPlatform() {
  // Made before any session, so they outlive every one of them.
  static UnattendedHost* const unattended = UnattendedHost::fromEnvironment();
  static WinDialogs& dialogs = win::dialogs();
  static component::DesktopViewer notepad;
  static component::SystemClock clock;
  static const bool given = [] {
    if (unattended) {
      component::SharedSession::setPlatform(*unattended, *unattended, *unattended);
    } else {
      component::SharedSession::setPlatform(dialogs, notepad, clock);
    }
    return true;
  }();
  (void)given;
}

}  // namespace pellam::win
