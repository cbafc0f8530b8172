#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "ui/control_kind.h"

namespace pellam::ui {

class Control;

using Handler = std::function<void()>;

// Faces learn what to redraw from this one notification; every handler a control fires runs
// through the sink, where an error that no trap caught ends.
class ChangeSink {
 public:
  virtual void controlChanged(const Control& control) = 0;
  virtual void runHandler(const Handler& handler) = 0;

 protected:
  ~ChangeSink() = default;
};

// The run-time errors of setting a control as the form's controls raise them.
inline constexpr const char* kInvalidPropertyValue = "Invalid property value";
inline constexpr const char* kPageNotVisible = "Page is not visible";

class Control {
 public:
  Control(const ControlSpec& spec, ChangeSink& sink);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  const ControlSpec& spec() const { return *spec_; }
  std::string_view name() const { return spec_->name; }
  Kind kind() const { return spec_->kind; }

  bool visible() const { return visible_; }
  void setVisible(bool visible);
  bool enabled() const { return enabled_; }
  void setEnabled(bool enabled);

  // Back to the state the control has when the form is loaded; handlers stay attached.
  virtual void reset();

 protected:
  void notify() { sink_->controlChanged(*this); }
  void run(const Handler& handler) { sink_->runHandler(handler); }

 private:
  const ControlSpec* spec_;
  ChangeSink* sink_;
  bool visible_;
  bool enabled_ = true;
};

class CaptionedControl : public Control {
 public:
  CaptionedControl(const ControlSpec& spec, ChangeSink& sink);
  const std::string& caption() const { return caption_; }
  void setCaption(std::string caption);
  void reset() override;

 private:
  std::string caption_;
};

class Label : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
};

class Frame : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
};

class Page : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
};

class CommandButton : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  Handler onClick;
  void click();
};

class OptionButton : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  Handler onClick;
  bool value() const { return value_; }
  // A person choosing the button: it turns on, the other buttons of its frame turn off.
  void choose();
  // From code, without running the handler.
  void setValue(bool value);
  void setGroup(std::vector<OptionButton*> group) { group_ = std::move(group); }
  void reset() override;

 private:
  bool value_ = false;
  std::vector<OptionButton*> group_;
};

class TextBox : public Control {
 public:
  using Control::Control;
  Handler onChange;
  const std::string& text() const { return text_; }
  // Like the form this comes from, a change from code fires the change handler too.
  void setText(std::string text);
  void reset() override;

 private:
  std::string text_;
};

// A long list of choices that never changes: the blank item, then PREFIX1 .. PREFIXlast, so that
// a position is the number. Made once per process when first read and shared by every control
// that offers it: the form's channels and rooms are thousands of items that a command-line run
// mostly never reads.
class FixedList {
 public:
  FixedList(std::string_view prefix, int last) : prefix_(prefix), last_(last) {}
  int count() const { return last_ + 1; }
  const std::vector<std::string>& items() const;  // with the other choice lists

 private:
  std::string_view prefix_;
  int last_;
  mutable std::once_flag made_;
  mutable std::vector<std::string> items_;
};

// Combo boxes and list boxes: items, a list index (-1 = nothing chosen) and a click handler.
class ListControl : public Control {
 public:
  using Control::Control;
  Handler onClick;

  const std::vector<std::string>& items() const { return fixed_ ? fixed_->items() : items_; }
  int count() const { return fixed_ ? fixed_->count() : static_cast<int>(items_.size()); }
  const std::string& item(int index) const;
  int listIndex() const { return listIndex_; }
  std::string text() const;

  void clear();
  void addItem(std::string item);
  void setItems(std::vector<std::string> items);
  void setItems(const FixedList& items);
  // New items with the same choice kept when it is still offered: the person chose nothing,
  // so no handler runs.
  void refill(std::vector<std::string> items);

  // Setting the index from code fires the click handler when the index changes, as on the
  // original form; that is why editors raise flags such as ListRefreshing around it.
  void setListIndex(int index);
  // A person (or a script) choosing an item: the handler always runs.
  void select(int index);
  void reset() override;

 private:
  void checkIndex(int index) const;
  std::vector<std::string> items_;
  const FixedList* fixed_ = nullptr;  // the items, when a fixed list is offered
  int listIndex_ = -1;
};

class ComboBox : public ListControl {
 public:
  using ListControl::ListControl;
};

class ListBox : public ListControl {
 public:
  using ListControl::ListControl;
};

class MultiPage : public Control {
 public:
  using Control::Control;
  Handler onChange;
  int value() const { return value_; }
  // Switching tabs; a hidden page cannot be the one showing.
  void setValue(int pageIndex);
  // The page a person's step from `from` lands on, passing over hidden pages and going round
  // the ends as tabs do; -1 when no other page shows.
  int visiblePageFrom(int from, int step) const;
  void setPages(std::vector<Page*> pages) { pages_ = std::move(pages); }
  const std::vector<Page*>& pages() const { return pages_; }
  void pageVisibilityChanged(const Page& page);
  void reset() override;

 private:
  std::vector<Page*> pages_;
  int value_ = 0;
};

}  // namespace pellam::ui
