#include "control_view.h"

namespace pellam::win {
namespace {

class CommandView final : public ControlView {
 public:
  CommandView(ui::CommandButton& control, HWND parent, int id, PersonAction act)
      : control_(control), act_(std::move(act)) {
    spec_ = &control.spec();
    create(L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0, parent, id, &control, plainCaption(control.caption()));
  }
  void command(WORD code) override {
    if (code == BN_CLICKED && !redrawing_) act_([&] { control_.click(); });
  }
  void redraw() override {
    setText(window_, plainCaption(control_.caption()));
    showState(control_);
  }

 private:
  ui::CommandButton& control_;
  PersonAction act_;
};

// BS_RADIOBUTTON, not the automatic kind: the form decides which button of a frame is on.
class OptionView final : public ControlView {
 public:
  OptionView(ui::OptionButton& control, HWND parent, int id, PersonAction act)
      : control_(control), act_(std::move(act)) {
    spec_ = &control.spec();
    create(L"BUTTON", BS_RADIOBUTTON | WS_TABSTOP, 0, parent, id, &control, plainCaption(control.caption()));
  }
  void command(WORD code) override {
    if (code == BN_CLICKED && !redrawing_) act_([&] { control_.choose(); });
  }
  void redraw() override {
    redrawing_ = true;
    setText(window_, plainCaption(control_.caption()));
    SendMessageW(window_, BM_SETCHECK, control_.value() ? BST_CHECKED : BST_UNCHECKED, 0);
    showState(control_);
    redrawing_ = false;
  }

 private:
  ui::OptionButton& control_;
  PersonAction act_;
};

}  // namespace

std::unique_ptr<ControlView> makeButtonView(ui::CaptionedControl& control, HWND parent, int id, PersonAction act) {
  if (control.kind() == ui::Kind::OptionButton)
    return std::make_unique<OptionView>(static_cast<ui::OptionButton&>(control), parent, id, std::move(act));
  return std::make_unique<CommandView>(static_cast<ui::CommandButton&>(control), parent, id, std::move(act));
}

}  // namespace pellam::win
