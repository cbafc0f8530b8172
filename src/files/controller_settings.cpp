#include "files/controller_settings.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <fstream>

#include "files/job_paths.h"

namespace pellam::files {

namespace {

std::string trimmed(const std::string& s) {
  const auto first = s.find_first_not_of(" \t\r");
  if (first == std::string::npos) return {};
  return s.substr(first, s.find_last_not_of(" \t\r") - first + 1);
}

// Both values go into the script the client reads and into the remote name, so they keep
// to letters, digits and a few marks.
bool plainWord(const std::string& s, std::size_t longest) {
  return !s.empty() && s.size() <= longest && std::all_of(s.begin(), s.end(), [](char c) {
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_' || c == '-' || c == '.';
  });
}

std::string env(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

}  // namespace

std::string defaultControllerSettingsPath() {
  if (std::string chosen = env("PELLAM_CONTROLLER_SETTINGS"); !chosen.empty()) return chosen;
#ifdef _WIN32
  return env("APPDATA") + "\\Pellam\\controller.ini";
#else
  if (std::string config = env("XDG_CONFIG_HOME"); !config.empty()) return config + "/pellam/controller.ini";
  return env("HOME") + "/.config/pellam/controller.ini";
#endif
}

SettingsRead readControllerSettings(const std::string& path) {
  SettingsRead read;
  std::ifstream in(fsPath(path));
  int number = 0;
  for (std::string line; std::getline(in, line);) {
    ++number;
    line = trimmed(line.substr(0, line.find('#')));
    if (line.empty()) continue;
    const auto equals = line.find('=');
    const std::string key = equals == std::string::npos ? line : trimmed(line.substr(0, equals));
    const std::string value = equals == std::string::npos ? "" : trimmed(line.substr(equals + 1));
    bool fine = false;
    if (key == "login") {
      fine = plainWord(value, 32);
      if (fine) read.settings.login = value;
    } else if (key == "prefix") {
      fine = plainWord(value, 16);
      if (fine) read.settings.prefix = value;
    } else if (key == "timeout") {
      fine = value.size() <= 3 && std::all_of(value.begin(), value.end(), [](char c) { return c >= '0' && c <= '9'; }) &&
             !value.empty() && std::stoi(value) >= 1 && std::stoi(value) <= 300;
      if (fine) read.settings.timeoutSeconds = std::stoi(value);
    }
    if (!fine) {
      read.problem = path + " line " + std::to_string(number) + ": " + line;
      return read;
    }
  }
  return read;
}

}  // namespace pellam::files
