#include "control_view.h"

#include <commctrl.h>

#include "wide_text.h"

namespace pellam::win {
namespace {

// The tab control has a tab for each visible page only, so that neither a click nor the arrow
// keys can land on a hidden one.
class MultiPageView final : public ControlView {
 public:
  MultiPageView(ui::MultiPage& control, HWND parent, int id, PersonAction act, std::function<void(int)> showPage)
      : control_(control), act_(std::move(act)), showPage_(std::move(showPage)) {
    spec_ = &control.spec();
    create(WC_TABCONTROLW, WS_TABSTOP | WS_CLIPSIBLINGS | TCS_FOCUSONBUTTONDOWN, 0, parent, id, &control);
  }
  void notify(UINT code) override {
    if (code != TCN_SELCHANGE || redrawing_) return;
    const auto tab = static_cast<std::size_t>(SendMessageW(window_, TCM_GETCURSEL, 0, 0));
    if (tab < tabs_.size() && tabs_[tab].first != control_.value()) {
      const int page = tabs_[tab].first;
      act_([&] { control_.setValue(page); });
    }
    redraw();
  }
  void redraw() override {
    redrawing_ = true;
    std::vector<std::pair<int, std::string>> tabs;
    for (std::size_t i = 0; i < control_.pages().size(); ++i) {
      const ui::Page& page = *control_.pages()[i];
      if (page.visible()) tabs.emplace_back(static_cast<int>(i), page.caption());
    }
    if (tabs != tabs_) {
      tabs_ = std::move(tabs);
      SendMessageW(window_, TCM_DELETEALLITEMS, 0, 0);
      for (std::size_t i = 0; i < tabs_.size(); ++i) {
        std::wstring caption = wide(tabs_[i].second);
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = caption.data();
        SendMessageW(window_, TCM_INSERTITEMW, i, reinterpret_cast<LPARAM>(&item));
      }
    }
    for (std::size_t i = 0; i < tabs_.size(); ++i) {
      // The arrow keys step from the focused tab: it must be the one the form shows.
      if (tabs_[i].first != control_.value()) continue;
      // A tab control moves its focus only onto a tab other than the selected one.
      if (static_cast<std::size_t>(SendMessageW(window_, TCM_GETCURFOCUS, 0, 0)) != i) {
        SendMessageW(window_, TCM_SETCURSEL, static_cast<WPARAM>(-1), 0);
        SendMessageW(window_, TCM_SETCURFOCUS, i, 0);
      }
      SendMessageW(window_, TCM_SETCURSEL, i, 0);
    }
    showPage_(control_.value());
    showState(control_);
    redrawing_ = false;
  }

 private:
  ui::MultiPage& control_;
  PersonAction act_;
  std::function<void(int)> showPage_;
  std::vector<std::pair<int, std::string>> tabs_;  // page index and caption of each tab
};

// A page is a panel over the tabs' display area, which the form window keeps; the form shows
// the chosen one. It leaves its controls' places undrawn: they draw them whole.
class PageView final : public PanelView {
 public:
  PageView(ui::Page& control, HWND parent, int id, const RECT& area) : area_(area) {
    spec_ = &control.spec();
    create(WS_CLIPSIBLINGS | WS_CLIPCHILDREN, parent, id, nullptr);
  }
  RECT placeAt(const Scale&) const override { return area_; }
  void redraw() override {}

 private:
  const RECT& area_;
};

}  // namespace

std::unique_ptr<ControlView> makeMultiPageView(ui::MultiPage& control, HWND parent, int id, PersonAction act,
                                               std::function<void(int)> showPage) {
  return std::make_unique<MultiPageView>(control, parent, id, std::move(act), std::move(showPage));
}

std::unique_ptr<ControlView> makePageView(ui::Page& control, HWND parent, int id, const RECT& area) {
  return std::make_unique<PageView>(control, parent, id, area);
}

}  // namespace pellam::win
