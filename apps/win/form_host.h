#pragma once

#include "component/session.h"

namespace pellam::win {

// The form's window for a host program. It is made when the form is first shown, follows the
// form's visibility, and goes when the form is unloaded; the tables stay with the session.
// A host with a message loop gets the form modeless and the keyboard of a dialog through a
// hook on its loop; a host without one (a script host) gets it modal: the call that showed
// it returns when the person closes or hides it.

// Whether the calling thread shows windows of its own, and so runs a message loop for them.
bool hostRunsMessageLoop();

// Makes, shows, hides or ends the window as the session's form now is: after every member.
void followForm(component::Session& session);

// Ends the window before the session it draws goes.
void endForm();

}  // namespace pellam::win
