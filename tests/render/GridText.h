// Heading grids and views of tables as lines of text, for tests to compare.

#ifndef OM_TESTS_RENDER_GRIDTEXT_H_
#define OM_TESTS_RENDER_GRIDTEXT_H_

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "render/HeadingGrid.h"
#include "render/TableView.h"
#include "tests/display/DisplayTable.h"

namespace om::test {

// As in "Female(0-2)"; "x2" behind it when it covers two levels, "-" for one without a label.
inline std::string textOf(const render::HeadingGrid::Span& span) {
  std::string text = textOf(span.text());
  if (span.node == nullptr) text = "-";
  text += "(" + std::to_string(span.begin) + "-" + std::to_string(span.end) + ")";
  return span.levels == 1 ? text : text + "x" + std::to_string(span.levels);
}

// A line for each level, its spans separated by blanks.
inline std::string textOf(const render::HeadingGrid& grid) {
  std::string text;
  for (std::size_t level = 0; level < grid.levels(); ++level) {
    if (level != 0) text += '\n';
    for (const auto& span : grid.spans(level)) {
      if (!text.empty() && text.back() != '\n') text += ' ';
      text += textOf(span);
    }
  }
  return text;
}

// A table with a view of one of its layers.
class Viewed {
 public:
  explicit Viewed(TableOwner table, const render::ViewOptions& options = {}, int layer = 0,
                  bool skipEmptyLayers = false)
      : table_(std::move(table)), layers_(*table_, skipEmptyLayers) {
    layers_.SwitchLayer(layer);
    view_ = std::make_unique<render::TableView>(layers_, options);
  }
  Viewed(TableOwner table, const render::ViewOptions& options, render::Spans spans)
      : Viewed(std::move(table), with(options, spans)) {}

  const render::TableView* operator->() const { return view_.get(); }
  const render::TableView& operator*() const { return *view_; }
  OmPivotTable& table() { return *table_; }

 private:
  static render::ViewOptions with(render::ViewOptions options, render::Spans spans) {
    options.rowSpans = spans;
    options.columnSpans = spans;
    return options;
  }

  TableOwner table_;
  OmDisplayLayerHeading layers_;
  std::unique_ptr<render::TableView> view_;
};

// Every row and column, empty or not.
inline constexpr render::ViewOptions kEverything{.skipEmptyRows = false, .skipEmptyColumns = false};

}  // namespace om::test

#endif  // OM_TESTS_RENDER_GRIDTEXT_H_
