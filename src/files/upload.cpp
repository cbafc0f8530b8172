#include "files/upload.h"

#include <cstdio>
#include <fstream>
#include <sstream>
#include <system_error>

#include "files/date_text.h"
#include "files/job_paths.h"
#include "ui/trap.h"

namespace pellam::files {

namespace {

namespace fs = std::filesystem;

void writeWhole(const fs::path& path, const std::string& text) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << text;
  out.close();
  if (!out) throw std::runtime_error("cannot write " + utf8Text(path));
}

// The working files go whatever happens: a failed upload leaves the folder as it found it,
// but for the log.
class WorkingFiles {
 public:
  explicit WorkingFiles(fs::path folder) : folder_(std::move(folder)) { remove(); }
  ~WorkingFiles() { remove(); }
  WorkingFiles(const WorkingFiles&) = delete;
  WorkingFiles& operator=(const WorkingFiles&) = delete;

 private:
  void remove() {
    std::error_code ec;
    for (const char* name : {kFtpScriptName, kFtpBatchName, kCapturedName}) fs::remove(folder_ / name, ec);
  }
  fs::path folder_;
};

}  // namespace

std::string remoteName(const std::string& prefix, int netId) {
  char hex[16];
  std::snprintf(hex, sizeof hex, "%X", static_cast<unsigned>(netId));
  return prefix + hex + ".zpd";
}

std::string ftpScript(const std::string& login, const std::string& fileName, const std::string& remote) {
  return login + "\r\nput " + fileName + " " + remote + " \r\nbye\r\nExit \r\n";
}

std::string ftpBatch(const std::string& addressText) { return "FTP -s:FTPdata.txt " + addressText + " >r.txt"; }

std::string uploadLogEntry(const ui::DateTime& when, const std::string& captured) {
  return std::string(46, '*') + "\r\nDate " + dateText(when) + "\r\nTime " + timeText(when) + "\r\n" + captured;
}

std::vector<std::string> uploadMessages(const std::string& captured) {
  static const std::pair<const char*, const char*> kPhrases[] = {
      {"file open fails", "Station Not Found"},
      {"Unknown host", "RQC Not Found Check IP Address"},
      {"Not connected", "RQC Not Found Check IP Address"},
      {"ready to take file", "Down Load Completed !!"},
  };
  std::vector<std::string> messages;
  for (const auto& [phrase, message] : kPhrases) {
    if (captured.find(phrase) != std::string::npos) messages.emplace_back(message);
  }
  return messages;
}

UploadResult UploadImage(const UploadRequest& request, FtpTransport& transport, ui::Dialogs& dialogs,
                         ui::Clock& clock, const TransferTick& tick) {
  const fs::path image = fsPath(request.imagePath);
  const fs::path folder = image.parent_path().empty() ? fs::path(".") : image.parent_path();
  const std::string fileName = utf8Text(image.filename());
  const std::string remote = remoteName(request.settings.prefix, request.netId);

  UploadResult result;
  WorkingFiles working(folder);
  writeWhole(folder / kFtpScriptName, ftpScript(request.settings.login, fileName, remote));
  writeWhole(folder / kFtpBatchName, ftpBatch(request.addressText));
  transport.run({folder, fileName, remote, request.address, request.settings.login,
                 std::chrono::seconds(request.settings.timeoutSeconds)},
                tick);

  std::error_code ec;
  if (!fs::exists(folder / kCapturedName, ec)) return result;
  std::string captured;
  const bool read = ui::trap(dialogs, "Connection Time Out", [&] {
    std::ifstream in(folder / kCapturedName, std::ios::binary);
    if (!in) throw std::runtime_error("r.txt cannot be read");
    std::ostringstream text;
    text << in.rdbuf();
    captured = text.str();
  });
  if (!read) return result;

  result.logPath = utf8Text(fs::absolute(folder / kUploadLogName, ec).lexically_normal());
  std::ofstream log(folder / kUploadLogName, std::ios::binary | std::ios::app);
  log << uploadLogEntry(clock.now(), captured);
  log.close();
  if (!log) throw std::runtime_error("cannot append to the log");
  result.logged = true;
  for (const std::string& message : uploadMessages(captured)) {
    dialogs.msgBox(message, ui::Buttons::OK);
    if (message == "Down Load Completed !!") result.completed = true;
  }
  return result;
}

}  // namespace pellam::files
