#include <QSignalBlocker>
#include <QTabWidget>

#include "control_view.h"

namespace pellam::qt {
namespace {

class MultiPageView final : public ControlView {
 public:
  MultiPageView(ui::MultiPage& control, QWidget* parent, PersonAction act)
      : control_(control), tabs_(new QTabWidget(parent)) {
    tabs_->setUsesScrollButtons(false);
    // Keys and the wheel step onto hidden tabs as well: the step goes on to the next page shown.
    QObject::connect(tabs_, &QTabWidget::currentChanged, tabs_, [this, act](int index) {
      if (index < 0 || index == control_.value()) return;
      const int target = control_.visiblePageFrom(index, index > control_.value() ? 1 : -1);
      if (target >= 0) act([&] { control_.setValue(target); });
      redraw();
    });
  }
  QWidget* widget() const override { return tabs_; }
  void redraw() override {
    const QSignalBlocker block(tabs_);
    tabs_->setCurrentIndex(control_.value());
    showState(*tabs_, control_);
  }

 private:
  ui::MultiPage& control_;
  QTabWidget* tabs_;
};

class PageView final : public ControlView {
 public:
  PageView(ui::Page& control, QTabWidget* tabs) : control_(control), tabs_(tabs), page_(new QWidget) {
    index_ = tabs_->addTab(page_, QString::fromStdString(control.caption()));
  }
  QWidget* widget() const override { return page_; }
  void redraw() override {
    const QSignalBlocker block(tabs_);
    tabs_->setTabText(index_, QString::fromStdString(control_.caption()));
    tabs_->setTabVisible(index_, control_.visible());
  }

 private:
  ui::Page& control_;
  QTabWidget* tabs_;
  QWidget* page_;
  int index_;
};

}  // namespace

std::unique_ptr<ControlView> makeMultiPageView(ui::MultiPage& control, QWidget* parent, PersonAction act) {
  return std::make_unique<MultiPageView>(control, parent, std::move(act));
}

std::unique_ptr<ControlView> makePageView(ui::Page& control, QWidget* tabs) {
  return std::make_unique<PageView>(control, static_cast<QTabWidget*>(tabs));
}

}  // namespace pellam::qt
