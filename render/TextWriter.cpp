#include "render/TextWriter.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

#include "output/OmHeading.h"
#include "output/OmTextBlock.h"
#include "pivot/OmPivotTable.h"
#include "render/DocumentWalk.h"
#include "render/internal/DisplayWidth.h"
#include "render/internal/PlainText.h"
#include "render/internal/ShownText.h"
#include "render/internal/TextPage.h"
#include "render/internal/TextTable.h"
#include "render/internal/Utf8.h"

namespace om::render {

namespace {

using internal::TableReader;
using internal::TextPage;

constexpr std::size_t kTab = 8;

// As in "312 bytes" or "4.5 MiB".
std::string textOfSize(std::uint64_t bytes) {
  if (bytes < 1024) return std::to_string(bytes) + (bytes == 1 ? " byte" : " bytes");
  static constexpr std::array<const char*, 6> kUnits = {"KiB", "MiB", "GiB", "TiB", "PiB", "EiB"};
  std::size_t unit = 0;
  auto size = static_cast<double>(bytes) / 1024;
  // What would be shown as 1024.0 is one of the next unit.
  for (; size >= 1023.95 && unit + 1 < kUnits.size(); ++unit) size /= 1024;
  std::array<char, 32> text;
  std::snprintf(text.data(), text.size(), "%.1f %s", size, kUnits[unit]);
  return text.data();
}

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

class TableWriter {
 public:
  TableWriter(TextPage& page, const DocumentTableOptions& options)
      : page_(page), options_(options) {}

  void write(OmPivotTable& table) {
    const TableOptions& options = options_.of(table);
    LayerWalk walk(table, options);
    if (walk.count() == 0) {
      page_.beginBlock();
      std::string room;
      page_.paragraph(internal::plainText(std::string(titleOf(table)), room));
      page_.paragraph(options.layers == Layers::ONE ? "(no such layer)" : kNoCells);
    }
    while (page_.sink().ok() && walk.next()) writeLayer(walk.view(), walk.marks());
  }

 private:
  static constexpr std::string_view kNoCells = "(no cells)";

  void writeLayer(const TableView& view, const FootnoteMarks& marks) {
    TableReader reader(marks);
    page_.beginBlock();
    writeText(reader, titleOf(view.table()));
    for (const TableView::LayerLabel& label : view.layerLabels()) writeLabel(reader, label);
    if (view.rowCount() == 0 || view.columnCount() == 0) {
      page_.paragraph(kNoCells);
    } else {
      writeGrid(view, marks);
    }
    writeNotes(marks);
    const OmCellText* const caption = view.table().Caption();
    if (caption != nullptr && view.table().showCaption()) writeText(reader, *caption);
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

  void writeNotes(const FootnoteMarks& marks) {
    std::string room;
    for (const FootnoteMarks::Note& note : marks.notes()) {
      std::string line = "[";
      line += internal::plainLine(note.mark, room);
      line += ']';
      const std::size_t hang = internal::displayWidth(line) + 1;
      if (note.text != nullptr) {
        line.append(" ").append(internal::plainText(std::string(*note.text), room));
      }
      page_.paragraph(line, {.hang = hang});
    }
  }

  TextPage& page_;
  const DocumentTableOptions& options_;
};

class TextWriter : public DocumentWalk {
 public:
  TextWriter(TextPage& page, const TextOptions& options)
      : page_(page), tables_(page, options.tables) {}

 private:
  void beginHeading(Kind /*kind*/, OmHeading& heading, int depth) override {
    std::string room;
    const std::string label(heading.Label());
    if (label.empty() || !page_.sink().ok()) return;
    page_.beginBlock();
    const std::size_t width = page_.paragraph(internal::plainText(label, room));
    page_.repeated(underline(depth), width);
    page_.emptyLine();
  }

  std::string_view underline(int depth) const {
    if (depth == 1) return page_.ascii() ? "=" : "═";
    if (depth == 2) return page_.ascii() ? "-" : "─";
    return page_.ascii() ? "." : "┈";
  }

  void endHeading(int /*depth*/) override {}

  void table(OmPivotTable& table, int /*depth*/) override {
    if (page_.sink().ok()) tables_.write(table);
  }

  // Lines of a page title are centred, those of a log have a line beside them.
  void text(Kind kind, const OmTextBlock& block, int /*depth*/) override {
    if (!page_.sink().ok()) return;
    const std::string label = internal::toUtf8(std::string(block.Label()), block.LocaleCodePage());
    if (label.empty() && block.Size() == 0) return;
    page_.beginBlock();
    TextPage::Style style;
    if (kind == Kind::PAGE_TITLE) style.align = internal::Align::CENTRE;
    std::string room;
    if (!label.empty()) {
      page_.paragraph(internal::plainText(label, room));
      style.prefix = kind != Kind::LOG ? "  " : page_.ascii() ? "| " : "│ ";
      style.prefixWidth = 2;
    }
    for (const std::string& line : linesOf(block)) {
      page_.paragraph(internal::plainText(expandTabs(line), room), style);
    }
  }

  // As in "[Chart: Mass by species] image/png, 12.3 KiB".
  void object(const Object& object, int /*depth*/) override {
    if (!page_.sink().ok()) return;
    std::string room;
    std::string line = std::string("[") + nameOf(object.kind);
    if (!object.label.empty()) line.append(": ").append(internal::plainLine(object.label, room));
    line += "] ";
    if (!object.imageType.empty()) line.append(object.imageType).append(", ");
    line += textOfSize(object.bytes);
    page_.beginBlock();
    page_.paragraph(line);
  }

  TextPage& page_;
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
