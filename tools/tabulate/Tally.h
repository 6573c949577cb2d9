// Tally: how many records, and which sums of their numbers, fall into each combination of codes.
//
//   slots   | hash, cell | ... |              open addressing, at most half full
//   keys    | code code code | code code ...  the combination of cell 0, of cell 1, ...
//   records | 17 | 4 | ...                    and so on, an array for each kind of content
//
// Memory follows the combinations that occur. Counts of records are exact; sums of weights are
// compensated.
// Errors: std::bad_alloc, and std::length_error beyond 2^32 - 2 cells.

#ifndef OM_TOOLS_TABULATE_TALLY_H_
#define OM_TOOLS_TABULATE_TALLY_H_

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <vector>

#include "tools/tabulate/Accumulator.h"
#include "tools/tabulate/Hash.h"

namespace om::tabulate {

class Tally {
 public:
  using Code = std::uint32_t;

  struct Content {
    bool weighted = false;
    std::size_t measures = 0;
    bool values = false;  // keep what medians take
  };

  // For combinations of `width` codes.
  Tally(std::size_t width, const Content& content);

  std::size_t width() const { return width_; }
  const Content& content() const { return content_; }
  // The number of cells.
  std::size_t size() const { return records_.size(); }

  // The cell of a combination, which is added when it is new. REQUIRES: width() codes.
  std::size_t cellOf(const Code* codes) {
    const std::uint64_t hash = hashOf(codes, width_);
    for (std::size_t at = hash >> shift_;; at = (at + 1) & mask_) {
      const Slot& slot = slots_[at];
      if (slot.cellPlusOne == 0) return add(codes, hash);
      const std::size_t cell = slot.cellPlusOne - 1;
      if (slot.check == static_cast<std::uint32_t>(hash) && matches(cell, codes)) return cell;
    }
  }

  // The cell of a combination, or size() when there is none.
  std::size_t find(const Code* codes) const;

  // Adds one record. Its number is kept when it is the first one of the cell.
  void addRecord(std::size_t cell, std::uint64_t record, double weight) {
    if (records_[cell]++ == 0) first_[cell] = record;
    if (content_.weighted) weights_[cell].add(weight);
  }
  // Adds a number of one measure.
  void addValue(std::size_t cell, std::size_t measure, double value, double weight) {
    const std::size_t at = cell * content_.measures + measure;
    moments_[at].add(value, weight);
    if (content_.values) values_[at].add(value, weight);
  }
  // Adds what a cell of another tally holds. REQUIRES: the other one has all the content of this
  // one.
  void merge(std::size_t cell, const Tally& other, std::size_t otherCell);

  std::span<const Code> key(std::size_t cell) const {
    return {keys_.data() + cell * width_, width_};
  }
  std::uint64_t records(std::size_t cell) const { return records_[cell]; }
  // The number of the first record.
  std::uint64_t first(std::size_t cell) const { return first_[cell]; }
  // The sum of the weights; the number of records when there are none.
  double count(std::size_t cell) const {
    return content_.weighted ? weights_[cell].value() : static_cast<double>(records_[cell]);
  }
  const Moments& moments(std::size_t cell, std::size_t measure) const {
    return moments_[cell * content_.measures + measure];
  }
  // REQUIRES: content().values
  const ValueWeights& values(std::size_t cell, std::size_t measure) const {
    return values_[cell * content_.measures + measure];
  }

 private:
  struct Slot {
    std::uint32_t check = 0;  // the lower half of the hash; the upper bits choose the slot
    std::uint32_t cellPlusOne = 0;
  };

  bool matches(std::size_t cell, const Code* codes) const {
    const Code* const own = keys_.data() + cell * width_;
    for (std::size_t i = 0; i < width_; ++i) {
      if (own[i] != codes[i]) return false;
    }
    return true;
  }
  std::size_t add(const Code* codes, std::uint64_t hash);
  void grow();

  std::size_t width_;
  Content content_;
  std::vector<Slot> slots_;
  std::size_t mask_;
  int shift_;
  std::vector<Code> keys_;
  std::vector<std::uint64_t> records_;
  std::vector<std::uint64_t> first_;
  std::vector<CompensatedSum> weights_;
  std::vector<Moments> moments_;
  std::vector<ValueWeights> values_;
};

}  // namespace om::tabulate

#endif  // OM_TOOLS_TABULATE_TALLY_H_
