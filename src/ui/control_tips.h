#pragma once

#include <string_view>

namespace pellam::ui {

// What a control is, for the controls of UserForm1 that carry no caption of their own and for
// the board page's terms a newcomer would not know; empty for every other control. Faces show
// it as the control's tooltip.
std::string_view ControlTip(std::string_view name);

}  // namespace pellam::ui
