#include "pivot/internal/CellIteration.h"

namespace om::internal {

CellIteration::CellIteration(const PointerVector* root, const std::vector<int>& sizes)
    : root_(root), index_(sizes.size()) {
  levels_.reserve(sizes.size());
  for (const int size : sizes) levels_.push_back({0, static_cast<std::uint64_t>(size), nullptr});
}

void CellIteration::First() {
  const void* element = root_;
  for (std::size_t i = levels_.size(); i-- > 0;) {
    if (element == nullptr) return;
    const auto* const node = static_cast<const PointerVector*>(element);
    const std::size_t position = node->nextNonNull(0);
    if (position == node->size()) return;
    levels_[i].node = node;
    levels_[i].position = position;
    index_[i] = static_cast<int>(position);
    element = (*node)[position];
  }
  cell_ = static_cast<OmCellText*>(const_cast<void*>(element));
}

void CellIteration::Complete() {
  if (root_ == nullptr) return;
  levels_.back().node = root_;
  find(levels_.size() - 1, 0);
}

void CellIteration::Next() {
  if (cell_ != nullptr) find(0, levels_[0].position + 1);
}

// Looks for a cell from a position of a level on: up to the next level where a node has no more
// children, down where it has one.
void CellIteration::find(std::size_t level, std::size_t from) {
  for (;;) {
    Level& at = levels_[level];
    const std::size_t position = at.node->nextNonNull(from);
    if (position == at.node->size()) {
      if (++level == levels_.size()) break;
      from = levels_[level].position + 1;
      continue;
    }
    at.position = position;
    index_[level] = static_cast<int>(position);
    void* const element = (*at.node)[position];
    if (level == 0) {
      cell_ = static_cast<OmCellText*>(element);
      return;
    }
    levels_[--level].node = static_cast<const PointerVector*>(element);
    from = 0;
  }
  cell_ = nullptr;
}

}  // namespace om::internal
