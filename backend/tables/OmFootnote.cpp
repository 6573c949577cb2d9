#include "backend/tables/OmFootnote.h"

#include <memory>
#include <utility>

#include "external/cells/OmCellText.h"

namespace {

using OwnedText = std::unique_ptr<OmCellText>;

OwnedText cloneOf(const OmCellText* text, OmMemoryRegion* region) {
  return OwnedText(text != nullptr ? text->Clone(region) : nullptr);
}

}  // namespace

OmFootnote::OmFootnote(const OmCellText* text, const OmCellText* marker, OmMemoryRegion* region)
    : region_(OmMemoryRegion::OrDefaultHeap(region)) {
  OwnedText newText = cloneOf(text, region_);
  marker_ = cloneOf(marker, region_).release();
  text_ = newText.release();
}

OmFootnote::OmFootnote(const OmFootnote& other)
    : OmFootnote(other.text_, other.marker_, other.region_) {
  count_ = other.count_;
}

OmFootnote& OmFootnote::operator=(const OmFootnote& other) {
  OmFootnote copy(other);
  std::swap(region_, copy.region_);
  std::swap(text_, copy.text_);
  std::swap(marker_, copy.marker_);
  count_ = copy.count_;
  return *this;
}

OmFootnote::~OmFootnote() {
  delete text_;
  delete marker_;
}

void OmFootnote::Text(const OmCellText& text) { delete std::exchange(text_, text.Clone(region_)); }

void OmFootnote::Marker(const OmCellText* marker) {
  delete std::exchange(marker_, cloneOf(marker, region_).release());
}
