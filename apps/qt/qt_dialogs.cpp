#include "qt_dialogs.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QSpacerItem>
#include <QMessageBox>
#include <QRegularExpression>

namespace pellam::qt {

namespace {
const QString kTitle = QStringLiteral("Pellam Setup");
}

ui::Answer QtDialogs::msgBox(const std::string& text, ui::Buttons buttons) { return show(text, buttons, false); }
ui::Answer QtDialogs::errorBox(const std::string& text) { return show(text, ui::Buttons::OK, true); }

// A refusal informs, a choice asks, an error trap warns.
ui::Answer QtDialogs::show(const std::string& text, ui::Buttons buttons, bool error) {
  const QMessageBox::Icon icon = error                        ? QMessageBox::Warning
                                 : buttons == ui::Buttons::OK ? QMessageBox::Information
                                                              : QMessageBox::Question;
  QMessageBox box(icon, kTitle, QString::fromStdString(text).replace("\r\n", "\n"), QMessageBox::NoButton, parent_);
  // A short text would make the box narrower than its title; a spacer under the text keeps
  // the title whole with the window's own buttons beside it.
  if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
    const int titleWidth = box.fontMetrics().horizontalAdvance(kTitle) + 160;
    grid->addItem(new QSpacerItem(titleWidth, 0, QSizePolicy::Minimum, QSizePolicy::Fixed), grid->rowCount(), 0, 1,
                  grid->columnCount());
  }
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
