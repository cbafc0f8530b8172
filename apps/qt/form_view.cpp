#include "form_view.h"

#include <QEvent>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <algorithm>

#include "ui/control_tips.h"
#include "ui/reading_order.h"

namespace pellam::qt {

namespace {

std::unique_ptr<ControlView> makeView(ui::Control& c, QWidget* parent, const PersonAction& act) {
  switch (c.kind()) {
    case ui::Kind::MultiPage: return makeMultiPageView(static_cast<ui::MultiPage&>(c), parent, act);
    case ui::Kind::Page: return makePageView(static_cast<ui::Page&>(c), parent);
    case ui::Kind::Frame:
    case ui::Kind::Label: return makeCaptionView(static_cast<ui::CaptionedControl&>(c), parent);
    case ui::Kind::TextBox: return makeTextView(static_cast<ui::TextBox&>(c), parent, act);
    case ui::Kind::ComboBox:
    case ui::Kind::ListBox: return makeListView(static_cast<ui::ListControl&>(c), parent, act);
    case ui::Kind::OptionButton:
    case ui::Kind::CommandButton: return makeButtonView(static_cast<ui::CaptionedControl&>(c), parent, act);
  }
  return nullptr;
}

}  // namespace

FormView::FormView(ui::UserForm1& form, QWidget* parent) : QWidget(parent), form_(form) {
  // The tabs and pages now; a page's controls when the page is first shown, since most jobs
  // never open most pages.
  for (ui::Control* control : form_.controls()) {
    const ui::ControlSpec& spec = control->spec();
    if (spec.kind == ui::Kind::MultiPage || spec.kind == ui::Kind::Page) {
      QWidget* parentWidget = multiPage_ ? multiPage_->widget() : this;
      add(*control, parentWidget);
      if (spec.kind == ui::Kind::MultiPage) multiPage_ = views_.back().get();
      if (spec.kind == ui::Kind::Page) views_.back()->widget()->installEventFilter(this);
      continue;
    }
    unbuilt_[ui::pageOf(form_, *control)].push_back(control);
  }
  // The tabs hold the pages; the window is as large as they are.
  const QSize tabs = multiPage_->widget()->minimumSizeHint();
  const ui::ControlSpec& spec = form_.MultiPage1.spec();
  multiPage_->widget()->setGeometry(0, 0, spec.width, spec.height + tabs.height());
  setMinimumSize(multiPage_->widget()->size());
  subscription_ = form_.observe([this](const ui::Control* control) { changed(control); });
  redrawAll();
}

FormView::~FormView() = default;

ControlView& FormView::add(ui::Control& control, QWidget* parent) {
  auto view = makeView(control, parent, [this](const std::function<void()>& action) { personAction(action); });
  const ui::ControlSpec& spec = control.spec();
  if (spec.kind != ui::Kind::Page) view->widget()->setGeometry(spec.left, spec.top, spec.width, spec.height);
  if (const std::string_view tip = ui::ControlTip(spec.name); !tip.empty()) {
    view->widget()->setToolTip(QString::fromUtf8(tip.data(), static_cast<qsizetype>(tip.size())));
  }
  byControl_[&control] = view.get();
  views_.push_back(std::move(view));
  return *views_.back();
}

bool FormView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Show) {
    for (auto& [page, controls] : unbuilt_) {
      if (byControl_.at(page)->widget() == watched) {
        build(page);
        break;
      }
    }
  }
  return QWidget::eventFilter(watched, event);
}

void FormView::build(const ui::Control* page) {
  const auto found = unbuilt_.find(page);
  if (found == unbuilt_.end()) return;
  const std::vector<ui::Control*> controls = std::move(found->second);
  unbuilt_.erase(found);
  std::vector<ControlView*> made;
  // The table lists a frame before its controls.
  for (ui::Control* control : controls)
    made.push_back(&add(*control, byControl_.at(form_.find(control->spec().parent))->childParent()));
  for (ControlView* view : made) view->redraw();
  orderTabs(*page);
}

void FormView::orderTabs(const ui::Control& page) {
  // From the tabs into the page's controls as they read; widgets hidden at the time, and the
  // other pages' controls, are passed over by Qt itself.
  QWidget* previous = static_cast<QTabWidget*>(multiPage_->widget())->tabBar();
  QWidget* pageWidget = byControl_.at(&page)->widget();
  for (const ui::ControlSpec* spec : ui::readingOrder(ui::userForm1Table())) {
    const auto view = byControl_.find(form_.find(spec->name));
    if (view == byControl_.end()) continue;
    QWidget* next = view->second->widget();
    if (!pageWidget->isAncestorOf(next) || !(next->focusPolicy() & Qt::TabFocus)) continue;
    QWidget::setTabOrder(previous, next);
    previous = next;
  }
}

QWidget* FormView::widgetFor(std::string_view name) {
  const ui::Control* control = form_.find(name);
  if (!control) return nullptr;
  if (!byControl_.contains(control)) {
    build(ui::pageOf(form_, *control));
  }
  return byControl_.at(control)->widget();
}

void FormView::changed(const ui::Control* control) {
  const auto view = control ? byControl_.find(control) : byControl_.end();
  if (control && view == byControl_.end()) return;  // drawn whole when its page is built
  // Changes made while a message box is up are drawn by the box's own event loop.
  if (redraws_.mark(control ? view->second : nullptr)) QTimer::singleShot(0, this, [this] { flush(); });
}

void FormView::flush() {
  const auto due = redraws_.take();
  if (due.everything) {
    redrawAll();
    return;
  }
  for (ControlView* view : due.views) view->redraw();
  // The shown page follows the pages' visibility, so the tabs come last.
  if (!due.views.empty()) multiPage_->redraw();
}

void FormView::redrawAll() {
  // By index: showing a page builds its controls, which adds views.
  for (std::size_t i = 0; i < views_.size(); ++i) views_[i]->redraw();
  multiPage_->redraw();
}

// A Qt slot must never let an error out: what escapes the core goes to the form's report.
void FormView::personAction(const std::function<void()>& action) {
  try {
    action();
  } catch (const std::exception& e) {
    form_.reportError(e.what());
  }
  flush();
  if (onPersonAction) onPersonAction();
}

}  // namespace pellam::qt
