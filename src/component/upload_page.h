#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <stop_token>
#include <string>
#include <thread>

#include "files/ftp_transport.h"
#include "files/upload.h"

namespace pellam::component {

class Session;

// The upload frame of the board page: the chosen image goes to one station through the
// network controller.
class UploadPage {
 public:
  explicit UploadPage(Session& session);
  ~UploadPage();
  UploadPage(const UploadPage&) = delete;
  UploadPage& operator=(const UploadPage&) = delete;

  // What a face asks for: the image to send, the target station and the controller.
  struct Order {
    int netId = 0;
    std::string imagePath;
    std::string address;
  };
  struct Result {
    bool completed = false;  // the controller confirmed it took every byte
    std::string logPath;     // empty when nothing was logged
  };
  // Checks the order, sends the image and tells the person the outcome; refusals and
  // messages go through the session's dialogs. Does nothing while another upload runs. With
  // postToFace set the transfer runs on a thread of its own and this returns at once: the
  // outcome comes to onUploaded on the face's thread.
  Result upload(const Order& order);
  // Runs a function on the face's own thread, soon; set by a face with an event loop.
  std::function<void(std::function<void()>)> postToFace;
  // Told each upload's result once its messages were shown.
  std::function<void(const Result&)> onUploaded;
  // Told on the face's thread while a transfer runs, about ten times a second, and once more
  // when it has ended, before its outcome is shown.
  struct Progress {
    bool running = false;
    long long sent = 0;
    long long total = 0;  // 0 while the transport does not know
  };
  std::function<void(const Progress&)> onProgress;
  // Ends the running transfer at once ("Down Load Cancelled"); the log and the working folder
  // are dealt with as for any other ending. Does nothing when no transfer runs. Any thread.
  void cancel();

  // CommandButton27: the order as the upload frame holds it.
  void Upload();

  // Where the controller's login and remote-name prefix are read from, on every upload.
  std::string settingsPath;
  // The transfer; the system's own unless a test gives another.
  std::unique_ptr<files::FtpTransport> transport;
  // Run while a transfer without postToFace goes on, so that a face can redraw.
  std::function<void()> keepResponsive;
  // Whether the controller confirmed it took every byte of the last upload.
  bool lastCompleted = false;

 private:
  std::string imageToSend() const;
  Result finish(const files::UploadOutcome& outcome);
  std::thread worker_;
  std::mutex stopLock_;
  std::stop_source stop_;
  Session& s_;
  bool busy_ = false;
};

}  // namespace pellam::component
