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
    create(L"EDIT", lines | WS_TABSTOP, WS_EX_CLIENTEDGE, parent, id, &control, wide(control.text()));
    fitScrollBar();
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
    setText(window_, wide(control_.text()));
    fitScrollBar();
    showState(control_);
    redrawing_ = false;
  }
  void place(const Scale& scale) override {
    ControlView::place(scale);
    fitScrollBar();
  }

 private:
  // A long text's scroll bar shows only while the text is longer than its box, as in the
  // desktop app: the edit control keeps a disabled one in sight, which under Wine costs more
  // round trips to draw than the box does. Made with the bar, the control keeps its range.
  void fitScrollBar() {
    if (!multiLine(control_)) return;
    SCROLLINFO range{};
    range.cbSize = sizeof range;
    range.fMask = SIF_RANGE | SIF_PAGE;
    const bool needed =
        GetScrollInfo(window_, SB_VERT, &range) && range.nMax - range.nMin + 1 > static_cast<int>(range.nPage);
    if (needed != ((GetWindowLongW(window_, GWL_STYLE) & WS_VSCROLL) != 0)) ShowScrollBar(window_, SB_VERT, needed);
  }

  ui::TextBox& control_;
  PersonAction act_;
};

// A label has no window: its panel draws it as a static control would, since under Wine every
// window costs a few round trips to the server to make and to draw.
class LabelView final : public ControlView {
 public:
  LabelView(ui::CaptionedControl& control, HWND parent) : control_(control), parent_(parent) {
    spec_ = &control.spec();
    if (PanelView* panel = PanelView::of(parent_)) panel->holdDrawn(this);
    drawn_ = now();
  }
  ~LabelView() override {
    if (PanelView* panel = PanelView::of(parent_)) panel->dropDrawn(this);
  }
  void redraw() override {
    State state = now();
    if (state == drawn_) return;
    drawn_ = std::move(state);
    invalidate();
  }
  void place(const Scale&) override { InvalidateRect(parent_, nullptr, TRUE); }
  void paint(HDC dc) const override {
    if (!drawn_.visible) return;
    RECT at = placeAt(Scale{dpiOf(parent_)});
    const HGDIOBJ old = SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(parent_, WM_GETFONT, 0, 0)));
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(drawn_.enabled ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT));
    const UINT lines = multiLine(control_) ? DT_WORDBREAK : DT_SINGLELINE | DT_VCENTER;
    DrawTextW(dc, drawn_.caption.c_str(), -1, &at, DT_LEFT | DT_EXPANDTABS | DT_NOPREFIX | lines);
    SelectObject(dc, old);
  }

 private:
  struct State {
    std::wstring caption;
    bool visible, enabled;
    bool operator==(const State&) const = default;
  };
  State now() const { return {wide(control_.caption()), control_.visible(), control_.enabled()}; }
  void invalidate() const {
    const RECT at = placeAt(Scale{dpiOf(parent_)});
    InvalidateRect(parent_, &at, TRUE);
  }

  ui::CaptionedControl& control_;
  HWND parent_;
  State drawn_;
};

// A group box cannot hold children: the frame is a panel with the box drawn inside it, so that
// the frame's controls come and go with it.
class FrameView final : public PanelView {
 public:
  FrameView(ui::CaptionedControl& control, HWND parent, int id) : control_(control) {
    spec_ = &control.spec();
    create(WS_CLIPSIBLINGS, parent, id, &control);
    const RECT at = placeAt(Scale{dpiOf(parent)});
    box_ = CreateWindowExW(0, L"BUTTON", plainCaption(control.caption()).c_str(), WS_CHILD | WS_VISIBLE | BS_GROUPBOX,
                           0, 0, at.right - at.left, at.bottom - at.top, window_, nullptr, moduleInstance(), nullptr);
    SendMessageW(box_, WM_SETFONT, SendMessageW(parent, WM_GETFONT, 0, 0), FALSE);
  }
  void place(const Scale& scale) override {
    ControlView::place(scale);
    SendMessageW(box_, WM_SETFONT, SendMessageW(window_, WM_GETFONT, 0, 0), FALSE);
    MoveWindow(box_, 0, 0, scale(spec_->width), scale(spec_->height), FALSE);
    SetWindowPos(box_, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
  void redraw() override {
    setText(box_, plainCaption(control_.caption()));
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

std::unique_ptr<ControlView> makeFrameView(ui::CaptionedControl& control, HWND parent, int id) {
  return std::make_unique<FrameView>(control, parent, id);
}

std::unique_ptr<ControlView> makeLabelView(ui::CaptionedControl& control, HWND parent) {
  return std::make_unique<LabelView>(control, parent);
}

}  // namespace pellam::win
