#include "form_driver.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <gtest/gtest.h>
#include <random>

#include "form_view.h"

namespace pellam::qt::testing {

BoxAnswerer::BoxAnswerer() {
  timer_.setInterval(5);
  QObject::connect(&timer_, &QTimer::timeout, [this] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return;
    QMessageBox::StandardButton answer = QMessageBox::NoButton;
    if (!answers_.empty() && box->button(answers_.front())) {
      answer = answers_.front();
      answers_.pop_front();
    } else {
      answer = box->standardButton(box->escapeButton());
    }
    const char* name = answer == QMessageBox::Yes      ? "Yes"
                       : answer == QMessageBox::No     ? "No"
                       : answer == QMessageBox::Cancel ? "Cancel"
                                                       : "OK";
    seen.push_back("msgbox \"" + box->text().toStdString() + "\" -> " + name);
    box->button(answer)->click();
  });
  timer_.start();
}

FormDriver::FormDriver() {
  folder = std::filesystem::temp_directory_path() /
           ("pellam-qt-" + std::to_string(std::random_device{}()));
  std::filesystem::create_directories(folder);
  window_ = std::make_unique<MainWindow>();
  window_->show();
  window_->start({});
  EXPECT_TRUE(QTest::qWaitForWindowExposed(window_.get()));
}

FormDriver::~FormDriver() {
  window_.reset();
  std::error_code ec;
  std::filesystem::remove_all(folder, ec);
}

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

bool FormDriver::tabShown(int page) { return as<QTabWidget>("MultiPage1")->isTabVisible(page); }

void FormDriver::confirmBoard(int mode) {
  choose("ComboBox48", 2);
  choose("ComboBox1", mode);
  choose("ComboBox2", 1);
  choose("ComboBox6", 1);
  click("CommandButton4");
}

}  // namespace pellam::qt::testing
