#include "main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeySequence>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QMenuBar>
#include <QMessageBox>
#include <QMetaObject>
#include <QScrollArea>
#include <QSettings>
#include <QStandardPaths>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>

#include "component/job_files.h"
#include "component/keep_work.h"
#include "files/save_job.h"
#include "form_view.h"
#include "upload_progress.h"

namespace pellam::qt {

namespace {

constexpr int kRecentJobs = 8;
constexpr int kJobLabelWidth = 240;
// Often enough that little is lost, seldom enough that the copy costs nothing noticeable.
constexpr int kRecoveryMilliseconds = 3000;

QString dataFolderOr(QString folder) {
  return folder.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) : folder;
}

QString text(const std::string& s) { return QString::fromStdString(s); }

// A menu's action reports an error of ours as the form's controls do: it never ends the program.
std::function<void()> guarded(ui::UserForm1& form, std::function<void()> action) {
  return [&form, action = std::move(action)] {
    try {
      action();
    } catch (const std::exception& e) {
      form.reportError(e.what());
    }
  };
}

}  // namespace

MainWindow::MainWindow(QWidget* parent, QString dataFolder)
    : QMainWindow(parent),
      dataFolder_(dataFolderOr(std::move(dataFolder))),
      dialogs_(this),
      viewer_(this),
      session_(dialogs_, viewer_, clock_),
      class1_(session_),
      recovery_(QDir(dataFolder_).filePath("recovery"), session_, dialogs_, viewer_, clock_) {
  view_ = new FormView(session_.form);
  view_->onPersonAction = [this] {
    fresh_ = false;
    jobChanged();
  };
  // Small screens scroll rather than cut a control off.
  auto* scroll = new QScrollArea;
  scroll->setWidget(view_);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  // Tab goes from the form's last control to its tabs, not to the scroll area around them.
  scroll->setFocusPolicy(Qt::NoFocus);
  setCentralWidget(scroll);
  buildActions();
  keepWork();
  // The transfer runs on a thread of its own; what it tells the form comes back through the
  // event loop, so no handler runs in the middle of another. A closed window has cancelled its
  // transfer and shows nothing more of it.
  session_.uploadPage.postToFace = [this](std::function<void()> done) {
    QMetaObject::invokeMethod(
        this, [this, done = std::move(done)] { if (!closing_) done(); }, Qt::QueuedConnection);
  };
  // The upload sends the job on disk, so the one on screen is saved first.
  session_.form.CommandButton27.onClick = [this, upload = std::move(session_.form.CommandButton27.onClick)] {
    if (!session_.modified()) return upload();
    const auto answer = QMessageBox::question(this, tr("Pellam Setup"),
                                              tr("The upload sends the job as saved. Save the changes first?"),
                                              QMessageBox::Save | QMessageBox::Cancel);
    if (answer == QMessageBox::Save && save()) upload();
  };
  // Not while a box is up: a handler waiting for its answer has not finished changing the job.
  connect(&recoveryTimer_, &QTimer::timeout, this, guarded(session_.form, [this] {
    if (!QApplication::activeModalWidget()) recovery_.keep();
  }));
  recoveryTimer_.start(kRecoveryMilliseconds);
  const QSize form = view_->minimumSize();
  resize(form.width() + 4, form.height() + menuBar()->sizeHint().height() + 4);
  jobChanged();
}

// The form view observes the session's form: it goes before the session does.
MainWindow::~MainWindow() {
  delete takeCentralWidget();
}

void MainWindow::buildActions() {
  // Finding the theme's icons takes longer than drawing the whole form, so they come just
  // after the first paint; a blank icon keeps their room meanwhile.
  QPixmap blank(16, 16);
  blank.fill(Qt::transparent);
  QMenu* job = menuBar()->addMenu(tr("&Job"));
  const auto add = [&](QStyle::StandardPixmap icon, const QString& text, const QKeySequence& keys,
                       std::function<void()> action) {
    QAction* made = job->addAction(text, keys, this, guarded(session_.form, std::move(action)));
    if (icon != QStyle::SP_CustomBase) {
      made->setIcon(QIcon(blank));
      themedIcons_.emplace_back(made, icon);
    }
    return made;
  };
  QAction* newAction = add(QStyle::SP_FileIcon, tr("&New"), QKeySequence::New, [this] {
    if (component::MayReplaceJob(session_)) newJob();
  });
  QAction* openAction = add(QStyle::SP_DialogOpenButton, tr("&Open..."), QKeySequence::Open, [this] {
    if (component::MayReplaceJob(session_)) chooseAndOpen();
  });
  recentMenu_ = job->addMenu(tr("Open &Recent"));
  connect(recentMenu_, &QMenu::aboutToShow, this, &MainWindow::fillRecentMenu);
  QAction* saveAction = add(QStyle::SP_DialogSaveButton, tr("&Save"), QKeySequence::Save, [this] { save(); });
  add(QStyle::SP_CustomBase, tr("Save &As..."), QKeySequence::SaveAs, [this] { saveAs(); });
  job->addSeparator();
  QAction* uploadAction = add(QStyle::SP_ArrowUp, tr("&Upload..."), QKeySequence(tr("Ctrl+U")), [this] { upload(); });
  job->addSeparator();
  job->addAction(tr("&Quit"), QKeySequence::Quit, this, &QWidget::close);

  QMenu* help = menuBar()->addMenu(tr("&Help"));
  help->addAction(tr("&About Pellam Setup"), this, [this] {
    QMessageBox::about(this, tr("About Pellam Setup"),
                       tr("Pellam Setup %1\n\nSets up the contact-closure input board of a networked dimming system "
                          "and uploads it to the network controller.")
                           .arg(QStringLiteral(PELLAM_VERSION)));
  });

  // The toolbar and the status sit beside the menus rather than under them: a 768-line screen
  // has no row to spare below a form of 1000 x 670.
  auto* tools = new QToolBar(tr("Job"));
  tools->setObjectName("jobToolBar");
  tools->setIconSize(QSize(16, 16));
  tools->setContentsMargins(0, 0, 0, 0);
  tools->layout()->setContentsMargins(0, 0, 0, 0);
  tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  tools->addActions({newAction, openAction, saveAction, uploadAction});
  tools->installEventFilter(this);
  tools->setMinimumWidth(tools->sizeHint().width());
  status_ = new QStatusBar;
  status_->setSizeGripEnabled(false);
  jobLabel_ = new QLabel;
  savedLabel_ = new QLabel;
  auto* progress = new UploadProgress(session_.uploadPage);
  // Fixed widths: the menu bar sizes its corner once, and the texts come later.
  const QFontMetrics metrics = fontMetrics();
  jobLabel_->setFixedWidth(kJobLabelWidth + 8);
  savedLabel_->setFixedWidth(metrics.horizontalAdvance(tr("Unsaved changes")) + 8);
  status_->addWidget(jobLabel_, 1);
  status_->addPermanentWidget(progress);
  status_->addPermanentWidget(savedLabel_);
  // Room for the upload's progress, which shows only while a transfer runs.
  status_->setMinimumWidth(status_->sizeHint().width() + progress->width());
  auto* strip = new QWidget;
  auto* layout = new QHBoxLayout(strip);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(tools);
  layout->addWidget(status_, 1);
  menuBar()->setCornerWidget(strip, Qt::TopRightCorner);
}

// The session asks before a job is replaced and saves through the window's own dialog.
void MainWindow::keepWork() {
  session_.keeper.askUnsaved = [this] {
    QMessageBox box(QMessageBox::Question, tr("Pellam Setup"), tr("Save the changes to this job?"),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    box.setEscapeButton(QMessageBox::Cancel);
    switch (box.exec()) {
      case QMessageBox::Save: return component::UnsavedChoice::Save;
      case QMessageBox::Discard: return component::UnsavedChoice::Discard;
      default: return component::UnsavedChoice::Cancel;
    }
  };
  session_.keeper.chooseSavePath = [this](const std::string& suggested) -> std::string {
    // Jobs are shown by their image, the one file every mode writes; a save asks before it
    // replaces any file itself, so the dialog does not.
    QFileDialog dialog(this, tr("Save Job As"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters({tr("Pellam Jobs (*.zpd)")});
    dialog.setDefaultSuffix("zpd");
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    if (!suggested.empty()) dialog.selectFile(text(files::jobPrefix(suggested) + ".zpd"));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    const QFileInfo chosen(dialog.selectedFiles().front());
    return QDir(chosen.absolutePath()).filePath(chosen.baseName() + ".txt").toStdString();
  };
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Paint && !themedIcons_.empty()) {
    watched->removeEventFilter(this);
    QTimer::singleShot(0, this, [this] {
      for (const auto& [action, icon] : themedIcons_) action->setIcon(style()->standardIcon(icon));
      themedIcons_.clear();
    });
  }
  return QMainWindow::eventFilter(watched, event);
}

void MainWindow::start(const QString& path) {
  class1_.Initailize_Pellam_Variables_And_Form();
  fresh_ = true;
  if (const auto left = recovery_.findLeft()) {
    const QString name = left->jobName.isEmpty() ? tr("a new job") : QFileInfo(left->jobName).completeBaseName();
    const std::string question = tr("Pellam Setup did not close normally. Recover the unsaved changes to %1 (%2)?")
                                     .arg(name, QLocale().toString(left->when, QLocale::ShortFormat))
                                     .toStdString();
    if (dialogs_.msgBox(question, ui::Buttons::YesNo) == ui::Answer::Yes && recovery_.restore(*left)) {
      class1_.Load_User_Form();
      fresh_ = false;
      view_->flush();
      jobChanged();
      say(tr("Recovered the unsaved changes"), 10000);
      return;
    }
    recovery_.discard(*left);
  }
  if (path.isEmpty()) {
    newJob();
  } else if (!QFileInfo(component::JobImageFor(path.toStdString()).c_str()).isFile()) {
    newJob();
    say(tr("File Not Found: %1").arg(path));
  } else {
    openJob(path);
  }
}

void MainWindow::initialise() {
  // Start-up fills every list of the form, so a session that has just run it is not run again.
  if (!fresh_) class1_.Initailize_Pellam_Variables_And_Form();
  fresh_ = false;
}

void MainWindow::newJob() {
  initialise();
  class1_.New_KX_Job_Display_Board_SetUp();
  class1_.Load_User_Form();
  recovery_.drop();
  view_->flush();
  jobChanged();
}

void MainWindow::openJob(const QString& path) {
  std::string image = component::JobImageFor(path.toStdString());
  if (class1_.Product_Type(image) != 1) return;
  initialise();
  class1_.ReadZPD_ImageFile(image);
  class1_.Load_User_Form();
  recovery_.drop();
  view_->flush();
  if (session_.saveTarget.empty()) {
    say(tr("%1 was not saved by Pellam Setup: Save asks for a name").arg(QFileInfo(text(image)).fileName()));
  } else {
    addRecent(text(image));
  }
  jobChanged();
}

void MainWindow::chooseAndOpen() {
  QFileDialog dialog(this, tr("Open Job"));
  dialog.setFileMode(QFileDialog::ExistingFile);
  dialog.setNameFilters({tr("Pellam Jobs (*.zpd)"), tr("Job Text Files (*.txt)"), tr("All Files (*)")});
  dialog.setDefaultSuffix("zpd");
  if (!session_.saveTarget.empty()) dialog.setDirectory(QFileInfo(text(session_.saveTarget)).absolutePath());
  if (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty()) openJob(dialog.selectedFiles().front());
}

bool MainWindow::saveTo(const QString& jobPath) {
  const bool done = !component::SaveJobSequence(session_, jobPath.toStdString(), "Directory Not Found").empty();
  saved(done);
  return done;
}

bool MainWindow::save() {
  const bool done = component::SaveJob(session_);
  saved(done);
  return done;
}

bool MainWindow::saveAs() {
  const bool done = component::SaveJobAs(session_);
  saved(done);
  return done;
}

void MainWindow::saved(bool done) {
  view_->flush();
  if (done) {
    recovery_.drop();
    addRecent(text(session_.currentJobFile));
    say(tr("Saved %1").arg(QDir::toNativeSeparators(text(session_.currentJobFile))), 5000);
  }
  jobChanged();
}

void MainWindow::say(const QString& news, int milliseconds) {
  status_->showMessage(status_->fontMetrics().elidedText(news, Qt::ElideMiddle, status_->width() - 16), milliseconds);
}

void MainWindow::upload() {
  // The upload frame is where the target station and the controller are chosen.
  session_.navigation.showUploadFrame();
  view_->flush();
  if (QWidget* target = view_->widgetFor("ComboBox50")) target->setFocus();
}

QStringList MainWindow::recentJobs() const {
  return QSettings(QDir(dataFolder_).filePath("settings.ini"), QSettings::IniFormat).value("recentJobs").toStringList();
}

void MainWindow::addRecent(const QString& zpd) {
  QSettings settings(QDir(dataFolder_).filePath("settings.ini"), QSettings::IniFormat);
  QStringList jobs = settings.value("recentJobs").toStringList();
  const QString path = QFileInfo(zpd).absoluteFilePath();
  jobs.removeAll(path);
  jobs.prepend(path);
  settings.setValue("recentJobs", jobs.mid(0, kRecentJobs));
}

void MainWindow::fillRecentMenu() {
  recentMenu_->clear();
  for (const QString& job : recentJobs()) {
    if (!QFileInfo(job).isFile()) continue;
    recentMenu_->addAction(QDir::toNativeSeparators(job), this, guarded(session_.form, [this, job] {
      if (component::MayReplaceJob(session_)) openJob(job);
    }));
  }
  if (recentMenu_->isEmpty()) recentMenu_->addAction(tr("(none)"))->setEnabled(false);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  bool mayClose = false;
  guarded(session_.form, [&] { mayClose = component::MayReplaceJob(session_); })();
  if (!mayClose) {
    event->ignore();
    return;
  }
  closing_ = true;
  session_.uploadPage.cancel();
  recoveryTimer_.stop();
  recovery_.drop();
  class1_.Unload_Pellam_Form();
  event->accept();
}

// The title names the job by its name and folder, as a person finds it again in Open.
void MainWindow::jobChanged() {
  const bool modified = session_.modified();
  const QString target = text(session_.saveTarget);
  const QFileInfo job(target);
  const QString name = target.isEmpty() ? tr("New Job") : job.completeBaseName();
  const QString folder = target.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(QDir::toNativeSeparators(job.absolutePath()));
  setWindowTitle(QStringLiteral("%1%2%3 - Pellam Setup").arg(name, modified ? "*" : "", folder));
  // The path is cut in the middle to the room beside the menus; the whole of it is its tooltip.
  const QString image = target.isEmpty() ? tr("Not saved yet")
                                         : QDir::toNativeSeparators(QDir(job.absolutePath()).filePath(job.completeBaseName() + ".zpd"));
  jobLabel_->setText(jobLabel_->fontMetrics().elidedText(image, Qt::ElideMiddle, kJobLabelWidth));
  jobLabel_->setToolTip(image);
  savedLabel_->setText(modified ? tr("Unsaved changes") : target.isEmpty() ? QString() : tr("Saved"));
}

}  // namespace pellam::qt
