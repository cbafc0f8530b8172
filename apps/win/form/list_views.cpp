#include "control_view.h"

#include <commctrl.h>

#include "wide_text.h"

namespace pellam::win {
namespace {

// What the combo box and the list box messages differ in.
struct ListMessages {
  UINT reset, add, setSelection, initStorage, selectionChanged;
};
constexpr ListMessages kCombo{CB_RESETCONTENT, CB_ADDSTRING, CB_SETCURSEL, CB_INITSTORAGE, CBN_SELCHANGE};
constexpr ListMessages kList{LB_RESETCONTENT, LB_ADDSTRING, LB_SETCURSEL, LB_INITSTORAGE, LBN_SELCHANGE};

class ListView final : public ControlView {
 public:
  ListView(ui::ListControl& control, HWND parent, int id, PersonAction act)
      : control_(control), act_(std::move(act)), messages_(control.kind() == ui::Kind::ComboBox ? kCombo : kList) {
    spec_ = &control.spec();
    if (control.kind() == ui::Kind::ComboBox) {
      create(L"COMBOBOX", CBS_DROPDOWNLIST | CBS_HASSTRINGS | WS_VSCROLL | WS_TABSTOP, 0, parent, id, &control);
      SendMessageW(window_, CB_SETMINVISIBLE, 20, 0);
    } else {
      create(L"LISTBOX", LBS_NOTIFY | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_TABSTOP,
             WS_EX_CLIENTEDGE, parent, id, &control);
    }
  }
  // A click or the arrow keys choose an item, each time one a person chose.
  void command(WORD code) override {
    if (code != messages_.selectionChanged || redrawing_) return;
    const UINT current = messages_.selectionChanged == CBN_SELCHANGE ? CB_GETCURSEL : LB_GETCURSEL;
    const auto index = static_cast<int>(SendMessageW(window_, current, 0, 0));
    if (index >= 0) act_([&] { control_.select(index); });
  }
  void redraw() override {
    redrawing_ = true;
    if (shown_ != control_.items()) fill();
    SendMessageW(window_, messages_.setSelection, static_cast<WPARAM>(control_.listIndex()), 0);
    showState(control_);
    redrawing_ = false;
  }
  // A dropped combo box lists up to 20 items below its field.
  RECT placeAt(const Scale& scale) const override {
    RECT at = ControlView::placeAt(scale);
    if (control_.kind() == ui::Kind::ComboBox) at.bottom += scale(20 * 16);
    return at;
  }

 private:
  // Lists of thousands of lines: no drawing until the last is in.
  void fill() {
    shown_ = control_.items();
    SendMessageW(window_, WM_SETREDRAW, FALSE, 0);
    SendMessageW(window_, messages_.reset, 0, 0);
    SendMessageW(window_, messages_.initStorage, shown_.size(), shown_.size() * 32);
    for (const std::string& item : shown_) {
      const std::wstring text = wide(item);
      SendMessageW(window_, messages_.add, 0, reinterpret_cast<LPARAM>(text.c_str()));
    }
    SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(window_, nullptr, TRUE);
  }

  ui::ListControl& control_;
  PersonAction act_;
  ListMessages messages_;
  std::vector<std::string> shown_;
};

}  // namespace

std::unique_ptr<ControlView> makeListView(ui::ListControl& control, HWND parent, int id, PersonAction act) {
  return std::make_unique<ListView>(control, parent, id, std::move(act));
}

}  // namespace pellam::win
