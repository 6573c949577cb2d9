#include "render/JsonStatWriter.h"

#include "render/DocumentWalk.h"
#include "render/internal/ByteSink.h"
#include "render/internal/JsonStatDataset.h"

namespace om::render {

namespace {

class Collection : public DocumentWalk {
 public:
  Collection(const JsonStatOptions& options, internal::JsonEmitter& json)
      : options_(options), json_(json) {}

 private:
  void table(OmPivotTable& table, int) override {
    internal::writeJsonStatDataset(table, options_, json_);
  }
  bool isDone() const override { return !json_.ok(); }

  const JsonStatOptions& options_;
  internal::JsonEmitter& json_;
};

}  // namespace

void writeJsonStat(const OmOutputTree& document, std::ostream& out,
                   const JsonStatOptions& options) {
  internal::ByteSink sink(out);
  internal::JsonEmitter json(sink);
  json.beginObject();
  json.member("version", "2.0");
  json.member("class", "collection");
  json.member("label", "Output");
  json.key("link");
  json.beginObject();
  json.key("item");
  json.beginArray();
  Collection(options, json).walk(document);
  json.end();
  json.end();
  json.end();
  sink.flush();
}

void writeJsonStat(OmPivotTable& table, std::ostream& out, const JsonStatOptions& options) {
  internal::ByteSink sink(out);
  internal::JsonEmitter json(sink);
  internal::writeJsonStatDataset(table, options, json);
  sink.flush();
}

}  // namespace om::render
