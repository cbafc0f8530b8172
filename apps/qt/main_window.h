#pragma once

#include <QMainWindow>
#include <QStyle>
#include <QString>
#include <QTimer>
#include <utility>
#include <vector>

#include "component/class1.h"
#include "component/platform.h"
#include "component/session.h"
#include "qt_dialogs.h"
#include "recovery.h"
#include "report_viewer.h"

class QLabel;
class QMenu;
class QStatusBar;

namespace pellam::qt {

class FormView;

// The desktop app as its own host: it calls Class1 in the order a host program does and
// shows UserForm1 as its window. What keeps a person's work (the questions before a job is
// replaced, Save and Save As) is the session's; the window asks them and keeps a recovery copy.
class MainWindow final : public QMainWindow {
 public:
  // `dataFolder` keeps the recent jobs and the recovery copies; empty: the user's own.
  explicit MainWindow(QWidget* parent = nullptr, QString dataFolder = {});
  ~MainWindow() override;

  // A job from the command line, or a new one when `path` is empty; a job a crash left is
  // offered first.
  void start(const QString& path);
  void newJob();
  // The job a path names (a job's text file or bare name stands for its image).
  void openJob(const QString& path);
  bool saveTo(const QString& jobPath);
  bool save();
  bool saveAs();

  component::Session& session() { return session_; }
  FormView& form() { return *view_; }
  Recovery& recovery() { return recovery_; }
  ReportViewer& viewer() { return viewer_; }
  QStringList recentJobs() const;
  QStatusBar* status() const { return status_; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void buildActions();
  void keepWork();
  void initialise();
  void chooseAndOpen();
  void upload();
  void saved(bool done);
  void addRecent(const QString& zpd);
  void fillRecentMenu();
  void jobChanged();
  // News that needs no answer, in the status bar for a while (0: until the next).
  void say(const QString& news, int milliseconds = 0);

  QString dataFolder_;
  QtDialogs dialogs_;
  ReportViewer viewer_;
  component::SystemClock clock_;
  component::Session session_;
  component::Class1 class1_;
  FormView* view_;
  Recovery recovery_;
  QTimer recoveryTimer_;
  // Looked up in the desktop's icon theme once the window has been drawn.
  std::vector<std::pair<QAction*, QStyle::StandardPixmap>> themedIcons_;
  QMenu* recentMenu_ = nullptr;
  QStatusBar* status_ = nullptr;
  QLabel* jobLabel_ = nullptr;
  QLabel* savedLabel_ = nullptr;
  bool fresh_ = false;  // start-up has run and nothing changed since
  bool closing_ = false;
};

}  // namespace pellam::qt
