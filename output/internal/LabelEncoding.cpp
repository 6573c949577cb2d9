#include "output/internal/LabelEncoding.h"

#include <memory>

#include "external/cells/OmStringCell.h"
#include "external/platform/MultibyteConverter.h"
#include "output/OmOutputPart.h"

void om::internal::encodeLabel(OmOutputPart& part, const std::string& codePage) {
  if (codePage.empty()) return;
  const std::string utf8 = part.Label();
  std::string encoded;
  const std::unique_ptr<MultibyteConverter> converter(MultibyteConverter::create(codePage));
  const bool converted = converter->fromUtf8(utf8, encoded) == 0;
  // Marked as not UTF-8 also where the text stays as it is.
  part.Label(OmStringCell(converted ? encoded : utf8, nullptr, false));
}
