#include "render/JsonWriter.h"

#include <cstddef>
#include <string>
#include <vector>

#include "output/OmHeading.h"
#include "output/OmProcedure.h"
#include "render/DocumentWalk.h"
#include "render/internal/FootnoteNumbers.h"
#include "render/internal/JsonTable.h"
#include "render/internal/Utf8.h"

namespace om::render {

namespace {

using internal::toUtf8;

class JsonDocument : public DocumentWalk {
 public:
  JsonDocument(const JsonOptions& options, internal::ByteSink& sink)
      : options_(options), json_(sink) {}

  void operator()(const OmOutputTree& document) {
    json_.beginObject();
    json_.member("format", "om-document");
    json_.member("version", 1);
    json_.key("parts");
    json_.beginArray();
    walk(document);
    json_.end();
    json_.end();
  }

 private:
  static const char* nameOf(Kind kind) {
    switch (kind) {
      case Kind::HEADING:
        return "heading";
      case Kind::PROCEDURE:
        return "procedure";
      case Kind::TABLE:
        return "table";
      case Kind::LOG:
        return "log";
      case Kind::TEXT:
        return "text";
      case Kind::PAGE_TITLE:
        return "pageTitle";
      case Kind::CHART:
        return "chart";
      case Kind::MODEL:
        return "model";
      case Kind::INTERACTIVE:
        return "interactive";
      case Kind::ANSWER_TREE:
        return "answerTree";
    }
    return "";
  }

  bool isDone() const override { return !json_.ok(); }

  void begin(Kind kind, std::string_view label) {
    json_.beginObject();
    json_.member("kind", nameOf(kind));
    json_.member("label", label);
  }

  void beginHeading(const Heading& heading, int) override {
    begin(heading.kind, heading.label);
    writeLabelFootnotes(heading.part);
    if (heading.procedure != nullptr) writeProcedure(*heading.procedure);
    json_.member("expanded", heading.part.Expanded());
    internal::writeJsonFootnotes(heading.part.Footnotes(), heading.codePage, json_);
    json_.key("parts");
    json_.beginArray();
  }

  void writeLabelFootnotes(const OmHeading& heading) {
    std::vector<std::size_t> numbers;
    internal::readFootnoteNumbers(&heading.Label(), heading.Footnotes().size(), numbers);
    if (!numbers.empty()) json_.member("labelFootnotes", numbers);
  }

  void writeProcedure(const OmProcedure& procedure) {
    const std::string& codePage = procedure.LocaleCodePage();
    json_.member("command", toUtf8(procedure.Command(), codePage));
    json_.member("translatedCommand", toUtf8(procedure.TransCommand(), codePage));
    json_.member("language", procedure.LanguageCode());
    json_.member("locale", procedure.LocaleName());
    json_.member("codePage", codePage);
  }

  void endHeading(int) override {
    json_.end();
    json_.end();
  }

  void table(OmPivotTable& table, int) override {
    internal::writeJsonTable(table, options_, json_);
  }

  void text(const Text& text, int) override {
    begin(text.kind, text.label);
    json_.key("lines");
    json_.beginArray();
    for (const std::string& line : linesOf(text)) json_.string(line);
    json_.end();
    json_.end();
  }

  void object(const Object& object, int) override {
    begin(object.kind, object.label);
    json_.member("bytes", object.bytes);
    if (!object.image.empty()) {
      json_.key("image");
      json_.beginObject();
      json_.member("type", object.imageType);
      json_.key("base64");
      json_.bytes(object.image);
      json_.end();
    }
    json_.end();
  }

  const JsonOptions& options_;
  internal::JsonEmitter json_;
};

}  // namespace

void writeJson(const OmOutputTree& document, std::ostream& out, const JsonOptions& options) {
  internal::ByteSink sink(out);
  JsonDocument(options, sink)(document);
  sink.flush();
}

}  // namespace om::render
