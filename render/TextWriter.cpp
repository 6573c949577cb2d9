#include "render/TextWriter.h"

#include <string>
#include <string_view>

#include "output/OmTextBlock.h"
#include "pivot/OmPivotTable.h"
#include "render/DocumentWalk.h"
#include "render/internal/DisplayWidth.h"
#include "render/internal/PlainText.h"
#include "render/internal/ShownText.h"
#include "render/internal/TextPage.h"
#include "render/internal/TextTable.h"

namespace om::render {

namespace {

using internal::TableReader;
using internal::TextPage;

constexpr std::size_t kTab = 8;

// Blanks up to the next multiple of kTab in the place of each tab.
std::string expandTabs(std::string_view text) {
  std::string expanded;
  std::string room;
  std::size_t width = 0;  // of the line so far
  for (std::size_t tab = text.find('\t'); tab != text.npos; tab = text.find('\t')) {
    const std::string_view before = internal::plainText(text.substr(0, tab), room);
    const std::size_t lineEnd = before.rfind('\n');
    if (lineEnd != before.npos) width = 0;
    width += internal::displayWidth(before.substr(lineEnd != before.npos ? lineEnd + 1 : 0));
    const std::size_t blanks = kTab - width % kTab;
    expanded.append(text.substr(0, tab)).append(blanks, ' ');
    width += blanks;
    text.remove_prefix(tab + 1);
  }
  return expanded.append(text);
}

// As in "[a,b]".
std::string inBrackets(std::string_view marks) {
  std::string room;
  std::string text = "[";
  text += internal::plainLine(marks, room);
  text += ']';
  return text;
}

// One paragraph each.
void writeNotes(TextPage& page, const FootnoteMarks& marks) {
  std::string room;
  for (const FootnoteMarks::Note& note : marks.notes()) {
    std::string line = inBrackets(note.mark);
    const std::size_t hang = internal::displayWidth(line) + 1;
    if (!note.text.empty()) line.append(" ").append(internal::plainText(note.text, room));
    page.paragraph(line, {.hang = hang});
  }
}

class TableWriter {
 public:
  TableWriter(TextPage& page, const DocumentTableOptions& options)
      : page_(page), options_(options) {}

  void write(OmPivotTable& table) {
    const TableOptions& options = options_.of(table);
    LayerWalk walk(table, options);
    if (walk.count() == 0) writeWithoutLayer(table, walk.noBody(), options.marks);
    while (page_.sink().ok() && walk.next()) writeLayer(walk);
  }

 private:
  void writeWithoutLayer(const OmPivotTable& table, std::string_view message, Marks defaultMarks) {
    const FootnoteMarks marks(table, defaultMarks);
    TableReader reader(marks);
    page_.beginBlock();
    writeText(reader, titleOf(table));
    page_.paragraph(message);
    writeUnder(reader, table, marks);
  }

  void writeLayer(const LayerWalk& walk) {
    const TableView& view = walk.view();
    TableReader reader(walk.marks());
    page_.beginBlock();
    writeText(reader, titleOf(view.table()));
    for (const TableView::LayerLabel& label : view.layerLabels()) writeLabel(reader, label);
    if (walk.noBody().empty()) {
      writeGrid(view, walk.marks());
    } else {
      page_.paragraph(walk.noBody());
    }
    writeUnder(reader, view.table(), walk.marks());
  }

  void writeUnder(TableReader& reader, const OmPivotTable& table, const FootnoteMarks& marks) {
    if (const OmCellText* const caption = captionOf(table)) writeText(reader, *caption);
    writeNotes(page_, marks);
  }

  void writeText(TableReader& reader, const OmCellText& text) {
    const std::string_view shown = reader.label(&text).text;
    if (!shown.empty()) page_.paragraph(shown);
  }

  // As in "Region: Europe > France".
  void writeLabel(TableReader& reader, const TableView::LayerLabel& label) {
    std::string line;
    const OmDimensionNode* before = nullptr;
    for (const OmDimensionNode* const node : label.path) {
      if (before != nullptr) line += before == label.dimension ? ": " : " > ";
      line += reader.label(node->Text()).text;
      before = node;
    }
    if (!line.empty()) page_.paragraph(line);
  }

  void writeGrid(const TableView& view, const FootnoteMarks& marks) {
    internal::TextTable table(view, marks, {page_.width(), page_.ascii()}, page_.sink());
    for (std::size_t i = 0; i < table.panels() && page_.sink().ok(); ++i) {
      if (i != 0) page_.emptyLine();
      if (table.panels() > 1) page_.paragraph(table.noteOf(i));
      table.draw(i);
    }
  }

  TextPage& page_;
  const DocumentTableOptions& options_;
};

class TextWriter : public DocumentWalk {
 public:
  TextWriter(TextPage& page, const TextOptions& options)
      : page_(page), defaultMarks_(options.tables.marks), tables_(page, options.tables) {}

 private:
  bool isDone() const override { return !page_.sink().ok(); }

  // The marks of a heading without a label stand alone.
  void beginHeading(const Heading& heading, int depth) override {
    const FootnoteMarks marks(heading.part, heading.codePage, defaultMarks_);
    std::string room;
    std::string label(internal::plainText(heading.label, room));
    if (!marks.notes().empty()) label += inBrackets(marks.marksOf(&heading.part.Label()));
    if (label.empty()) return;
    page_.beginBlock();
    const std::size_t width = page_.paragraph(label);
    page_.repeated(underline(depth), width);
    page_.emptyLine();
    writeNotes(page_, marks);
  }

  std::string_view underline(int depth) const {
    if (depth == 1) return page_.ascii() ? "=" : "═";
    if (depth == 2) return page_.ascii() ? "-" : "─";
    return page_.ascii() ? "." : "┈";
  }

  void table(OmPivotTable& table, int /*depth*/) override { tables_.write(table); }

  // Lines of a page title are centred, those of a log have a line beside them.
  void text(const Text& text, int /*depth*/) override {
    if (text.label.empty() && text.part.Size() == 0) return;
    page_.beginBlock();
    TextPage::Style style;
    if (text.kind == Kind::PAGE_TITLE) style.align = internal::Align::CENTRE;
    std::string room;
    if (!text.label.empty()) {
      page_.paragraph(internal::plainText(text.label, room));
      style.prefix = text.kind != Kind::LOG ? "  " : page_.ascii() ? "| " : "│ ";
      style.prefixWidth = 2;
    }
    for (const std::string& line : linesOf(text)) {
      page_.paragraph(internal::plainText(expandTabs(line), room), style);
    }
  }

  // As in "[Chart: Mass by species] image/png, 12.3 KiB".
  void object(const Object& object, int /*depth*/) override {
    std::string room;
    std::string line = std::string("[") + nameOf(object.kind);
    if (!object.label.empty()) line.append(": ").append(internal::plainLine(object.label, room));
    line += "] ";
    if (!object.imageType.empty()) line.append(object.imageType).append(", ");
    line += sizeOf(object);
    page_.beginBlock();
    page_.paragraph(line);
  }

  TextPage& page_;
  const Marks defaultMarks_;
  TableWriter tables_;
};

}  // namespace

void writeText(const OmOutputTree& document, std::ostream& out, const TextOptions& options) {
  TextPage page(out, options.width, options.ascii);
  TextWriter(page, options).walk(document);
  page.sink().flush();
}

void writeText(OmPivotTable& table, std::ostream& out, const TextOptions& options) {
  TextPage page(out, options.width, options.ascii);
  TableWriter(page, options.tables).write(table);
  page.sink().flush();
}

}  // namespace om::render
