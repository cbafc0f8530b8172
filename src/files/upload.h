#pragma once

#include <string>
#include <vector>

#include "files/controller_settings.h"
#include "files/ftp_transport.h"
#include "ui/dialogs.h"

// Sending a saved image to one station through the network controller's FTP service.
namespace pellam::files {

inline constexpr const char* kFtpScriptName = "FTPdata.txt";
inline constexpr const char* kFtpBatchName = "FTPdata.bat";
inline constexpr const char* kCapturedName = "r.txt";
inline constexpr const char* kUploadLogName = "RQCLog.txt";

// "Q9z1A.zpd": the station's image on the controller, net id in upper-case hex.
std::string remoteName(const std::string& prefix, int netId);
// The client's four-line script and the one-line batch file that runs it.
std::string ftpScript(const std::string& login, const std::string& fileName, const std::string& remote);
std::string ftpBatch(const std::string& addressText);
// 46 asterisks, the date, the time, then the controller's dialogue as captured.
std::string uploadLogEntry(const ui::DateTime& when, const std::string& captured);
// The messages the captured dialogue calls for, in the order they are tested.
std::vector<std::string> uploadMessages(const std::string& captured);

struct UploadRequest {
  std::string imagePath;
  int netId = 0;
  std::string addressText;  // as typed, already accepted by parseControllerAddress
  ControllerAddress address;
  ControllerSettings settings;
};

struct UploadResult {
  bool logged = false;     // an entry was appended to the log
  bool completed = false;  // the controller took the file
  std::string logPath;
};

// Writes the working files beside the image, runs the transfer, logs and evaluates what the
// controller said, and removes the working files whatever happened. A transfer that fails
// (time-out included) throws after the clean-up; reading a dialogue that cannot be read is
// reported as "Connection Time Out".
UploadResult UploadImage(const UploadRequest& request, FtpTransport& transport, ui::Dialogs& dialogs,
                         ui::Clock& clock, const TransferTick& tick);

}  // namespace pellam::files
