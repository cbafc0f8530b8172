#pragma once

#include <QWidget>

class QMainWindow;
class QProgressBar;
class QPushButton;

namespace pellam::component {
class UploadPage;
}

namespace pellam::qt {

// The running upload in the window's status bar: how far it got and a Cancel that ends it at
// once. Hidden while no transfer runs.
class UploadProgress final : public QWidget {
 public:
  UploadProgress(QMainWindow& window, component::UploadPage& page);

  QProgressBar* bar() const { return bar_; }
  QPushButton* cancelButton() const { return cancel_; }

 private:
  QProgressBar* bar_;
  QPushButton* cancel_;
};

}  // namespace pellam::qt
