#pragma once

#include <stdexcept>

namespace pellam::job {

// A run-time error of the board's procedures (a value that does not fit, a subscript out of
// range). The procedure's error trap reports it and the caller goes on.
class RuntimeError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

inline constexpr const char* kOverflow = "Overflow";
inline constexpr const char* kSubscriptOutOfRange = "Subscript out of range";

}  // namespace pellam::job
