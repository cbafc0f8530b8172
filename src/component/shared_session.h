#pragma once

#include "component/session.h"

namespace pellam::component {

// The session every Class1 of a process shares, for a face whose objects come and go (a COM
// server): each object and each server lock is a user; the first user makes the session and
// the last one to leave ends it, so that a DLL that is unloaded leaves nothing behind. One
// thread only, the one that made it.
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
  // clock. A face that goes away takes them back with clearPlatform.
  static void setPlatform(ui::Dialogs& dialogs, ui::Shell& shell, ui::Clock& clock);
  static void clearPlatform();
  static long users();
};

}  // namespace pellam::component
