#include "render/FootnoteMarks.h"

#include <array>
#include <limits>
#include <set>

#include "pivot/OmPivotTable.h"
#include "render/internal/FootnoteNumbers.h"
#include "render/internal/Utf8.h"

namespace om::render {

namespace {

constexpr std::size_t kNowhere = std::numeric_limits<std::size_t>::max();

void visitGrid(const HeadingGrid& grid, std::size_t level, const auto& visit) {
  for (const HeadingGrid::Span& span : grid.spans(level)) visit(span.text());
}

// Calls visit(text) for every text of the view in reading order; some are null.
void visitTexts(const TableView& view, const auto& visit) {
  const OmPivotTable& table = view.table();
  visit(&titleOf(table));
  for (const TableView::LayerLabel& label : view.layerLabels()) {
    for (const OmDimensionNode* const node : label.path) visit(node->Text());
  }
  for (const TableView::CornerCell& cell : view.corner()) visit(cell.text);
  for (std::size_t level = 0; level < view.columns().levels(); ++level) {
    visitGrid(view.columns(), level, visit);
  }
  std::vector<std::size_t> next(view.rows().levels());  // on each level, the next span
  std::vector<const OmCellText*> cells;
  for (std::uint64_t row = 0; row < view.rowCount(); ++row) {
    for (std::size_t level = 0; level < next.size(); ++level) {
      const auto& spans = view.rows().spans(level);
      if (next[level] < spans.size() && spans[next[level]].begin == row) {
        visit(spans[next[level]++].text());
      }
    }
    view.row(row, cells);
    for (const OmCellText* const cell : cells) visit(cell);
  }
  visit(captionOf(table));
}

}  // namespace

FootnoteMarks::FootnoteMarks(const Footnotes& footnotes) : places_(footnotes.size(), kNowhere) {}

FootnoteMarks::FootnoteMarks(const TableView& view, Marks marks)
    : FootnoteMarks(view.table().Footnotes()) {
  if (places_.empty()) return;
  visitTexts(view, [&](const OmCellText* text) { use(text); });
  complete(view.table().Footnotes(), {}, marks);
}

FootnoteMarks::FootnoteMarks(const OmPivotTable& table, Marks marks)
    : FootnoteMarks(table.Footnotes()) {
  use(&titleOf(table));
  use(captionOf(table));
  complete(table.Footnotes(), {}, marks);
}

FootnoteMarks::FootnoteMarks(const OmHeading& heading, const std::string& codePage, Marks marks)
    : FootnoteMarks(heading.Footnotes()) {
  use(&heading.Label());
  complete(heading.Footnotes(), codePage, marks);
}

// Notes the footnotes of a text that no text before it has.
void FootnoteMarks::use(const OmCellText* text) {
  if (text == nullptr) return;
  for (const short number : text->Footnotes()) {
    const auto which = static_cast<std::size_t>(number);
    if (which >= places_.size() || places_[which] != kNowhere) continue;
    places_[which] = notes_.size();
    notes_.push_back({which, {}, {}});
  }
}

// Gives the notes their texts and marks.
void FootnoteMarks::complete(const Footnotes& footnotes, const std::string& codePage, Marks marks) {
  const auto read = [&](const OmCellText* text) {
    return text != nullptr ? internal::toUtf8(std::string(*text), codePage) : std::string();
  };
  std::set<std::string> taken;
  for (Note& note : notes_) {
    const OmFootnote& footnote = footnotes[note.number];
    note.text = read(footnote.Text());
    note.mark = read(footnote.Marker());
    if (footnote.Marker() != nullptr) taken.insert(note.mark);
  }
  std::size_t count = 0;
  for (Note& note : notes_) {
    if (footnotes[note.number].Marker() != nullptr) continue;
    do {
      note.mark = defaultMark(marks, count++);
    } while (taken.contains(note.mark));
  }
}

std::vector<std::size_t> FootnoteMarks::notesOf(const OmCellText* text) const {
  std::vector<std::size_t> notes;
  internal::readFootnoteNumbers(text, places_.size(), notes);
  for (std::size_t& note : notes) note = places_[note];
  std::erase(notes, kNowhere);
  return notes;
}

std::string FootnoteMarks::marksOf(const OmCellText* text) const {
  std::string marks;
  for (const std::size_t note : notesOf(text)) {
    if (!marks.empty()) marks += ',';
    marks += notes_[note].mark;
  }
  return marks;
}

std::string FootnoteMarks::defaultMark(Marks marks, std::size_t number) {
  static constexpr std::array<const char*, 6> kSymbols = {"*", "†", "‡", "§", "‖", "¶"};
  std::string mark;
  switch (marks) {
    case Marks::LETTERS:
      // a to z, then aa to zz: digits in base 26 without a zero.
      for (++number; number != 0; number = (number - 1) / 26) {
        mark.insert(mark.begin(), static_cast<char>('a' + (number - 1) % 26));
      }
      break;
    case Marks::NUMBERS:
      mark = std::to_string(number + 1);
      break;
    case Marks::SYMBOLS:
      for (std::size_t i = 0; i <= number / kSymbols.size(); ++i) {
        mark += kSymbols[number % kSymbols.size()];
      }
      break;
  }
  return mark;
}

}  // namespace om::render
