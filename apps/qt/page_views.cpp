#include <QSignalBlocker>
#include <QTabWidget>

#include "control_view.h"

namespace pellam::qt {
namespace {

class MultiPageView final : public ControlView {
 public:
  MultiPageView(ui::MultiPage& control, QWidget* parent, ActionDone done)
      : control_(control), tabs_(new QTabWidget(parent)) {
    tabs_->setUsesScrollButtons(false);
    QObject::connect(tabs_, &QTabWidget::currentChanged, tabs_, [this, done](int index) {
      if (index < 0 || index == control_.value()) return;
      control_.setValue(index);
      done();
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

std::unique_ptr<ControlView> makeMultiPageView(ui::MultiPage& control, QWidget* parent, ActionDone done) {
  return std::make_unique<MultiPageView>(control, parent, std::move(done));
}

std::unique_ptr<ControlView> makePageView(ui::Page& control, QWidget* tabs) {
  return std::make_unique<PageView>(control, static_cast<QTabWidget*>(tabs));
}

}  // namespace pellam::qt
