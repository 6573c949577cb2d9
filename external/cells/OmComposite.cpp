#include "external/cells/OmComposite.h"

#include <stdexcept>

OmComposite::OmComposite(const OmComposite& other, OmMemoryRegion* region)
    : OmCellText(other), region_(region) {
  components_.reserve(other.components_.size());
  for (const Component& component : other.components_) Append(*component.cell, component.depth);
}

OmComposite::~OmComposite() = default;

void OmComposite::Append(const OmCellText& cell, std::size_t depth) {
  const std::size_t deepest = components_.empty() ? 0 : components_.back().depth + 1;
  if (depth > deepest) throw std::out_of_range("OmComposite::Append() -- depth > deepest");
  components_.push_back({std::unique_ptr<OmCellText>(cell.Clone(region_)), depth});
}

OmComposite* OmComposite::Clone(OmMemoryRegion* region) const {
  return new (region) OmComposite(*this, region);
}

OmComposite::operator std::string() const {
  std::string text;
  std::size_t depth = 0;
  for (const Component& component : components_) {
    if (component.depth > depth) {
      text += " (";
    } else {
      text.append(depth - component.depth, ')');
      if (&component != components_.data()) text += ", ";
    }
    text += std::string(*component.cell);
    depth = component.depth;
  }
  text.append(depth, ')');
  return text;
}

int OmComposite::Kind() const { return COMPOSITE; }

void OmComposite::Accept(Visitor& visitor) { visitor.Visit(*this); }
