#include "pivot/internal/CellStore.h"

namespace om::internal {

CellStore::Place CellStore::Reach(const std::vector<int>& index) {
  // Takes back what was added when the way cannot be completed: an iteration ends at a node that
  // leads to no cell.
  struct Added {
    ~Added() {
      if (first == nullptr) return;
      destroy(*first, depth);
      *first = nullptr;
    }
    void** first = nullptr;  // the link to the highest of the new nodes
    std::size_t depth = 0;
  } added;

  void** link = &root_;
  for (std::size_t i = index.size(); i-- > 0;) {
    if (*link == nullptr) {
      *link = new (region_) PointerVector(region_);
      if (added.first == nullptr) {
        added.first = link;
        added.depth = i + 1;
      }
    }
    link = &static_cast<PointerVector*>(*link)->reach(static_cast<std::size_t>(index[i]));
  }
  added.first = nullptr;
  return Place(*this, *link);
}

void CellStore::Erase(const std::vector<int>& index) noexcept {
  auto* leaf = static_cast<PointerVector*>(root_);
  for (std::size_t i = index.size(); i-- > 0;) {
    const auto position = static_cast<std::size_t>(index[i]);
    if (leaf == nullptr || position >= leaf->size()) return;
    if (i > 0) leaf = static_cast<PointerVector*>((*leaf)[position]);
  }
  if (leaf == nullptr || index.empty()) return;
  void*& element = (*leaf)[static_cast<std::size_t>(index.front())];
  delete static_cast<OmCellText*>(element);
  element = nullptr;

  for (bool removed = true; removed;) {
    removed = false;
    auto* node = static_cast<PointerVector*>(root_);
    for (std::size_t i = index.size(); node != nullptr && i-- > 1;) {
      void*& link = (*node)[static_cast<std::size_t>(index[i])];
      auto* const child = static_cast<PointerVector*>(link);
      if (child != nullptr && child->allNull()) {
        delete child;
        link = nullptr;
        removed = true;
      }
      node = removed ? nullptr : child;
    }
  }
}

void CellStore::AddLevel() {
  if (root_ == nullptr) return;
  std::unique_ptr<PointerVector> above(new (region_) PointerVector(region_));
  above->push_back(root_);
  root_ = above.release();
}

void CellStore::Destroy(std::size_t depth) noexcept {
  if (!cellsEndWithRegion_) destroy(root_, depth);
  root_ = nullptr;
}

void CellStore::destroy(void* element, std::size_t depth) noexcept {
  if (element == nullptr) return;
  if (depth == 0) {
    delete static_cast<OmCellText*>(element);
    return;
  }
  auto* const node = static_cast<PointerVector*>(element);
  for (std::size_t i = 0; i < node->size(); ++i) destroy((*node)[i], depth - 1);
  delete node;
}

}  // namespace om::internal
