#pragma once

#include <memory>
#include <string>

#include <windows.h>

#include "component/class1.h"
#include "component/platform.h"
#include "component/session.h"
#include "form/form_window.h"
#include "win_dialogs.h"

namespace pellam::win {

// pellam-setup.exe: the program as its own host. It calls Class1 in the order a host program
// does and shows UserForm1 as its main window, with the Job menu.
class MainWindow {
 public:
  MainWindow();
  // A job from the command line, or a new one when `path` is empty.
  void start(const std::string& path);
  // The message loop, until the person quits.
  int run();

 private:
  void menu(WORD id);
  void newJob();
  void openJob(const std::string& zpdPath);
  void chooseAndOpen();
  void saved();
  std::string chooseSavePath(const std::string& suggested);
  component::UnsavedChoice askUnsaved();
  void upload();
  void quit();
  void initialise();
  void updateTitle();

  WinDialogs dialogs_;
  component::DesktopViewer viewer_;
  component::SystemClock clock_;
  component::Session session_;
  component::Class1 class1_;
  std::unique_ptr<FormWindow> form_;
  HACCEL keys_ = nullptr;
  bool fresh_ = false;   // start-up has run and nothing changed since
};

}  // namespace pellam::win
