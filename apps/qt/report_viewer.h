#pragma once

#include <QDialog>
#include <QPointer>

#include "ui/dialogs.h"

class QPlainTextEdit;

namespace pellam::qt {

// A text file shown read-only in a window of the app's own, with Print and Save as PDF: the
// room-combine report needs no program of the desktop's.
class ReportWindow final : public QDialog {
 public:
  explicit ReportWindow(QWidget* parent);
  void show(const QString& path, const QString& text);
  QString text() const;
  bool savePdf(const QString& pdfPath);

 private:
  void print();
  void choosePdf();
  QPlainTextEdit* view_;
};

class ReportViewer final : public ui::Shell {
 public:
  explicit ReportViewer(QWidget* parent) : parent_(parent) {}
  // False when the file cannot be read.
  bool openInViewer(const std::string& path) override;
  ReportWindow* window() const { return window_; }

 private:
  QWidget* parent_;
  QPointer<ReportWindow> window_;
};

}  // namespace pellam::qt
