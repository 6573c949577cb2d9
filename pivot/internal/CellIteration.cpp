#include "pivot/internal/CellIteration.h"

namespace om::internal {

CellIteration::CellIteration(const PointerVector* root, const std::vector<int>& sizes)
    : root_(root), index_(sizes.size()) {
  levels_.reserve(sizes.size());
  for (const int size : sizes) levels_.push_back({0, static_cast<std::uint64_t>(size), nullptr});
}

void CellIteration::First() {
  const void* element = root_;
  for (std::size_t i = levels_.size(); i-- > 0 && element != nullptr;) {
    const auto* const node = static_cast<const PointerVector*>(element);
    const std::size_t position = node->nextNonNull(0);
    if (position == node->size()) return;
    levels_[i].node = node;
    levels_[i].position = position;
    element = (*node)[position];
    if (i == 0) stand(position);
  }
}

void CellIteration::Complete() {
  if (root_ == nullptr) return;
  levels_.back().node = root_;
  find(levels_.size() - 1, 0);
}

const std::vector<int>& CellIteration::Index() {
  if (at != nullptr) levels_[0].position = static_cast<std::size_t>(at - leaf);
  for (std::size_t i = 0; i < levels_.size(); ++i) {
    index_[i] = static_cast<int>(levels_[i].position);
  }
  return index_;
}

// Looks for a cell from a position of a level on: up to the next level where a node has no more
// children, down where it has one.
void CellIteration::find(std::size_t level, std::size_t from) {
  at = nullptr;
  for (;;) {
    Level& present = levels_[level];
    const std::size_t position = present.node->nextNonNull(from);
    if (position == present.node->size()) {
      if (++level == levels_.size()) return;
      from = levels_[level].position + 1;
      continue;
    }
    present.position = position;
    if (level == 0) return stand(position);
    levels_[--level].node = static_cast<const PointerVector*>((*present.node)[position]);
    from = 0;
  }
}

void CellIteration::stand(std::size_t position) {
  const PointerVector& node = *levels_[0].node;
  leaf = node.begin();
  leafEnd = node.end();
  at = leaf + position;
}

}  // namespace om::internal
