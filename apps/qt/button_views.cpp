#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include "control_view.h"

namespace pellam::qt {
namespace {

class CommandView final : public ControlView {
 public:
  CommandView(ui::CommandButton& control, QWidget* parent, PersonAction act)
      : control_(control), button_(new QPushButton(parent)) {
    // Return presses the button that has the focus, as Space does.
    button_->setAutoDefault(true);
    QObject::connect(button_, &QPushButton::clicked, button_, [this, act] {
      act([&] { control_.click(); });
    });
  }
  QWidget* widget() const override { return button_; }
  void redraw() override {
    button_->setText(QString::fromStdString(control_.caption()));
    showState(*button_, control_);
  }

 private:
  ui::CommandButton& control_;
  QPushButton* button_;
};

class OptionView final : public ControlView {
 public:
  OptionView(ui::OptionButton& control, QWidget* parent, PersonAction act)
      : control_(control), button_(new QRadioButton(parent)) {
    // The form decides which button of a frame is on; Qt's own grouping would fight it.
    button_->setAutoExclusive(false);
    QObject::connect(button_, &QRadioButton::clicked, button_, [this, act] {
      act([&] { control_.choose(); });
    });
  }
  QWidget* widget() const override { return button_; }
  void redraw() override {
    const QSignalBlocker block(button_);
    button_->setText(QString::fromStdString(control_.caption()));
    button_->setChecked(control_.value());
    showState(*button_, control_);
  }

 private:
  ui::OptionButton& control_;
  QRadioButton* button_;
};

}  // namespace

std::unique_ptr<ControlView> makeButtonView(ui::CaptionedControl& control, QWidget* parent, PersonAction act) {
  if (control.kind() == ui::Kind::OptionButton)
    return std::make_unique<OptionView>(static_cast<ui::OptionButton&>(control), parent, std::move(act));
  return std::make_unique<CommandView>(static_cast<ui::CommandButton&>(control), parent, std::move(act));
}

}  // namespace pellam::qt
