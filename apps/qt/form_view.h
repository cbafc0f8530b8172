#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include "control_view.h"
#include "ui/redraw_queue.h"
#include "ui/user_form.h"

namespace pellam::qt {

// UserForm1 drawn with Qt: one widget per row of the control table, placed where the table
// says, made when its page is first shown or its widget is asked for. The form's change
// notification marks controls; they are redrawn once the handler that changed them has
// finished, or at the next turn of the event loop.
class FormView final : public QWidget {
 public:
  explicit FormView(ui::UserForm1& form, QWidget* parent = nullptr);
  ~FormView() override;

  QWidget* widgetFor(std::string_view name);
  // Redraws every marked control now.
  void flush();
  // Told after a person's action has run, so that the window can show whether the job changed.
  std::function<void()> onPersonAction;

 private:
  void changed(const ui::Control* control);
  void personAction(const std::function<void()>& action);
  bool eventFilter(QObject* watched, QEvent* event) override;
  ControlView& add(ui::Control& control, QWidget* parent);
  void build(const ui::Control* page);
  void orderTabs(const ui::Control& page);
  void redrawAll();

  ui::UserForm1& form_;
  ui::UserForm1::Subscription subscription_;
  std::vector<std::unique_ptr<ControlView>> views_;  // table order
  std::unordered_map<const ui::Control*, ControlView*> byControl_;
  std::unordered_map<const ui::Control*, std::vector<ui::Control*>> unbuilt_;  // by page, table order
  ui::RedrawQueue<ControlView> redraws_;
  ControlView* multiPage_ = nullptr;
};

}  // namespace pellam::qt
