#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <windows.h>
#include <uxtheme.h>

#include "control_view.h"
#include "ui/redraw_queue.h"
#include "ui/user_form.h"

namespace pellam::win {

// UserForm1 drawn with Windows' own controls: one window per row of the control table, placed
// where the table says at the monitor's scale, made when it first shows. The form's
// change notification marks controls; they are redrawn once the handler that changed them has
// finished, or when the window's queue next runs. The window shows while the form is loaded
// and visible.
class FormWindow {
 public:
  // Made hidden; `menu` for a program whose main window the form is.
  explicit FormWindow(ui::UserForm1& form, HMENU menu = nullptr);
  ~FormWindow();
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;

  HWND window() const { return window_; }
  // The window of a control, its page built when needed; nullptr for a label, which has none,
  // and for a name not on the form.
  HWND windowFor(std::string_view name);
  // Redraws every marked control now.
  void flush();
  // Keyboard of a dialog for a message bound for the form: Tab, Shift+Tab, Enter, Ctrl+Tab
  // across the shown pages. True when it was handled and must not be dispatched.
  bool preTranslate(MSG& message);
  // Whether the form's current page is built and drawn: for tests and measurements.
  const ui::UserForm1& form() const { return form_; }
  void setTitle(const std::string& title);
  // Runs `action` as a person's, on the window's thread, soon; callable from any thread.
  void post(std::function<void()> action);
  // Runs a person's action (a control's, or a menu command's): what escapes it is reported
  // once and the form stays usable.
  void personAction(const std::function<void()>& action);

  // Told after a person's action has run, so that the window can show whether the job changed.
  std::function<void()> onPersonAction;
  // The person closed the window; without it the form hides.
  std::function<void()> onClose;
  // A menu command.
  std::function<void(WORD id)> onMenu;

  // The procedure of the form's window class.
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

 private:
  LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);
  void changed(const ui::Control* control);
  ControlView& add(ui::Control& control, HWND parent);
  // Makes the page's controls that `wanted` picks and whose frame is made.
  void build(const ui::Control* page, const std::function<bool(const ui::Control&)>& wanted);
  void buildShown(const ui::Control* page);
  // The page's panel, made when first needed.
  ControlView& pageView(std::size_t index);
  void orderTabs(const ui::Control& page);
  void showPage(int index);
  void layout();
  // The tabs' pane beside and below the pages.
  void paintPaneEdge(HDC dc);
  // Small screens scroll rather than cut a control off.
  void updateScrollBars();
  void scrollTo(int bar, int position);
  void scroll(int bar, WORD request);
  void redrawAll();
  void followForm();

  ui::UserForm1& form_;
  HWND window_ = nullptr;
  HFONT font_ = nullptr;
  Scale scale_;
  POINT content_{};   // the form's size at the window's scale
  POINT scrolled_{};  // how far the form is scrolled
  std::vector<std::unique_ptr<ControlView>> views_;  // table order
  std::unordered_map<const ui::Control*, ControlView*> byControl_;
  std::unordered_map<const ui::Control*, std::vector<ui::Control*>> unbuilt_;  // by page, table order
  const ui::Control* shownPage_ = nullptr;
  bool unbuiltShown_ = false;  // a control not yet made was shown
  ui::RedrawQueue<ControlView> redraws_;
  ControlView* multiPage_ = nullptr;
  std::vector<ControlView*> pages_;  // by page index; null until made
  RECT pageArea_{};                  // the tabs' display area, where every page lies
  HTHEME paneTheme_ = nullptr;       // the tabs' theme, for the pane's edge the form draws
  HWND lastFocus_ = nullptr;
  ui::UserForm1::Subscription subscription_;
};

}  // namespace pellam::win
