// Dictionary: the distinct labels of one column, numbered from 0 in the order in which they came.
//
//   slots   | hash, code | hash, code | ... |     open addressing, at most half full
//   labels  | offset of code 0 | of code 1 | ... | -> characters, one behind the other
//
// Code 0 is always the empty label, which stands for a missing value.
// Memory follows the distinct labels. Finding a label that is there allocates nothing.

#ifndef OM_TOOLS_TABULATE_DICTIONARY_H_
#define OM_TOOLS_TABULATE_DICTIONARY_H_

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "tools/tabulate/Hash.h"

namespace om::tabulate {

class Dictionary {
 public:
  using Code = std::uint32_t;
  static constexpr Code kMissing = 0;

  Dictionary();

  // The code of the label, which is added when it is new. Throws std::length_error beyond 2^32 - 1
  // labels; std::bad_alloc, and the dictionary is then as before.
  Code intern(std::string_view label) {
    if (label.empty()) return kMissing;
    const std::uint64_t hash = hashOf(label);
    for (std::size_t at = hash >> shift_;; at = (at + 1) & mask_) {
      const Slot& slot = slots_[at];
      if (slot.code == kMissing) return add(label, hash);
      if (slot.check == static_cast<std::uint32_t>(hash) && this->label(slot.code) == label) {
        return slot.code;
      }
    }
  }

  // The label of a code, valid until a label is added. REQUIRES: code < size().
  std::string_view label(Code code) const {
    return {characters_.data() + ends_[code], ends_[code + 1] - ends_[code]};
  }
  // How many labels there are, the empty one included.
  std::size_t size() const { return ends_.size() - 1; }

 private:
  struct Slot {
    std::uint32_t check = 0;  // the lower half of the hash; the upper bits choose the slot
    Code code = kMissing;     // kMissing: the slot is free
  };

  Code add(std::string_view label, std::uint64_t hash);
  void grow();

  std::string characters_;
  std::vector<std::size_t> ends_;  // of the label before each code, then of the last one
  std::vector<Slot> slots_;
  std::size_t mask_;
  int shift_;
};

}  // namespace om::tabulate

#endif  // OM_TOOLS_TABULATE_DICTIONARY_H_
