#pragma once

#include <algorithm>
#include <vector>

#include "ui/user_form.h"

namespace pellam::ui {

// What a renderer owes the screen after the form changed: the views of the controls changed
// since the last flush, in the order they changed, or every view after a change of the whole
// form. One flush is queued at a time, however many changes come before it.
template <typename View>
class RedrawQueue {
 public:
  // Notes a change of a view (nullptr: of the whole form); true when the renderer must queue a
  // flush now.
  bool mark(View* view) {
    if (!view) {
      everything_ = true;
    } else if (std::find(dirty_.begin(), dirty_.end(), view) == dirty_.end()) {
      dirty_.push_back(view);
    }
    if (queued_) return false;
    queued_ = true;
    return true;
  }

  bool queued() const { return queued_; }

  struct Due {
    bool everything = false;
    std::vector<View*> views;  // empty when everything is due
  };
  // What is due now; the queue starts empty again.
  Due take() {
    Due due{everything_, everything_ ? std::vector<View*>{} : std::move(dirty_)};
    dirty_.clear();
    everything_ = queued_ = false;
    return due;
  }

 private:
  std::vector<View*> dirty_;
  bool everything_ = false;
  bool queued_ = false;
};

// The page a control sits on, through the frames that hold it.
inline const Control* pageOf(const UserForm1& form, const Control& control) {
  const Control* page = &control;
  while (page->kind() != Kind::Page) page = form.find(page->spec().parent);
  return page;
}

}  // namespace pellam::ui
