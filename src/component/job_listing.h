#pragma once

#include <string>

#include "component/session.h"

namespace pellam::component {

// The job of a session as a person reads it: the board summary, then each table of the
// operating mode as its editor lists it, and the settings every mode carries.
std::string listJob(Session& session);

}  // namespace pellam::component
