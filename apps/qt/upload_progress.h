#pragma once

#include <QWidget>

class QProgressBar;
class QToolButton;

namespace pellam::component {
class UploadPage;
}

namespace pellam::qt {

// The running upload in the window's status: how far it got and a Cancel that ends it at once.
// Hidden while no transfer runs.
class UploadProgress final : public QWidget {
 public:
  explicit UploadProgress(component::UploadPage& page);

  QProgressBar* bar() const { return bar_; }
  QToolButton* cancelButton() const { return cancel_; }

 private:
  QProgressBar* bar_;
  QToolButton* cancel_;
};

}  // namespace pellam::qt
