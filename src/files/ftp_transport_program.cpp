// libcurl and its dozens of libraries are loaded only when an upload runs: the transfer is made
// by a program of its own (ftp_upload_main.cpp), so that pellam can be one static program that
// starts as fast as cat, and pellam-setup starts without them too.
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <sstream>
#include <stdexcept>

#include "files/ftp_transport.h"

extern char** environ;

namespace pellam::files {

namespace {

constexpr const char* kProgramName = "pellam-ftp-curl";

// Beside an installed program (bin/ and lib/pellam/), then where the build put it.
std::filesystem::path programPath() {
  std::error_code error;
  const auto exe = std::filesystem::read_symlink("/proc/self/exe", error);
  const std::array<std::filesystem::path, 2> candidates = {
      error ? std::filesystem::path() : exe.parent_path().parent_path() / "lib" / "pellam" / kProgramName,
      std::filesystem::path(PELLAM_UPLOAD_BUILD_DIR) / kProgramName};
  for (const auto& candidate : candidates) {
    if (!candidate.empty() && std::filesystem::exists(candidate, error)) return candidate;
  }
  return candidates[1];
}

TransferResult broken(std::string why) {
  TransferResult r;
  r.failure = TransferFailure::Broken;
  r.why = std::move(why);
  return r;
}

bool startsWith(const std::string& text, const char* prefix) { return text.rfind(prefix, 0) == 0; }

class ProgramTransport final : public FtpTransport {
 public:
  TransferResult run(const TransferJob& job, const TransferTick& tick) override {
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) {
      return broken(std::string("cannot start the upload: ") + std::strerror(errno));
    }
    const int ours = ends[0];
    const std::string program = programPath().string();
    const std::string port = std::to_string(job.address.port);
    const std::string timeout = std::to_string(job.timeout.count());
    const std::string folder = job.folder.string();
    const char* argv[] = {program.c_str(), folder.c_str(), job.fileName.c_str(), job.remoteName.c_str(),
                          job.address.host.c_str(), port.c_str(), job.address.ipv6 ? "1" : "0",
                          job.login.c_str(), timeout.c_str(), nullptr};
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], 0);
    posix_spawn_file_actions_adddup2(&actions, ends[1], 1);
    pid_t pid = 0;
    const int spawned = posix_spawn(&pid, program.c_str(), &actions, nullptr, const_cast<char**>(argv), environ);
    posix_spawn_file_actions_destroy(&actions);
    ::close(ends[1]);
    if (spawned != 0) {
      ::close(ours);
      return broken("cannot start " + program + ": " + std::strerror(spawned));
    }

    std::string heard;
    std::size_t lineStart = 0;
    TransferProgress last;
    {
      // Any byte cancels; MSG_NOSIGNAL, since the program may have ended already.
      const std::stop_callback cancel(job.stop, [ours] { ::send(ours, "x", 1, MSG_NOSIGNAL); });
      std::array<char, 4096> buffer;
      for (;;) {
        pollfd p{ours, POLLIN, 0};
        const int ready = ::poll(&p, 1, 100);
        if (ready < 0 && errno != EINTR) break;
        if (ready > 0) {
          const ssize_t n = ::recv(ours, buffer.data(), buffer.size(), 0);
          if (n < 0 && errno == EINTR) continue;
          if (n <= 0) break;
          heard.append(buffer.data(), static_cast<std::size_t>(n));
          // Progress lines until the result; what follows it is read to the end.
          for (std::size_t end; heard.compare(lineStart, 9, "progress ") == 0 &&
                                (end = heard.find('\n', lineStart)) != std::string::npos;
               lineStart = end + 1) {
            std::istringstream(heard.substr(lineStart + 9, end - lineStart - 9)) >> last.sent >> last.total;
          }
        }
        if (tick) tick(last);
      }
    }
    ::close(ours);
    int status = 0;
    while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }

    const std::string result = heard.substr(lineStart);
    if (startsWith(result, "cannot-write ")) throw CannotWriteFile(result.substr(13));
    if (startsWith(result, "error ")) throw std::runtime_error(result.substr(6));
    const std::size_t end = result.find('\n');
    int completed = 0, failure = 0, whole = 1;
    TransferResult r;
    std::istringstream line(result.substr(0, end));
    std::string word;
    if (!startsWith(result, "done ") || end == std::string::npos ||
        !(line >> word >> completed >> r.bytesSent >> r.bytesTotal >> failure >> whole)) {
      return broken(program + " ended without a result");
    }
    r.completed = completed != 0;
    r.failure = static_cast<TransferFailure>(failure);
    r.wholeDialogue = whole != 0;
    r.why = result.substr(end + 1);
    return r;
  }
};

}  // namespace

std::unique_ptr<FtpTransport> makeSystemFtpTransport() { return std::make_unique<ProgramTransport>(); }

}  // namespace pellam::files
