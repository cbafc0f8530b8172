// Windows: the controller's FTP service through WinINet. Its calls block, so they run on a
// thread of their own while this one ticks, and a cancel or the time-out closes the handles
// under them, which WinINet documents as the way to end a call in progress. FtpPutFile, not
// FtpOpenFile, because only it tells whether the controller confirmed the file.
#include <windows.h>
#include <wininet.h>

#include <algorithm>
#include <atomic>
#include <fstream>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

#include "files/ftp_transport.h"
#include "files/job_paths.h"
#include "files/transfer_result.h"
#include "files/upload.h"

namespace pellam::files {

namespace {

std::wstring wide(const std::string& ascii) { return std::wstring(ascii.begin(), ascii.end()); }

// The controller's replies to the call just made on this thread, as WinINet kept them.
std::string lastReplies() {
  // WinINet's own reply buffer is this long; a longer text is asked for again below.
  std::string text(1460, '\0');
  DWORD error = 0;
  auto size = static_cast<DWORD>(text.size());
  if (!InternetGetLastResponseInfoA(&error, text.data(), &size)) {
    if (GetLastError() != ERROR_INSUFFICIENT_BUFFER) return {};
    text.assign(size + 1, '\0');
    size = static_cast<DWORD>(text.size());
    if (!InternetGetLastResponseInfoA(&error, text.data(), &size)) return {};
  }
  text.resize(std::min<std::size_t>(size, text.size()));
  if (const auto end = text.find('\0'); end != std::string::npos) text.resize(end);
  if (!text.empty() && text.back() != '\n') text += "\r\n";
  return text;
}

// One upload's handles and what the calling thread learnt.
struct Call {
  std::mutex lock;
  HINTERNET internet = nullptr;
  HINTERNET connection = nullptr;
  bool closed = false;
  std::atomic<bool> done{false};
  std::string replies;
  bool loggedIn = false;
  bool completed = false;
  DWORD error = 0;

  // Closes both handles once, whichever thread gets here first.
  void close() {
    const std::lock_guard guard(lock);
    if (closed) return;
    closed = true;
    if (connection) InternetCloseHandle(connection);
    if (internet) InternetCloseHandle(internet);
  }

  void run(const TransferJob& job) {
    const HINTERNET session = internet;
    const HINTERNET c = InternetConnectW(session, wide(job.address.host).c_str(),
                                         static_cast<INTERNET_PORT>(job.address.port), wide(job.login).c_str(), L"",
                                         INTERNET_SERVICE_FTP, INTERNET_FLAG_PASSIVE, 0);
    const DWORD connectError = c ? 0 : GetLastError();
    std::string said = lastReplies();
    {
      const std::lock_guard guard(lock);
      if (c && closed) InternetCloseHandle(c);
      if (c && !closed) connection = c;
    }
    if (!c) {
      error = connectError;
      replies = clientNote(job, said);
      return;
    }
    loggedIn = true;
    replies = "Connected to " + job.address.host + ".\r\n" + said;
    const std::wstring local = (job.folder / job.fileName).wstring();
    completed = FtpPutFileW(c, local.c_str(), wide(job.remoteName).c_str(), FTP_TRANSFER_TYPE_BINARY, 0);
    if (!completed) error = GetLastError();
    replies += lastReplies();
  }

  // What the command-line client prints when it got no further than the login.
  std::string clientNote(const TransferJob& job, const std::string& said) const {
    switch (error) {
      case ERROR_INTERNET_NAME_NOT_RESOLVED: return "Unknown host " + job.address.host + ".\r\n";
      case ERROR_INTERNET_LOGIN_FAILURE: return "Connected to " + job.address.host + ".\r\n" + said + "Login failed.\r\n";
      case ERROR_INTERNET_CANNOT_CONNECT: return "Not connected.\r\n";
      default: return said.empty() ? "Not connected.\r\n" : said;
    }
  }
};

class WinInetTransport final : public FtpTransport {
 public:
  TransferResult run(const TransferJob& job, const TransferTick& tick) override {
    std::error_code ec;
    const auto size = static_cast<long long>(std::filesystem::file_size(job.folder / job.fileName, ec));
    if (ec) throw std::runtime_error("cannot read " + job.fileName);

    Call call;
    call.internet = InternetOpenW(L"Pellam Setup", INTERNET_OPEN_TYPE_DIRECT, nullptr, nullptr, 0);
    if (!call.internet) throw std::runtime_error("WinINet could not start");
    // Where WinINet heeds them; the wait below holds to the time-out either way.
    DWORD ms = static_cast<DWORD>(job.timeout.count()) * 1000;
    const DWORD options[] = {INTERNET_OPTION_CONNECT_TIMEOUT, INTERNET_OPTION_SEND_TIMEOUT,
                             INTERNET_OPTION_RECEIVE_TIMEOUT};
    for (const DWORD option : options) InternetSetOptionW(call.internet, option, &ms, sizeof ms);

    TransferFailure ended = TransferFailure::None;
    {
      // Ended and waited for however this block is left, a tick that throws included.
      const std::jthread calling([&call, &job] {
        call.run(job);
        call.done = true;
      });
      const struct Closer {
        Call& call;
        ~Closer() { call.close(); }
      } closer{call};
      const ULONGLONG deadline = GetTickCount64() + static_cast<ULONGLONG>(job.timeout.count()) * 1000;
      while (!call.done) {
        if (job.stop.stop_requested()) ended = TransferFailure::Cancelled;
        if (GetTickCount64() >= deadline) ended = TransferFailure::TimedOut;
        if (ended != TransferFailure::None) break;
        // FtpPutFile does not say how far it got.
        if (tick) tick({});
        Sleep(50);
      }
    }

    TransferResult r;
    r.bytesTotal = size;
    r.wholeDialogue = false;
    r.completed = ended == TransferFailure::None && call.completed;
    r.bytesSent = r.completed ? size : 0;
    if (!r.completed) {
      r.failure = ended != TransferFailure::None                     ? ended
                  : call.error == ERROR_INTERNET_LOGIN_FAILURE       ? TransferFailure::LoginRefused
                  : !call.loggedIn                                   ? TransferFailure::NotReached
                  : call.error == ERROR_INTERNET_TIMEOUT             ? TransferFailure::TimedOut
                                                                      : TransferFailure::Broken;
      r.why = failureWhy(r.failure, call.replies);
    }
    // Nothing from the controller at all leaves nothing to log, as on the other systems.
    if (ended != TransferFailure::None && !call.loggedIn) return r;
    const auto captured = job.folder / kCapturedName;
    std::ofstream out(captured, std::ios::binary | std::ios::trunc);
    out << call.replies;
    out.close();
    if (!out) throw CannotWriteFile(utf8Text(captured));
    return r;
  }
};

}  // namespace

std::unique_ptr<FtpTransport> makeSystemFtpTransport() { return std::make_unique<WinInetTransport>(); }

}  // namespace pellam::files
