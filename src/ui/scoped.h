#pragma once

#include <utility>

namespace pellam::ui {

// Gives a variable a value for as long as the guard lives and then its old one back, whatever
// is thrown meanwhile: flags such as ListRefreshing never stay raised after an error.
template <typename T>
class Scoped {
 public:
  Scoped(T& variable, T value) : variable_(variable), old_(std::exchange(variable, std::move(value))) {}
  ~Scoped() { variable_ = std::move(old_); }
  Scoped(const Scoped&) = delete;
  Scoped& operator=(const Scoped&) = delete;

 private:
  T& variable_;
  T old_;
};

}  // namespace pellam::ui
