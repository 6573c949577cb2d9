#include "external/cells/OmStringCell.h"

#include <cstring>
#include <new>

#include "external/cells/OmMemoryRegion.h"
#include "external/cells/internal/TextOrder.h"

OmStringCell::OmStringCell(const std::string& text, OmMemoryRegion* region, bool utf8)
    : size_(text.size() & kSizeBits), utf8_(utf8), elsewhere_(text.size() > kOwnRoom) {
  keep(text, region);
}

OmStringCell::OmStringCell(const OmStringCell& other)
    : OmCellText(other), size_(other.size_), utf8_(other.utf8_), elsewhere_(size_ > kOwnRoom) {
  keep(other.View(), nullptr);
}

OmStringCell::OmStringCell(Following, std::string_view text, bool utf8) noexcept
    : size_(text.size() & kSizeBits), utf8_(utf8), elsewhere_(0) {
  text.copy(room_, text.size());
}

OmStringCell::OmStringCell(Following, const OmStringCell& other)
    : OmCellText(other), size_(other.size_), utf8_(other.utf8_), elsewhere_(0) {
  if (size_ <= kOwnRoom) {
    std::memcpy(room_, other.room_, kOwnRoom);
  } else {
    other.View().copy(room_, other.size_);
  }
}

OmStringCell::~OmStringCell() {
  if (elsewhere_ != 0) OmMemoryRegion::Release(const_cast<char*>(characters()));
}

void OmStringCell::keep(std::string_view text, OmMemoryRegion* region) {
  char* place = room_;
  if (elsewhere_ != 0) {
    place = static_cast<char*>(OmMemoryRegion::OrDefaultHeap(region)->Allocate(text.size()));
    ::new (static_cast<void*>(room_)) char*(place);
  }
  text.copy(place, text.size());
}

void* OmStringCell::operator new(std::size_t size, OmMemoryRegion* region, std::size_t characters) {
  const std::size_t more = characters > kOwnRoom ? characters - kOwnRoom : 0;
  return OmMemoryRegion::OrDefaultHeap(region)->Allocate(size + more);
}

void OmStringCell::operator delete(void* cell, OmMemoryRegion*, std::size_t) noexcept {
  OmMemoryRegion::Release(cell);
}

OmStringCell* OmStringCell::Create(std::string_view text, OmMemoryRegion* region, bool utf8) {
  return endingWith(region, new (region, text.size()) OmStringCell(Following{}, text, utf8));
}

OmStringCell* OmStringCell::Clone(OmMemoryRegion* region) const {
  return endingWith(region, new (region, size_) OmStringCell(Following{}, *this));
}

OmStringCell::operator std::string() const { return std::string(View()); }

short OmStringCell::Compare(const OmCellText& other) const {
  if (other.Kind() == STRING) {
    return om::internal::compareBytes(View(), static_cast<const OmStringCell&>(other).View());
  }
  return OmCellText::Compare(other);
}

int OmStringCell::Kind() const { return STRING; }

void OmStringCell::Accept(Visitor& visitor) { visitor.Visit(*this); }
