#pragma once

#include <iosfwd>
#include <memory>

#include "component/platform.h"
#include "component/session.h"
#include "component/start_up.h"

namespace pellam::component {

// A started session with nobody at the desk: messages go to `log`, questions get their
// careful answer. For the command line and the benchmarks.
class UnattendedSession {
 public:
  explicit UnattendedSession(std::ostream& log)
      : dialogs_(log), session_(std::make_unique<Session>(dialogs_, shell_, clock_)) {
    session_->runUnattended();
    Initailize_Pellam_Variables_And_Form(*session_);
  }
  Session& operator*() { return *session_; }
  Session* operator->() { return session_.get(); }

 private:
  UnattendedDialogs dialogs_;
  NoViewer shell_;
  SystemClock clock_;
  std::unique_ptr<Session> session_;
};

}  // namespace pellam::component
