#pragma once

#include <string>

namespace pellam::files {

// The controller's fixed FTP values. The defaults stand in for the real ones, which come
// with the controller; a site changes them in its settings file.
struct ControllerSettings {
  std::string login = "kxu";
  std::string prefix = "Q9z";  // the remote name is prefix + net id in hex + ".zpd"
  int timeoutSeconds = 10;
};

// PELLAM_CONTROLLER_SETTINGS when set; otherwise controller.ini in the user's settings
// folder ($XDG_CONFIG_HOME/pellam or ~/.config/pellam; %APPDATA%\Pellam on Windows).
std::string defaultControllerSettingsPath();

struct SettingsRead {
  ControllerSettings settings;
  std::string problem;  // empty when the file was missing or fine
};

// "key = value" lines (login, prefix, timeout); "#" starts a comment. A missing file gives
// the defaults; a line that is not understood is named in `problem`.
SettingsRead readControllerSettings(const std::string& path);

}  // namespace pellam::files
