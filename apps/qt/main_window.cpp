#include "main_window.h"

#include <QCloseEvent>
#include <QMetaObject>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeySequence>
#include <QMenuBar>
#include <QMessageBox>
#include <QScrollArea>

#include "component/job_files.h"
#include "form_view.h"
#include "upload_progress.h"

namespace pellam::qt {

namespace {
// The filter index the host passes is 3, so the image files are the third filter.
const std::string kOpenFilter = "Job Files (*.txt)|*.txt|All Files (*.*)|*.*|Image Files (*.zpd)|*.zpd";
}

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent), dialogs_(this), session_(dialogs_, viewer_, clock_), class1_(session_) {
  view_ = new FormView(session_.form);
  view_->onPersonAction = [this] {
    fresh_ = false;
    updateTitle();
  };
  // Small screens scroll rather than cut a control off.
  auto* scroll = new QScrollArea;
  scroll->setWidget(view_);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  // Tab goes from the form's last control to its tabs, not to the scroll area around them.
  scroll->setFocusPolicy(Qt::NoFocus);
  setCentralWidget(scroll);
  buildMenu();
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
  new UploadProgress(*this, session_.uploadPage);
  const QSize form = view_->minimumSize();
  resize(form.width() + 4, form.height() + menuBar()->sizeHint().height() + 4);
  updateTitle();
}

// The form view observes the session's form: it goes before the session does.
MainWindow::~MainWindow() {
  delete takeCentralWidget();
}

void MainWindow::buildMenu() {
  QMenu* job = menuBar()->addMenu(tr("&Job"));
  job->addAction(tr("&New"), QKeySequence::New, this, [this] {
    if (mayDiscard()) newJob();
  });
  job->addAction(tr("&Open..."), QKeySequence::Open, this, [this] {
    if (mayDiscard()) chooseAndOpen();
  });
  job->addAction(tr("&Save"), QKeySequence::Save, this, [this] { save(); });
  job->addAction(tr("Save &As..."), QKeySequence::SaveAs, this, [this] { saveAs(); });
  job->addSeparator();
  job->addAction(tr("&Upload..."), QKeySequence(tr("Ctrl+U")), this, [this] { upload(); });
  job->addSeparator();
  job->addAction(tr("&Quit"), QKeySequence::Quit, this, &QWidget::close);
}

void MainWindow::start(const QString& path) {
  class1_.Initailize_Pellam_Variables_And_Form();
  fresh_ = true;
  if (path.isEmpty()) {
    newJob();
  } else if (!QFileInfo(path).isFile()) {
    dialogs_.msgBox("File Not Found: " + path.toStdString(), ui::Buttons::OK);
    newJob();
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
  view_->flush();
  setJob({});
}

void MainWindow::openJob(const QString& zpdPath) {
  std::string path = zpdPath.toStdString();
  if (class1_.Product_Type(path) != 1) return;
  initialise();
  class1_.ReadZPD_ImageFile(path);
  class1_.Load_User_Form();
  view_->flush();
  // A job is saved under its .txt name; the image beside it takes the same stem.
  const QFileInfo info(zpdPath);
  setJob(info.dir().filePath(info.completeBaseName() + ".txt"));
}

void MainWindow::chooseAndOpen() {
  std::string filter = kOpenFilter;
  const std::string path = class1_.Return_FileName_Path(filter);
  if (!path.empty()) openJob(QString::fromStdString(path));
}

bool MainWindow::saveTo(const QString& jobPath) {
  const std::string written = component::SaveJobSequence(session_, jobPath.toStdString(), "Directory Not Found");
  view_->flush();
  if (written.empty()) return false;
  setJob(jobPath);
  return true;
}

bool MainWindow::save() { return jobPath_.isEmpty() ? saveAs() : saveTo(jobPath_); }

bool MainWindow::saveAs() {
  const QString path =
      QFileDialog::getSaveFileName(this, tr("Save Job"), jobPath_, tr("Job Files (*.txt)"), nullptr);
  if (path.isEmpty()) return false;
  return saveTo(path.endsWith(".txt", Qt::CaseInsensitive) ? path : path + ".txt");
}

void MainWindow::upload() {
  // The upload frame is where the target station and the controller are chosen.
  session_.navigation.showUploadFrame();
  view_->flush();
  if (QWidget* target = view_->widgetFor("ComboBox50")) target->setFocus();
}

bool MainWindow::mayDiscard() {
  if (!session_.modified()) return true;
  const auto answer = QMessageBox::question(this, tr("Pellam Setup"), tr("Save the changes to this job?"),
                                            QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
  if (answer == QMessageBox::Save) return save();
  return answer == QMessageBox::Discard;
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (!mayDiscard()) {
    event->ignore();
    return;
  }
  closing_ = true;
  session_.uploadPage.cancel();
  class1_.Unload_Pellam_Form();
  event->accept();
}

void MainWindow::setJob(const QString& jobPath) {
  jobPath_ = jobPath;
  updateTitle();
}

void MainWindow::updateTitle() {
  const QString name = jobPath_.isEmpty() ? tr("New Job") : QFileInfo(jobPath_).fileName();
  setWindowTitle(QStringLiteral("%1%2 - Pellam Setup").arg(name, session_.modified() ? "*" : ""));
}

}  // namespace pellam::qt
