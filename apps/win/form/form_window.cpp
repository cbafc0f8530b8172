#include "form_window.h"

#include <commctrl.h>
#include <uxtheme.h>
#include <vssym32.h>

#include <algorithm>
#include <map>
#include <utility>

#include "module_instance.h"
#include "ui/reading_order.h"
#include "wide_text.h"

namespace pellam::win {

namespace {

constexpr wchar_t kFormClass[] = L"PellamForm";
constexpr UINT kFlush = WM_APP + 1;
constexpr UINT kPosted = WM_APP + 2;
// Control ids: the row of the table, past the ids dialogs give a meaning (IDOK, IDCANCEL...).
constexpr int kFirstId = 1000;

const wchar_t* formClass() {
  static const bool registered = [] {
    WNDCLASSEXW c{};
    c.cbSize = sizeof c;
    c.lpfnWndProc = &FormWindow::procedure;
    c.hInstance = moduleInstance();
    c.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    c.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    c.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
    c.lpszClassName = kFormClass;
    return RegisterClassExW(&c) != 0;
  }();
  (void)registered;
  return kFormClass;
}

// Where each control comes in the reading order, which reads a frame before its controls.
int readingPlaceOf(const ui::Control& control) {
  static const auto places = [] {
    std::unordered_map<std::string_view, int> place;
    int n = 0;
    for (const ui::ControlSpec* spec : ui::readingOrder(ui::userForm1Table())) {
      place.emplace(spec->name, n++);
    }
    return place;
  }();
  const auto place = places.find(control.name());
  return place == places.end() ? 1 << 30 : place->second;
}

std::unique_ptr<ControlView> makeView(ui::Control& c, HWND parent, int id, const PersonAction& act,
                                      const RECT& pageArea) {
  switch (c.kind()) {
    case ui::Kind::Frame: return makeFrameView(static_cast<ui::CaptionedControl&>(c), parent, id);
    case ui::Kind::Label: return makeLabelView(static_cast<ui::CaptionedControl&>(c), parent);
    case ui::Kind::TextBox: return makeTextView(static_cast<ui::TextBox&>(c), parent, id, act);
    case ui::Kind::ComboBox:
    case ui::Kind::ListBox: return makeListView(static_cast<ui::ListControl&>(c), parent, id, act);
    case ui::Kind::OptionButton:
    case ui::Kind::CommandButton: return makeButtonView(static_cast<ui::CaptionedControl&>(c), parent, id, act);
    case ui::Kind::Page: return makePageView(static_cast<ui::Page&>(c), parent, id, pageArea);
    case ui::Kind::MultiPage: break;
  }
  return nullptr;
}

BOOL CALLBACK setFont(HWND child, LPARAM font) {
  SendMessageW(child, WM_SETFONT, static_cast<WPARAM>(font), FALSE);
  return TRUE;
}

}  // namespace

FormWindow::FormWindow(ui::UserForm1& form, HMENU menu) : form_(form) {
  // Placed by layout(), centred on the screen once its size is known.
  window_ = CreateWindowExW(WS_EX_CONTROLPARENT, formClass(), L"Pellam Setup",
                            WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN, 0, 0, 640,
                            480, nullptr, menu, moduleInstance(), this);
  if (!window_) throw std::runtime_error("Cannot make the form's window");
  // Controls are made at the window's scale and in its font, so that layout() moves none of
  // them again.
  scale_.dpi = dpiOf(window_);
  font_ = messageFont(scale_.dpi);
  const PersonAction act = [this](const std::function<void()>& action) { personAction(action); };
  int id = kFirstId;
  // The tabs now; a page and its controls when the page is first shown, since most jobs never
  // open most pages.
  for (ui::Control* control : form_.controls()) {
    const ui::ControlSpec& spec = control->spec();
    if (spec.kind == ui::Kind::MultiPage) {
      views_.push_back(makeMultiPageView(form_.MultiPage1, window_, id, act, [this](int page) { showPage(page); }));
      multiPage_ = views_.back().get();
      byControl_[control] = multiPage_;
    } else if (spec.kind != ui::Kind::Page) {
      unbuilt_[ui::pageOf(form_, *control)].push_back(control);
    }
    ++id;
  }
  // Made in reading order, each parent's children come in the order Tab steps through them.
  for (auto& [page, controls] : unbuilt_) {
    std::stable_sort(controls.begin(), controls.end(), [](const ui::Control* a, const ui::Control* b) {
      return readingPlaceOf(*a) < readingPlaceOf(*b);
    });
  }
  pages_.resize(form_.MultiPage1.pages().size());
  // The tabs' height, and so where the pages start, is known once they hold their tabs: the
  // first page is made after that, in its place.
  multiPage_->redraw();
  layout();
  subscription_ = form_.observe([this](const ui::Control* control) { changed(control); });
  redrawAll();
}

FormWindow::~FormWindow() {
  subscription_.end();
  // The controls before the pages and frames that hold them.
  while (!views_.empty()) views_.pop_back();
  SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
  if (paneTheme_) CloseThemeData(paneTheme_);
  DestroyWindow(window_);
  if (font_) DeleteObject(font_);
}

ControlView& FormWindow::add(ui::Control& control, HWND parent) {
  const auto row = std::find(form_.controls().begin(), form_.controls().end(), &control) - form_.controls().begin();
  auto view = makeView(
      control, parent, kFirstId + static_cast<int>(row),
      [this](const std::function<void()>& action) { personAction(action); }, pageArea_);
  byControl_[&control] = view.get();
  views_.push_back(std::move(view));
  return *views_.back();
}

ControlView& FormWindow::pageView(std::size_t index) {
  if (pages_[index]) return *pages_[index];
  pages_[index] = &add(*form_.MultiPage1.pages()[index], window_);
  // The pages lie over the tabs: the tabs come last in the window's order, so that they are
  // drawn below the pages and Tab reaches them after the shown page's last control.
  SetWindowPos(multiPage_->window(), HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  return *pages_[index];
}

void FormWindow::build(const ui::Control* page, const std::function<bool(const ui::Control&)>& wanted) {
  const auto found = unbuilt_.find(page);
  if (found == unbuilt_.end()) return;
  // Made later than the window, by a person's click: with the same styles and scaling.
  const PerMonitorAware aware;
  const VisualStyles styles(moduleInstance());
  const auto& pages = form_.MultiPage1.pages();
  const auto index = static_cast<std::size_t>(std::find(pages.begin(), pages.end(), page) - pages.begin());
  const bool fresh = !pages_[index];
  pageView(index);
  std::vector<ControlView*> made;
  // A frame is made before its controls.
  std::erase_if(found->second, [&](ui::Control* control) {
    const auto frame = byControl_.find(form_.find(control->spec().parent));
    if (frame == byControl_.end() || !wanted(*control)) return false;
    made.push_back(&add(*control, frame->second->childParent()));
    return true;
  });
  if (found->second.empty()) unbuilt_.erase(found);
  if (made.empty()) return;
  for (ControlView* view : made) view->redraw();
  // Controls made into a page that has some already come after them in their parents' order.
  if (!fresh) orderTabs(*page);
}

// Under Wine each window costs about a millisecond, and a combo box several: the controls of a
// hidden frame (the upload's, a slave board's) wait until they show.
void FormWindow::buildShown(const ui::Control* page) {
  unbuiltShown_ = false;
  build(page, [](const ui::Control& control) { return control.visible(); });
}

void FormWindow::orderTabs(const ui::Control& page) {
  // Windows tabs through a parent's children in their order: each page's and frame's children
  // are put in the order a person reads them.
  std::map<HWND, std::vector<std::pair<int, HWND>>> byParent;
  for (const auto& [control, view] : byControl_) {
    if (control->kind() == ui::Kind::Page || control->kind() == ui::Kind::MultiPage) continue;
    if (ui::pageOf(form_, *control) != &page || !view->window()) continue;
    byParent[GetParent(view->window())].emplace_back(readingPlaceOf(*control), view->window());
  }
  for (auto& [parent, children] : byParent) {
    std::sort(children.begin(), children.end());
    HWND previous = HWND_TOP;
    for (const auto& [place, child] : children) {
      SetWindowPos(child, previous, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
      previous = child;
    }
  }
}

void FormWindow::showPage(int index) {
  // No page is made before the layout knows where pages lie.
  if (index < 0 || static_cast<std::size_t>(index) >= pages_.size() || IsRectEmpty(&pageArea_)) return;
  shownPage_ = form_.MultiPage1.pages()[static_cast<std::size_t>(index)];
  buildShown(shownPage_);
  pageView(static_cast<std::size_t>(index));
  for (std::size_t i = 0; i < pages_.size(); ++i) {
    const bool shown = static_cast<int>(i) == index;
    if (pages_[i] && (IsWindowVisible(pages_[i]->window()) != FALSE) != shown)
      ShowWindow(pages_[i]->window(), shown ? SW_SHOWNA : SW_HIDE);
  }
  // The focus never stays on a control nobody sees.
  HWND focus = GetFocus();
  if (focus && IsChild(window_, focus) && !IsWindowVisible(focus)) SetFocus(multiPage_->window());
}

void FormWindow::layout() {
  HFONT old = nullptr;
  if (const UINT dpi = dpiOf(window_); dpi != scale_.dpi) {
    // Moved to a monitor of another scale: every control in the new font, and below in its place.
    scale_.dpi = dpi;
    old = font_;
    font_ = messageFont(scale_.dpi);
    EnumChildWindows(window_, setFont, reinterpret_cast<LPARAM>(font_));
  }
  // The tabs are as large as the table's page area needs, the pages fill their display area.
  const ui::ControlSpec& spec = form_.MultiPage1.spec();
  RECT tabs{0, 0, scale_(spec.width), scale_(spec.height)};
  SendMessageW(multiPage_->window(), TCM_ADJUSTRECT, TRUE, reinterpret_cast<LPARAM>(&tabs));
  OffsetRect(&tabs, -tabs.left, -tabs.top);
  pageArea_ = tabs;
  SendMessageW(multiPage_->window(), TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&pageArea_));
  // The tab control draws its tabs and the top of its pane only, and the form the rest of the
  // pane's edge: a themed pane the size of the form takes Wine longer to draw than all the
  // controls of a page, and the pages cover nearly all of it. Its pane is as deep as its margin
  // below the pages; the pane's lower edge that this draws is cut off.
  const LONG margin = tabs.bottom - pageArea_.bottom;
  MoveWindow(multiPage_->window(), 0, 0, tabs.right, pageArea_.top + margin, FALSE);
  SetWindowRgn(multiPage_->window(), CreateRectRgn(0, 0, tabs.right, pageArea_.top), FALSE);
  if (old) {
    for (const auto& view : views_) view->place(scale_);
  } else {
    for (ControlView* page : pages_)
      if (page) page->place(scale_);
  }
  // As large as the form, but never beyond the screen's work area: the rest scrolls.
  content_ = {tabs.right, tabs.bottom};
  scrolled_ = {0, 0};
  SetScrollPos(window_, SB_HORZ, 0, FALSE);
  SetScrollPos(window_, SB_VERT, 0, FALSE);
  ShowScrollBar(window_, SB_BOTH, FALSE);
  RECT frame = tabs;
  AdjustWindowRectEx(&frame, static_cast<DWORD>(GetWindowLongW(window_, GWL_STYLE)) & ~(WS_HSCROLL | WS_VSCROLL),
                     GetMenu(window_) != nullptr, static_cast<DWORD>(GetWindowLongW(window_, GWL_EXSTYLE)));
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(window_, MONITOR_DEFAULTTONEAREST), &monitor);
  const LONG workWidth = monitor.rcWork.right - monitor.rcWork.left, workHeight = monitor.rcWork.bottom - monitor.rcWork.top;
  const LONG bar = scale_(GetSystemMetrics(SM_CXVSCROLL));
  LONG width = frame.right - frame.left, height = frame.bottom - frame.top;
  if (height > workHeight) width += bar;
  if (width > workWidth) height += bar;
  width = std::min(width, workWidth);
  height = std::min(height, workHeight);
  // Centred when it first shows; later it stays where the person moved it.
  const bool placed = IsWindowVisible(window_) != FALSE;
  SetWindowPos(window_, nullptr, monitor.rcWork.left + (workWidth - width) / 2,
               monitor.rcWork.top + (workHeight - height) / 2, width, height,
               SWP_NOZORDER | SWP_NOACTIVATE | (placed ? SWP_NOMOVE : 0));
  updateScrollBars();
  InvalidateRect(window_, nullptr, TRUE);
  if (old) DeleteObject(old);
}

void FormWindow::paintPaneEdge(HDC dc) {
  // Each edge is the edge of a pane twice as deep as its margin, cut to the margin: a thin strip
  // to draw, in the theme's look or the classic one.
  const RECT& page = pageArea_;
  const LONG width = content_.x, height = content_.y, left = page.left, right = width - page.right,
             below = height - page.bottom;
  struct Strip {
    RECT pane, cut;
  };
  Strip strips[] = {
      {{0, page.top - 2 * below, 2 * left, height}, {0, page.top, left, height}},
      {{width - 2 * right, page.top - 2 * below, width, height}, {width - right, page.top, width, height}},
      {{0, page.bottom - below, width, height}, {0, page.bottom, width, height}},
  };
  // Opened on the form's own window: a theme opened on a control becomes the one Windows
  // hands that control back, and closing it would leave the control a stale one.
  if (!paneTheme_) paneTheme_ = OpenThemeData(window_, L"TAB");
  const HTHEME theme = paneTheme_;
  for (Strip& strip : strips) {
    OffsetRect(&strip.pane, -scrolled_.x, -scrolled_.y);
    OffsetRect(&strip.cut, -scrolled_.x, -scrolled_.y);
    if (theme) {
      DrawThemeBackground(theme, dc, TABP_PANE, 0, &strip.pane, &strip.cut);
    } else {
      const int saved = SaveDC(dc);
      IntersectClipRect(dc, strip.cut.left, strip.cut.top, strip.cut.right, strip.cut.bottom);
      DrawEdge(dc, &strip.pane, EDGE_RAISED, BF_SOFT | BF_RECT);
      RestoreDC(dc, saved);
    }
  }
}

void FormWindow::updateScrollBars() {
  RECT client;
  GetClientRect(window_, &client);
  for (const int bar : {SB_HORZ, SB_VERT}) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE;
    info.nMax = (bar == SB_HORZ ? content_.x : content_.y) - 1;
    info.nPage = static_cast<UINT>(bar == SB_HORZ ? client.right : client.bottom);
    SetScrollInfo(window_, bar, &info, TRUE);
    scrollTo(bar, bar == SB_HORZ ? scrolled_.x : scrolled_.y);
  }
}

void FormWindow::scrollTo(int bar, int position) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_RANGE | SIF_PAGE;
  GetScrollInfo(window_, bar, &info);
  position = std::clamp(position, 0, std::max(0, info.nMax - static_cast<int>(info.nPage) + 1));
  LONG& now = bar == SB_HORZ ? scrolled_.x : scrolled_.y;
  const int by = static_cast<int>(now) - position;
  now = position;
  SetScrollPos(window_, bar, position, TRUE);
  if (by != 0) {
    ScrollWindowEx(window_, bar == SB_HORZ ? by : 0, bar == SB_VERT ? by : 0, nullptr, nullptr, nullptr, nullptr,
                   SW_SCROLLCHILDREN | SW_INVALIDATE | SW_ERASE);
  }
}

void FormWindow::scroll(int bar, WORD request) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  GetScrollInfo(window_, bar, &info);
  int position = info.nPos;
  switch (request) {
    case SB_LINEUP: position -= scale_(20); break;
    case SB_LINEDOWN: position += scale_(20); break;
    case SB_PAGEUP: position -= static_cast<int>(info.nPage); break;
    case SB_PAGEDOWN: position += static_cast<int>(info.nPage); break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION: position = info.nTrackPos; break;
    case SB_TOP: position = 0; break;
    case SB_BOTTOM: position = info.nMax; break;
    default: return;
  }
  scrollTo(bar, position);
}

HWND FormWindow::windowFor(std::string_view name) {
  const ui::Control* control = form_.find(name);
  if (!control) return nullptr;
  // A hidden control too, with the frames that hold it.
  std::vector<const ui::Control*> holders;
  for (const ui::Control* c = control; c->kind() != ui::Kind::Page; c = form_.find(c->spec().parent)) holders.push_back(c);
  build(ui::pageOf(form_, *control), [&](const ui::Control& c) {
    return c.visible() || std::find(holders.begin(), holders.end(), &c) != holders.end();
  });
  return byControl_.at(control)->window();
}

void FormWindow::changed(const ui::Control* control) {
  const auto view = control ? byControl_.find(control) : byControl_.end();
  if (control && view == byControl_.end()) {
    // Drawn whole when it is made: now, if it shows on the page in front.
    if (control->visible() && ui::pageOf(form_, *control) == shownPage_ && !std::exchange(unbuiltShown_, true))
      PostMessageW(window_, kFlush, 0, 0);
    return;
  }
  // Changes made while a message box is up are drawn by the box's own message loop.
  if (redraws_.mark(control ? view->second : nullptr)) PostMessageW(window_, kFlush, 0, 0);
}

void FormWindow::flush() {
  if (unbuiltShown_) buildShown(shownPage_);
  const auto due = redraws_.take();
  if (due.everything) {
    redrawAll();
    return;
  }
  for (ControlView* view : due.views) view->redraw();
  // The shown page follows the pages' visibility, so the tabs come last.
  if (!due.views.empty()) multiPage_->redraw();
  followForm();
}

void FormWindow::redrawAll() {
  // By index: showing a page builds its controls, which adds views.
  for (std::size_t i = 0; i < views_.size(); ++i) views_[i]->redraw();
  multiPage_->redraw();
  followForm();
}

void FormWindow::followForm() {
  const bool shown = form_.loaded() && form_.visible();
  if ((IsWindowVisible(window_) != FALSE) == shown) return;
  ShowWindow(window_, shown ? SW_SHOW : SW_HIDE);
  if (shown) {
    SetForegroundWindow(window_);
    SetFocus(multiPage_->window());
  }
}

void FormWindow::post(std::function<void()> action) {
  auto* posted = new std::function<void()>(std::move(action));
  if (!PostMessageW(window_, kPosted, 0, reinterpret_cast<LPARAM>(posted))) delete posted;
}

void FormWindow::setTitle(const std::string& title) { SetWindowTextW(window_, wide(title).c_str()); }

// A window procedure must never let an error out: what escapes the core goes to the form's report.
void FormWindow::personAction(const std::function<void()>& action) {
  try {
    action();
  } catch (const std::exception& e) {
    form_.reportError(e.what());
  }
  flush();
  if (onPersonAction) onPersonAction();
}

bool FormWindow::preTranslate(MSG& message) {
  if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST) return false;
  if (message.hwnd != window_ && !IsChild(window_, message.hwnd)) return false;
  // Ctrl+Tab and Ctrl+Shift+Tab step through the pages that show, wherever the focus is.
  if (message.message == WM_KEYDOWN && message.wParam == VK_TAB && (GetKeyState(VK_CONTROL) & 0x8000)) {
    const int step = (GetKeyState(VK_SHIFT) & 0x8000) ? -1 : 1;
    const int target = form_.MultiPage1.visiblePageFrom(form_.MultiPage1.value(), step);
    if (target >= 0) personAction([&] { form_.MultiPage1.setValue(target); });
    return true;
  }
  return IsDialogMessageW(window_, &message) != FALSE;
}

LRESULT CALLBACK FormWindow::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    const auto* create = reinterpret_cast<const CREATESTRUCTW*>(lParam);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(create->lpCreateParams));
  }
  auto* self = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (!self || !self->window_) return DefWindowProcW(window, message, wParam, lParam);
  // Nothing may unwind through Windows' own code.
  try {
    return self->handle(message, wParam, lParam);
  } catch (const std::exception& e) {
    try {
      self->form_.reportError(e.what());
    } catch (...) {
    }
  } catch (...) {
  }
  return 0;
}

LRESULT FormWindow::handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      if (lParam) {
        if (ControlView* view = viewOf(reinterpret_cast<HWND>(lParam))) view->command(HIWORD(wParam));
        return 0;
      }
      // Enter with a button focused presses it, as Space does; elsewhere it does nothing.
      if (LOWORD(wParam) == IDOK) {
        HWND focus = GetFocus();
        wchar_t kind[16]{};
        if (focus && GetClassNameW(focus, kind, 16) && lstrcmpiW(kind, L"Button") == 0) SendMessageW(focus, BM_CLICK, 0, 0);
        return 0;
      }
      if (LOWORD(wParam) != IDCANCEL && onMenu) onMenu(LOWORD(wParam));
      return 0;
    case WM_NOTIFY: {
      const auto* header = reinterpret_cast<const NMHDR*>(lParam);
      if (ControlView* view = viewOf(header->hwndFrom)) view->notify(header->code);
      return 0;
    }
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
      SetBkColor(reinterpret_cast<HDC>(wParam), GetSysColor(COLOR_BTNFACE));
      return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_BTNFACE));
    case WM_GETFONT: return reinterpret_cast<LRESULT>(font_);
    case WM_PAINT: {
      PAINTSTRUCT paint;
      HDC dc = BeginPaint(window_, &paint);
      paintPaneEdge(dc);
      EndPaint(window_, &paint);
      return 0;
    }
    case kFlush:
      if (redraws_.queued() || unbuiltShown_) flush();
      return 0;
    case kPosted: {
      const std::unique_ptr<std::function<void()>> action(reinterpret_cast<std::function<void()>*>(lParam));
      personAction(*action);
      return 0;
    }
    case WM_CLOSE:
      if (onClose) {
        onClose();
      } else {
        personAction([&] { form_.setVisible(false); });
      }
      return 0;
    case WM_ACTIVATE:
      // The focus comes back where it was when the window is activated again.
      if (LOWORD(wParam) == WA_INACTIVE) {
        lastFocus_ = GetFocus();
      } else if (lastFocus_ && IsChild(window_, lastFocus_) && IsWindowVisible(lastFocus_)) {
        SetFocus(lastFocus_);
        return 0;
      }
      break;
    case WM_SIZE: updateScrollBars(); break;
    case WM_HSCROLL:
    case WM_VSCROLL: scroll(message == WM_HSCROLL ? SB_HORZ : SB_VERT, LOWORD(wParam)); return 0;
    case WM_MOUSEWHEEL: scrollTo(SB_VERT, scrolled_.y - GET_WHEEL_DELTA_WPARAM(wParam) * scale_(60) / WHEEL_DELTA); return 0;
    case WM_THEMECHANGED:
      if (paneTheme_) CloseThemeData(std::exchange(paneTheme_, nullptr));
      break;
    case WM_DPICHANGED: {
      layout();
      const auto* suggested = reinterpret_cast<const RECT*>(lParam);
      SetWindowPos(window_, nullptr, suggested->left, suggested->top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
      return 0;
    }
    default: break;
  }
  return DefWindowProcW(window_, message, wParam, lParam);
}

}  // namespace pellam::win
