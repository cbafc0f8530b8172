#pragma once

#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "ui/controls.h"
#include "ui/user_form_table.h"

namespace pellam::ui {

std::span<const ControlSpec> userForm1Table();

class UserForm1 final : public ChangeSink {
 public:
  UserForm1();
  UserForm1(const UserForm1&) = delete;
  UserForm1& operator=(const UserForm1&) = delete;

#define PELLAM_DECLARE_CONTROL(name, kind, ...) kind name;
  PELLAM_USERFORM1_CONTROLS(PELLAM_DECLARE_CONTROL)
#undef PELLAM_DECLARE_CONTROL

  // Every control in table order, and lookup by name for scripts and renderers.
  const std::vector<Control*>& controls() const { return controls_; }
  Control* find(std::string_view name) const;

  bool loaded() const { return loaded_; }
  bool visible() const { return visible_; }
  bool modal() const { return modal_; }
  void load();
  // Discards what the controls hold; the handlers stay attached for the next load.
  void unload();
  void show(bool modeless);
  void setVisible(bool visible);

  // The one change notification for faces: a control changed, or the form itself (nullptr).
  using Observer = std::function<void(const Control*)>;
  void setObserver(Observer observer) { observer_ = std::move(observer); }

  void controlChanged(const Control& control) override;

 private:
  std::vector<Control*> controls_;
  std::vector<Control*> byName_;
  Observer observer_;
  bool loaded_ = false;
  bool visible_ = false;
  bool modal_ = false;
};

}  // namespace pellam::ui
