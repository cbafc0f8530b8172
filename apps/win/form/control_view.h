#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <windows.h>

#include "ui/controls.h"
#include "win_metrics.h"

namespace pellam::win {

// Runs what a person did to a control: no error of the core leaves a window procedure, and the
// window learns that the action is over.
using PersonAction = std::function<void(const std::function<void()>& action)>;

// One Windows control standing for one control of the form. The control's notifications come
// back through command(); redraw() copies the control's state onto the window with the
// notifications it causes ignored, so that the form's own changes never come back as a person's.
class ControlView {
 public:
  ControlView() = default;
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;
  virtual ~ControlView();
  HWND window() const { return window_; }
  // Where the children of a page or frame go.
  virtual HWND childParent() const { return window_; }
  virtual void redraw() = 0;
  // A WM_COMMAND notification code from the window.
  virtual void command(WORD) {}
  // A WM_NOTIFY code from the window.
  virtual void notify(UINT) {}
  // Draws a view without a window of its own onto its panel.
  virtual void paint(HDC) const {}
  // Places the window at the table's position in its parent, at the parent's scale: only
  // when the scale changes, since a window is made in its place.
  virtual void place(const Scale& scale);

 protected:
  // Makes the window in its place at the parent's scale, showing `text` and the Visible and
  // Enabled of `state` (hidden without one), and ties it to this view.
  void create(const wchar_t* windowClass, DWORD style, DWORD exStyle, HWND parent, int id, const ui::Control* state,
              const std::wstring& text = {});
  // The window's rectangle in its parent at a scale.
  virtual RECT placeAt(const Scale& scale) const;
  // The control's Visible and Enabled onto its window: every view's redraw ends with them.
  void showState(const ui::Control& control);
  // Sets a window's text only when it differs, so that nothing flickers or notifies in vain.
  static void setText(HWND window, const std::wstring& text);
  // A caption as a button shows it: a person's "&" is a character, not the mark of a key.
  static std::wstring plainCaption(const std::string& utf8);

  const ui::ControlSpec* spec_ = nullptr;
  HWND window_ = nullptr;
  bool redrawing_ = false;  // notifications meanwhile are the form's own changes
};

// The view of a window made by create(), or nullptr.
ControlView* viewOf(HWND window);

std::unique_ptr<ControlView> makeListView(ui::ListControl& control, HWND parent, int id, PersonAction act);
std::unique_ptr<ControlView> makeTextView(ui::TextBox& control, HWND parent, int id, PersonAction act);
std::unique_ptr<ControlView> makeFrameView(ui::CaptionedControl& control, HWND parent, int id);
std::unique_ptr<ControlView> makeButtonView(ui::CaptionedControl& control, HWND parent, int id, PersonAction act);
// The tabs show the pages that are visible; choosing one shows its page through `showPage`.
std::unique_ptr<ControlView> makeMultiPageView(ui::MultiPage& control, HWND parent, int id, PersonAction act,
                                               std::function<void(int page)> showPage);
// A page lies on `area`, which its owner keeps up to date.
std::unique_ptr<ControlView> makePageView(ui::Page& control, HWND parent, int id, const RECT& area);

// A page or a frame: a plain window that passes its children's notifications on to their views
// and draws the labels that lie on it, which have no windows of their own.
class PanelView : public ControlView {
 public:
  void holdDrawn(const ControlView* label) { drawn_.push_back(label); }
  void dropDrawn(const ControlView* label) { std::erase(drawn_, label); }
  void paintDrawn(HDC dc) const;
  // The panel of a window made by PanelView::create(), or nullptr.
  static PanelView* of(HWND window);
  HFONT font = nullptr;  // handed on to the controls made in the panel

 protected:
  void create(DWORD style, HWND parent, int id, const ui::Control* state);

 private:
  std::vector<const ControlView*> drawn_;
};

// A label is drawn by the page or frame it lies on.
std::unique_ptr<ControlView> makeLabelView(ui::CaptionedControl& control, HWND parent);

}  // namespace pellam::win
