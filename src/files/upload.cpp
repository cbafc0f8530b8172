#include "files/upload.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <optional>
#include <sstream>
#include <string_view>
#include <system_error>
#include <utility>

#include "files/date_text.h"
#include "files/job_paths.h"
#include "files/log_append.h"
#include "files/transfer_result.h"
#include "files/working_folder.h"

namespace pellam::files {

namespace {

namespace fs = std::filesystem;

constexpr const char* kCompleted = "Down Load Completed !!";
constexpr const char* kCancelled = "Down Load Cancelled";

void writeWhole(const fs::path& path, const char* data, std::size_t size) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(data, static_cast<std::streamsize>(size));
  out.close();
  if (!out) throw CannotWriteFile(utf8Text(path));
}

void writeWhole(const fs::path& path, const std::string& text) { writeWhole(path, text.data(), text.size()); }

std::optional<std::string> readWhole(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return std::nullopt;
  std::ostringstream text;
  text << in.rdbuf();
  if (in.bad()) return std::nullopt;
  return text.str();
}

std::string failureMessage(const TransferResult& transfer) {
  switch (transfer.failure) {
    case TransferFailure::NotReached: return "RQC Not Found Check IP Address";
    case TransferFailure::LoginRefused: return "RQC Login Refused";
    case TransferFailure::TimedOut: return "RQC Connection Time Out";
    case TransferFailure::Cancelled: return kCancelled;
    default: return "Down Load Not Completed: " + transfer.why;
  }
}

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

std::vector<std::string> uploadMessages(const std::string& captured, const TransferResult& transfer) {
  static const std::pair<const char*, const char*> kPhrases[] = {
      {"file open fails", "Station Not Found"},
      {"Unknown host", "RQC Not Found Check IP Address"},
      {"Not connected", "RQC Not Found Check IP Address"},
      {"ready to take file", kCompleted},
  };
  std::vector<std::string> messages;
  for (const auto& [phrase, message] : kPhrases) {
    if (captured.find(phrase) == std::string::npos) continue;
    if (std::string_view(message) == kCompleted && !transfer.completed) {
      messages.push_back(transfer.failure == TransferFailure::Cancelled ? kCancelled
                                                                         : "Down Load Not Completed: " + transfer.why);
    } else {
      messages.emplace_back(message);
    }
  }
  if (!transfer.completed && messages.empty()) messages.push_back(failureMessage(transfer));
  if (transfer.completed && !transfer.wholeDialogue && std::ranges::find(messages, kCompleted) == messages.end()) {
    messages.emplace_back(kCompleted);
  }
  return messages;
}

UploadOutcome UploadImage(const UploadRequest& request, FtpTransport& transport, ui::Clock& clock,
                          const TransferTick& tick, std::stop_token stop) {
  const fs::path image = fsPath(request.imagePath);
  const fs::path logPath = (image.parent_path().empty() ? fs::path(".") : image.parent_path()) / kUploadLogName;
  const std::string fileName = utf8Text(image.filename());
  const std::string remote = remoteName(request.settings.prefix, request.netId);

  UploadOutcome outcome;
  try {
    const WorkingFolder work;
    writeWhole(work.path() / fileName, reinterpret_cast<const char*>(request.image.data()), request.image.size());
    writeWhole(work.path() / kFtpScriptName, ftpScript(request.settings.login, fileName, remote));
    writeWhole(work.path() / kFtpBatchName, ftpBatch(request.addressText));
    const TransferResult transfer = transport.run({work.path(), fileName, remote, request.address,
                                                   request.settings.login,
                                                   std::chrono::seconds(request.settings.timeoutSeconds),
                                                   std::move(stop)},
                                                  tick);
    outcome.completed = transfer.completed;

    std::error_code ec;
    if (!fs::exists(work.path() / kCapturedName, ec)) {
      if (!transfer.completed) outcome.messages.push_back(failureMessage(transfer));
      return outcome;
    }
    const std::optional<std::string> captured = readWhole(work.path() / kCapturedName);
    if (!captured) {
      outcome.messages.emplace_back("Connection Time Out");
      return outcome;
    }
    outcome.messages = uploadMessages(*captured, transfer);
    // The file may have been taken although the log cannot be written: say both.
    try {
      AppendInOneWrite(logPath, uploadLogEntry(clock.now(), *captured));
      outcome.logPath = utf8Text(fs::absolute(logPath, ec).lexically_normal());
    } catch (const CannotWriteFile& e) {
      outcome.messages.push_back("Cannot Write File: " + e.path);
    }
  } catch (const CannotWriteFile& e) {
    outcome.messages.push_back("Cannot Write File: " + e.path);
  }
  return outcome;
}

}  // namespace pellam::files
