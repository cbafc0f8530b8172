#include <windows.h>
#include <shellapi.h>

#include "main_window.h"
#include "wide_text.h"

// pellam-setup [JOB.zpd]: opens the job, or starts a new one.
int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  int count = 0;
  LPWSTR* args = CommandLineToArgvW(GetCommandLineW(), &count);
  const std::string path = count > 1 ? pellam::win::utf8(std::wstring_view(args[1])) : std::string();
  LocalFree(args);
  pellam::win::MainWindow window;
  window.start(path);
  return window.run();
}
