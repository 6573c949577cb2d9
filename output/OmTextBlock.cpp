#include "output/OmTextBlock.h"

OmTextBlock::OmTextBlock(const OmCellText& label, const std::string& localeCodePage)
    : OmOutputPart(label), isLog_(std::string(label) == "Log"), localeCodePage_(localeCodePage) {}

OmTextBlock::OmTextBlock(const OmTextBlock&) = default;

OmTextBlock& OmTextBlock::operator=(const OmTextBlock&) = default;

OmTextBlock::~OmTextBlock() = default;

void OmTextBlock::Accept(Visitor& visitor) { visitor.Visit(*this); }
