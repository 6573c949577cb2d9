#include "output/OmPageTitle.h"

#include "external/cells/OmStringCell.h"

OmPageTitle::OmPageTitle(const std::string& localeCodePage)
    : OmTextBlock(OmStringCell("", nullptr, false), localeCodePage) {}

OmPageTitle::OmPageTitle(const OmPageTitle&) = default;

OmPageTitle& OmPageTitle::operator=(const OmPageTitle&) = default;

OmPageTitle::~OmPageTitle() = default;

void OmPageTitle::Accept(Visitor& visitor) { visitor.Visit(*this); }
