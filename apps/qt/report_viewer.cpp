#include "report_viewer.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QVBoxLayout>

namespace pellam::qt {

ReportWindow::ReportWindow(QWidget* parent) : QDialog(parent), view_(new QPlainTextEdit) {
  setModal(false);
  view_->setReadOnly(true);
  view_->setLineWrapMode(QPlainTextEdit::NoWrap);
  view_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  connect(buttons->addButton(tr("&Print..."), QDialogButtonBox::ActionRole), &QPushButton::clicked, this,
          &ReportWindow::print);
  connect(buttons->addButton(tr("Save as P&DF..."), QDialogButtonBox::ActionRole), &QPushButton::clicked, this,
          &ReportWindow::choosePdf);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(view_);
  layout->addWidget(buttons);
  resize(720, 560);
}

void ReportWindow::show(const QString& path, const QString& text) {
  setWindowTitle(tr("%1 - Pellam Setup").arg(QFileInfo(path).fileName()));
  view_->setPlainText(text);
  QDialog::show();
  raise();
  activateWindow();
}

QString ReportWindow::text() const { return view_->toPlainText(); }

void ReportWindow::print() {
  QPrinter printer;
  QPrintDialog dialog(&printer, this);
  if (dialog.exec() == QDialog::Accepted) view_->print(&printer);
}

void ReportWindow::choosePdf() {
  const QString path = QFileDialog::getSaveFileName(this, tr("Save as PDF"), {}, tr("PDF Files (*.pdf)"));
  if (!path.isEmpty()) savePdf(path.endsWith(".pdf", Qt::CaseInsensitive) ? path : path + ".pdf");
}

bool ReportWindow::savePdf(const QString& pdfPath) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(pdfPath);
  view_->print(&printer);
  return QFileInfo(pdfPath).size() > 0;
}

bool ReportViewer::openInViewer(const std::string& path) {
  QFile file(QString::fromStdString(path));
  if (!file.open(QIODevice::ReadOnly)) return false;
  const QString text = QString::fromUtf8(file.readAll()).replace("\r\n", "\n");
  if (!window_) window_ = new ReportWindow(parent_);
  window_->show(QString::fromStdString(path), text);
  return true;
}

}  // namespace pellam::qt
