#include "component/shared_session.h"

#include <iostream>
#include <memory>

#include "component/platform.h"

namespace pellam::component {

namespace {

// Messages of a session no face has claimed go to the error stream, questions get their
// careful answer.
struct Fallback {
  UnattendedDialogs dialogs{std::cerr};
  NoViewer shell;
  SystemClock clock;
};

struct State {
  Fallback fallback;
  ui::Dialogs* dialogs = &fallback.dialogs;
  ui::Shell* shell = &fallback.shell;
  ui::Clock* clock = &fallback.clock;
  std::unique_ptr<Session> session;
  long users = 0;
};

State& state() {
  static State s;
  return s;
}

}  // namespace

SharedSession::User::User() {
  State& s = state();
  if (!s.session) s.session = std::make_unique<Session>(*s.dialogs, *s.shell, *s.clock);
  s.session->checkThread();
  ++s.users;
  session_ = s.session.get();
}

SharedSession::User::~User() { --state().users; }

bool SharedSession::endIfUnused() {
  State& s = state();
  if (s.users > 0) return false;
  s.session.reset();
  return true;
}

void SharedSession::setPlatform(ui::Dialogs& dialogs, ui::Shell& shell, ui::Clock& clock) {
  State& s = state();
  s.dialogs = &dialogs;
  s.shell = &shell;
  s.clock = &clock;
  if (s.session) s.session->setPlatform(dialogs, shell, clock);
}

void SharedSession::withdrawPlatform(const ui::Dialogs& dialogs) {
  State& s = state();
  if (s.dialogs != &dialogs) return;
  setPlatform(s.fallback.dialogs, s.fallback.shell, s.fallback.clock);
}

long SharedSession::users() { return state().users; }

}  // namespace pellam::component
