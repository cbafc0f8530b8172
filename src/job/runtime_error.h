#pragma once

#include <cstdint>
#include <limits>
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

// A value into one of the board's 16-bit fields: one that does not fit stops the step with
// "Overflow", as the board's integers always have, instead of wrapping.
template <typename Field = std::int16_t>
Field narrow(long long value) {
  if (value < std::numeric_limits<Field>::min() || value > std::numeric_limits<Field>::max()) {
    throw RuntimeError(kOverflow);
  }
  return static_cast<Field>(value);
}

}  // namespace pellam::job
