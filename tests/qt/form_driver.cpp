#include "form_driver.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTabWidget>
#include <QTest>
#include <gtest/gtest.h>

#include "form_view.h"

namespace pellam::qt::testing {

BoxAnswerer::BoxAnswerer() {
  timer_.setInterval(5);
  QObject::connect(&timer_, &QTimer::timeout, [this] {
    QWidget* modal = QApplication::activeModalWidget();
    QWidget* parent = modal;
    while (owner && parent && parent != owner) parent = parent->parentWidget();
    if (owner && !parent) return;
    if (auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
      filters.push_back(dialog->nameFilters());
      const QString path = paths_.empty() ? QString() : paths_.front();
      if (!paths_.empty()) paths_.pop_front();
      seen.push_back("file dialog -> " + path.toStdString());
      if (path.isEmpty()) {
        dialog->reject();
      } else {
        dialog->selectFile(path);
        static_cast<QDialog*>(dialog)->accept();  // the file dialog checks the name as on Return
      }
      return;
    }
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return;
    QMessageBox::StandardButton answer = QMessageBox::NoButton;
    if (!answers_.empty() && box->button(answers_.front())) {
      answer = answers_.front();
      answers_.pop_front();
    } else {
      answer = box->standardButton(box->escapeButton());
    }
    const char* name = answer == QMessageBox::Yes       ? "Yes"
                       : answer == QMessageBox::No      ? "No"
                       : answer == QMessageBox::Cancel  ? "Cancel"
                       : answer == QMessageBox::Save    ? "Save"
                       : answer == QMessageBox::Discard ? "Discard"
                                                        : "OK";
    seen.push_back("msgbox \"" + box->text().toStdString() + "\" -> " + name);
    icons.push_back(box->icon());
    roomBesideTitle.push_back(box->width() - box->fontMetrics().horizontalAdvance(box->windowTitle()));
    box->button(answer)->click();
  });
  timer_.start();
}

FormDriver::FormDriver(std::filesystem::path dataFolder, QMessageBox::StandardButton atStart) {
  data = dataFolder.empty() ? folder / "app-data" : dataFolder;
  window_ = std::make_unique<MainWindow>(nullptr, QString::fromStdString(data.string()));
  boxes.owner = window_.get();
  window_->show();
  if (atStart != QMessageBox::NoButton) boxes.queue(atStart);
  window_->start({});
  EXPECT_TRUE(QTest::qWaitForWindowExposed(window_.get()));
}

// The window goes before its folder.
FormDriver::~FormDriver() { window_.reset(); }

QWidget* FormDriver::widget(const char* name) {
  QWidget* w = window_->form().widgetFor(name);
  EXPECT_NE(w, nullptr) << name;
  return w;
}

void FormDriver::choose(const char* combo, int index) {
  auto* box = as<QComboBox>(combo);
  ASSERT_TRUE(box && box->isVisible()) << combo << " is not shown";
  box->showPopup();
  QAbstractItemView* view = box->view();
  ASSERT_TRUE(QTest::qWaitFor([&] { return view->isVisible(); }));
  const QModelIndex item = view->model()->index(index, 0);
  view->scrollTo(item, QAbstractItemView::PositionAtCenter);
  const QPoint at = view->visualRect(item).center();
  if (view->viewport()->rect().contains(at)) {
    QTest::mouseMove(view->viewport(), at);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at);
  } else {
    // Items the popup cannot scroll to are reached with the keyboard.
    view->setCurrentIndex(item);
    QTest::keyClick(view, Qt::Key_Return);
  }
  QTest::qWait(1);
  EXPECT_EQ(box->currentIndex(), index) << combo;
}

void FormDriver::click(const char* button) {
  auto* b = as<QAbstractButton>(button);
  ASSERT_TRUE(b && b->isVisible() && b->isEnabled()) << button << " cannot be clicked";
  QTest::mouseClick(b, Qt::LeftButton);
  QTest::qWait(1);
}

void FormDriver::type(const char* textBox, const QString& text) {
  auto* edit = as<QLineEdit>(textBox);
  ASSERT_TRUE(edit && edit->isVisible()) << textBox;
  edit->setFocus();
  edit->selectAll();
  QTest::keyClicks(edit, text);
}

void FormDriver::clickLine(const char* listBox, int row) {
  auto* list = as<QListWidget>(listBox);
  ASSERT_TRUE(list && list->isVisible()) << listBox;
  const QRect rect = list->visualItemRect(list->item(row));
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, rect.center());
  QTest::qWait(1);
}

void FormDriver::showPage(const char* page) {
  auto* tabs = as<QTabWidget>("MultiPage1");
  const int index = tabs->indexOf(widget(page));
  ASSERT_TRUE(tabs->isTabVisible(index)) << page << " has no tab";
  QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(index).center());
  QTest::qWait(1);
}

QAction* FormDriver::menuAction(const QString& text) {
  for (QAction* action : window_->findChildren<QAction*>()) {
    if (action->text() == text) return action;
  }
  ADD_FAILURE() << "no action " << text.toStdString();
  return nullptr;
}

QStringList FormDriver::lines(const char* listBox) {
  QStringList out;
  auto* list = as<QListWidget>(listBox);
  for (int i = 0; i < list->count(); ++i) out << list->item(i)->text();
  return out;
}

QString FormDriver::shownText(const char* control) {
  QWidget* w = widget(control);
  if (auto* label = qobject_cast<QLabel*>(w)) return label->text();
  if (auto* edit = qobject_cast<QLineEdit*>(w)) return edit->text();
  if (auto* block = qobject_cast<QPlainTextEdit*>(w)) return block->toPlainText();
  if (auto* box = qobject_cast<QComboBox*>(w)) return box->currentText();
  if (auto* group = qobject_cast<QGroupBox*>(w)) return group->title();
  if (auto* button = qobject_cast<QAbstractButton*>(w)) return button->text();
  return {};
}

namespace {

bool fits(const QFontMetrics& metrics, const QString& text, int width) {
  for (const QString& line : text.split('\n'))
    if (metrics.horizontalAdvance(line) > width) return false;
  return true;
}

// Every text the widget shows that it cannot show whole, across or down.
QStringList cutOffTexts(QWidget* w) {
  QStringList cut;
  const QFontMetrics metrics = w->fontMetrics();
  if (auto* label = qobject_cast<QLabel*>(w)) {
    const QRect room = label->contentsRect();
    const QRect needed = metrics.boundingRect(room, Qt::TextWordWrap * label->wordWrap(), label->text());
    if (needed.width() > room.width() || needed.height() > room.height()) cut << label->text();
  } else if (auto* button = qobject_cast<QAbstractButton*>(w)) {
    if (button->sizeHint().width() > button->width() || metrics.height() > button->height()) cut << button->text();
  } else if (auto* group = qobject_cast<QGroupBox*>(w)) {
    // The title stands on the frame, a few pixels in from each side.
    if (metrics.horizontalAdvance(group->title()) + 16 > group->width()) cut << group->title();
  } else if (auto* box = qobject_cast<QComboBox*>(w)) {
    QStyleOptionComboBox option;
    option.initFrom(box);
    const QRect room = box->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, box);
    for (int i = 0; i < box->count(); ++i)
      if (!fits(metrics, box->itemText(i), room.width()) || metrics.height() > room.height()) cut << box->itemText(i);
  } else if (auto* list = qobject_cast<QListWidget*>(w)) {
    // A long list shows its scroll bar beside the lines; the lines keep a small margin.
    int room = list->contentsRect().width() - 6;
    if (list->count() * list->sizeHintForRow(0) > list->contentsRect().height())
      room -= list->verticalScrollBar()->sizeHint().width();
    for (int i = 0; i < list->count(); ++i)
      if (!fits(metrics, list->item(i)->text(), room)) cut << list->item(i)->text();
  } else if (auto* edit = qobject_cast<QLineEdit*>(w)) {
    if (metrics.height() > edit->contentsRect().height() - 2) cut << edit->text();
  }
  return cut;
}

}  // namespace

QStringList FormDriver::cutOffOn(const char* page) {
  showPage(page);
  QWidget* pageWidget = widget(page);
  QStringList out;
  for (const ui::Control* control : form().controls()) {
    QWidget* w = window_->form().widgetFor(control->name());
    if (!pageWidget->isAncestorOf(w) || !w->isVisibleTo(pageWidget)) continue;
    const QString name = QString::fromUtf8(control->name().data(), static_cast<qsizetype>(control->name().size()));
    if (!w->parentWidget()->rect().contains(w->geometry())) out << name + ": outside its page or frame";
    for (const QString& text : cutOffTexts(w)) out << name + ": " + text;
  }
  return out;
}

bool FormDriver::tabShown(int page) { return as<QTabWidget>("MultiPage1")->isTabVisible(page); }

void FormDriver::confirmBoard(int mode) {
  choose("ComboBox48", 2);
  choose("ComboBox1", mode);
  choose("ComboBox2", 1);
  choose("ComboBox6", 1);
  click("CommandButton4");
}

}  // namespace pellam::qt::testing
