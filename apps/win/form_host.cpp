#include "form_host.h"

#include <memory>

#include "form/form_window.h"
#include "form/win_metrics.h"
#include "host_session.h"
#include "module.h"

namespace pellam::win {

namespace {

struct Shown {
  // At the process's end the window goes with the process: no window is touched while the
  // DLL is being detached.
  ~Shown() { (void)window.release(); }
  component::Session* session = nullptr;
  std::unique_ptr<FormWindow> window;
  HHOOK hook = nullptr;
};

// One form per process, on the session's thread.
Shown& shown() {
  static Shown s;
  return s;
}

// The host's loop dispatches our messages; the keys of a dialog are handled before it does.
LRESULT CALLBACK keyboardOfADialog(int code, WPARAM remove, LPARAM message) {
  auto* m = reinterpret_cast<MSG*>(message);
  if (code == HC_ACTION && remove == PM_REMOVE && shown().window && shown().window->preTranslate(*m)) {
    m->message = WM_NULL;
  }
  return CallNextHookEx(nullptr, code, remove, message);
}

BOOL CALLBACK visibleOwnWindow(HWND window, LPARAM found) {
  if (IsWindowVisible(window) && (!shown().window || window != shown().window->window())) {
    *reinterpret_cast<bool*>(found) = true;
    return FALSE;
  }
  return TRUE;
}

void endWindow() {
  Shown& s = shown();
  if (s.hook) UnhookWindowsHookEx(s.hook);
  s.hook = nullptr;
  s.window.reset();
  setDialogOwner(nullptr);
}

void runModal() {
  Shown& s = shown();
  if (s.session) followForm(*s.session);
  MSG message;
  while (s.window && IsWindowVisible(s.window->window())) {
    const BOOL got = GetMessageW(&message, nullptr, 0, 0);
    if (got <= 0) {
      // The host's own end: its loop must see the quit too.
      if (got == 0) PostQuitMessage(static_cast<int>(message.wParam));
      break;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

}  // namespace

bool hostRunsMessageLoop() {
  bool found = false;
  EnumThreadWindows(GetCurrentThreadId(), visibleOwnWindow, reinterpret_cast<LPARAM>(&found));
  return found;
}

void followForm(component::Session& session) {
  Shown& s = shown();
  if (s.session != &session) {
    endForm();
    s.session = &session;
    session.runModalForm = runModal;
  }
  const ui::UserForm1& form = session.form;
  if (!form.loaded()) {
    endWindow();
    return;
  }
  if (!s.window && form.visible()) {
    const PerMonitorAware aware;
    const VisualStyles styles(moduleHandle());
    try {
      s.window = std::make_unique<FormWindow>(session.form);
    } catch (const std::runtime_error&) {
      return;  // no desktop to show it on (a service): the form stays headless
    }
    s.hook = SetWindowsHookExW(WH_GETMESSAGE, keyboardOfADialog, nullptr, GetCurrentThreadId());
  }
  if (s.window) {
    s.window->flush();
    setDialogOwner(IsWindowVisible(s.window->window()) ? s.window->window() : nullptr);
  }
}

void endForm() {
  Shown& s = shown();
  endWindow();
  if (s.session) s.session->runModalForm = nullptr;
  s.session = nullptr;
}

}  // namespace pellam::win
