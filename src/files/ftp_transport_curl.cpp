// The controller's FTP service through libcurl. The client's console output is what the
// upload reads back, so the controller's replies are captured as that client shows them, and
// a host that cannot be found or reached reads as it would there.
#include <curl/curl.h>

#include <cstdio>
#include <fstream>
#include <memory>
#include <mutex>
#include <stop_token>

#include "files/ftp_transport.h"
#include "files/job_paths.h"
#include "files/transfer_result.h"
#include "files/upload.h"

namespace pellam::files {

namespace {

struct Transfer {
  std::string replies;
  std::ifstream file;
  TransferProgress progress;
  std::stop_token stop;
};

int onDebug(CURL*, curl_infotype type, char* data, size_t size, void* user) {
  if (type == CURLINFO_HEADER_IN) static_cast<Transfer*>(user)->replies.append(data, size);
  return 0;
}

size_t onRead(char* buffer, size_t size, size_t count, void* user) {
  auto& t = *static_cast<Transfer*>(user);
  t.file.read(buffer, static_cast<std::streamsize>(size * count));
  return static_cast<size_t>(t.file.gcount());
}

// A non-zero answer makes libcurl give up the transfer at once.
int onProgress(void* user, curl_off_t, curl_off_t, curl_off_t ultotal, curl_off_t ulnow) {
  auto& t = *static_cast<Transfer*>(user);
  t.progress.sent = ulnow;
  t.progress.total = ultotal;
  return t.stop.stop_requested() ? 1 : 0;
}

// What the command-line client prints when it never reached the controller.
std::string clientNote(CURLcode code, const std::string& host, bool answered) {
  if (answered) return {};
  switch (code) {
    case CURLE_COULDNT_RESOLVE_HOST: return "Unknown host " + host + ".\r\n";
    case CURLE_COULDNT_CONNECT:
    case CURLE_GOT_NOTHING:
    case CURLE_SEND_ERROR:
    case CURLE_RECV_ERROR:
    case CURLE_FTP_WEIRD_SERVER_REPLY: return "Not connected.\r\n";
    default: return {};
  }
}

class CurlTransport final : public FtpTransport {
 public:
  TransferResult run(const TransferJob& job, const TransferTick& tick) override {
    static std::once_flag global;
    std::call_once(global, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });

    Transfer t;
    t.stop = job.stop;
    t.file.open(job.folder / job.fileName, std::ios::binary);
    if (!t.file) throw std::runtime_error("cannot read " + job.fileName);
    t.file.seekg(0, std::ios::end);
    const auto size = static_cast<curl_off_t>(t.file.tellg());
    t.file.seekg(0);

    std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> easy(curl_easy_init(), curl_easy_cleanup);
    std::unique_ptr<CURLM, decltype(&curl_multi_cleanup)> multi(curl_multi_init(), curl_multi_cleanup);
    if (!easy || !multi) throw std::runtime_error("libcurl could not start");
    const std::string url =
        "ftp://" + job.address.urlHost() + ":" + std::to_string(job.address.port) + "/" + job.remoteName;
    const long seconds = static_cast<long>(job.timeout.count());
    CURL* e = easy.get();
    curl_easy_setopt(e, CURLOPT_URL, url.c_str());
    curl_easy_setopt(e, CURLOPT_USERNAME, job.login.c_str());
    curl_easy_setopt(e, CURLOPT_PASSWORD, "");
    curl_easy_setopt(e, CURLOPT_UPLOAD, 1L);
    curl_easy_setopt(e, CURLOPT_INFILESIZE_LARGE, size);
    curl_easy_setopt(e, CURLOPT_READFUNCTION, onRead);
    curl_easy_setopt(e, CURLOPT_READDATA, &t);
    curl_easy_setopt(e, CURLOPT_VERBOSE, 1L);
    curl_easy_setopt(e, CURLOPT_DEBUGFUNCTION, onDebug);
    curl_easy_setopt(e, CURLOPT_DEBUGDATA, &t);
    curl_easy_setopt(e, CURLOPT_NOPROGRESS, 0L);
    curl_easy_setopt(e, CURLOPT_XFERINFOFUNCTION, onProgress);
    curl_easy_setopt(e, CURLOPT_XFERINFODATA, &t);
    curl_easy_setopt(e, CURLOPT_CONNECTTIMEOUT, seconds);
    curl_easy_setopt(e, CURLOPT_SERVER_RESPONSE_TIMEOUT, seconds);
    // A controller that stops sending in the middle is given up as well.
    curl_easy_setopt(e, CURLOPT_LOW_SPEED_LIMIT, 1L);
    curl_easy_setopt(e, CURLOPT_LOW_SPEED_TIME, seconds);
    curl_easy_setopt(e, CURLOPT_NOSIGNAL, 1L);
    curl_multi_add_handle(multi.get(), e);
    // A cancel wakes the wait below, so the transfer ends now and not at the next poll.
    const std::stop_callback wake(job.stop, [m = multi.get()] { curl_multi_wakeup(m); });

    int running = 1;
    while (running) {
      if (curl_multi_perform(multi.get(), &running) != CURLM_OK) break;
      if (running) curl_multi_poll(multi.get(), nullptr, 0, 100, nullptr);
      if (tick) tick(t.progress);
    }
    // Without a word from libcurl that it finished, the transfer is not taken as done.
    CURLcode code = CURLE_FAILED_INIT;
    int left = 0;
    while (CURLMsg* msg = curl_multi_info_read(multi.get(), &left)) {
      if (msg->msg == CURLMSG_DONE) code = msg->data.result;
    }
    curl_off_t uploaded = 0;
    curl_easy_getinfo(e, CURLINFO_SIZE_UPLOAD_T, &uploaded);
    curl_multi_remove_handle(multi.get(), e);

    const std::string note = clientNote(code, job.address.host, !t.replies.empty());
    TransferResult r;
    r.bytesSent = uploaded;
    r.bytesTotal = size;
    // CURLE_OK on an upload means the controller's final reply, after the data, was positive.
    r.completed = code == CURLE_OK && uploaded == size;
    if (!r.completed) {
      r.failure = code == CURLE_OPERATION_TIMEDOUT    ? TransferFailure::TimedOut
                  : code == CURLE_ABORTED_BY_CALLBACK ? TransferFailure::Cancelled
                  : code == CURLE_LOGIN_DENIED        ? TransferFailure::LoginRefused
                  : !note.empty()                  ? TransferFailure::NotReached
                                                   : TransferFailure::Broken;
      r.why = failureWhy(r.failure, t.replies);
    }
    // A controller that never said a word leaves nothing to log, as the client would.
    if (!r.completed && t.replies.empty() && note.empty()) return r;
    const auto captured = job.folder / kCapturedName;
    std::ofstream out(captured, std::ios::binary | std::ios::trunc);
    out << t.replies << note;
    out.close();
    if (!out) throw CannotWriteFile(utf8Text(captured));
    return r;
  }
};

}  // namespace

std::unique_ptr<FtpTransport> makeCurlTransport() { return std::make_unique<CurlTransport>(); }

}  // namespace pellam::files
