#include "recovery.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <sstream>

#include "component/job_files.h"
#include "component/platform.h"
#include "files/replace_files.h"
#include "files/save_job.h"
#include "job/job_content.h"

namespace pellam::qt {

namespace {

constexpr const char* kJob = "job.txt";        // the copy is saved under this job path
constexpr const char* kOrigin = "origin.txt";  // the job's own path
constexpr const char* kLock = "lock";

}  // namespace

Recovery::Recovery(QString base, component::Session& session, ui::Dialogs& dialogs, ui::Shell& shell, ui::Clock& clock)
    : base_(std::move(base)), session_(session), dialogs_(dialogs), shell_(shell), clock_(clock) {
  writer_.setMaxThreadCount(1);
}

Recovery::~Recovery() { writer_.waitForDone(); }

void Recovery::keep() {
  if (!session_.modified()) {
    if (copied_) drop();
    return;
  }
  if (copied_ && job::sameContent(*copied_, session_.job)) return;
  // A copy still being written is not overtaken: the next tick copies the newer job.
  if (writing_->load()) return;
  if (folder_.isEmpty()) {
    const QString folder = QDir(base_).filePath(QString::number(QCoreApplication::applicationPid()));
    if (!QDir().mkpath(folder)) return;
    lock_ = std::make_unique<QLockFile>(QDir(folder).filePath(kLock));
    lock_->setStaleLockTime(0);
    if (!lock_->tryLock(0)) return;
    folder_ = folder;
  }
  // Packing tells nothing to the person: a trap of a copy is not theirs to answer.
  std::ostringstream ignored;
  component::UnattendedDialogs quiet(ignored);
  component::NoViewer noViewer;
  component::SystemClock clock;
  session_.setPlatform(quiet, noViewer, clock);
  std::vector<files::JobFile> files;
  try {
    files = component::RecoveryFiles(session_, QDir(folder_).filePath(kJob).toStdString());
  } catch (const std::exception&) {
    files.clear();
  }
  session_.setPlatform(dialogs_, shell_, clock_);
  if (files.empty()) return;
  files.push_back({kOrigin, session_.saveTarget});
  copied_ = session_.job;
  writing_->store(true);
  const std::string prefix = QDir(folder_).filePath("job").toStdString();
  writer_.start([files = std::move(files), prefix, writing = writing_] {
    files::ReplaceJobFiles(prefix, files);
    writing->store(false);
  });
}

void Recovery::drop() {
  writer_.waitForDone();
  copied_.reset();
  if (folder_.isEmpty()) return;
  lock_.reset();
  QDir(folder_).removeRecursively();
  folder_.clear();
}

std::optional<Recovery::Left> Recovery::findLeft() const {
  const QDir base(base_);
  for (const QFileInfo& entry : base.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Time)) {
    const QString folder = entry.absoluteFilePath();
    if (folder == folder_) continue;
    // A lock its owner still holds is a window that is open now.
    QLockFile lock(QDir(folder).filePath(kLock));
    lock.setStaleLockTime(0);
    if (!lock.tryLock(0)) continue;
    lock.unlock();
    const QFileInfo image(QDir(folder).filePath("job.zpd"));
    if (!image.isFile()) {
      QDir(folder).removeRecursively();
      continue;
    }
    QFile origin(QDir(folder).filePath(QString("job") + kOrigin));
    QString name;
    if (origin.open(QIODevice::ReadOnly)) name = QString::fromUtf8(origin.readAll());
    return Left{folder, name, image.lastModified()};
  }
  return std::nullopt;
}

bool Recovery::restore(const Left& left) {
  const std::string image = QDir(left.folder).filePath("job.zpd").toStdString();
  if (!component::OpenJobSequence(session_, image)) return false;
  session_.saveTarget = left.jobName.toStdString();
  session_.currentJobFile = left.jobName.isEmpty() ? std::string() : files::jobPrefix(session_.saveTarget) + ".zpd";
  session_.markRecovered();
  discard(left);
  return true;
}

void Recovery::discard(const Left& left) { QDir(left.folder).removeRecursively(); }

}  // namespace pellam::qt
