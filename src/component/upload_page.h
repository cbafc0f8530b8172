#pragma once

#include <functional>
#include <memory>
#include <string>

#include "files/ftp_transport.h"

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
  // messages go through the session's dialogs. Does nothing while another upload runs.
  Result upload(const Order& order);

  // CommandButton27: the order as the upload frame holds it.
  void Upload();

  // Where the controller's login and remote-name prefix are read from, on every upload.
  std::string settingsPath;
  // The transfer; the system's own unless a test gives another.
  std::unique_ptr<files::FtpTransport> transport;
  // Run while the transfer goes on, so that a face can redraw and take clicks.
  std::function<void()> keepResponsive;
  // Whether the controller confirmed it took every byte of the last upload.
  bool lastCompleted = false;
  bool busy() const { return busy_; }

 private:
  std::string imageToSend() const;
  Session& s_;
  bool busy_ = false;
};

}  // namespace pellam::component
