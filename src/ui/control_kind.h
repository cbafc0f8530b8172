#pragma once

#include <string_view>

namespace pellam::ui {

enum class Kind { MultiPage, Page, Frame, Label, TextBox, ComboBox, ListBox, OptionButton, CommandButton };

std::string_view kindName(Kind kind);

// One row of the form's control table: where a control sits and how it looks before any code runs.
struct ControlSpec {
  std::string_view name;
  Kind kind;
  std::string_view parent;  // a page or frame; empty for MultiPage1
  int left, top, width, height;
  std::string_view caption;
  bool visible;
};

// A text box or label tall enough for more than one line shows its text as lines, wrapped;
// every renderer draws it so.
constexpr bool isMultiLine(const ControlSpec& spec) { return spec.height > 40; }

}  // namespace pellam::ui
