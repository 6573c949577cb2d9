// What a table shows of a cell or a label: its plain text, its width, and its footnote marks in
// brackets: inside the text, or beside it where it is a number, which is aligned without them.

#ifndef OM_RENDER_INTERNAL_SHOWNTEXT_H_
#define OM_RENDER_INTERNAL_SHOWNTEXT_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "render/FootnoteMarks.h"
#include "render/internal/NumberText.h"

namespace om::render::internal {

struct ShownText {
  std::string_view text = {};
  std::size_t width = 0;  // of its widest line
  bool isNumber = false;  // then all of it is of ASCII
  std::size_t whole = 0;  // of a number: how many characters stand in front of the decimal mark
  std::string_view marks = {};  // of a number
  std::size_t marksWidth = 0;
};

// Calls visit(i) for each cell of a row. Cells lie far apart in memory, so each is asked for well
// before it is visited.
void visitRow(const std::vector<const OmCellText*>& cells, const auto& visit) {
  constexpr std::size_t kAhead = 8;
  for (std::size_t i = 0; i < cells.size(); ++i) {
#if defined(__GNUC__)
    if (i + kAhead < cells.size()) __builtin_prefetch(cells[i + kAhead]);
#endif
    visit(i);
  }
}

class TableReader {
 public:
  explicit TableReader(const FootnoteMarks& marks)
      : marks_(marks), hasMarks_(!marks.notes().empty()) {}

  // What is shown of a text, which may be null. It is good until the next call.
  const ShownText& cell(const OmCellText* text);
  // The same for a cell of which only the size counts: a number has no text then.
  const ShownText& size(const OmCellText* text);
  // The same for a text that is none of the body: numbers are texts like others.
  const ShownText& label(const OmCellText* text);

 private:
  void showMarks(const OmCellText& cell);
  void readText(const OmCellText& text);
  std::string_view marksOf(const OmCellText& text);

  const FootnoteMarks& marks_;
  const bool hasMarks_;
  ShownText shown_;
  NumberText number_;
  std::string string_;  // of a text that is no string cell
  std::string plain_;   // the plain form of it
  std::string marksRoom_;
  std::string together_;  // with its marks
};

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_SHOWNTEXT_H_
