#pragma once

#include <iosfwd>

namespace pellam::component::script {

inline constexpr int kScriptFailed = 2;

// Runs a form script on a fresh session, printing what a person would see to `out`; a bad
// line stops it with "error: line N: WHY" on `err`. Returns the exit status: 0 or 2.
int runFormScript(std::istream& in, std::ostream& out, std::ostream& err);

}  // namespace pellam::component::script
