#include "external/cells/OmDateCell.h"

#include <array>
#include <cstdio>

OmDateCell::~OmDateCell() = default;

OmDateCell* OmDateCell::Clone(OmMemoryRegion* region) const {
  return endingWith(region, new (region) OmDateCell(*this));
}

OmDateCell::operator std::string() const {
  std::array<char, 96> text;  // six 32-bit numbers, five separators
  // Years beyond four digits have a sign.
  const char* const format =
      when_.year < 0 || when_.year > 9999 ? "%+05d-%02u-%02u" : "%04d-%02u-%02u";
  std::snprintf(text.data(), text.size(), format, when_.year, when_.month, when_.day);
  std::string result(text.data());
  if (showsTime_) {
    std::snprintf(text.data(), text.size(), " %02u:%02u:%02u", when_.hour, when_.minute,
                  when_.second);
    result += text.data();
  }
  return result;
}

int OmDateCell::Kind() const { return DATE; }

void OmDateCell::Accept(Visitor& visitor) { visitor.Visit(*this); }
