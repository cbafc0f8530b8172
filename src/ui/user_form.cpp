#include "ui/user_form.h"

#include "ui/scoped.h"

#include <algorithm>
#include <array>
#include <exception>
#include <map>

namespace pellam::ui {

namespace {

constexpr std::array kTable = {
#define PELLAM_TABLE_ROW(name, kind, parent, left, top, width, height, caption, visible) \
  ControlSpec{#name, Kind::kind, parent, left, top, width, height, caption, visible},
    PELLAM_USERFORM1_CONTROLS(PELLAM_TABLE_ROW)
#undef PELLAM_TABLE_ROW
};

enum class Row : std::size_t {
#define PELLAM_ROW_ID(name, ...) name,
  PELLAM_USERFORM1_CONTROLS(PELLAM_ROW_ID)
#undef PELLAM_ROW_ID
};

bool byNameLess(const Control* a, const Control* b) { return a->name() < b->name(); }

}  // namespace

std::span<const ControlSpec> userForm1Table() { return kTable; }

UserForm1::UserForm1()
    :
#define PELLAM_INIT_CONTROL(name, ...) name(kTable[static_cast<std::size_t>(Row::name)], *this),
      PELLAM_USERFORM1_CONTROLS(PELLAM_INIT_CONTROL)
#undef PELLAM_INIT_CONTROL
          controls_{
#define PELLAM_LIST_CONTROL(name, ...) &name,
              PELLAM_USERFORM1_CONTROLS(PELLAM_LIST_CONTROL)
#undef PELLAM_LIST_CONTROL
          } {
  byName_ = controls_;
  std::sort(byName_.begin(), byName_.end(), byNameLess);

  // Option buttons that share a frame exclude one another; the pages belong to MultiPage1.
  std::map<std::string_view, std::vector<OptionButton*>> groups;
  std::vector<Page*> pages;
  for (Control* c : controls_) {
    if (c->kind() == Kind::OptionButton) groups[c->spec().parent].push_back(static_cast<OptionButton*>(c));
    if (c->kind() == Kind::Page) pages.push_back(static_cast<Page*>(c));
  }
  for (auto& [parent, group] : groups) {
    for (OptionButton* b : group) b->setGroup(group);
  }
  MultiPage1.setPages(std::move(pages));
}

Control* UserForm1::find(std::string_view name) const {
  auto it = std::lower_bound(byName_.begin(), byName_.end(), name,
                             [](const Control* c, std::string_view n) { return c->name() < n; });
  return it != byName_.end() && (*it)->name() == name ? *it : nullptr;
}

void UserForm1::load() {
  if (loaded_) return;
  loaded_ = true;
  tell(nullptr);
}

void UserForm1::unload() {
  for (Control* c : controls_) c->reset();
  loaded_ = false;
  visible_ = false;
  tell(nullptr);
}

void UserForm1::show(bool modeless) {
  load();
  modal_ = !modeless;
  setVisible(true);
}

void UserForm1::setVisible(bool visible) {
  load();
  if (visible_ == visible) return;
  visible_ = visible;
  tell(nullptr);
}

void UserForm1::controlChanged(const Control& control) {
  if (control.kind() == Kind::Page) MultiPage1.pageVisibilityChanged(static_cast<const Page&>(control));
  tell(&control);
}

void UserForm1::runHandler(const Handler& handler) {
  if (!handler) return;
  // A handler fired by another runs inside it, so that the caller's trap sees its errors.
  if (handlerDepth_ > 0 || !errorReport_) {
    handler();
    return;
  }
  const Scoped depth(handlerDepth_, handlerDepth_ + 1);
  try {
    handler();
  } catch (const std::exception& e) {
    reportError(e.what());
  }
}

void UserForm1::reportError(const std::string& what) {
  if (errorReport_) errorReport_(what);
}

UserForm1::Subscription UserForm1::observe(Observer observer) {
  observers_.emplace_back(++nextObserver_, std::move(observer));
  return Subscription(this, nextObserver_);
}

// By index and id: an observer may end its own or another's subscription while being told.
void UserForm1::tell(const Control* control) {
  for (std::size_t i = 0; i < observers_.size(); ++i) {
    const Observer observer = observers_[i].second;
    observer(control);
  }
}

UserForm1::Subscription& UserForm1::Subscription::operator=(Subscription&& other) noexcept {
  if (this != &other) {
    end();
    form_ = std::exchange(other.form_, nullptr);
    id_ = other.id_;
  }
  return *this;
}

void UserForm1::Subscription::end() {
  if (!form_) return;
  std::erase_if(form_->observers_, [this](const auto& o) { return o.first == id_; });
  form_ = nullptr;
}

}  // namespace pellam::ui
