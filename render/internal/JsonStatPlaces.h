// JsonStatPlaces: the places of a dataset of JSON-stat, one for each combination of groups and
// categories of a table: row-major, the last dimension changing fastest.
//
// Lifetime: it must not outlive the table.

#ifndef OM_RENDER_INTERNAL_JSONSTATPLACES_H_
#define OM_RENDER_INTERNAL_JSONSTATPLACES_H_

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <utility>
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
  void visitPlaces(const auto& visit) const {
    if (count() == 0) return;
    std::vector<std::size_t> at(dimensions_.size());
    std::vector<int> index;
    for (const CategoryList& categories : dimensions_) index.push_back(categories[0].subscript);
    Ahead ahead;
    for (bool more = true; more;) {
      const bool exists = !index.empty() && *std::min_element(index.begin(), index.end()) >= 0;
      ahead.add(exists ? table_.Cell(index) : nullptr);
      more = false;
      for (std::size_t d = at.size(); d-- != 0 && !more;) {
        more = ++at[d] != dimensions_[d].size();
        if (!more) at[d] = 0;
        index[d] = dimensions_[d][at[d]].subscript;
      }
      if ((ahead.isFull() || !more) && !ahead.visit(visit)) return;
    }
  }

 private:
  // Cells lie far apart in memory when the first dimension is the innermost one of the columns, as
  // it should be: they are looked for together, which overlaps the waiting, and visited after.
  class Ahead {
   public:
    bool isFull() const { return size_ == cells_.size(); }
    void add(const OmCellText* cell) {
#if defined(__GNUC__)
      __builtin_prefetch(cell);
#endif
      cells_[size_++] = cell;
    }
    // Visits them until it answers false, and then gives false.
    bool visit(const auto& visitOne) {
      const auto end = cells_.begin() + static_cast<std::ptrdiff_t>(std::exchange(size_, 0));
      return std::all_of(cells_.begin(), end, visitOne);
    }

   private:
    std::array<const OmCellText*, 64> cells_;
    std::size_t size_ = 0;
  };

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
