#pragma once

#include <functional>
#include <memory>

#include "ui/controls.h"

class QWidget;

namespace pellam::qt {

// One widget standing for one control of the form. The widget forwards a person's actions to
// the control; redraw() copies the control's state back with the widget's signals blocked, so
// that the form's own changes never come back as a person's.
class ControlView {
 public:
  virtual ~ControlView() = default;
  virtual QWidget* widget() const = 0;
  virtual void redraw() = 0;
  // Where the children of a page or frame go.
  virtual QWidget* childParent() const { return widget(); }
};

// The control's Visible and Enabled onto its widget: every view's redraw ends with them.
void showState(QWidget& widget, const ui::Control& control);

// Runs what a person did to a control: no error of the core ends the program, and the window
// learns that the action is over.
using PersonAction = std::function<void(const std::function<void()>& action)>;

std::unique_ptr<ControlView> makeListView(ui::ListControl& control, QWidget* parent, PersonAction act);
std::unique_ptr<ControlView> makeTextView(ui::TextBox& control, QWidget* parent, PersonAction act);
std::unique_ptr<ControlView> makeCaptionView(ui::CaptionedControl& control, QWidget* parent);
std::unique_ptr<ControlView> makeButtonView(ui::CaptionedControl& control, QWidget* parent, PersonAction act);
std::unique_ptr<ControlView> makeMultiPageView(ui::MultiPage& control, QWidget* parent, PersonAction act);
std::unique_ptr<ControlView> makePageView(ui::Page& control, QWidget* tabs);

// The longest text a combo box is sized for; scanning thousands of items for it is too slow.
inline constexpr int kComboContentsLength = 14;

}  // namespace pellam::qt
