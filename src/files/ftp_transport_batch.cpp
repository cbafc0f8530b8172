// Windows: the batch file runs the system's ftp client, whose console output lands in r.txt.
#include <windows.h>

#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <system_error>

#include "files/ftp_transport.h"
#include "files/transfer_result.h"
#include "files/upload.h"

namespace pellam::files {

namespace {

// The client's process handle: closed, and the client ended, whatever a tick throws.
class ClientProcess {
 public:
  explicit ClientProcess(HANDLE process) : process_(process) {}
  ~ClientProcess() {
    if (WaitForSingleObject(process_, 0) == WAIT_TIMEOUT) TerminateProcess(process_, 1);
    CloseHandle(process_);
  }
  ClientProcess(const ClientProcess&) = delete;
  ClientProcess& operator=(const ClientProcess&) = delete;
  HANDLE get() const { return process_; }

 private:
  HANDLE process_;
};

class BatchTransport final : public FtpTransport {
 public:
  TransferResult run(const TransferJob& job, const TransferTick& tick) override {
    std::wstring command = L"cmd.exe /c FTPdata.bat";
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = SW_SHOWMINNOACTIVE;
    PROCESS_INFORMATION process{};
    const std::wstring folder = job.folder.wstring();
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, folder.c_str(), &startup,
                        &process)) {
      throw std::runtime_error("the ftp client could not be started");
    }
    CloseHandle(process.hThread);
    DWORD state = WAIT_TIMEOUT;
    {
      const ClientProcess client(process.hProcess);
      const ULONGLONG deadline = GetTickCount64() + static_cast<ULONGLONG>(job.timeout.count()) * 1000;
      while ((state = WaitForSingleObject(client.get(), 100)) == WAIT_TIMEOUT && GetTickCount64() < deadline) {
        if (tick) tick({});
      }
    }
    std::error_code ec;
    const auto total = static_cast<long long>(std::filesystem::file_size(job.folder / job.fileName, ec));
    std::ifstream in(job.folder / kCapturedName, std::ios::binary);
    std::ostringstream output;
    if (in) output << in.rdbuf();
    TransferResult r = clientTransferResult(output.str(), total);
    if (state == WAIT_TIMEOUT) {
      r.completed = false;
      r.failure = TransferFailure::TimedOut;
      r.why = failureWhy(r.failure, output.str());
    }
    return r;
  }
};

}  // namespace

std::unique_ptr<FtpTransport> makeSystemFtpTransport() { return std::make_unique<BatchTransport>(); }

}  // namespace pellam::files
