#include "external/cells/OmCellText.h"

#include <iostream>
#include <memory>
#include <utility>

#include "external/cells/OmMemoryRegion.h"
#include "external/cells/internal/TextOrder.h"

// A text that ends with its region may not be destroyed; what it has here is then freed by the
// region.
class OmCellText::Extras final : public OmMemoryRegion::Finalizer {
 public:
  explicit Extras(OmMemoryRegion* region) {
    if (region != nullptr) region->AtEnd(*this);
  }
  Extras(const Extras& other)
      : meta(other.meta ? std::make_unique<const OmCellMetaData>(*other.meta) : nullptr),
        footnotes(other.footnotes) {}
  ~Extras() override = default;

  std::unique_ptr<const OmCellMetaData> meta;
  std::vector<short> footnotes;

 private:
  void regionEnds() noexcept override { delete this; }
};

OmCellText::Visitor::~Visitor() = default;

void OmCellText::copyExtras(const OmCellText& other) {
  extrasOrRegion_ = reinterpret_cast<std::uintptr_t>(new Extras(*other.extras()));
}

OmCellText::~OmCellText() { delete extras(); }

OmCellText::Extras& OmCellText::neededExtras() {
  Extras* present = extras();
  if (present == nullptr) {
    present = new Extras(reinterpret_cast<OmMemoryRegion*>(extrasOrRegion_ & ~kRegionMark));
    extrasOrRegion_ = reinterpret_cast<std::uintptr_t>(present);
  }
  return *present;
}

void OmCellText::bind(OmMemoryRegion* region) noexcept {
  region = OmMemoryRegion::OrDefaultHeap(region);
  if (Extras* const present = extras()) {
    region->AtEnd(*present);
  } else {
    extrasOrRegion_ = marked(region);
  }
}

bool OmCellText::extrasEndWith(const OmMemoryRegion& region) const {
  const Extras* const present = extras();
  return present != nullptr && present->Region() == &region;
}

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

bool OmCellText::hasMeta() const {
  const Extras* const present = extras();
  return present != nullptr && present->meta != nullptr;
}

const OmCellMetaData& OmCellText::getMeta() const {
  static const OmCellMetaData none;
  return hasMeta() ? *extras()->meta : none;
}

void OmCellText::setMeta(const OmCellMetaData& meta) {
  auto copy = std::make_unique<const OmCellMetaData>(meta);
  neededExtras().meta = std::move(copy);
}

std::vector<short>& OmCellText::Footnotes() { return neededExtras().footnotes; }

const std::vector<short>& OmCellText::Footnotes() const {
  static const std::vector<short> none;
  const Extras* const present = extras();
  return present != nullptr ? present->footnotes : none;
}
