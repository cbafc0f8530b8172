#pragma once

#include <QStringList>

#include "ui/dialogs.h"

class QWidget;

namespace pellam::qt {

// Message boxes and the file dialog as a person sees them on the desktop.
class QtDialogs final : public ui::Dialogs {
 public:
  explicit QtDialogs(QWidget* parent = nullptr) : parent_(parent) {}
  void setParent(QWidget* parent) { parent_ = parent; }
  ui::Answer msgBox(const std::string& text, ui::Buttons buttons) override;
  ui::Answer errorBox(const std::string& text) override;
  std::string openFile(const ui::FileDialogRequest& request) override;

 private:
  ui::Answer show(const std::string& text, ui::Buttons buttons, bool error);
  QWidget* parent_;
};

// "Image Files|*.zpd|All Files|*.*" as Qt's name filters: "Image Files (*.zpd)", ...
QStringList nameFilters(const std::string& filter);

}  // namespace pellam::qt
