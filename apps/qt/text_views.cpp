#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>

#include "control_view.h"

namespace pellam::qt {
namespace {

// The form's texts end lines with CR LF; Qt's editors want LF alone.
QString toDisplay(const std::string& text) { return QString::fromStdString(text).replace("\r\n", "\n"); }
std::string fromDisplay(const QString& text) { return QString(text).replace("\n", "\r\n").toStdString(); }

bool multiLine(const ui::Control& control) { return ui::isMultiLine(control.spec()); }

class LineView final : public ControlView {
 public:
  LineView(ui::TextBox& control, QWidget* parent, PersonAction act) : control_(control), edit_(new QLineEdit(parent)) {
    QObject::connect(edit_, &QLineEdit::textEdited, edit_, [this, act](const QString& text) {
      act([&] { control_.setText(text.toStdString()); });
    });
  }
  QWidget* widget() const override { return edit_; }
  void redraw() override {
    const QSignalBlocker block(edit_);
    const QString text = QString::fromStdString(control_.text());
    if (edit_->text() != text) edit_->setText(text);
    showState(*edit_, control_);
  }

 private:
  ui::TextBox& control_;
  QLineEdit* edit_;
};

class BlockView final : public ControlView {
 public:
  BlockView(ui::TextBox& control, QWidget* parent, PersonAction act)
      : control_(control), edit_(new QPlainTextEdit(parent)) {
    edit_->setTabChangesFocus(true);
    QObject::connect(edit_, &QPlainTextEdit::textChanged, edit_, [this, act] {
      act([&] { control_.setText(fromDisplay(edit_->toPlainText())); });
    });
  }
  QWidget* widget() const override { return edit_; }
  void redraw() override {
    const QSignalBlocker block(edit_);
    const QString text = toDisplay(control_.text());
    if (edit_->toPlainText() != text) edit_->setPlainText(text);
    showState(*edit_, control_);
  }

 private:
  ui::TextBox& control_;
  QPlainTextEdit* edit_;
};

class LabelView final : public ControlView {
 public:
  LabelView(ui::CaptionedControl& control, QWidget* parent) : control_(control), label_(new QLabel(parent)) {
    label_->setWordWrap(multiLine(control));
    label_->setAlignment(Qt::AlignLeft | (multiLine(control) ? Qt::AlignTop : Qt::AlignVCenter));
  }
  QWidget* widget() const override { return label_; }
  void redraw() override {
    label_->setText(toDisplay(control_.caption()));
    showState(*label_, control_);
  }

 private:
  ui::CaptionedControl& control_;
  QLabel* label_;
};

class FrameView final : public ControlView {
 public:
  FrameView(ui::CaptionedControl& control, QWidget* parent) : control_(control), box_(new QGroupBox(parent)) {}
  QWidget* widget() const override { return box_; }
  void redraw() override {
    box_->setTitle(QString::fromStdString(control_.caption()));
    showState(*box_, control_);
  }

 private:
  ui::CaptionedControl& control_;
  QGroupBox* box_;
};

}  // namespace

std::unique_ptr<ControlView> makeTextView(ui::TextBox& control, QWidget* parent, PersonAction act) {
  if (multiLine(control)) return std::make_unique<BlockView>(control, parent, std::move(act));
  return std::make_unique<LineView>(control, parent, std::move(act));
}

std::unique_ptr<ControlView> makeCaptionView(ui::CaptionedControl& control, QWidget* parent) {
  if (control.kind() == ui::Kind::Frame) return std::make_unique<FrameView>(control, parent);
  return std::make_unique<LabelView>(control, parent);
}

}  // namespace pellam::qt
