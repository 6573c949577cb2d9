#include "tools/tabulate/Tally.h"

#include <algorithm>
#include <bit>
#include <stdexcept>

namespace om::tabulate {

namespace {

constexpr std::size_t kFirstSlots = 64;

// Appends without a chance to fail later: room is made first.
template <class Vector>
void makeRoom(Vector& vector, std::size_t more) {
  if (vector.capacity() - vector.size() < more) {
    vector.reserve(std::max(2 * vector.capacity(), vector.size() + more));
  }
}

}  // namespace

Tally::Tally(std::size_t width, const Content& content)
    : width_(width),
      content_(content),
      slots_(kFirstSlots),
      mask_(kFirstSlots - 1),
      shift_(64 - std::countr_zero(kFirstSlots)) {}

std::size_t Tally::find(const Code* codes) const {
  const std::uint64_t hash = hashOf(codes, width_);
  for (std::size_t at = hash >> shift_;; at = (at + 1) & mask_) {
    const Slot& slot = slots_[at];
    if (slot.cellPlusOne == 0) return size();
    const std::size_t cell = slot.cellPlusOne - 1;
    if (slot.check == static_cast<std::uint32_t>(hash) && matches(cell, codes)) return cell;
  }
}

std::size_t Tally::add(const Code* codes, std::uint64_t hash) {
  const std::size_t cell = size();
  if (cell >= UINT32_MAX - 1) throw std::length_error("more than 2^32 cells");
  makeRoom(keys_, width_);
  makeRoom(records_, 1);
  makeRoom(first_, 1);
  if (content_.weighted) makeRoom(weights_, 1);
  makeRoom(moments_, content_.measures);
  if (content_.values) makeRoom(values_, content_.measures);
  if (2 * cell >= slots_.size()) grow();

  keys_.insert(keys_.end(), codes, codes + width_);
  records_.push_back(0);
  first_.push_back(0);
  if (content_.weighted) weights_.emplace_back();
  moments_.resize(moments_.size() + content_.measures);
  if (content_.values) values_.resize(values_.size() + content_.measures);
  std::size_t at = hash >> shift_;
  while (slots_[at].cellPlusOne != 0) at = (at + 1) & mask_;
  slots_[at] = {static_cast<std::uint32_t>(hash), static_cast<std::uint32_t>(cell + 1)};
  return cell;
}

void Tally::grow() {
  std::vector<Slot> slots(2 * slots_.size());
  const std::size_t mask = slots.size() - 1;
  const int shift = 64 - std::countr_zero(slots.size());
  for (std::size_t cell = 0; cell < size(); ++cell) {
    const std::uint64_t hash = hashOf(key(cell).data(), width_);
    std::size_t at = hash >> shift;
    while (slots[at].cellPlusOne != 0) at = (at + 1) & mask;
    slots[at] = {static_cast<std::uint32_t>(hash), static_cast<std::uint32_t>(cell + 1)};
  }
  slots_.swap(slots);
  mask_ = mask;
  shift_ = shift;
}

void Tally::merge(std::size_t cell, const Tally& other, std::size_t otherCell) {
  const bool isFirst = records_[cell] == 0 || other.first_[otherCell] < first_[cell];
  if (isFirst) first_[cell] = other.first_[otherCell];
  records_[cell] += other.records_[otherCell];
  if (content_.weighted) weights_[cell].merge(other.weights_[otherCell]);
  for (std::size_t measure = 0; measure < content_.measures; ++measure) {
    const std::size_t at = cell * content_.measures + measure;
    const std::size_t from = otherCell * content_.measures + measure;
    moments_[at].merge(other.moments_[from]);
    if (content_.values) values_[at].merge(other.values_[from]);
  }
}

}  // namespace om::tabulate
