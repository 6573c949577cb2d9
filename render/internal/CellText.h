// What a cell says: its characters, and the number in it.

#ifndef OM_RENDER_INTERNAL_CELLTEXT_H_
#define OM_RENDER_INTERNAL_CELLTEXT_H_

#include <string>
#include <string_view>

#include "external/cells/OmCellText.h"
#include "external/cells/OmNumber.h"
#include "external/cells/OmStringCell.h"
#include "render/internal/NumberText.h"

namespace om::render::internal {

// The number of a cell, for all writers: that of a number, the first one of a composite, and that
// of a message which says nothing else. Null when there is none, or when it is not finite: then it
// is one to no other program. The cell owns it. Null for null.
const OmNumber* numberOf(const OmCellText* text);

// Whether the number is all that the cell says, so that it can stand for the text.
// REQUIRES: `number` is numberOf(&text).
bool isAllOf(const OmCellText& text, const OmNumber& number);

// Reads string forms without a new string for each.
class TextReader {
 public:
  // The bytes as the text has them, valid until the next call or the end of the text; empty for
  // null.
  std::string_view operator()(const OmCellText* text) {
    if (text == nullptr) return {};
    if (text->Kind() == OmCellText::STRING) {
      return static_cast<const OmStringCell*>(text)->View();
    }
    if (text->Kind() == OmCellText::NUMBER) {
      number_.assign(*static_cast<const OmNumber*>(text));
      return number_.view();
    }
    read_ = std::string(*text);
    return read_;
  }

 private:
  NumberText number_;
  std::string read_;
};

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_CELLTEXT_H_
