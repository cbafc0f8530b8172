#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <stdexcept>
#include <stop_token>
#include <string>
#include <utility>

#include "files/controller_address.h"

namespace pellam::files {

// What the controller is asked to do: take `fileName` from `folder` as `remoteName`.
struct TransferJob {
  std::filesystem::path folder;
  std::string fileName;
  std::string remoteName;
  ControllerAddress address;
  std::string login;
  std::chrono::seconds timeout{10};
  std::stop_token stop;  // the person cancelled: the transfer ends at once
};

struct TransferProgress {
  long long sent = 0;
  long long total = 0;
};

// Called at least ten times a second while a transfer runs, so that a face can stay usable.
using TransferTick = std::function<void(const TransferProgress&)>;

enum class TransferFailure {
  None,
  NotReached,    // no controller at that address
  LoginRefused,
  TimedOut,
  Broken,        // reached and logged in, but the file was not confirmed whole
  Cancelled,     // the person stopped it
};

// What the transport knows, not what the dialogue's texts suggest: a greeting or a reply may
// hold any words, so only the transfer itself can say that the controller took the file.
struct TransferResult {
  bool completed = false;  // the controller confirmed the transfer and every byte went
  long long bytesSent = 0;
  long long bytesTotal = 0;
  TransferFailure failure = TransferFailure::None;
  std::string why;  // what failed, for a person; empty when completed
  // False when the transport is given only some of the controller's replies (WinINet keeps the
  // last one of each call): a confirmed transfer then stands for the words it did not see.
  bool wholeDialogue = true;
};

// A file of our own that could not be made or written; the path is named to the person.
class CannotWriteFile : public std::runtime_error {
 public:
  explicit CannotWriteFile(std::string path) : std::runtime_error("cannot write " + path), path(std::move(path)) {}
  std::string path;
};

// Sends the file and leaves the controller's side of the dialogue in `folder`/r.txt, as the
// command-line client would have printed it. Throws CannotWriteFile for r.txt.
class FtpTransport {
 public:
  virtual ~FtpTransport() = default;
  virtual TransferResult run(const TransferJob& job, const TransferTick& tick) = 0;
};

// On Windows WinINet's FTP functions; elsewhere libcurl, in the upload program of its own
// (pellam-ftp-curl), so that nothing else starts with libcurl's libraries.
std::unique_ptr<FtpTransport> makeSystemFtpTransport();
// libcurl itself, in the upload program.
std::unique_ptr<FtpTransport> makeCurlTransport();

}  // namespace pellam::files
