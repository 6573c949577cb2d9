#include "render/HtmlWriter.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "pivot/OmPivotTable.h"
#include "render/DocumentWalk.h"
#include "render/internal/HtmlNotes.h"
#include "render/internal/HtmlOut.h"
#include "render/internal/HtmlScript.h"
#include "render/internal/HtmlStyle.h"
#include "render/internal/HtmlTable.h"
#include "render/internal/Sha256.h"

namespace om::render {

namespace {

using internal::HtmlOut;
using internal::isBlank;
using internal::Markup;

// Says what may act in the page: its own style sheet and script, images in the page itself, and
// nothing else.
void writePolicy(HtmlOut& out) {
  out.markup(
      "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; img-src data:; "
      "style-src 'sha256-");
  out.base64(internal::sha256(Markup(internal::kHtmlStyle).characters()));
  out.markup("'; script-src 'sha256-");
  out.base64(internal::sha256(Markup(internal::kHtmlScript).characters()));
  out.markup("'; base-uri 'none'; form-action 'none'\">\n");
}

void beginPage(HtmlOut& out, const HtmlOptions& options) {
  out.markup("<!DOCTYPE html>\n<html lang=\"").attribute(options.language).markup("\">\n<head>\n");
  out.markup("<meta charset=\"utf-8\">\n");
  writePolicy(out);
  out.markup("<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n");
  out.markup("<title>").attribute(options.title).markup("</title>\n");
  out.markup("<style>").markup(internal::kHtmlStyle).markup("</style>\n");
  out.markup("<script>").markup(internal::kHtmlScript).markup("</script>\n");
  out.markup("</head>\n");
}

void beginContent(HtmlOut& out, const HtmlOptions& options) {
  out.markup("<main id=\"content\">\n<h1>").isolated(options.title).markup("</h1>\n");
}

void endPage(HtmlOut& out) {
  out.markup("</main>\n</body>\n</html>\n");
  out.flush();
}

// Numbers the parts in the order of the document, the same in all walks, and names them.
class PartWalk : public DocumentWalk {
 protected:
  explicit PartWalk(HtmlOut& out) : out_(out) {}

  HtmlOut& out() { return out_; }
  // The number of parts so far.
  std::uint64_t parts() const { return parts_; }
  std::uint64_t nextPart() { return ++parts_; }

  // What a part is called: by its label, or, where that is blank, by what it is.
  static std::string nameOf(Kind kind, const std::string& label) {
    return isBlank(label) ? DocumentWalk::nameOf(kind) : label;
  }
  static std::string nameOf(const OmPivotTable& table) {
    return nameOf(Kind::TABLE, std::string(titleOf(table)));
  }

 private:
  bool isDone() const override { return out_.failed(); }

  HtmlOut& out_;
  std::uint64_t parts_ = 0;
};

// The links to all parts, as lists in each other.
class Outline : public PartWalk {
 public:
  explicit Outline(HtmlOut& out) : PartWalk(out) {}

  void write(const OmOutputTree& document) {
    walk(document);
    if (parts() == 0) return;
    out().markup("</ul>\n</details></nav>\n");
  }

 private:
  void beginHeading(const Heading& heading, int) override {
    beginItem();
    out().markup("<a class=\"heading\" href=\"#p").number(nextPart()).markup("\">");
    out().isolated(nameOf(heading.kind, heading.label)).markup("</a>");
    hasList_.push_back(false);
  }

  void endHeading(int) override {
    endList();
    hasList_.pop_back();
    out().markup("</li>\n");
  }

  void table(OmPivotTable& table, int) override { item(nameOf(table)); }

  // A page title is called by its first line.
  void text(const Text& text, int) override {
    std::string name = text.label;
    if (text.kind == Kind::PAGE_TITLE) {
      const std::vector<std::string> lines = linesOf(text);
      name = lines.empty() ? std::string() : lines.front();
    }
    item(nameOf(text.kind, name));
  }

  void object(const Object& object, int) override { item(nameOf(object.kind, object.label)); }

  void item(const std::string& name) {
    beginItem();
    out().markup("<a href=\"#p").number(nextPart()).markup("\">").isolated(name);
    out().markup("</a></li>\n");
  }

  void beginItem() {
    if (parts() == 0) {
      out().markup("<nav class=\"outline\" aria-label=\"Outline\"><details open>");
      out().markup("<summary>Outline</summary>");
    }
    if (!hasList_.back()) out().markup("\n<ul>\n");
    hasList_.back() = true;
    out().markup("<li>");
  }

  void endList() {
    if (hasList_.back()) out().markup("</ul>\n");
  }

  std::vector<bool> hasList_ = {false};  // for each open heading, the document's own included
};

// The parts themselves.
class Content : public PartWalk {
 public:
  Content(HtmlOut& out, const HtmlOptions& options) : PartWalk(out), options_(options) {}

  void write(const OmOutputTree& document) {
    walk(document);
    if (parts() == 0) out().markup("<p class=\"empty\">This document is empty.</p>\n");
  }

 private:
  // The heading of the page has level 1.
  static constexpr std::size_t kDeepestHeading = 6;

  void beginHeading(const Heading& heading, int) override {
    const std::string id = 'p' + std::to_string(nextPart());
    const FootnoteMarks marks(heading.part, heading.codePage, options_.tables.marks);
    internal::HtmlNotes notes(out(), marks, id);
    out().markup("<section id=\"").ids(id).markup("\">\n");
    ++openHeadings_;
    out().markup("<h").number(headingLevel()).markup(">");
    out().isolated(nameOf(heading.kind, heading.label));
    notes.writeMarks(&heading.part.Label(), false);
    out().markup("</h").number(headingLevel()).markup(">\n");
    notes.writeList();
  }

  void endHeading(int) override {
    --openHeadings_;
    out().markup("</section>\n");
  }

  void table(OmPivotTable& table, int) override {
    out().markup("<div class=\"part\" id=\"p").number(nextPart()).markup("\">\n");
    internal::writeHtmlTable(out(), table, ++tables_, nameOf(table), options_.tables.of(table));
    out().markup("</div>\n");
  }

  void text(const Text& text, int) override {
    out().markup("<div class=\"part ");
    if (text.kind == Kind::PAGE_TITLE) {
      out().markup("page-title words");
    } else if (text.kind == Kind::LOG) {
      out().markup("log");
    } else {
      out().markup("words");
    }
    out().markup("\" id=\"p").number(nextPart()).markup("\">\n");
    if (text.kind != Kind::PAGE_TITLE) writeLabel(text);
    if (text.kind == Kind::LOG) {
      writeLog(text);
    } else {
      writeParagraphs(text);
    }
    out().markup("</div>\n");
  }

  void object(const Object& object, int) override {
    const std::string name = nameOf(object.kind, object.label);
    const std::uint64_t part = nextPart();
    if (!object.image.empty() && !object.imageType.empty()) {
      out().markup("<figure class=\"part\" id=\"p").number(part).markup("\">\n<img src=\"data:");
      out().attribute(object.imageType).markup(";base64,").base64(object.image);
      out().markup("\" alt=\"").attribute(name).markup("\">\n<figcaption>");
      writeObjectName(object, name);
      out().markup("</figcaption>\n</figure>\n");
      return;
    }
    out().markup("<div class=\"part object\" id=\"p").number(part).markup("\">\n<p>");
    writeObjectName(object, name);
    out().markup(" <span class=\"size\">").text(sizeOf(object)).markup("</span></p>\n</div>\n");
  }

  void writeObjectName(const Object& object, const std::string& name) {
    const std::string_view kind = DocumentWalk::nameOf(object.kind);
    if (name != kind) out().markup("<span class=\"kind\">").text(kind).markup("</span> ");
    out().markup("<span>").isolated(name).markup("</span>");
  }

  void writeLabel(const Text& text) {
    const std::size_t level = std::min(openHeadings_ + 2, kDeepestHeading);
    out().markup("<h").number(level).markup(" class=\"label\">");
    out().isolated(nameOf(text.kind, text.label));
    out().markup("</h").number(level).markup(">\n");
  }

  void writeLog(const Text& text) {
    out().markup("<pre class=\"scroll\" role=\"group\" tabindex=\"0\" aria-label=\"");
    out().attribute(nameOf(text.kind, text.label));
    out().markup("\">\n");  // a parser drops this line end, and so none of the log's own
    for (const std::string& line : linesOf(text)) out().preformatted(line).markup("\n");
    out().markup("</pre>\n");
  }

  // Blank lines are between paragraphs; each line of a page title is one of its own.
  void writeParagraphs(const Text& text) {
    bool isOpen = false;
    for (const std::string& line : linesOf(text)) {
      const bool isBreak = isBlank(line);
      if (isOpen && (isBreak || text.kind == Kind::PAGE_TITLE)) {
        out().markup("</p>\n");
        isOpen = false;
      }
      if (isBreak) continue;
      if (isOpen) {
        out().markup("<br>\n");
      } else {
        out().markup("<p>");
      }
      isOpen = true;
      out().isolated(line);
    }
    if (isOpen) out().markup("</p>\n");
  }

  std::size_t headingLevel() const { return std::min(openHeadings_ + 1, kDeepestHeading); }

  const HtmlOptions& options_;
  std::size_t openHeadings_ = 0;
  std::uint64_t tables_ = 0;
};

}  // namespace

void writeHtml(const OmOutputTree& document, std::ostream& out, const HtmlOptions& options) {
  HtmlOut page(out);
  beginPage(page, options);
  page.markup(
      "<body class=\"outlined\">\n<a class=\"skip\" href=\"#content\">Skip to content</a>\n");
  Outline(page).write(document);
  beginContent(page, options);
  Content(page, options).write(document);
  endPage(page);
}

void writeHtml(OmPivotTable& table, std::ostream& out, const HtmlOptions& options) {
  HtmlOut page(out);
  beginPage(page, options);
  page.markup("<body>\n");
  beginContent(page, options);
  const std::string title(titleOf(table));
  page.markup("<div class=\"part\">\n");
  internal::writeHtmlTable(page, table, 1, isBlank(title) ? "Table" : title,
                           options.tables.of(table));
  page.markup("</div>\n");
  endPage(page);
}

}  // namespace om::render
