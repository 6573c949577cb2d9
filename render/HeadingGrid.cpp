#include "render/HeadingGrid.h"

#include <algorithm>
#include <deque>
#include <functional>
#include <utility>

namespace om::render {

namespace {

using Entries = std::deque<OmDisplayLayerHeading::ConstNode*>;
using Span = HeadingGrid::Span;

// What the grids of both headings are made from. A block has the levels of one dimension.
struct Source {
  std::uint64_t places;
  std::vector<std::size_t> blocks;
  std::vector<Entries> levels;
  std::function<Entries(std::uint64_t)> categories;  // of a place
};

Source sourceOf(const OmDisplayColumnHeading& columns) {
  Source source{static_cast<std::uint64_t>(columns.NColumns()), {}, {}, {}};
  for (int k = 0; k < columns.NDimensions(); ++k) {
    source.blocks.push_back(static_cast<std::size_t>(columns.VisibleHeight(k)));
  }
  for (int level = 0; level < columns.NRows(); ++level) source.levels.push_back(columns.Row(level));
  source.categories = [&columns](std::uint64_t place) {
    return columns.ColumnCategories(static_cast<int>(place));
  };
  return source;
}

Source sourceOf(const OmDisplayRowHeading& rows) {
  Source source{static_cast<std::uint64_t>(rows.NRows()), {}, {}, {}};
  for (int k = 0; k < rows.NDimensions(); ++k) {
    source.blocks.push_back(static_cast<std::size_t>(rows.VisibleWidth(k)));
  }
  for (int level = 0; level < rows.NColumns(); ++level) source.levels.push_back(rows.Column(level));
  source.categories = [&rows](std::uint64_t place) {
    return rows.RowCategories(static_cast<int>(place));
  };
  return source;
}

// Goes down the levels and splits the places into the spans of each.
class Splitter {
 public:
  Splitter(const Source& source, Spans spans) : source_(source), mode_(spans) {}

  std::vector<std::vector<Span>> operator()() {
    std::vector<std::vector<Span>> levels;
    std::vector<Part> parts;
    if (source_.places != 0) parts.push_back({0, source_.places, 0});
    for (std::size_t block = 0; block < source_.blocks.size(); ++block) {
      const std::size_t end = levels.size() + source_.blocks[block];
      while (levels.size() < end) levels.push_back(split({levels.size(), end, block}, parts));
    }
    return levels;
  }

 private:
  // Places that no span of a level further down may leave.
  struct Part {
    std::uint64_t begin;
    std::uint64_t end;
    std::size_t coveredTo;  // the first level that no span above covers
  };
  struct Level {
    std::size_t number;
    std::size_t blockEnd;
    std::size_t block;
  };

  std::vector<Span> split(const Level& level, std::vector<Part>& parts) {
    std::vector<Span> spans;
    std::vector<Part> below;
    for (const Part& part : parts) {
      if (part.coveredTo > level.number) {
        below.push_back(part);
        continue;
      }
      for (std::uint64_t begin = part.begin; begin != part.end;) {
        const Span span = spanAt(level, begin, part.end);
        below.push_back({span.begin, span.end, level.number + span.levels});
        add(span, spans);
        begin = span.end;
      }
    }
    parts = std::move(below);
    return spans;
  }

  Span spanAt(const Level& level, std::uint64_t begin, std::uint64_t limit) const {
    const Entries& entries = source_.levels[level.number];
    std::uint64_t end = begin + 1;
    while (end != limit && areSame(level, entries[end - 1], entries[end], end)) ++end;
    std::size_t next = level.number + 1;
    while (next != level.blockEnd && areNull(source_.levels[next], begin, end)) ++next;
    const auto levels = static_cast<std::uint32_t>(next - level.number);
    return {begin, end, entries[begin] != nullptr ? &**entries[begin] : nullptr, levels};
  }

  // Places without a label belong together when they are of one category.
  bool areSame(const Level& level, const Entries::value_type& a, const Entries::value_type& b,
               std::uint64_t place) const {
    if (a != nullptr || b != nullptr) return a != nullptr && b != nullptr && *a == *b;
    const Entries left = source_.categories(place - 1);
    const Entries right = source_.categories(place);
    const auto* const category = left[level.block];
    return category != nullptr && right[level.block] != nullptr && *category == *right[level.block];
  }

  static bool areNull(const Entries& entries, std::uint64_t begin, std::uint64_t end) {
    return std::all_of(entries.begin() + static_cast<std::ptrdiff_t>(begin),
                       entries.begin() + static_cast<std::ptrdiff_t>(end),
                       [](const auto* entry) { return entry == nullptr; });
  }

  void add(const Span& span, std::vector<Span>& spans) const {
    if (mode_ == Spans::MERGE) {
      spans.push_back(span);
      return;
    }
    for (std::uint64_t place = span.begin; place != span.end; ++place) {
      const bool labelled = place == span.begin || mode_ == Spans::REPEAT;
      spans.push_back({place, place + 1, labelled ? span.node : nullptr, span.levels});
    }
  }

  const Source& source_;
  const Spans mode_;
};

}  // namespace

HeadingGrid::HeadingGrid(const OmDisplayColumnHeading& columns, Spans spans) {
  const Source source = sourceOf(columns);
  places_ = source.places;
  levels_ = Splitter(source, spans)();
}

HeadingGrid::HeadingGrid(const OmDisplayRowHeading& rows, Spans spans) {
  const Source source = sourceOf(rows);
  places_ = source.places;
  levels_ = Splitter(source, spans)();
}

const HeadingGrid::Span* HeadingGrid::find(std::size_t level, std::uint64_t place) const {
  const std::vector<Span>& spans = levels_[level];
  const auto behind =
      std::upper_bound(spans.begin(), spans.end(), place,
                       [](std::uint64_t wanted, const Span& span) { return wanted < span.begin; });
  if (behind == spans.begin() || place >= (behind - 1)->end) return nullptr;
  return &*(behind - 1);
}

}  // namespace om::render
