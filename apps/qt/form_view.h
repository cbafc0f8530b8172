#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include "control_view.h"
#include "ui/user_form.h"

namespace pellam::qt {

// UserForm1 drawn with Qt: one widget per row of the control table, placed where the table
// says. The form's change notification marks controls; they are redrawn once the handler that
// changed them has finished, or at the next turn of the event loop.
class FormView final : public QWidget {
 public:
  explicit FormView(ui::UserForm1& form, QWidget* parent = nullptr);
  ~FormView() override;

  QWidget* widgetFor(std::string_view name) const;
  // Redraws every marked control now.
  void flush();
  // Told after a person's action has run, so that the window can note unsaved changes.
  std::function<void()> onPersonAction;

 private:
  void changed(const ui::Control* control);
  void actionDone();
  void redrawAll();

  ui::UserForm1& form_;
  std::vector<std::unique_ptr<ControlView>> views_;  // table order
  std::unordered_map<const ui::Control*, ControlView*> byControl_;
  std::vector<ControlView*> dirty_;
  ControlView* multiPage_ = nullptr;
  bool flushQueued_ = false;
  bool everything_ = false;
};

}  // namespace pellam::qt
