#include "render/internal/JsonStatDataset.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "render/internal/CellText.h"
#include "render/internal/FootnoteNumbers.h"
#include "render/internal/JsonStatPlaces.h"

namespace om::render::internal {

namespace {

using Layout = JsonEmitter::Layout;

std::string id(char kind, std::size_t number) { return kind + std::to_string(number); }
std::string categoryId(std::size_t position) { return id('c', position); }
std::string dimensionId(std::size_t number) { return id('d', number); }

class Dataset {
 public:
  Dataset(const OmPivotTable& table, const JsonStatOptions& options, JsonEmitter& json)
      : table_(table), options_(options), json_(json), places_(table) {
    places_.visitStored([&](const OmCellText& text, std::uint64_t places) {
      const OmNumber* const number = numberOf(&text);
      if (number != nullptr) numbers_ += places;
      hasStatus_ = hasStatus_ || !footnotesOf(&text).empty();
      hasText_ = hasText_ || (number != &text && saysMore(text));
    });
  }

  void operator()() {
    json_.beginObject();
    json_.member("version", "2.0");
    json_.member("class", "dataset");
    json_.member("label", read_(&titleOf(table_)));
    writeNotes();
    writeShape();
    writeRoles();
    json_.key("dimension");
    json_.beginObject();
    for (std::size_t d = 0; d < places_.dimensions().size(); ++d) writeDimension(d);
    json_.end();
    writeValues();
    if (hasStatus_) writeStatus();
    if (!table_.Footnotes().empty() || hasText_) writeExtension();
    json_.end();
  }

 private:
  // The table's footnotes of a text, each once.
  const std::vector<std::size_t>& footnotesOf(const OmCellText* text) {
    readFootnoteNumbers(text, table_.Footnotes().size(), footnotes_);
    return footnotes_;
  }

  std::string code(std::size_t footnote) const {
    return FootnoteMarks::defaultMark(options_.marks, footnote);
  }

  static bool saysMore(const OmCellText& text) {
    const OmNumber* const number = numberOf(&text);
    return number == nullptr || !isAllOf(text, *number);
  }

  void writeFootnoteTexts(const OmCellText* text) {
    for (const std::size_t which : footnotesOf(text)) {
      json_.string(read_(table_.Footnotes()[which].Text()));
    }
  }

  void writeNotes() {
    const OmCellText* const caption = captionOf(table_);
    const OmCellText* const title = &titleOf(table_);
    if (caption == nullptr && footnotesOf(title).empty()) return;
    json_.key("note");
    json_.beginArray();
    if (caption != nullptr) json_.string(read_(caption));
    writeFootnoteTexts(title);
    writeFootnoteTexts(caption);
    json_.end();
  }

  void writeShape() {
    json_.key("id");
    json_.beginArray(Layout::LINE);
    for (std::size_t d = 0; d < places_.dimensions().size(); ++d) json_.string(dimensionId(d));
    json_.end();
    json_.key("size");
    json_.beginArray(Layout::LINE);
    for (const CategoryList& categories : places_.dimensions()) json_.number(categories.size());
    json_.end();
  }

  std::vector<std::size_t> withNames(const std::vector<std::string>& names) {
    std::vector<std::size_t> found;
    for (std::size_t d = 0; d < places_.dimensions().size(); ++d) {
      const std::string name(read_(nameOf(d)));
      if (std::find(names.begin(), names.end(), name) != names.end()) found.push_back(d);
    }
    return found;
  }

  const OmCellText* nameOf(std::size_t dimension) const {
    return table_.Dimension(static_cast<int>(dimension)).Root()->Text();
  }

  void writeRoles() {
    const std::vector<std::size_t> time = withNames(options_.time);
    const std::vector<std::size_t> geo = withNames(options_.geo);
    const std::vector<std::size_t> metric = withNames(options_.metric);
    if (time.empty() && geo.empty() && metric.empty()) return;
    json_.key("role");
    json_.beginObject();
    writeRole("time", time);
    writeRole("geo", geo);
    writeRole("metric", metric);
    json_.end();
  }

  void writeRole(const char* role, const std::vector<std::size_t>& dimensions) {
    if (dimensions.empty()) return;
    json_.key(role);
    json_.beginArray(Layout::LINE);
    for (const std::size_t dimension : dimensions) json_.string(dimensionId(dimension));
    json_.end();
  }

  void writeDimension(std::size_t number) {
    const CategoryList& categories = places_.dimensions()[number];
    json_.key(dimensionId(number));
    json_.beginObject();
    json_.member("label", read_(nameOf(number)));
    if (!footnotesOf(nameOf(number)).empty()) {
      json_.key("note");
      json_.beginArray();
      writeFootnoteTexts(nameOf(number));
      json_.end();
    }
    json_.key("category");
    json_.beginObject();
    json_.key("index");
    json_.beginArray(Layout::LINE);
    for (std::size_t i = 0; i < categories.size(); ++i) json_.string(categoryId(i));
    json_.end();
    json_.key("label");
    json_.beginObject();
    for (std::size_t i = 0; i < categories.size(); ++i) {
      json_.member(categoryId(i), read_(categories[i].node->Text()));
    }
    json_.end();
    writeChildren(categories);
    writeCategoryNotes(categories);
    json_.end();
    json_.end();
  }

  void writeChildren(const CategoryList& categories) {
    const auto isParent = [&](std::size_t i) { return categories[i].end != i + 1; };
    bool began = false;
    for (std::size_t i = 0; i < categories.size(); ++i) {
      if (!isParent(i)) continue;
      if (!began) {
        json_.key("child");
        json_.beginObject();
        began = true;
      }
      json_.key(categoryId(i));
      json_.beginArray(Layout::LINE);
      for (std::size_t k = i + 1; k != categories[i].end; k = categories[k].end) {
        json_.string(categoryId(k));
      }
      json_.end();
    }
    if (began) json_.end();
  }

  void writeCategoryNotes(const CategoryList& categories) {
    bool began = false;
    for (std::size_t i = 0; i < categories.size(); ++i) {
      const OmCellText* const label = categories[i].node->Text();
      if (footnotesOf(label).empty()) continue;
      if (!began) {
        json_.key("note");
        json_.beginObject();
        began = true;
      }
      json_.key(categoryId(i));
      json_.beginArray();
      writeFootnoteTexts(label);
      json_.end();
    }
    if (began) json_.end();
  }

  void writeValues() {
    json_.key("value");
    if (numbers_ < places_.count() - places_.count() / 2) {
      json_.beginObject(Layout::LINE);
      places_.visitCells([&](std::uint64_t place, const OmCellText& text) {
        const OmNumber* const number = numberOf(&text);
        if (number != nullptr) json_.member(std::to_string(place), number->Value());
        return json_.ok();
      });
    } else {
      json_.beginArray(Layout::LINE);
      places_.visitPlaces([&](const OmCellText* text) {
        const OmNumber* const number = numberOf(text);
        number != nullptr ? json_.number(number->Value()) : json_.null();
        return json_.ok();
      });
    }
    json_.end();
  }

  void writeStatus() {
    json_.key("status");
    json_.beginObject();
    places_.visitCells([&](std::uint64_t place, const OmCellText& text) {
      std::string codes;
      for (const std::size_t which : footnotesOf(&text)) {
        if (!codes.empty()) codes += ',';
        codes += code(which);
      }
      if (!codes.empty()) json_.member(std::to_string(place), codes);
      return json_.ok();
    });
    json_.end();
  }

  void writeExtension() {
    json_.key("extension");
    json_.beginObject();
    if (!table_.Footnotes().empty()) {
      json_.key("status");
      json_.beginObject();
      json_.key("label");
      json_.beginObject();
      for (std::size_t which = 0; which < table_.Footnotes().size(); ++which) {
        json_.member(code(which), read_(table_.Footnotes()[which].Text()));
      }
      json_.end();
      json_.end();
    }
    if (hasText_) {
      json_.key("text");
      json_.beginObject();
      places_.visitCells([&](std::uint64_t place, const OmCellText& text) {
        if (saysMore(text)) json_.member(std::to_string(place), read_(&text));
        return json_.ok();
      });
      json_.end();
    }
    json_.end();
  }

  const OmPivotTable& table_;
  const JsonStatOptions& options_;
  JsonEmitter& json_;
  const JsonStatPlaces places_;
  TextReader read_;
  std::vector<std::size_t> footnotes_;  // of the last text
  std::uint64_t numbers_ = 0;
  bool hasStatus_ = false;
  bool hasText_ = false;
};

}  // namespace

void writeJsonStatDataset(const OmPivotTable& table, const JsonStatOptions& options,
                          JsonEmitter& json) {
  Dataset(table, options, json)();
}

}  // namespace om::render::internal
