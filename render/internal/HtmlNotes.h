// HtmlNotes: the footnotes of one layer of a table, or of a heading, as marks in its texts and as
// the list under it. Each mark leads to its note, and each note back to the first of its marks.
//
// The ids are made from the prefix of the layer or heading, "n" for notes and "m" for marks, and
// the position of the note in the list: t1l0n2, t1l0m2.

#ifndef OM_RENDER_INTERNAL_HTMLNOTES_H_
#define OM_RENDER_INTERNAL_HTMLNOTES_H_

#include <string>
#include <vector>

#include "external/cells/OmCellText.h"
#include "render/FootnoteMarks.h"
#include "render/internal/HtmlOut.h"

namespace om::render::internal {

class HtmlNotes {
 public:
  HtmlNotes(HtmlOut& out, const FootnoteMarks& marks, const std::string& prefix)
      : out_(out), marks_(marks), prefix_(prefix), isMarked_(marks.notes().size()) {}

  // The marks of a text. With `hanging`, they take no room, as long as they are short: they stand
  // in the margin, so that numbers above each other stay aligned.
  void writeMarks(const OmCellText* text, bool hanging) {
    if (!isMarked_.empty()) writeMarksOf(text, hanging);
  }

  bool hasMarks(const OmCellText* text) const {
    return !isMarked_.empty() && !marks_.notesOf(text).empty();
  }

  void writeList();

 private:
  void writeMarksOf(const OmCellText* text, bool hanging);

  HtmlOut& out_;
  const FootnoteMarks& marks_;
  const std::string& prefix_;
  std::vector<bool> isMarked_;  // which notes have had a mark
};

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_HTMLNOTES_H_
