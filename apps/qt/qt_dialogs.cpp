#include "qt_dialogs.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QRegularExpression>

namespace pellam::qt {

namespace {
const QString kTitle = QStringLiteral("Pellam Setup");
}

ui::Answer QtDialogs::msgBox(const std::string& text, ui::Buttons buttons) {
  QMessageBox box(QMessageBox::NoIcon, kTitle, QString::fromStdString(text).replace("\r\n", "\n"),
                  QMessageBox::NoButton, parent_);
  switch (buttons) {
    case ui::Buttons::OK:
      box.setStandardButtons(QMessageBox::Ok);
      box.setEscapeButton(QMessageBox::Ok);
      break;
    case ui::Buttons::OKCancel:
      box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
      box.setEscapeButton(QMessageBox::Cancel);
      break;
    case ui::Buttons::YesNo:
      box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
      box.setEscapeButton(QMessageBox::No);
      break;
  }
  switch (box.exec()) {
    case QMessageBox::Yes: return ui::Answer::Yes;
    case QMessageBox::No: return ui::Answer::No;
    case QMessageBox::Cancel: return ui::Answer::Cancel;
    default: return ui::Answer::OK;
  }
}

QStringList nameFilters(const std::string& filter) {
  const QStringList parts = QString::fromStdString(filter).split('|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    // Qt reads the patterns from the last parentheses, so a description's own ones go.
    QString description = parts[i].trimmed();
    description.remove(QRegularExpression(QStringLiteral("\\s*\\([^()]*\\)$")));
    const QString patterns = parts[i + 1].split(';', Qt::SkipEmptyParts).join(' ');
    filters.append(QStringLiteral("%1 (%2)").arg(description, patterns));
  }
  return filters;
}

std::string QtDialogs::openFile(const ui::FileDialogRequest& request) {
  QFileDialog dialog(parent_, kTitle);
  dialog.setFileMode(QFileDialog::ExistingFile);
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  const QStringList filters = nameFilters(request.filter);
  if (!filters.isEmpty()) dialog.setNameFilters(filters);
  if (request.filterIndex >= 1 && request.filterIndex <= filters.size())
    dialog.selectNameFilter(filters[request.filterIndex - 1]);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return dialog.selectedFiles().front().toStdString();
}

}  // namespace pellam::qt
