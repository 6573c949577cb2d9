#include "tools/tabulate/Dictionary.h"

#include <bit>
#include <stdexcept>

namespace om::tabulate {

namespace {
constexpr std::size_t kFirstSlots = 16;
}  // namespace

Dictionary::Dictionary()
    : ends_{0, 0}, slots_(kFirstSlots), mask_(kFirstSlots - 1), shift_(64 - 4) {}

Dictionary::Code Dictionary::add(std::string_view label, std::uint64_t hash) {
  if (size() == UINT32_MAX) throw std::length_error("more than 2^32 labels in one column");
  if (2 * size() >= slots_.size()) grow();
  ends_.reserve(ends_.size() == ends_.capacity() ? 2 * ends_.size() : 0);
  characters_.append(label);
  ends_.push_back(characters_.size());
  const Code code = static_cast<Code>(size() - 1);
  std::size_t at = hash >> shift_;
  while (slots_[at].code != kMissing) at = (at + 1) & mask_;
  slots_[at] = {static_cast<std::uint32_t>(hash), code};
  return code;
}

void Dictionary::grow() {
  std::vector<Slot> slots(2 * slots_.size());
  const std::size_t mask = slots.size() - 1;
  const int shift = 64 - std::countr_zero(slots.size());
  for (Code code = kMissing + 1; code < size(); ++code) {
    const std::uint64_t hash = hashOf(label(code));
    std::size_t at = hash >> shift;
    while (slots[at].code != kMissing) at = (at + 1) & mask;
    slots[at] = {static_cast<std::uint32_t>(hash), code};
  }
  slots_.swap(slots);
  mask_ = mask;
  shift_ = shift;
}

}  // namespace om::tabulate
