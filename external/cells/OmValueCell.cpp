#include "external/cells/OmValueCell.h"

OmValueCell::~OmValueCell() = default;

OmValueCell* OmValueCell::Clone(OmMemoryRegion* region) const {
  return new (region) OmValueCell(*this);
}

OmValueCell::operator std::string() const { return label_.empty() ? value_ : label_; }

int OmValueCell::Kind() const { return VALUE; }

void OmValueCell::Accept(Visitor& visitor) { visitor.Visit(*this); }
