// CategoryList: the groups and categories of a dimension in one row, groups before what is in them,
// with the way from a subscript to its categories.

#ifndef OM_RENDER_INTERNAL_CATEGORYLIST_H_
#define OM_RENDER_INTERNAL_CATEGORYLIST_H_

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>
#include <vector>

#include "dimensions/OmDimension.h"

namespace om::render::internal {

class CategoryList {
 public:
  struct Entry {
    const OmDimensionNode* node;
    std::size_t end;  // one behind the last entry below it
    // Of a cell index; negative for a group, and where no cell can have it.
    int subscript;
  };
  using Place = std::pair<int, std::size_t>;  // a subscript and the position of a category

  explicit CategoryList(const OmDimension& dimension) {
    std::vector<std::size_t> open;
    const auto closeTo = [&](std::size_t depth) {
      for (; open.size() > depth; open.pop_back()) entries_[open.back()].end = entries_.size();
    };
    OmDimension::Tree::Walk(dimension.Root(), [&](const OmDimension::ConstNode& node) {
      if (node.Depth() == 0) return true;
      closeTo(node.Depth() - 1);
      open.push_back(entries_.size());
      const int subscript = node->IsGroup() ? -1 : static_cast<int>(node->Subscript());
      if (subscript >= 0) places_.emplace_back(subscript, entries_.size());
      entries_.push_back({&*node, 0, subscript});
      return node->IsGroup();
    });
    closeTo(0);
    std::sort(places_.begin(), places_.end());
    for (std::size_t i = 0; i < places_.size(); ++i) {
      isNumbered_ = isNumbered_ && static_cast<std::size_t>(places_[i].first) == i;
    }
  }

  std::size_t size() const { return entries_.size(); }
  const Entry& operator[](std::size_t position) const { return entries_[position]; }
  auto begin() const { return entries_.begin(); }
  auto end() const { return entries_.end(); }

  // The categories with a subscript.
  std::span<const Place> find(int subscript) const {
    const auto number = static_cast<std::size_t>(subscript);
    if (isNumbered_ && number < places_.size()) return std::span(places_).subspan(number, 1);
    const auto begin = std::lower_bound(places_.begin(), places_.end(), Place(subscript, 0));
    const auto end = std::find_if(begin, places_.end(),
                                  [&](const Place& place) { return place.first != subscript; });
    return {begin, end};
  }

 private:
  std::vector<Entry> entries_;
  std::vector<Place> places_;  // by subscript
  bool isNumbered_ = true;     // each subscript from 0 on has one category, as is normal
};

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_CATEGORYLIST_H_
