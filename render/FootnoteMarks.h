// FootnoteMarks: which footnotes the shown layer of a table uses, or the label of a heading, in
// what order, and by which marks.
//
// Footnotes come in the order in which a reader meets them: title, layer labels, corner, column
// labels row by row, then for each row its labels and its cells, then the caption. A footnote keeps
// the marker it has; the others get default marks in that order, past those that a footnote has of
// its own.
//
// Ownership, lifetime: refers to nothing; marks and notes are its own, in UTF-8.
// Cost: built in one pass over all texts of the view, or at once when there are no footnotes.
// Errors: std::bad_alloc.

#ifndef OM_RENDER_FOOTNOTEMARKS_H_
#define OM_RENDER_FOOTNOTEMARKS_H_

#include <cstddef>
#include <string>
#include <vector>

#include "backend/tables/OmFootnote.h"
#include "backend/tables/OmVector.h"
#include "output/OmHeading.h"
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
    std::size_t number;  // its position in the list of footnotes
    std::string mark;
    std::string text;  // empty in a footnote without a text
  };

  FootnoteMarks(const TableView& view, Marks marks);
  // Of a table that shows no layer, but its title and its caption.
  FootnoteMarks(const OmPivotTable& table, Marks marks);
  // Of the label of a heading, whose footnotes are read in the code page where they are not UTF-8.
  FootnoteMarks(const OmHeading& heading, const std::string& codePage, Marks marks);

  // The footnotes used, in the order of their first appearance.
  const std::vector<Note>& notes() const { return notes_; }

  // The positions in notes() of the footnotes of one text, in the text's order and each once; empty
  // for null, and for a text that is not shown.
  std::vector<std::size_t> notesOf(const OmCellText* text) const;
  // Their marks, separated by commas.
  std::string marksOf(const OmCellText* text) const;

  // The default mark with a number that counts from 0.
  static std::string defaultMark(Marks marks, std::size_t number);

 private:
  using Footnotes = OmVector<OmFootnote>;

  explicit FootnoteMarks(const Footnotes& footnotes);
  void use(const OmCellText* text);
  void complete(const Footnotes& footnotes, const std::string& codePage, Marks marks);

  std::vector<Note> notes_;
  std::vector<std::size_t> places_;  // for each footnote its position in notes_, or none
};

}  // namespace om::render

#endif  // OM_RENDER_FOOTNOTEMARKS_H_
