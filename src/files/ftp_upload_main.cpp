// pellam-ftp-curl: one upload through libcurl, run by pellam and pellam-setup (see
// ftp_transport_program.cpp for the other end). Its standard input and output are one socket to
// the parent: a byte or the end of input cancels the transfer; it writes "progress SENT TOTAL"
// lines, then "done COMPLETED SENT TOTAL FAILURE WHOLE" and a line break, or "cannot-write ",
// or "error ", each followed by its words up to the end.
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stop_token>
#include <string>
#include <thread>

#include "files/ftp_transport.h"
#include "files/job_paths.h"

namespace {

void say(const std::string& text) {
  for (std::size_t done = 0; done < text.size();) {
    const ssize_t n = ::write(1, text.data() + done, text.size() - done);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return;  // the parent is gone; the end of input cancels the transfer
    done += static_cast<std::size_t>(n);
  }
}

}  // namespace

int main(int argc, char** argv) {
  using namespace pellam::files;
  if (argc != 9) {
    std::fputs("pellam-ftp-curl is run by pellam for an upload\n", stderr);
    return 2;
  }
  TransferJob job;
  job.folder = fsPath(argv[1]);
  job.fileName = argv[2];
  job.remoteName = argv[3];
  job.address.host = argv[4];
  job.address.port = std::atoi(argv[5]);
  job.address.ipv6 = std::string(argv[6]) == "1";
  job.login = argv[7];
  job.timeout = std::chrono::seconds(std::atoi(argv[8]));
  std::stop_source cancel;
  job.stop = cancel.get_token();
  // Left running at exit: it holds its own share of the stop state.
  std::thread([cancel]() mutable {
    char byte;
    while (::read(0, &byte, 1) < 0 && errno == EINTR) {
    }
    cancel.request_stop();
  }).detach();

  try {
    const TransferResult r = makeCurlTransport()->run(job, [](const TransferProgress& p) {
      say("progress " + std::to_string(p.sent) + " " + std::to_string(p.total) + "\n");
    });
    say("done " + std::to_string(r.completed) + " " + std::to_string(r.bytesSent) + " " + std::to_string(r.bytesTotal) +
        " " + std::to_string(static_cast<int>(r.failure)) + " " + std::to_string(r.wholeDialogue) + "\n" + r.why);
  } catch (const CannotWriteFile& e) {
    say("cannot-write " + e.path);
  } catch (const std::exception& e) {
    say(std::string("error ") + e.what());
  }
  return 0;
}
