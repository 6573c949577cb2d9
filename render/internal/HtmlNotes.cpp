#include "render/internal/HtmlNotes.h"

#include <cstddef>

namespace om::render::internal {

namespace {

constexpr std::size_t kShortMark = 3;  // bytes: one letter or two, or one symbol

}  // namespace

void HtmlNotes::writeMarksOf(const OmCellText* text, bool hanging) {
  const std::vector<std::size_t> notes = marks_.notesOf(text);
  if (notes.empty()) return;
  const bool isShort = notes.size() == 1 && marks_.notes()[notes[0]].mark.size() <= kShortMark;
  if (hanging && isShort) {
    out_.markup("<sup class=\"hang\">");
  } else {
    out_.markup("<sup>");
  }
  bool isFirst = true;
  for (const std::size_t note : notes) {
    if (!isFirst) out_.markup(", ");
    isFirst = false;
    const std::string& mark = marks_.notes()[note].mark;
    out_.markup("<a");
    if (!isMarked_[note]) out_.markup(" id=\"").ids(prefix_).markup("m").number(note).markup("\"");
    isMarked_[note] = true;
    out_.markup(" href=\"#").ids(prefix_).markup("n").number(note);
    out_.markup("\" role=\"doc-noteref\" aria-label=\"Footnote ").attribute(mark).markup("\">");
    out_.isolated(mark).markup("</a>");
  }
  out_.markup("</sup>");
}

void HtmlNotes::writeList() {
  if (marks_.notes().empty()) return;
  out_.markup("<ul class=\"notes\">\n");
  for (std::size_t i = 0; i < marks_.notes().size(); ++i) {
    const FootnoteMarks::Note& note = marks_.notes()[i];
    out_.markup("<li id=\"").ids(prefix_).markup("n").number(i).markup("\">");
    if (isMarked_[i]) {
      out_.markup("<a href=\"#").ids(prefix_).markup("m").number(i);
      out_.markup("\" role=\"doc-backlink\" aria-label=\"Back to footnote ").attribute(note.mark);
      out_.markup("\">").isolated(note.mark).markup("</a> ");
    } else {
      out_.markup("<span class=\"mark\">").isolated(note.mark).markup("</span> ");
    }
    out_.isolated(note.text).markup("</li>\n");
  }
  out_.markup("</ul>\n");
}

}  // namespace om::render::internal
