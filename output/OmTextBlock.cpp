#include "output/OmTextBlock.h"

#include <utility>

OmTextBlock::OmTextBlock(const OmCellText& label, const std::string& localeCodePage)
    : OmOutputPart(label), isLog_(std::string(label) == "Log"), localeCodePage_(localeCodePage) {}

// Copying and assigning copy what can fail first: once the label is shared, nothing may throw, or
// this block's destructor would delete the other's label.
OmTextBlock::OmTextBlock(const OmTextBlock& other)
    : OmTextBlock(other, other.textList_, other.localeCodePage_) {}

OmTextBlock::OmTextBlock(const OmTextBlock& other, std::list<std::string> textList,
                         std::string localeCodePage) noexcept
    : OmOutputPart(other),
      textList_(std::move(textList)),
      isLog_(other.isLog_),
      localeCodePage_(std::move(localeCodePage)) {}

OmTextBlock& OmTextBlock::operator=(const OmTextBlock& other) {
  if (this == &other) return *this;
  std::list<std::string> textList = other.textList_;
  std::string localeCodePage = other.localeCodePage_;
  OmOutputPart::operator=(other);
  textList_ = std::move(textList);
  isLog_ = other.isLog_;
  localeCodePage_ = std::move(localeCodePage);
  return *this;
}

OmTextBlock::~OmTextBlock() = default;

void OmTextBlock::Accept(Visitor& visitor) { visitor.Visit(*this); }
