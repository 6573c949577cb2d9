#include "output/OmHeading.h"

OmHeading::OmHeading(const OmCellText& label)
    : OmOutputPart(label), footnotes_(new OmVector<OmFootnote>(nullptr, 0)) {}

OmHeading::OmHeading(const OmHeading&) = default;

OmHeading& OmHeading::operator=(const OmHeading&) = default;

OmHeading::~OmHeading() { delete footnotes_; }

void OmHeading::Accept(Visitor& visitor) { visitor.Visit(*this); }
