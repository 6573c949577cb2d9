#include "render/internal/CellText.h"

#include <cmath>

#include "external/cells/OmComposite.h"
#include "external/cells/OmMessageCell.h"
#include "output/OmUtility.h"

namespace om::render::internal {

namespace {

// What a message consists of when it is nothing but its first argument.
const OmCellText* onlyArgument(const OmMessageCell& message) {
  if (message.Arguments().empty() || std::string(message.Pattern()) != "{0}") return nullptr;
  return message.Arguments().front().get();
}

// What answers a kind's code is of that kind.
const OmNumber* anyNumberOf(const OmCellText* text) {
  while (text != nullptr) {
    switch (text->Kind()) {
      case OmCellText::NUMBER:
        return static_cast<const OmNumber*>(text);
      case OmCellText::COMPOSITE:
        return OmUtility::GetFirstNumber(static_cast<const OmComposite&>(*text));
      case OmCellText::MESSAGE:
        text = onlyArgument(static_cast<const OmMessageCell&>(*text));
        break;
      default:
        return nullptr;
    }
  }
  return nullptr;
}

}  // namespace

const OmNumber* numberOf(const OmCellText* text) {
  const OmNumber* const number = anyNumberOf(text);
  return number != nullptr && std::isfinite(number->Value()) ? number : nullptr;
}

bool isAllOf(const OmCellText& text, const OmNumber& number) {
  return &text == &number || std::string(text) == std::string(number);
}

}  // namespace om::render::internal
