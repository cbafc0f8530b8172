#include "component/page_navigation.h"

#include "component/operating_modes.h"
#include "image/pack.h"

namespace pellam::component {

void PageNavigation::hideModePages() {
  for (auto page : modePages()) (form_.*page).setVisible(false);
  form_.Page9.setVisible(false);
  if (boardPage_) boardPage_->refreshDependentControls();
}

// A slaved station takes its configuration from its master: it gets no editor page.
void PageNavigation::showModePage() {
  if (board_.MasterSlaveMode == job::kSlaved) return;
  if (const OperatingMode* mode = operatingMode(board_.OperatingMode)) {
    (form_.*mode->page).setVisible(true);
    if (mode->alsoShows) (form_.*mode->alsoShows).setVisible(true);
  }
  // Input numbering is packed only while option bit 0 is set, in any mode.
  if (image::optionBitZero(board_.BoardOptions)) form_.Page9.setVisible(true);
}

void PageNavigation::showUploadFrame() {
  form_.Frame23.setVisible(true);
  form_.MultiPage1.setValue(0);
}

}  // namespace pellam::component
