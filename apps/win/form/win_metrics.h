#pragma once

#include <windows.h>

#include "ui/control_kind.h"

// What every window of the form shares about the screen: the scale of its monitor, the
// system's message font at that scale, the visual styles of common controls version 6.
namespace pellam::win {

// The table's pixels are at 96 DPI; a window draws them at its monitor's.
struct Scale {
  UINT dpi = USER_DEFAULT_SCREEN_DPI;
  int operator()(int pixels) const { return MulDiv(pixels, static_cast<int>(dpi), USER_DEFAULT_SCREEN_DPI); }
};

// The DPI of a window's monitor (the system's on Windows before 10).
UINT dpiOf(HWND window);

// The system's message font at a DPI; the caller deletes it.
HFONT messageFont(UINT dpi);

// While it lives, windows made on this thread are per-monitor DPI aware even when the host
// process is not, so that their positions are scaled by us rather than stretched by Windows.
class PerMonitorAware {
 public:
  PerMonitorAware();
  ~PerMonitorAware();
  PerMonitorAware(const PerMonitorAware&) = delete;
  PerMonitorAware& operator=(const PerMonitorAware&) = delete;

 private:
  void* previous_ = nullptr;
};

// While it lives, controls and dialogs made on this thread are common controls version 6
// (visual styles), from the manifest in `module`'s resources: a DLL's manifest applies only
// where it is activated, since the host's executable has its own.
class VisualStyles {
 public:
  explicit VisualStyles(HMODULE module);
  ~VisualStyles();
  VisualStyles(const VisualStyles&) = delete;
  VisualStyles& operator=(const VisualStyles&) = delete;

 private:
  ULONG_PTR cookie_ = 0;
  bool active_ = false;
};

// How wide a text may be, in pixels at `scale`, to show whole on one line in the control the
// table row makes: its width less what the control draws around the text. 0 for controls
// whose text is the person's (text boxes) or wraps.
int textRoom(const ui::ControlSpec& spec, const Scale& scale);

}  // namespace pellam::win
