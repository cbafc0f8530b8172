#include "component/page_navigation.h"

#include "image/pack.h"

namespace pellam::component {

ui::Page* PageNavigation::pageOfMode(ui::UserForm1& form, int mode) {
  switch (mode) {
    case 1: return &form.Page2;
    case 2: return &form.Page3;
    case 3: return &form.Page4;
    case 4: return &form.Page5;
    case 5: return &form.Page6;
    default: return nullptr;
  }
}

void PageNavigation::hideModePages() {
  for (ui::Page* page : {&form_.Page2, &form_.Page3, &form_.Page4, &form_.Page5, &form_.Page6, &form_.Page7,
                         &form_.Page8, &form_.Page9}) {
    page->setVisible(false);
  }
  if (boardPage_) boardPage_->refreshDependentControls();
}

// A slaved station takes its configuration from its master: it gets no editor page.
void PageNavigation::showModePage() {
  if (board_.MasterSlaveMode == job::kSlaved) return;
  if (ui::Page* page = pageOfMode(form_, board_.OperatingMode)) page->setVisible(true);
  // Room and group names belong to a room-combine job: its report lists them.
  if (board_.OperatingMode == 3) form_.Page8.setVisible(true);
  // Remote LEDs and buttons are set up with channel emulation; other modes save the table as it stands.
  if (board_.OperatingMode == 1) form_.Page7.setVisible(true);
  // Input numbering is packed only while option bit 0 is set, in any mode.
  if (image::optionBitZero(board_.BoardOptions)) form_.Page9.setVisible(true);
}

}  // namespace pellam::component
