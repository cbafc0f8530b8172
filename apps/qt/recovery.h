#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QString>
#include <QThreadPool>
#include <atomic>
#include <memory>
#include <optional>

#include "component/session.h"

namespace pellam::qt {

// Keeps a copy of a job with unsaved changes in a folder of this window's own under `base`,
// locked while the program runs, so that the next start finds what a crash left behind.
// The job is packed on the interface thread (a few milliseconds); the files are written on a
// thread of their own.
class Recovery {
 public:
  // `dialogs`, `shell` and `clock` are the face's own, given back to the session after a copy.
  Recovery(QString base, component::Session& session, ui::Dialogs& dialogs, ui::Shell& shell, ui::Clock& clock);
  ~Recovery();
  Recovery(const Recovery&) = delete;
  Recovery& operator=(const Recovery&) = delete;

  // Copies the job when it changed since the last copy, and drops the copy of a job saved.
  void keep();
  // The job is saved or let go on purpose: no copy is left.
  void drop();

  // A copy left by a run that did not close normally.
  struct Left {
    QString folder;
    QString jobName;  // the job's own path, empty for a job never saved
    QDateTime when;
  };
  std::optional<Left> findLeft() const;
  // Opens the copy as the session's job, unsaved, and removes it; false when it cannot be read.
  bool restore(const Left& left);
  void discard(const Left& left);

 private:
  QString base_;
  component::Session& session_;
  ui::Dialogs& dialogs_;
  ui::Shell& shell_;
  ui::Clock& clock_;
  QString folder_;                    // this window's, made with the first copy
  std::unique_ptr<QLockFile> lock_;
  std::optional<job::Job> copied_;    // what the last copy holds
  QThreadPool writer_;
  std::shared_ptr<std::atomic<bool>> writing_ = std::make_shared<std::atomic<bool>>(false);
};

}  // namespace pellam::qt
