#pragma once

#include "component/session.h"

namespace pellam::component {

// The session every Class1 of a process shares, as long as the component is loaded: made for
// the first user (each object and each server lock is one), kept when the last one leaves, and
// ended only when the host may unload the component, so that an unloaded DLL leaves nothing
// behind. One thread only, the one that made it.
class SharedSession {
 public:
  // A user for as long as it lives.
  class User {
   public:
    User();
    ~User();
    User(const User&) = delete;
    User& operator=(const User&) = delete;
    Session& operator*() const { return *session_; }
    Session* operator->() const { return session_; }

   private:
    Session* session_;
  };

  // What a new session is given, and the live one from now on: the face's dialogs, viewer and
  // clock, which must outlive the session.
  static void setPlatform(ui::Dialogs& dialogs, ui::Shell& shell, ui::Clock& clock);
  // A face going away takes its platform back: the session tells the error stream and answers
  // carefully until another face gives its own. Another face's platform is left alone.
  static void withdrawPlatform(const ui::Dialogs& dialogs);
  static long users();
  // Ends the session when nobody uses it, as the component is about to be unloaded; false while
  // a user is left.
  static bool endIfUnused();
};

}  // namespace pellam::component
