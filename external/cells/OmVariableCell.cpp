#include "external/cells/OmVariableCell.h"

OmVariableCell::~OmVariableCell() = default;

OmVariableCell* OmVariableCell::Clone(OmMemoryRegion* region) const {
  return new (region) OmVariableCell(*this);
}

OmVariableCell::operator std::string() const { return label_.empty() ? name_ : label_; }

int OmVariableCell::Kind() const { return VARIABLE; }

void OmVariableCell::Accept(Visitor& visitor) { visitor.Visit(*this); }
