#include "external/cells/OmCellText.h"

#include <iostream>
#include <memory>
#include <utility>

#include "external/cells/OmMemoryRegion.h"
#include "external/cells/internal/TextOrder.h"

struct OmCellText::Extras {
  std::unique_ptr<const OmCellMetaData> meta;
  std::vector<short> footnotes;

  Extras() = default;
  Extras(const Extras& other)
      : meta(other.meta ? std::make_unique<const OmCellMetaData>(*other.meta) : nullptr),
        footnotes(other.footnotes) {}
};

OmCellText::Visitor::~Visitor() = default;

OmCellText::OmCellText(const OmCellText& other)
    : tracker_(other.tracker_),
      extras_(other.extras_ != nullptr ? new Extras(*other.extras_) : nullptr) {}

OmCellText::~OmCellText() { delete extras_; }

void* OmCellText::operator new(std::size_t size) {
  return OmMemoryRegion::DefaultHeap()->Allocate(size);
}

void* OmCellText::operator new(std::size_t size, OmMemoryRegion* region) {
  return OmMemoryRegion::OrDefaultHeap(region)->Allocate(size);
}

void OmCellText::operator delete(void* text) noexcept { OmMemoryRegion::Release(text); }

void OmCellText::operator delete(void* text, OmMemoryRegion*) noexcept {
  OmMemoryRegion::Release(text);
}

std::size_t OmCellText::Size() const { return std::string(*this).size(); }

short OmCellText::Compare(const OmCellText& other) const {
  return om::internal::compareTexts(*this, other);
}

void OmCellText::setTracker(icuTracker* tracker) { tracker_ = tracker; }

void OmCellText::Print(unsigned indent) const {
  for (unsigned i = 0; i < indent; ++i) std::cout << "  ";
  std::cout << std::string(*this);
}

bool OmCellText::hasMeta() const { return extras_ != nullptr && extras_->meta != nullptr; }

const OmCellMetaData& OmCellText::getMeta() const {
  static const OmCellMetaData none;
  return hasMeta() ? *extras_->meta : none;
}

void OmCellText::setMeta(const OmCellMetaData& meta) {
  auto copy = std::make_unique<const OmCellMetaData>(meta);
  if (extras_ == nullptr) extras_ = new Extras;
  extras_->meta = std::move(copy);
}

std::vector<short>& OmCellText::Footnotes() {
  if (extras_ == nullptr) extras_ = new Extras;
  return extras_->footnotes;
}

const std::vector<short>& OmCellText::Footnotes() const {
  static const std::vector<short> none;
  return extras_ != nullptr ? extras_->footnotes : none;
}
