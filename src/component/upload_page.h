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

  void Upload();

  // Where the controller's login and remote-name prefix are read from, on every upload.
  std::string settingsPath;
  // The transfer; the system's own unless a test gives another.
  std::unique_ptr<files::FtpTransport> transport;
  // Run while the transfer goes on, so that a face can redraw and take clicks.
  std::function<void()> keepResponsive;
  // Whether the controller confirmed it took every byte of the last upload.
  bool lastCompleted = false;

 private:
  std::string imageToSend() const;
  Session& s_;
  bool busy_ = false;
};

}  // namespace pellam::component
