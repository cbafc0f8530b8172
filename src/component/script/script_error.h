#pragma once

#include <string>

namespace pellam::component::script {

// Stops a form script. Deliberately not a std::exception: the procedures' error traps must
// let it pass, as a script's mistake is not a run-time error of the board's procedures.
struct ScriptError {
  std::string why;
};

}  // namespace pellam::component::script
