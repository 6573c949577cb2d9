// SharedRecord: what a part's record begins with when the copies of the part share it: how many
// parts there are, and the labels that more than one of them has shown.
//
// Ownership: the record ends with the last part that shares it, and takes the labels along.
// Threads: the count is a plain number: all parts that share a record belong to one thread.

#ifndef OM_OUTPUT_INTERNAL_SHAREDRECORD_H_
#define OM_OUTPUT_INTERNAL_SHAREDRECORD_H_

#include <cstddef>
#include <memory>
#include <vector>

#include "external/cells/OmCellText.h"

namespace om::internal {

class SharedRecord {
 public:
  // Shared by one part.
  SharedRecord() = default;
  SharedRecord(const SharedRecord&) = delete;
  SharedRecord& operator=(const SharedRecord&) = delete;

  void addPart() noexcept { ++parts_; }

  // Takes a label over. Throws std::bad_alloc; the label is then still the caller's.
  void keepLabel(OmCellText* label) { labels_.emplace_back(label); }

  // Counts one part less, and deletes the record with the last one.
  template <class Record>
  static void removePart(Record* record) noexcept {
    if (--record->parts_ == 0) delete record;
  }

 protected:
  ~SharedRecord() = default;

 private:
  std::size_t parts_ = 1;
  std::vector<std::unique_ptr<OmCellText>> labels_;
};

// The way for tests into what parts do not show.
struct PartRecords {
  template <class Part>
  static const auto& of(const Part& part) {
    return *part.record_;
  }
};

}  // namespace om::internal

#endif  // OM_OUTPUT_INTERNAL_SHAREDRECORD_H_
