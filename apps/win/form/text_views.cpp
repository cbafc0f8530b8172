#include "control_view.h"
#include "module_instance.h"
#include "wide_text.h"

namespace pellam::win {
namespace {

bool multiLine(const ui::Control& control) { return ui::isMultiLine(control.spec()); }

// Windows' edit controls end lines with CR LF, as the form's texts do.
class TextView final : public ControlView {
 public:
  TextView(ui::TextBox& control, HWND parent, int id, PersonAction act) : control_(control), act_(std::move(act)) {
    spec_ = &control.spec();
    const DWORD lines = multiLine(control) ? ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL | WS_VSCROLL : ES_AUTOHSCROLL;
    create(L"EDIT", lines | WS_TABSTOP, WS_EX_CLIENTEDGE, parent, id);
  }
  void command(WORD code) override {
    if (code != EN_CHANGE || redrawing_) return;
    const int length = GetWindowTextLengthW(window_);
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    GetWindowTextW(window_, text.data(), length + 1);
    text.resize(static_cast<std::size_t>(length));
    act_([&] { control_.setText(utf8(text)); });
  }
  void redraw() override {
    redrawing_ = true;
    setText(control_.text());
    showState(control_);
    redrawing_ = false;
  }

 private:
  ui::TextBox& control_;
  PersonAction act_;
};

class LabelView final : public ControlView {
 public:
  LabelView(ui::CaptionedControl& control, HWND parent, int id) : control_(control) {
    spec_ = &control.spec();
    create(L"STATIC", SS_NOPREFIX | (multiLine(control) ? SS_LEFT : SS_LEFTNOWORDWRAP | SS_CENTERIMAGE), 0, parent, id);
  }
  void redraw() override {
    setText(control_.caption());
    showState(control_);
  }

 private:
  ui::CaptionedControl& control_;
};

// A group box cannot hold children: the frame is a panel with the box drawn inside it, so that
// the frame's controls come and go with it.
class FrameView final : public ControlView {
 public:
  FrameView(ui::CaptionedControl& control, HWND parent, int id) : control_(control) {
    spec_ = &control.spec();
    create(panelClass(), WS_CLIPSIBLINGS, WS_EX_CONTROLPARENT, parent, id);
    const RECT at = placeAt(Scale{dpiOf(parent)});
    box_ = CreateWindowExW(0, L"BUTTON", L"", WS_CHILD | WS_VISIBLE | BS_GROUPBOX, 0, 0, at.right - at.left,
                           at.bottom - at.top, window_, nullptr, moduleInstance(), nullptr);
    SendMessageW(box_, WM_SETFONT, SendMessageW(parent, WM_GETFONT, 0, 0), FALSE);
    SendMessageW(window_, WM_SETFONT, SendMessageW(parent, WM_GETFONT, 0, 0), FALSE);
  }
  void place(const Scale& scale) override {
    ControlView::place(scale);
    SendMessageW(box_, WM_SETFONT, SendMessageW(window_, WM_GETFONT, 0, 0), FALSE);
    MoveWindow(box_, 0, 0, scale(spec_->width), scale(spec_->height), FALSE);
    SetWindowPos(box_, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
  void redraw() override {
    std::wstring caption = wide(control_.caption());
    for (std::size_t at = caption.find(L'&'); at != std::wstring::npos; at = caption.find(L'&', at + 2)) caption.insert(at, 1, L'&');
    SetWindowTextW(box_, caption.c_str());
    showState(control_);
  }

 private:
  ui::CaptionedControl& control_;
  HWND box_ = nullptr;
};

}  // namespace

std::unique_ptr<ControlView> makeTextView(ui::TextBox& control, HWND parent, int id, PersonAction act) {
  return std::make_unique<TextView>(control, parent, id, std::move(act));
}

std::unique_ptr<ControlView> makeCaptionView(ui::CaptionedControl& control, HWND parent, int id) {
  if (control.kind() == ui::Kind::Frame) return std::make_unique<FrameView>(control, parent, id);
  return std::make_unique<LabelView>(control, parent, id);
}

}  // namespace pellam::win
