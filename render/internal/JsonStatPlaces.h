// JsonStatPlaces: the places of a dataset of JSON-stat, one for each combination of groups and
// categories of a table: row-major, the last dimension changing fastest.
//
// Lifetime: it must not outlive the table.

#ifndef OM_RENDER_INTERNAL_JSONSTATPLACES_H_
#define OM_RENDER_INTERNAL_JSONSTATPLACES_H_

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <vector>

#include "pivot/OmPivotTable.h"
#include "render/internal/CategoryList.h"

namespace om::render::internal {

class JsonStatPlaces {
 public:
  explicit JsonStatPlaces(const OmPivotTable& table) : table_(table) {
    static constexpr std::uint64_t kMost = std::uint64_t{1} << 53;
    for (std::size_t d = 0; d < table.NDimensions(); ++d) {
      dimensions_.emplace_back(table.Dimension(static_cast<int>(d)));
      hasNone_ |= dimensions_.back().size() == 0;
    }
    for (const CategoryList& categories : dimensions_) {
      if (hasNone_) break;
      if (count_ >= kMost / categories.size())
        throw std::length_error("JSON-stat: too many places");
      count_ *= categories.size();
    }
  }

  const std::vector<CategoryList>& dimensions() const { return dimensions_; }
  std::uint64_t count() const { return hasNone_ ? 0 : count_; }

  // Calls visit(place, text) for each cell that belongs to categories, at each of its places, until
  // it answers false. The places are gone through in order, unless cells are in less than one per
  // cent of them: then only these are visited, in the order of the store.
  void visitCells(const auto& visit) const {
    if (count() / 100 >= static_cast<std::uint64_t>(table_.getNumCells())) {
      for (const auto& [index, text] : table_) {
        if (!visitCell(index, text, visit)) return;
      }
      return;
    }
    std::uint64_t place = 0;
    visitPlaces([&](const OmCellText* text) {
      const std::uint64_t at = place++;
      return text == nullptr || visit(at, *text);
    });
  }

  // Calls visit(text, count) for each cell that belongs to categories, with the number of its
  // places, in the order of the store. Takes less time than going through the places.
  void visitStored(const auto& visit) const {
    for (const auto& [index, text] : table_) {
      std::uint64_t places = count() != 0 ? 1 : 0;
      for (std::size_t d = 0; d < dimensions_.size(); ++d) {
        places *= dimensions_[d].find(index[d]).size();
      }
      if (places != 0) visit(text, places);
    }
  }

  // Calls visit(text) for each place, in order, until it answers false; null where there is no
  // cell.
  //
  // The last dimension, which changes fastest here, is the slowest one in the store: neighbours lie
  // far apart in memory. So the cells of many places are looked up in the order of the store first.
  void visitPlaces(const auto& visit) const {
    if (count() == 0) return;
    Block block = firstBlock();
    do {
      lookUp(block);
      for (std::size_t i = 0; i < block.cells.size(); ++i) {
#if defined(__GNUC__)
        if (i + kAhead < block.cells.size()) __builtin_prefetch(block.cells[i + kAhead]);
#endif
        if (!visit(block.cells[i])) return;
      }
    } while (goOn(block));
  }

 private:
  static constexpr std::size_t kMostAtOnce = std::size_t{1} << 19;
  static constexpr std::size_t kAhead = 8;

  // The places that differ along the dimensions from `begin` on only.
  struct Block {
    std::size_t begin;
    std::vector<std::size_t> at;           // the position along each dimension
    std::vector<int> index;                // the subscripts there
    std::vector<const OmCellText*> cells;  // in the order of the places
  };

  Block firstBlock() const {
    Block block{dimensions_.size(), std::vector<std::size_t>(dimensions_.size()), {}, {}};
    for (const CategoryList& categories : dimensions_) {
      block.index.push_back(categories[0].subscript);
    }
    std::size_t size = 1;
    while (block.begin != 0) {
      const std::size_t more = size * dimensions_[block.begin - 1].size();
      if (more > kMostAtOnce && block.begin != dimensions_.size()) break;
      size = more;
      --block.begin;
    }
    block.cells.resize(size);
    return block;
  }

  // One place further along a dimension; false behind the last one, when it is the first one again.
  bool step(Block& block, std::size_t d) const {
    const bool isInside = ++block.at[d] != dimensions_[d].size();
    if (!isInside) block.at[d] = 0;
    block.index[d] = dimensions_[d][block.at[d]].subscript;
    return isInside;
  }

  // To the next block; false behind the last one.
  bool goOn(Block& block) const {
    for (std::size_t d = block.begin; d-- != 0;) {
      if (step(block, d)) return true;
    }
    return false;
  }

  void lookUp(Block& block) const {
    std::vector<std::size_t> strides(dimensions_.size());
    std::size_t stride = 1;
    for (std::size_t d = dimensions_.size(); d-- != block.begin;) {
      strides[d] = stride;
      stride *= dimensions_[d].size();
    }
    const auto isNegative = [](int subscript) { return subscript < 0; };
    const std::vector<int>& index = block.index;
    std::size_t place = 0;
    for (bool more = true; more;) {
      const bool exists = !index.empty() && std::none_of(index.begin(), index.end(), isNegative);
      block.cells[place] = exists ? table_.Cell(index) : nullptr;
      more = false;
      for (std::size_t d = block.begin; d != dimensions_.size() && !more; ++d) {
        more = step(block, d);
        place += strides[d];
        if (!more) place -= strides[d] * dimensions_[d].size();
      }
    }
  }

  // A subscript may be that of several categories of a dimension.
  bool visitCell(const std::vector<int>& index, const OmCellText& text, const auto& visit) const {
    std::vector<std::uint64_t>& places = found_;
    places.assign(1, 0);
    for (std::size_t d = 0; d < dimensions_.size(); ++d) {
      const auto categories = dimensions_[d].find(index[d]);
      if (categories.empty()) return true;
      const std::size_t before = places.size();
      for (std::size_t i = 0; i < before; ++i) places[i] *= dimensions_[d].size();
      for (std::size_t k = 1; k < categories.size(); ++k) {
        for (std::size_t i = 0; i < before; ++i) places.push_back(places[i] + categories[k].second);
      }
      for (std::size_t i = 0; i < before; ++i) places[i] += categories[0].second;
    }
    return std::all_of(places.begin(), places.end(),
                       [&](std::uint64_t place) { return visit(place, text); });
  }

  const OmPivotTable& table_;
  std::vector<CategoryList> dimensions_;
  std::uint64_t count_ = 1;
  bool hasNone_ = false;
  mutable std::vector<std::uint64_t> found_;  // of one cell, to have room for them
};

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_JSONSTATPLACES_H_
