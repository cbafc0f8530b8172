#pragma once

#include <exception>
#include <string>

#include "ui/dialogs.h"

namespace pellam::ui {

// A procedure's error trap: a run-time error shows the procedure's own text and leaves it;
// the caller goes on. Returns false when the body was stopped.
template <typename Body>
bool trap(Dialogs& dialogs, const std::string& trapText, Body&& body) {
  try {
    body();
    return true;
  } catch (const std::exception&) {
    dialogs.msgBox(trapText, Buttons::OK);
    return false;
  }
}

}  // namespace pellam::ui
