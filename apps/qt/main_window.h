#pragma once

#include <QMainWindow>
#include <QString>

#include "component/class1.h"
#include "component/platform.h"
#include "component/session.h"
#include "qt_dialogs.h"

namespace pellam::qt {

class FormView;

// The desktop app as its own host: it calls Class1 in the order a host program does and
// shows UserForm1 as its window.
class MainWindow final : public QMainWindow {
 public:
  explicit MainWindow(QWidget* parent = nullptr);
  ~MainWindow() override;

  // A job from the command line, or a new one when `path` is empty.
  void start(const QString& path);
  void newJob();
  void openJob(const QString& zpdPath);
  bool saveTo(const QString& jobPath);

  component::Session& session() { return session_; }
  FormView& form() { return *view_; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void buildMenu();
  void initialise();
  void chooseAndOpen();
  bool save();
  bool saveAs();
  void upload();
  bool mayDiscard();
  void setJob(const QString& jobPath);
  void updateTitle();

  QtDialogs dialogs_;
  component::DesktopViewer viewer_;
  component::SystemClock clock_;
  component::Session session_;
  component::Class1 class1_;
  FormView* view_;
  QString jobPath_;  // the .txt a save goes to
  bool fresh_ = false;  // start-up has run and nothing changed since
  bool closing_ = false;
};

}  // namespace pellam::qt
