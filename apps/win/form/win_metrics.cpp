#include "win_metrics.h"

#include <commctrl.h>

namespace pellam::win {

namespace {

// Windows 10's DPI functions, looked up so that the form still opens where they are missing.
template <class Function>
Function user32(const char* name) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), name)));
}

}  // namespace

UINT dpiOf(HWND window) {
  static const auto forWindow = user32<UINT(WINAPI*)(HWND)>("GetDpiForWindow");
  if (window && forWindow) {
    if (const UINT dpi = forWindow(window)) return dpi;
  }
  HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
  ReleaseDC(nullptr, screen);
  return dpi > 0 ? static_cast<UINT>(dpi) : USER_DEFAULT_SCREEN_DPI;
}

HFONT messageFont(UINT dpi) {
  static const auto forDpi = user32<BOOL(WINAPI*)(UINT, UINT, PVOID, UINT, UINT)>("SystemParametersInfoForDpi");
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  if (forDpi && forDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, dpi)) {
    return CreateFontIndirectW(&metrics.lfMessageFont);
  }
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  // The system's metrics are at the system's DPI.
  metrics.lfMessageFont.lfHeight = MulDiv(metrics.lfMessageFont.lfHeight, static_cast<int>(dpi), static_cast<int>(dpiOf(nullptr)));
  return CreateFontIndirectW(&metrics.lfMessageFont);
}

PerMonitorAware::PerMonitorAware() {
  static const auto set = user32<DPI_AWARENESS_CONTEXT(WINAPI*)(DPI_AWARENESS_CONTEXT)>("SetThreadDpiAwarenessContext");
  if (!set) return;
  previous_ = set(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
  if (!previous_) previous_ = set(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE);
}

PerMonitorAware::~PerMonitorAware() {
  static const auto set = user32<DPI_AWARENESS_CONTEXT(WINAPI*)(DPI_AWARENESS_CONTEXT)>("SetThreadDpiAwarenessContext");
  if (set && previous_) set(static_cast<DPI_AWARENESS_CONTEXT>(previous_));
}

VisualStyles::VisualStyles(HMODULE module) {
  static HANDLE context = [module] {
    ACTCTXW request{};
    request.cbSize = sizeof request;
    request.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    request.hModule = module;
    request.lpResourceName = MAKEINTRESOURCEW(2);
    HANDLE made = CreateActCtxW(&request);
    if (made == INVALID_HANDLE_VALUE) {
      // An executable's manifest is resource 1 and already active.
      return INVALID_HANDLE_VALUE;
    }
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_STANDARD_CLASSES | ICC_TAB_CLASSES};
    ULONG_PTR cookie = 0;
    if (ActivateActCtx(made, &cookie)) {
      InitCommonControlsEx(&controls);
      DeactivateActCtx(0, cookie);
    }
    return made;
  }();
  if (context != INVALID_HANDLE_VALUE) active_ = ActivateActCtx(context, &cookie_) != FALSE;
  if (context == INVALID_HANDLE_VALUE) {
    static const bool initialised = [] {
      INITCOMMONCONTROLSEX controls{sizeof controls, ICC_STANDARD_CLASSES | ICC_TAB_CLASSES};
      return InitCommonControlsEx(&controls) != FALSE;
    }();
    (void)initialised;
  }
}

VisualStyles::~VisualStyles() {
  if (active_) DeactivateActCtx(0, cookie_);
}

int textRoom(const ui::ControlSpec& spec, const Scale& scale) {
  const int width = scale(spec.width);
  switch (spec.kind) {
    case ui::Kind::Label: return ui::isMultiLine(spec) ? 0 : width;
    case ui::Kind::CommandButton: return width - scale(8);
    // The circle and the gap after it.
    case ui::Kind::OptionButton: return width - scale(13 + 6);
    // The frame's line starts before the caption and ends after it.
    case ui::Kind::Frame: return width - scale(2 * 9);
    // The arrow button, and the margins of the field or of the list's lines.
    case ui::Kind::ComboBox: return width - GetSystemMetrics(SM_CXVSCROLL) * static_cast<int>(scale.dpi) / 96 - scale(8);
    case ui::Kind::ListBox: return width - GetSystemMetrics(SM_CXVSCROLL) * static_cast<int>(scale.dpi) / 96 - scale(6);
    default: return 0;
  }
}

}  // namespace pellam::win
