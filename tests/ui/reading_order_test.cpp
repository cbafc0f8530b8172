#include <gtest/gtest.h>

#include <string_view>
#include <vector>

#include "ui/reading_order.h"

namespace pellam::ui {
namespace {

using Names = std::vector<std::string_view>;

ControlSpec box(std::string_view name, std::string_view parent, int left, int top, int width, int height) {
  return {name, name.starts_with("Frame") ? Kind::Frame : Kind::ComboBox, parent, left, top, width, height, "",
          true};
}

Names namesIn(const std::vector<const ControlSpec*>& specs) {
  Names names;
  for (const ControlSpec* spec : specs) names.push_back(spec->name);
  return names;
}

TEST(ReadingOrder, GridsReadByRowsAndGroupsOneAfterAnother) {
  const ControlSpec grid[] = {
      {"Page1", Kind::Page, "MultiPage1", 0, 0, 0, 0, "", true},
      box("B", "Page1", 172, 14, 100, 24), box("A", "Page1", 12, 14, 140, 24),
      box("D", "Page1", 172, 46, 100, 24), box("C", "Page1", 12, 46, 140, 24),
      // A button column well apart from the grid comes after it.
      box("E", "Page1", 360, 10, 100, 30), box("F", "Page1", 360, 44, 100, 30),
      box("G", "Page1", 12, 90, 450, 200),
  };
  EXPECT_EQ(namesIn(readingOrder(grid)), (Names{"A", "B", "C", "D", "E", "F", "G"}));

  const ControlSpec groups[] = {
      {"Page1", Kind::Page, "MultiPage1", 0, 0, 0, 0, "", true},
      box("Frame2", "Page1", 330, 10, 300, 200), box("X", "Frame2", 12, 60, 100, 24), box("W", "Frame2", 12, 24, 100, 24),
      box("A", "Page1", 12, 14, 280, 24), box("B", "Page1", 12, 46, 280, 24), box("C", "Page1", 12, 78, 280, 300),
      {"Page2", Kind::Page, "MultiPage1", 0, 0, 0, 0, "", true},
      box("P", "Page2", 12, 14, 100, 24),
  };
  EXPECT_EQ(namesIn(readingOrder(groups)), (Names{"A", "B", "C", "Frame2", "W", "X", "P"}));
}

}  // namespace
}  // namespace pellam::ui
