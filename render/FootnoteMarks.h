// FootnoteMarks: which footnotes the shown layer of a table uses, in what order, and by which
// marks.
//
// Footnotes come in the order in which a reader meets them: title, layer labels, corner, column
// labels row by row, then for each row its labels and its cells, then the caption. A footnote keeps
// the marker it has; the others get default marks in that order, past those that a footnote has of
// its own.
//
// Ownership, lifetime: refers to the texts of the table, as its view does.
// Cost: built in one pass over all texts of the view, or at once when the table has no footnotes.
// Errors: std::bad_alloc.

#ifndef OM_RENDER_FOOTNOTEMARKS_H_
#define OM_RENDER_FOOTNOTEMARKS_H_

#include <cstddef>
#include <string>
#include <vector>

#include "render/Export.h"
#include "render/TableView.h"

namespace om::render {

enum class Marks {
  LETTERS,  // a, b, ... z, aa, ab, ...
  NUMBERS,  // 1, 2, 3, ...
  SYMBOLS,  // *, †, ‡, §, ‖, ¶, then doubled: **, ††, ...
};

class OM_RENDER_API FootnoteMarks {
 public:
  struct Note {
    std::size_t number;  // its position in the table's list of footnotes
    std::string mark;
    const OmCellText* text;  // null in a footnote without a text
  };

  FootnoteMarks(const TableView& view, Marks marks);

  // The footnotes used, in the order of their first appearance.
  const std::vector<Note>& notes() const { return notes_; }

  // The positions in notes() of the footnotes of one text of the view, in the text's order and each
  // once; empty for null, and for a text that the view does not show.
  std::vector<std::size_t> notesOf(const OmCellText* text) const;
  // Their marks, separated by commas.
  std::string marksOf(const OmCellText* text) const;

  // The default mark with a number that counts from 0.
  static std::string defaultMark(Marks marks, std::size_t number);

 private:
  std::vector<Note> notes_;
  std::vector<std::size_t>
      places_;  // for each footnote of the table its position in notes_, or npos
};

}  // namespace om::render

#endif  // OM_RENDER_FOOTNOTEMARKS_H_
