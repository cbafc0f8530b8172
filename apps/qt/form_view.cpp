#include "form_view.h"

#include <QTimer>
#include <algorithm>

namespace pellam::qt {

namespace {

std::unique_ptr<ControlView> makeView(ui::Control& c, QWidget* parent, const ActionDone& done) {
  switch (c.kind()) {
    case ui::Kind::MultiPage: return makeMultiPageView(static_cast<ui::MultiPage&>(c), parent, done);
    case ui::Kind::Page: return makePageView(static_cast<ui::Page&>(c), parent);
    case ui::Kind::Frame:
    case ui::Kind::Label: return makeCaptionView(static_cast<ui::CaptionedControl&>(c), parent);
    case ui::Kind::TextBox: return makeTextView(static_cast<ui::TextBox&>(c), parent, done);
    case ui::Kind::ComboBox:
    case ui::Kind::ListBox: return makeListView(static_cast<ui::ListControl&>(c), parent, done);
    case ui::Kind::OptionButton:
    case ui::Kind::CommandButton: return makeButtonView(static_cast<ui::CaptionedControl&>(c), parent, done);
  }
  return nullptr;
}

}  // namespace

FormView::FormView(ui::UserForm1& form, QWidget* parent) : QWidget(parent), form_(form) {
  const ActionDone done = [this] { actionDone(); };
  for (ui::Control* control : form_.controls()) {
    const ui::ControlSpec& spec = control->spec();
    QWidget* parentWidget = this;
    if (!spec.parent.empty()) parentWidget = byControl_.at(form_.find(spec.parent))->childParent();
    auto view = makeView(*control, parentWidget, done);
    if (spec.kind != ui::Kind::Page) view->widget()->setGeometry(spec.left, spec.top, spec.width, spec.height);
    if (spec.kind == ui::Kind::MultiPage) multiPage_ = view.get();
    byControl_[control] = view.get();
    views_.push_back(std::move(view));
  }
  // The tabs hold the pages; the window is as large as they are.
  const QSize tabs = multiPage_->widget()->minimumSizeHint();
  const ui::ControlSpec& spec = form_.MultiPage1.spec();
  multiPage_->widget()->setGeometry(0, 0, spec.width, spec.height + tabs.height());
  setMinimumSize(multiPage_->widget()->size());
  form_.setObserver([this](const ui::Control* control) { changed(control); });
  redrawAll();
}

FormView::~FormView() { form_.setObserver(nullptr); }

QWidget* FormView::widgetFor(std::string_view name) const {
  const ui::Control* control = form_.find(name);
  return control ? byControl_.at(control)->widget() : nullptr;
}

void FormView::changed(const ui::Control* control) {
  if (!control) {
    everything_ = true;
  } else if (ControlView* view = byControl_.at(control); std::find(dirty_.begin(), dirty_.end(), view) == dirty_.end()) {
    dirty_.push_back(view);
  }
  // Changes made while a message box is up are drawn by the box's own event loop.
  if (!flushQueued_) {
    flushQueued_ = true;
    QTimer::singleShot(0, this, [this] { flush(); });
  }
}

void FormView::flush() {
  flushQueued_ = false;
  if (everything_) {
    everything_ = false;
    dirty_.clear();
    redrawAll();
    return;
  }
  auto dirty = std::move(dirty_);
  dirty_.clear();
  for (ControlView* view : dirty) view->redraw();
  // The shown page follows the pages' visibility, so the tabs come last.
  if (!dirty.empty()) multiPage_->redraw();
}

void FormView::redrawAll() {
  for (auto& view : views_) view->redraw();
  multiPage_->redraw();
}

void FormView::actionDone() {
  flush();
  if (onPersonAction) onPersonAction();
}

}  // namespace pellam::qt
