#include "component/platform.h"

#include <chrono>
#include <ctime>
#include <ostream>

#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#else
#include <cerrno>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace pellam::component {

ui::Answer UnattendedDialogs::msgBox(const std::string& text, ui::Buttons buttons) {
  log_ << "pellam: " << text << '\n';
  switch (buttons) {
    case ui::Buttons::OK: return ui::Answer::OK;
    case ui::Buttons::OKCancel: return ui::Answer::Cancel;
    case ui::Buttons::YesNo: return ui::Answer::No;
  }
  return ui::Answer::Cancel;
}

std::string UnattendedDialogs::openFile(const ui::FileDialogRequest&) { return {}; }

#ifdef _WIN32

DesktopViewer::DesktopViewer() : program_("notepad.exe") {}

namespace {
std::wstring wide(const std::string& utf8) {
  if (utf8.empty()) return {};
  const int size = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), nullptr, 0);
  std::wstring text(static_cast<std::size_t>(size), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), text.data(), size);
  return text;
}
}  // namespace

// A Windows path holds no double quote, so quoting both parts keeps blanks in them whole.
bool DesktopViewer::openInViewer(const std::string& path) {
  std::wstring commandLine = L"\"" + wide(program_) + L"\" \"" + wide(path) + L"\"";
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = SW_SHOWNORMAL;
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process)) {
    return false;
  }
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return true;
}

#else

DesktopViewer::DesktopViewer() : program_("xdg-open") {}

// The path goes to the program as one argument, never through a shell. A middle process that
// exits at once leaves the viewer to init, so no child is left for us to reap; the pipe, closed
// on a successful exec, carries back an exec failure.
bool DesktopViewer::openInViewer(const std::string& path) {
  std::string program = program_;
  std::string argument = path;
  char* argv[] = {program.data(), argument.data(), nullptr};
  int failed[2];
  if (pipe(failed) != 0) return false;
  fcntl(failed[1], F_SETFD, FD_CLOEXEC);
  const pid_t middle = fork();
  if (middle == 0) {
    close(failed[0]);
    const pid_t viewer = fork();
    if (viewer == 0) execvp(argv[0], argv);  // returns only when it failed
    if (viewer <= 0) {
      const char failure = 1;
      [[maybe_unused]] const auto written = write(failed[1], &failure, 1);
    }
    _exit(0);
  }
  close(failed[1]);
  bool started = false;
  if (middle > 0) {
    int status = 0;
    while (waitpid(middle, &status, 0) < 0 && errno == EINTR) {
    }
    char failure = 0;
    ssize_t got;
    while ((got = read(failed[0], &failure, 1)) < 0 && errno == EINTR) {
    }
    started = got == 0;
  }
  close(failed[0]);
  return started;
}

#endif

ui::DateTime SystemClock::now() {
  const std::time_t t = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
  std::tm local{};
#ifdef _WIN32
  localtime_s(&local, &t);
#else
  localtime_r(&t, &local);
#endif
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

}  // namespace pellam::component
