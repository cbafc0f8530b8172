#pragma once

#include <string>

#include "job/runtime_error.h"
#include "ui/dialogs.h"

namespace pellam::ui {

// A procedure's error trap: a run-time error shows the procedure's own text and leaves it;
// the caller goes on. Returns false when the body was stopped. Anything else (a fault of ours,
// memory running out) is not the board's run-time error: it passes on to the form's report.
template <typename Body>
bool trap(Dialogs& dialogs, const std::string& trapText, Body&& body) {
  try {
    body();
    return true;
  } catch (const job::RuntimeError&) {
    dialogs.errorBox(trapText);
    return false;
  }
}

}  // namespace pellam::ui
