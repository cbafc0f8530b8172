#pragma once

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>

namespace pellam::component {
class Session;
}

namespace pellam::component::script {

inline constexpr int kScriptFailed = 2;
// Longer lines stop the script: no command needs them, and a stream without line ends (a
// device, a binary file) must not be read into memory whole.
inline constexpr std::size_t kMaxLineLength = 64 * 1024;

// Runs a form script on a fresh session, printing what a person would see to `out`; a bad
// line stops it with "error: line N: WHY" on `err`. Returns the exit status: 0 or 2.
// `prepare` may adjust the session before the first line runs (another upload transport).
int runFormScript(std::istream& in, std::ostream& out, std::ostream& err,
                  const std::function<void(Session&)>& prepare = {});

// Why the file at `path` is not read as a script ("is a folder, not a script"), or nothing when
// it is a regular file. A pipe or a device could block or never end.
std::optional<std::string> scriptFileRefusal(const std::string& path);

}  // namespace pellam::component::script
