#include <QComboBox>
#include <QListWidget>
#include <QSignalBlocker>
#include <QStringList>
#include <QStringListModel>

#include "control_view.h"

namespace pellam::qt {
namespace {

QStringList toQt(const std::vector<std::string>& items) {
  QStringList list;
  list.reserve(static_cast<qsizetype>(items.size()));
  for (const auto& item : items) list.append(QString::fromStdString(item));
  return list;
}

class ComboView final : public ControlView {
 public:
  ComboView(ui::ListControl& control, QWidget* parent, PersonAction act)
      : control_(control), box_(new QComboBox(parent)), model_(new QStringListModel(box_)) {
    // Lists of thousands of choices: plain strings fill far faster than the default item model.
    box_->setModel(model_);
    box_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box_->setMinimumContentsLength(kComboContentsLength);
    box_->setMaxVisibleItems(20);
    // activated() comes from a person only, including choosing the item already shown.
    QObject::connect(box_, &QComboBox::activated, box_, [this, act](int index) {
      act([&] { control_.select(index); });
    });
  }
  QWidget* widget() const override { return box_; }
  void redraw() override {
    const QSignalBlocker block(box_);
    if (shown_ != control_.items()) {
      shown_ = control_.items();
      model_->setStringList(toQt(shown_));
    }
    box_->setCurrentIndex(control_.listIndex());
    showState(*box_, control_);
  }

 private:
  ui::ListControl& control_;
  QComboBox* box_;
  QStringListModel* model_;
  std::vector<std::string> shown_;
};

class ListBoxView final : public ControlView {
 public:
  ListBoxView(ui::ListControl& control, QWidget* parent, PersonAction act)
      : control_(control), list_(new QListWidget(parent)) {
    list_->setUniformItemSizes(true);
    // A click or the arrow keys choose a line, as on the form.
    QObject::connect(list_, &QListWidget::currentRowChanged, list_, [this, act](int row) {
      if (row < 0) return;
      act([&] { control_.select(row); });
    });
  }
  QWidget* widget() const override { return list_; }
  void redraw() override {
    const QSignalBlocker block(list_);
    if (shown_ != control_.items()) {
      shown_ = control_.items();
      list_->clear();
      list_->addItems(toQt(shown_));
    }
    list_->setCurrentRow(control_.listIndex());
    if (control_.listIndex() < 0) list_->clearSelection();
    showState(*list_, control_);
  }

 private:
  ui::ListControl& control_;
  QListWidget* list_;
  std::vector<std::string> shown_;
};

}  // namespace

std::unique_ptr<ControlView> makeListView(ui::ListControl& control, QWidget* parent, PersonAction act) {
  if (control.kind() == ui::Kind::ComboBox) return std::make_unique<ComboView>(control, parent, std::move(act));
  return std::make_unique<ListBoxView>(control, parent, std::move(act));
}

}  // namespace pellam::qt
