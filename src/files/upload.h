#pragma once

#include <cstdint>
#include <stop_token>
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
// The messages the captured dialogue calls for, in the order they are tested; a transfer the
// transport did not see complete is never called completed, whatever the dialogue says, and
// is always given a message.
std::vector<std::string> uploadMessages(const std::string& captured, const TransferResult& transfer);

struct UploadRequest {
  std::string imagePath;            // the person's image; its folder keeps the log
  std::vector<std::uint8_t> image;  // its bytes as checked, which are the bytes sent
  int netId = 0;
  std::string addressText;  // as typed, already accepted by parseControllerAddress
  ControllerAddress address;
  ControllerSettings settings;
};

struct UploadOutcome {
  bool completed = false;             // the controller confirmed it took every byte
  std::string logPath;                // set when an entry was appended to the log
  std::vector<std::string> messages;  // for the person, in the order they are shown
};

// Writes the working files in a folder of this upload's own, runs the transfer, logs and
// evaluates what the controller said, and removes the folder whatever happened. A file that
// cannot be written is named in the messages. A stop ends the transfer at once, as cancelled.
UploadOutcome UploadImage(const UploadRequest& request, FtpTransport& transport, ui::Clock& clock,
                          const TransferTick& tick, std::stop_token stop = {});

}  // namespace pellam::files
