#include "control_view.h"

#include <commctrl.h>

#include <algorithm>

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
      // Its list is sized when it drops: a list sized to whole items as it is made and given
      // its font costs Wine some fifty round trips to the server for each combo box.
      create(L"COMBOBOX", CBS_DROPDOWNLIST | CBS_HASSTRINGS | CBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_TABSTOP, 0, parent,
             id, &control);
    } else {
      create(L"LISTBOX", LBS_NOTIFY | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_TABSTOP,
             WS_EX_CLIENTEDGE, parent, id, &control);
    }
  }
  // A click or the arrow keys choose an item, each time one a person chose.
  void command(WORD code) override {
    if (code == CBN_DROPDOWN && messages_.selectionChanged == CBN_SELCHANGE) return fitDroppedList();
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

 private:
  // A dropped combo box lists its items, up to 20, below its field: its window's height is the
  // field's and the list's together, with the list's border and the pixel Wine takes off it.
  void fitDroppedList() {
    const auto count = static_cast<int>(SendMessageW(window_, CB_GETCOUNT, 0, 0));
    const auto item = static_cast<int>(SendMessageW(window_, CB_GETITEMHEIGHT, 0, 0));
    RECT field;
    GetWindowRect(window_, &field);
    const int height = field.bottom - field.top + std::clamp(count, 1, 20) * item + 3;
    SetWindowPos(window_, nullptr, 0, 0, field.right - field.left, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
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
