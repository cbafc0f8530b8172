#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
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
  // Every face that draws the form observes it for as long as it keeps the subscription.
  using Observer = std::function<void(const Control*)>;
  class Subscription {
   public:
    Subscription() = default;
    Subscription(Subscription&& other) noexcept : form_(std::exchange(other.form_, nullptr)), id_(other.id_) {}
    Subscription& operator=(Subscription&& other) noexcept;
    ~Subscription() { end(); }
    void end();

   private:
    friend class UserForm1;
    Subscription(UserForm1* form, int id) : form_(form), id_(id) {}
    UserForm1* form_ = nullptr;
    int id_ = 0;
  };
  [[nodiscard]] Subscription observe(Observer observer);

  void controlChanged(const Control& control) override;
  // The outermost handler of a person's action is where an error no trap caught ends: it is
  // reported once and the form, with the job, stays as it is and usable.
  void runHandler(const Handler& handler) override;
  using ErrorReport = std::function<void(const std::string& what)>;
  void setErrorReport(ErrorReport report) { errorReport_ = std::move(report); }
  // For faces: what escaped a person's action outside any handler goes to the same report.
  void reportError(const std::string& what);

 private:
  void tell(const Control* control);
  std::vector<Control*> controls_;
  std::vector<Control*> byName_;
  std::vector<std::pair<int, Observer>> observers_;
  int nextObserver_ = 0;
  ErrorReport errorReport_;
  int handlerDepth_ = 0;
  bool loaded_ = false;
  bool visible_ = false;
  bool modal_ = false;
};

}  // namespace pellam::ui
