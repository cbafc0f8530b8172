#include "ui/reading_order.h"

#include <algorithm>
#include <optional>

namespace pellam::ui {
namespace {

using Specs = std::vector<const ControlSpec*>;

struct Cut {
  Specs before, after;
  int gap;
};

// The widest gap along one axis that no box spans; `start` and `end` read that axis.
template <class Start, class End>
std::optional<Cut> widestCut(Specs boxes, Start start, End end) {
  std::stable_sort(boxes.begin(), boxes.end(), [&](auto* a, auto* b) { return start(a) < start(b); });
  std::optional<Cut> best;
  int reach = end(boxes.front());
  for (std::size_t i = 1; i < boxes.size(); ++i) {
    const int gap = start(boxes[i]) - reach;
    if (gap >= 0 && (!best || gap > best->gap)) {
      best = Cut{{boxes.begin(), boxes.begin() + static_cast<std::ptrdiff_t>(i)},
                 {boxes.begin() + static_cast<std::ptrdiff_t>(i), boxes.end()},
                 gap};
    }
    reach = std::max(reach, end(boxes[i]));
  }
  return best;
}

class Reader {
 public:
  explicit Reader(std::span<const ControlSpec> table) : table_(table) {}

  void readContainer(std::string_view name) {
    Specs children;
    for (const ControlSpec& spec : table_)
      if (spec.parent == name) children.push_back(&spec);
    if (!children.empty()) read(std::move(children));
  }
  Specs order;

 private:
  void read(Specs boxes) {
    if (boxes.size() == 1) return take(boxes.front());
    auto rows = widestCut(boxes, [](auto* s) { return s->top; }, [](auto* s) { return s->top + s->height; });
    auto columns = widestCut(boxes, [](auto* s) { return s->left; }, [](auto* s) { return s->left + s->width; });
    // A grid of rows reads row by row; groups side by side, with a gap between them well wider
    // than the gaps between rows, read one group after the other.
    const bool byColumns = columns && (!rows || (columns->gap > rows->gap && columns->gap >= 3 * rows->gap));
    if (const auto& cut = byColumns ? columns : rows) {
      read(cut->before);
      read(cut->after);
      return;
    }
    // Boxes that overlap both ways have no better order than their corners.
    std::stable_sort(boxes.begin(), boxes.end(), [](auto* a, auto* b) {
      return a->top != b->top ? a->top < b->top : a->left < b->left;
    });
    for (const ControlSpec* box : boxes) take(box);
  }
  void take(const ControlSpec* spec) {
    order.push_back(spec);
    if (spec->kind == Kind::Frame) readContainer(spec->name);
  }

  std::span<const ControlSpec> table_;
};

}  // namespace

std::vector<const ControlSpec*> readingOrder(std::span<const ControlSpec> table) {
  Reader reader(table);
  for (const ControlSpec& spec : table)
    if (spec.kind == Kind::Page) reader.readContainer(spec.name);
  return std::move(reader.order);
}

}  // namespace pellam::ui
