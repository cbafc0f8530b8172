#include "control_view.h"

#include <QWidget>

namespace pellam::qt {

void showState(QWidget& widget, const ui::Control& control) {
  widget.setVisible(control.visible());
  widget.setEnabled(control.enabled());
}

}  // namespace pellam::qt
