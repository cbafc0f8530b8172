#pragma once

#include <span>
#include <vector>

#include "ui/control_kind.h"

namespace pellam::ui {

// The controls of every page in the order a person reads them, from the table's positions:
// top to bottom, then left to right, cutting each page or frame where no control spans the gap;
// a frame's controls are read where the frame stands. Pages follow one another in table order
// and are themselves left out.
std::vector<const ControlSpec*> readingOrder(std::span<const ControlSpec> table);

}  // namespace pellam::ui
