#include "component/platform.h"

#include <chrono>
#include <ctime>
#include <ostream>

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
