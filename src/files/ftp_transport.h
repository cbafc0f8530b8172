#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

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
};

struct TransferProgress {
  long long sent = 0;
  long long total = 0;
};

// Called at least ten times a second while a transfer runs, so that a face can stay usable.
using TransferTick = std::function<void(const TransferProgress&)>;

// The controller did not answer within the time-out.
class TransferTimedOut : public std::runtime_error {
 public:
  TransferTimedOut() : std::runtime_error("the controller did not answer in time") {}
};

// Sends the file and leaves the controller's side of the dialogue in `folder`/r.txt, as the
// command-line client would have printed it. Throws TransferTimedOut.
class FtpTransport {
 public:
  virtual ~FtpTransport() = default;
  virtual void run(const TransferJob& job, const TransferTick& tick) = 0;
};

// libcurl where it is built in; on Windows the batch file and the system's ftp client.
std::unique_ptr<FtpTransport> makeSystemFtpTransport();

}  // namespace pellam::files
