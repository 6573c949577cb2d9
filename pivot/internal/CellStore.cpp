#include "pivot/internal/CellStore.h"

#include <utility>

namespace om::internal {

CellStore::Place CellStore::Reach(const std::vector<int>& index) {
  void** link = &root_;
  std::size_t levels = index.size();
  for (; levels > 0 && *link != nullptr; --levels) {
    auto* const node = static_cast<PointerVector*>(*link);
    link = &node->reach(static_cast<std::size_t>(index[levels - 1]));
  }
  return Place(*this, levels > 0 ? addWay(index, levels, *link) : *link);
}

// Makes the nodes of the lowest levels and gives the element for the cell. They are linked to the
// store when all of them are there: a node that leads to no cell would end iterations.
void*& CellStore::addWay(const std::vector<int>& index, std::size_t levels, void*& link) {
  struct Way {
    ~Way() { destroy(top, levels); }
    void* top = nullptr;
    std::size_t levels = 0;
  } way;
  void** cell = nullptr;
  for (; way.levels < levels; ++way.levels) {
    std::unique_ptr<PointerVector> node(new (region_) PointerVector(region_));
    void*& element = node->reach(static_cast<std::size_t>(index[way.levels]));
    if (cell == nullptr) cell = &element;
    element = way.top;
    way.top = node.release();
  }
  link = std::exchange(way.top, nullptr);
  return *cell;
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
