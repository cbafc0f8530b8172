#include "ui/controls.h"

#include <utility>

#include "job/runtime_error.h"

namespace pellam::ui {

std::string_view kindName(Kind kind) {
  switch (kind) {
    case Kind::MultiPage: return "MultiPage";
    case Kind::Page: return "Page";
    case Kind::Frame: return "Frame";
    case Kind::Label: return "Label";
    case Kind::TextBox: return "TextBox";
    case Kind::ComboBox: return "ComboBox";
    case Kind::ListBox: return "ListBox";
    case Kind::OptionButton: return "OptionButton";
    case Kind::CommandButton: return "CommandButton";
  }
  return "Control";
}

Control::Control(const ControlSpec& spec, ChangeSink& sink) : spec_(&spec), sink_(&sink), visible_(spec.visible) {}

void Control::setVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  notify();
}

void Control::setEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  notify();
}

void Control::reset() {
  visible_ = spec_->visible;
  enabled_ = true;
  notify();
}

CaptionedControl::CaptionedControl(const ControlSpec& spec, ChangeSink& sink)
    : Control(spec, sink), caption_(spec.caption) {}

void CaptionedControl::setCaption(std::string caption) {
  if (caption_ == caption) return;
  caption_ = std::move(caption);
  notify();
}

void CaptionedControl::reset() {
  caption_ = std::string(spec().caption);
  Control::reset();
}

void CommandButton::click() {
  run(onClick);
}

void OptionButton::setValue(bool value) {
  if (value_ == value) return;
  value_ = value;
  notify();
}

void OptionButton::choose() {
  for (OptionButton* other : group_) {
    if (other != this) other->setValue(false);
  }
  setValue(true);
  run(onClick);
}

void OptionButton::reset() {
  value_ = false;
  CaptionedControl::reset();
}

void TextBox::setText(std::string text) {
  if (text_ == text) return;
  text_ = std::move(text);
  notify();
  run(onChange);
}

void TextBox::reset() {
  text_.clear();
  Control::reset();
}

const std::string& ListControl::item(int index) const {
  if (index < 0 || index >= count()) throw job::RuntimeError(kInvalidPropertyValue);
  return items()[static_cast<std::size_t>(index)];
}

std::string ListControl::text() const { return listIndex_ >= 0 ? items()[static_cast<std::size_t>(listIndex_)] : ""; }

void ListControl::clear() {
  items_.clear();
  fixed_ = nullptr;
  listIndex_ = -1;
  notify();
}

void ListControl::addItem(std::string item) {
  if (fixed_) items_ = std::exchange(fixed_, nullptr)->items();
  items_.push_back(std::move(item));
  notify();
}

void ListControl::setItems(std::vector<std::string> items) {
  items_ = std::move(items);
  fixed_ = nullptr;
  listIndex_ = -1;
  notify();
}

void ListControl::setItems(const FixedList& items) {
  items_.clear();
  fixed_ = &items;
  listIndex_ = -1;
  notify();
}

void ListControl::refill(std::vector<std::string> items) {
  items_ = std::move(items);
  fixed_ = nullptr;
  if (listIndex_ >= count()) listIndex_ = -1;
  notify();
}

void ListControl::checkIndex(int index) const {
  if (index < -1 || index >= count()) throw job::RuntimeError(kInvalidPropertyValue);
}

void ListControl::setListIndex(int index) {
  checkIndex(index);
  if (listIndex_ == index) return;
  listIndex_ = index;
  notify();
  run(onClick);
}

void ListControl::select(int index) {
  checkIndex(index);
  if (listIndex_ != index) {
    listIndex_ = index;
    notify();
  }
  run(onClick);
}

void ListControl::reset() {
  items_.clear();
  fixed_ = nullptr;
  listIndex_ = -1;
  Control::reset();
}

void MultiPage::setValue(int pageIndex) {
  if (pageIndex < 0 || pageIndex >= static_cast<int>(pages_.size())) throw job::RuntimeError(kInvalidPropertyValue);
  if (!pages_[static_cast<std::size_t>(pageIndex)]->visible()) throw job::RuntimeError(kPageNotVisible);
  if (value_ == pageIndex) return;
  value_ = pageIndex;
  notify();
  run(onChange);
}

int MultiPage::visiblePageFrom(int from, int step) const {
  const int count = static_cast<int>(pages_.size());
  for (int i = 0, at = from; i < count; ++i, at += step) {
    at = ((at % count) + count) % count;
    if (at != value_ && pages_[static_cast<std::size_t>(at)]->visible()) return at;
  }
  return -1;
}

void MultiPage::pageVisibilityChanged(const Page& page) {
  if (page.visible() || pages_.empty() || pages_[static_cast<std::size_t>(value_)] != &page) return;
  for (std::size_t i = 0; i < pages_.size(); ++i) {
    if (pages_[i]->visible()) {
      setValue(static_cast<int>(i));
      return;
    }
  }
}

void MultiPage::reset() {
  value_ = 0;
  Control::reset();
}

}  // namespace pellam::ui
