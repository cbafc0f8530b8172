#pragma once

#include <QMessageBox>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <deque>
#include <ostream>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "main_window.h"
#include "support/desk.h"

// Readable failures.
inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }

namespace pellam::qt::testing {

// Answers the real message boxes and file dialogs the app shows, in order, and keeps what each
// one said as `msgbox "TEXT" -> Button` or `file dialog -> PATH`. A box nobody expected gets its
// escape button, a file dialog a cancel, so a test never hangs.
class BoxAnswerer {
 public:
  BoxAnswerer();
  void queue(QMessageBox::StandardButton button) { answers_.push_back(button); }
  void queuePath(const QString& path) { paths_.push_back(path); }
  void stop() { timer_.stop(); }
  // Only boxes and dialogs of this window are answered, when set: a test may open two.
  QWidget* owner = nullptr;
  std::vector<std::string> seen;
  std::vector<QMessageBox::Icon> icons;
  // How much wider each box is than its title's text.
  std::vector<int> roomBesideTitle;
  // The name filters of the file dialogs shown.
  std::vector<QStringList> filters;

 private:
  QTimer timer_;
  std::deque<QMessageBox::StandardButton> answers_;
  std::deque<QString> paths_;
};

// The app's window, started as a new job, driven through its widgets as a person would.
class FormDriver {
 public:
  // `data` keeps the app's recent jobs and recovery copies (a folder of the test's own when
  // empty); `atStart` answers a question the start asks.
  explicit FormDriver(std::filesystem::path data = {}, QMessageBox::StandardButton atStart = QMessageBox::NoButton);
  ~FormDriver();

  MainWindow& window() { return *window_; }
  ui::UserForm1& form() { return window_->session().form; }
  QWidget* widget(const char* name);
  template <class W>
  W* as(const char* name) {
    return qobject_cast<W*>(widget(name));
  }

  // Opens the combo box's popup, moves the mouse onto the item and clicks it.
  void choose(const char* combo, int index);
  void click(const char* button);
  void type(const char* textBox, const QString& text);
  void clickLine(const char* listBox, int row);
  void showPage(const char* page);
  // The window's menu action of that text.
  QAction* menuAction(const QString& text);
  QStringList lines(const char* listBox);
  QString shownText(const char* control);
  bool tabShown(int page);
  // Shows the page and names what on it a person could not read whole, one "Name: text" each:
  // captions wider than their control, combo items wider than the box, list lines wider than
  // the list, controls outside their page or frame.
  QStringList cutOffOn(const char* page);
  // Hardware, mode, master and input action on the board page, then "Confirm Board Setup".
  void confirmBoard(int mode);

  BoxAnswerer boxes;
  pellam::testing::TempFolder temp;
  const std::filesystem::path& folder = temp.path();
  std::filesystem::path data;

 private:
  std::unique_ptr<MainWindow> window_;
};

}  // namespace pellam::qt::testing
