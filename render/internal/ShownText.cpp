#include "render/internal/ShownText.h"

#include <typeinfo>

#include "external/cells/OmStringCell.h"
#include "render/internal/CellText.h"
#include "render/internal/DisplayWidth.h"
#include "render/internal/PlainText.h"
#include "render/internal/Wrapping.h"

namespace om::render::internal {

namespace {

// The number that is all that a cell says, or null.
const OmNumber* wholeNumberOf(const OmCellText* text) {
  if (text == nullptr) return nullptr;
  if (typeid(*text) == typeid(OmNumber)) return static_cast<const OmNumber*>(text);
  // A class that is derived from a number may have a string form of its own.
  const OmNumber* const number = numberOf(text);
  const bool isPlain = number != nullptr && typeid(*number) == typeid(OmNumber);
  return isPlain && isAllOf(*text, *number) ? number : nullptr;
}

}  // namespace

const ShownText& TableReader::cell(const OmCellText* text) {
  const OmNumber* const number = wholeNumberOf(text);
  if (number == nullptr) return label(text);
  number_.assign(*number);
  shown_ = {number_.view(), number_.view().size(), true, number_.whole(), {}, 0};
  if (hasMarks_) showMarks(*text);
  return shown_;
}

const ShownText& TableReader::size(const OmCellText* text) {
  const OmNumber* const number = wholeNumberOf(text);
  if (number == nullptr) return label(text);
  const NumberText::Size size = NumberText::sizeOf(*number);
  shown_ = {{}, size.whole + size.rest, true, size.whole, {}, 0};
  if (hasMarks_) showMarks(*text);
  return shown_;
}

const ShownText& TableReader::label(const OmCellText* text) {
  shown_ = {};
  if (text != nullptr) readText(*text);
  return shown_;
}

void TableReader::showMarks(const OmCellText& cell) {
  if (cell.Footnotes().empty()) return;
  shown_.marks = marksOf(cell);
  shown_.marksWidth = displayWidth(shown_.marks);
}

void TableReader::readText(const OmCellText& text) {
  std::string_view characters;
  if (typeid(text) == typeid(OmStringCell)) {
    characters = static_cast<const OmStringCell&>(text).View();
  } else {
    string_ = std::string(text);
    characters = string_;
  }
  shown_.text = plainText(characters, plain_);
  if (hasMarks_ && !text.Footnotes().empty()) {
    together_ = shown_.text;
    together_ += marksOf(text);
    shown_.text = together_;
  }
  shown_.width = widthOfLines(shown_.text);
}

// Empty when no footnote of the text is among those of the table.
std::string_view TableReader::marksOf(const OmCellText& text) {
  const std::string marks = marks_.marksOf(&text);
  if (marks.empty()) return {};
  std::string room;
  marksRoom_ = '[';
  marksRoom_ += plainLine(marks, room);
  marksRoom_ += ']';
  return marksRoom_;
}

}  // namespace om::render::internal
