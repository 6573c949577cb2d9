#include "render/DocumentWalk.h"

#include <array>
#include <cstddef>
#include <cstdio>

#include "output/OmAnswerTree.h"
#include "output/OmChart.h"
#include "output/OmHeading.h"
#include "output/OmInteractive.h"
#include "output/OmModel.h"
#include "output/OmPageTitle.h"
#include "output/OmProcedure.h"
#include "output/OmTextBlock.h"
#include "pivot/OmPivotTable.h"
#include "render/internal/Utf8.h"

namespace om::render {

namespace {

std::uint64_t bytesIn(std::span<const std::string> files) {
  std::uint64_t bytes = 0;
  for (const std::string& file : files) bytes += file.size();
  return bytes;
}

// By the first bytes, as viewers of images do.
std::string_view typeOfImage(std::string_view image) {
  if (image.starts_with("\x89PNG\r\n\x1A\n")) return "image/png";
  if (image.starts_with("\xFF\xD8\xFF")) return "image/jpeg";
  if (image.starts_with("GIF87a") || image.starts_with("GIF89a")) return "image/gif";
  if (image.starts_with("RIFF") && image.substr(0, 12).ends_with("WEBP")) return "image/webp";
  if (image.starts_with("BM")) return "image/bmp";
  if (image.starts_with("<svg")) return "image/svg+xml";
  const bool isXml = image.starts_with("<?xml");
  if (isXml && image.substr(0, 1024).find("<svg") != image.npos) return "image/svg+xml";
  return {};
}

std::string labelOf(const OmOutputPart& part, const std::string& codePage) {
  return internal::toUtf8(std::string(part.Label()), codePage);
}

}  // namespace

DocumentWalk::~DocumentWalk() = default;

void DocumentWalk::walk(const OmOutputTree& document) { Walk(document); }

const char* DocumentWalk::nameOf(Kind kind) {
  switch (kind) {
    case Kind::HEADING:
      return "Heading";
    case Kind::PROCEDURE:
      return "Procedure";
    case Kind::TABLE:
      return "Table";
    case Kind::LOG:
      return "Log";
    case Kind::TEXT:
      return "Text";
    case Kind::PAGE_TITLE:
      return "Page title";
    case Kind::CHART:
      return "Chart";
    case Kind::MODEL:
      return "Model";
    case Kind::INTERACTIVE:
      return "Interactive output";
    case Kind::ANSWER_TREE:
      return "Answer tree";
  }
  return "";
}

std::vector<std::string> DocumentWalk::linesOf(const Text& text) {
  std::vector<std::string> lines;
  for (const std::string& line : text.part.TextList()) {
    lines.push_back(internal::toUtf8(line, text.part.LocaleCodePage()));
  }
  return lines;
}

std::string DocumentWalk::sizeOf(const Object& object) {
  if (object.bytes < 1024) {
    return std::to_string(object.bytes) + (object.bytes == 1 ? " byte" : " bytes");
  }
  static constexpr std::array<const char*, 6> kUnits = {"KiB", "MiB", "GiB", "TiB", "PiB", "EiB"};
  std::size_t unit = 0;
  auto size = static_cast<double>(object.bytes) / 1024;
  // What would be shown as 1024.0 is one of the next unit.
  for (; size >= 1023.95 && unit + 1 < kUnits.size(); ++unit) size /= 1024;
  std::array<char, 32> text;
  std::snprintf(text.data(), text.size(), "%.1f %s", size, kUnits[unit]);
  return text.data();
}

void DocumentWalk::beginHeading(const Heading&, int) {}
void DocumentWalk::endHeading(int) {}
void DocumentWalk::table(OmPivotTable&, int) {}
void DocumentWalk::text(const Text&, int) {}
void DocumentWalk::object(const Object&, int) {}
bool DocumentWalk::isDone() const { return false; }

void DocumentWalk::Enter(OmOutputPart* part, int level) {
  if (isDone()) return Stop();
  depth_ = level;
  if (part == nullptr) return;
  if (!part->Visible()) {
    SkipSubtree();
  } else if (level != 0) {
    part->Accept(*this);
  }
}

void DocumentWalk::Leave(OmOutputPart* part, int level) {
  if (level == 0 || part == nullptr || !part->Visible()) return;
  if (dynamic_cast<OmHeading*>(part) != nullptr) endHeading(level);
}

void DocumentWalk::tellText(Kind kind, const OmTextBlock& part) {
  text({kind, labelOf(part, part.LocaleCodePage()), part}, depth_);
}

void DocumentWalk::tellObject(Kind kind, const OmOutputPart& part, const std::string& codePage,
                              std::uint64_t bytes, std::string_view image) {
  object({kind, labelOf(part, codePage), bytes, image, typeOfImage(image)}, depth_);
}

void DocumentWalk::Visit(OmInteractive& part) {
  tellObject(Kind::INTERACTIVE, part, part.LocaleCodePage(),
             part.viewInteractiveJSON().size() + bytesIn(part.viewGeoJSONContent()));
}

void DocumentWalk::Visit(OmModel& part) {
  tellObject(Kind::MODEL, part, {},
             part.viewPMML().size() + part.viewBinaryDataStream().size() +
                 part.viewPMMLContainer().size() + part.viewStatXMLContainer().size());
}

void DocumentWalk::Visit(OmAnswerTree& part) {
  tellObject(Kind::ANSWER_TREE, part, {},
             part.viewPath().size() + part.viewCompressedXml().size() +
                 part.viewUncompressedXml().size() + part.viewUncompressedDisplayXML().size());
}

void DocumentWalk::Visit(OmChart& part) {
  const std::string_view image = part.viewImageData();
  tellObject(Kind::CHART, part, part.LocaleCodePage(),
             part.viewXmlDescription().size() + part.viewXmlData().size() + image.size() +
                 part.viewViZJSONData().size() + part.viewVizJSONTemplate().size() +
                 part.viewMapInfoBuffer().size() + bytesIn(part.viewCSVFiles()) +
                 bytesIn(part.viewGeoJSONContent()),
             image);
}

void DocumentWalk::Visit(OmPageTitle& part) { tellText(Kind::PAGE_TITLE, part); }

void DocumentWalk::Visit(OmTextBlock& part) {
  tellText(part.IsLog() ? Kind::LOG : Kind::TEXT, part);
}

void DocumentWalk::Visit(OmHeading& part) {
  beginHeading({Kind::HEADING, labelOf(part, {}), {}, part, nullptr}, depth_);
}

void DocumentWalk::Visit(OmProcedure& part) {
  const std::string& codePage = part.LocaleCodePage();
  beginHeading({Kind::PROCEDURE, labelOf(part, codePage), codePage, part, &part}, depth_);
}

void DocumentWalk::Visit(OmPivotTable& part) {
  if (part.Show()) table(part, depth_);
}

}  // namespace om::render
