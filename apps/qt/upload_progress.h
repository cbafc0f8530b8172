#pragma once

#include <QWidget>

class QMainWindow;
class QProgressBar;
class QToolButton;

namespace pellam::component {
class UploadPage;
}

namespace pellam::qt {

// The running upload at the end of the window's menu bar, where it takes no room from the form:
// how far it got and a Cancel that ends it at once. Hidden while no transfer runs.
class UploadProgress final : public QWidget {
 public:
  UploadProgress(QMainWindow& window, component::UploadPage& page);

  QProgressBar* bar() const { return bar_; }
  QToolButton* cancelButton() const { return cancel_; }

 private:
  QProgressBar* bar_;
  QToolButton* cancel_;
};

}  // namespace pellam::qt
