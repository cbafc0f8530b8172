#include "control_view.h"

#include <stdexcept>
#include <unordered_map>

#include "module_instance.h"
#include "wide_text.h"

namespace pellam::win {

namespace {

constexpr wchar_t kPanelClass[] = L"PellamPanel";

// The view of each window made by a view: a window's property would cost Wine a round trip to
// the server to set.
std::unordered_map<HWND, ControlView*>& views() {
  static std::unordered_map<HWND, ControlView*> byWindow;
  return byWindow;
}

LRESULT CALLBACK panelProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  // Pages and frames hand their font on to the controls made in them.
  if (message == WM_SETFONT || message == WM_GETFONT) {
    PanelView* panel = PanelView::of(window);
    if (panel && message == WM_SETFONT) panel->font = reinterpret_cast<HFONT>(wParam);
    return message == WM_GETFONT && panel ? reinterpret_cast<LRESULT>(panel->font) : 0;
  }
  if (message == WM_PAINT) {
    PAINTSTRUCT paint;
    HDC dc = BeginPaint(window, &paint);
    if (const PanelView* panel = PanelView::of(window)) panel->paintDrawn(dc);
    EndPaint(window, &paint);
    return 0;
  }
  if (message == WM_NOTIFY) {
    const auto* header = reinterpret_cast<const NMHDR*>(lParam);
    if (ControlView* view = viewOf(header->hwndFrom)) view->notify(header->code);
    return 0;
  }
  if (message == WM_COMMAND && lParam) {
    if (ControlView* view = viewOf(reinterpret_cast<HWND>(lParam))) view->command(HIWORD(wParam));
    return 0;
  }
  // Static and button texts are drawn on the panel's own colour.
  if (message == WM_CTLCOLORSTATIC || message == WM_CTLCOLORBTN) {
    SetBkColor(reinterpret_cast<HDC>(wParam), GetSysColor(COLOR_BTNFACE));
    return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_BTNFACE));
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

const wchar_t* panelClass() {
  static const bool registered = [] {
    WNDCLASSEXW c{};
    c.cbSize = sizeof c;
    c.lpfnWndProc = panelProcedure;
    c.hInstance = moduleInstance();
    c.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    c.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    c.lpszClassName = kPanelClass;
    return RegisterClassExW(&c) != 0;
  }();
  (void)registered;
  return kPanelClass;
}

}  // namespace

ControlView* viewOf(HWND window) {
  const auto found = views().find(window);
  return found == views().end() ? nullptr : found->second;
}

ControlView::~ControlView() {
  if (window_) {
    views().erase(window_);
    DestroyWindow(window_);
  }
}

// Made where they belong and as they show: under Wine moving a combo box costs as much as
// making one, and every later change of a window is a round trip to the server.
void ControlView::create(const wchar_t* windowClass, DWORD style, DWORD exStyle, HWND parent, int id,
                         const ui::Control* state, const std::wstring& text) {
  const RECT at = placeAt(Scale{dpiOf(parent)});
  style |= WS_CHILD;
  if (state) style |= (state->visible() ? WS_VISIBLE : 0) | (state->enabled() ? 0 : WS_DISABLED);
  window_ = CreateWindowExW(exStyle, windowClass, text.c_str(), style, at.left, at.top, at.right - at.left,
                            at.bottom - at.top, parent,
                            reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), moduleInstance(), nullptr);
  if (!window_) throw std::runtime_error("Cannot make a window");
  views()[window_] = this;
  SendMessageW(window_, WM_SETFONT, SendMessageW(parent, WM_GETFONT, 0, 0), FALSE);
}

RECT ControlView::placeAt(const Scale& scale) const {
  const int left = scale(spec_->left), top = scale(spec_->top);
  return {left, top, left + scale(spec_->width), top + scale(spec_->height)};
}

void ControlView::place(const Scale& scale) {
  const RECT at = placeAt(scale);
  MoveWindow(window_, at.left, at.top, at.right - at.left, at.bottom - at.top, FALSE);
}

void ControlView::showState(const ui::Control& control) {
  const bool shown = (GetWindowLongW(window_, GWL_STYLE) & WS_VISIBLE) != 0;
  if (shown != control.visible()) ShowWindow(window_, control.visible() ? SW_SHOWNA : SW_HIDE);
  if ((IsWindowEnabled(window_) != FALSE) != control.enabled()) EnableWindow(window_, control.enabled());
}

std::wstring ControlView::plainCaption(const std::string& utf8) {
  std::wstring text = wide(utf8);
  for (std::size_t at = text.find(L'&'); at != std::wstring::npos; at = text.find(L'&', at + 2)) text.insert(at, 1, L'&');
  return text;
}

void ControlView::setText(HWND window, const std::wstring& text) {
  const int length = GetWindowTextLengthW(window);
  std::wstring shown(static_cast<std::size_t>(length) + 1, L'\0');
  GetWindowTextW(window, shown.data(), length + 1);
  shown.resize(static_cast<std::size_t>(length));
  if (shown != text) SetWindowTextW(window, text.c_str());
}

void PanelView::create(DWORD style, HWND parent, int id, const ui::Control* state) {
  ControlView::create(panelClass(), style, WS_EX_CONTROLPARENT, parent, id, state);
}

PanelView* PanelView::of(HWND window) { return dynamic_cast<PanelView*>(viewOf(window)); }

void PanelView::paintDrawn(HDC dc) const {
  for (const ControlView* label : drawn_) label->paint(dc);
}

}  // namespace pellam::win
