// A layout of pivot tables written straight from the definitions, with containers of the standard
// library: the peer of the display headings in their oracle and in their benchmark. This file has
// positions, dimensions, labels and the two scans for positions that hold cells; the headings
// themselves are in NaiveHeadings.h.

#ifndef OM_TESTS_DISPLAY_NAIVELAYOUT_H_
#define OM_TESTS_DISPLAY_NAIVELAYOUT_H_

#include <algorithm>
#include <cstddef>
#include <deque>
#include <set>
#include <utility>
#include <vector>

#include "backend/Assert.h"
#include "backend/tables/PuppetVector.h"
#include "dimensions/OmDimension.h"
#include "pivot/OmPivotTable.h"

namespace om::test {

using NaiveEntry = OmDimension::ConstNode;
using NaivePath = std::vector<NaiveEntry>;             // the leaf first, the root last
using NaiveLabels = std::deque<const NaiveEntry*>;     // null for an empty label
using NaiveDigits = std::vector<unsigned long long>;   // the most significant first
using NaiveDimensions = std::vector<short>;            // of the table, the outermost first
using NaiveNumbers = std::vector<unsigned long long>;  // of positions

// An entry of an axis that is no dimension of a table with so many.
inline bool isNoDimension(int dimension, std::size_t dimensions) {
  return dimension < 0 || static_cast<std::size_t>(dimension) >= dimensions;
}

inline NaiveDimensions tableOrder(const PuppetVector<short>& axis) {
  return {axis.begin(), axis.end()};
}
inline NaiveDimensions headingOrder(const PuppetVector<short>& axis) {
  NaiveDimensions reversed = tableOrder(axis);
  std::reverse(reversed.begin(), reversed.end());
  return reversed;
}

// The positions of an axis: numbers whose digits are the positions along its dimensions.
struct NaivePositions {
  NaivePositions(const OmPivotTable& table, NaiveDimensions listed)
      : dimensions(std::move(listed)) {
    const std::vector<int> sizes = table.SizeVector();
    for (const short dimension : dimensions) {
      radices.push_back(
          isNoDimension(dimension, sizes.size()) ? 1 : sizes[static_cast<std::size_t>(dimension)]);
    }
  }

  unsigned long long count() const {
    unsigned long long product = 1;
    for (const int radix : radices) product *= static_cast<unsigned long long>(radix);
    return product;
  }

  // The first digit is not bounded by its radix. A radix of 0 is reported and passed over.
  void decode(unsigned long long position, NaiveDigits& digits) const {
    digits.assign(radices.size(), 0);
    if (radices.empty()) return;
    std::size_t i = radices.size() - 1;
    for (; i > 0 && position != 0; --i) {
      if (radices[i] <= 0) {
        omAssertFailed(L"b>0", L"backend/tables/MultiBase", 126);
        continue;
      }
      const auto radix = static_cast<unsigned long long>(radices[i]);
      digits[i] = position % radix;
      position /= radix;
    }
    digits[i] = position;
  }

  unsigned long long encode(const NaiveDigits& digits) const {
    if (digits.empty()) return 0;
    unsigned long long position = digits[0];
    for (std::size_t i = 1; i < digits.size(); ++i) {
      position = position * static_cast<unsigned long long>(radices[i]) + digits[i];
    }
    return position;
  }

  NaiveDimensions dimensions;
  std::vector<int> radices;
};

// One dimension: its leaves in the order of the tree, each with its whole path.
struct NaiveDimensionLayout {
  explicit NaiveDimensionLayout(const OmDimension& dimension) {
    if (dimension.NumCategories() == 0) return;
    subscriptToPosition.assign(static_cast<std::size_t>(dimension.NumCategories()), -1);
    add(dimension.Root());
  }

  void add(const NaiveEntry& node) {
    if (node->IsGroup()) {
      for (const NaiveEntry child : node.Children()) add(child);
      return;
    }
    NaivePath path;
    int visible = 0;
    for (NaiveEntry at = node;; at = at.Parent()) {
      path.push_back(at);
      if (!at->Hide()) ++visible;
      if (at->IsGroup() && at->HideLabels()) visible = 0;
      if (at.Depth() == 0) break;
    }
    const int subscript = static_cast<int>(node->Subscript());
    const auto place = static_cast<std::size_t>(subscript);
    if (place >= subscriptToPosition.size()) subscriptToPosition.resize(place + 1, -1);
    subscriptToPosition[place] = static_cast<int>(paths.size());
    positionToSubscript.push_back(subscript);
    visibleDepth.push_back(visible);
    maxVisibleDepth = std::max(maxVisibleDepth, visible);
    paths.push_back(std::move(path));
  }

  // Null where there is no such leaf.
  const NaivePath* path(unsigned long long position) const {
    return position < paths.size() ? &paths[position] : nullptr;
  }

  std::vector<NaivePath> paths;
  std::vector<int> visibleDepth;  // of each leaf
  int maxVisibleDepth = 0;
  std::vector<int> positionToSubscript;
  std::vector<int> subscriptToPosition;  // -1 where no leaf has the subscript
};

// The labels of a leaf on rows and columns: `levels` of them.
inline NaiveLabels axisLabels(const NaivePath* path, int levels, bool namesInCorner) {
  NaiveLabels labels;
  if (path != nullptr) {
    for (std::size_t i = path->size(); i-- > 0;) {
      const NaiveEntry& entry = (*path)[i];
      if (entry->IsGroup() && entry->HideLabels()) break;
      if (entry->Hide()) continue;
      if (namesInCorner && entry.Depth() == 0) continue;
      labels.push_back(&entry);
    }
  }
  labels.resize(static_cast<std::size_t>(levels), nullptr);
  return labels;
}

// The labels of a leaf on layers.
inline NaiveLabels layerLabels(const NaivePath& path) {
  NaiveLabels labels;
  for (std::size_t i = path.size(); i-- > 0;) {
    const NaiveEntry& entry = path[i];
    if (entry->Hide()) {
      labels.push_back(nullptr);
      continue;
    }
    if (entry->IsGroup() && entry->HideLabels()) break;
    labels.push_back(&entry);
  }
  return labels;
}

// Appends a path from the root down, or its two ends; nothing for a path of a root alone.
inline void appendPath(const NaivePath* path, std::vector<const NaiveEntry*>& out) {
  if (path == nullptr || path->size() <= 1) return;
  for (std::size_t i = path->size(); i-- > 0;) out.push_back(&(*path)[i]);
}
inline void appendEnds(const NaivePath* path, std::vector<const NaiveEntry*>& roots,
                       std::vector<const NaiveEntry*>& categories) {
  if (path == nullptr || path->size() <= 1) return;
  roots.push_back(&path->back());
  categories.push_back(&path->front());
}

// All dimensions of a table, and whether it holds few cells.
struct NaiveLayout {
  explicit NaiveLayout(const OmPivotTable& laidOut) : table(laidOut), sparse(isSparse(laidOut)) {
    for (std::size_t d = 0; d < table.NDimensions(); ++d) {
      dimensions.emplace_back(table.Dimension(static_cast<int>(d)));
    }
  }

  // Cells in less than one per cent of the places.
  static bool isSparse(const OmPivotTable& table) {
    unsigned long long total = 1;
    for (const int size : table.SizeVector()) total *= static_cast<unsigned long long>(size);
    const unsigned long long threshold = (total + 50) / 100;
    unsigned long long met = 0;
    for (auto at = table.FirstCell(); at.Cell() != nullptr && met < threshold; ++at) ++met;
    return met < threshold;
  }

  const NaiveDimensionLayout* dimension(int which) const {
    if (isNoDimension(which, dimensions.size())) return nullptr;
    return &dimensions[static_cast<std::size_t>(which)];
  }

  // Writes the subscripts of a position. `digits` is room to work in.
  void fill(std::vector<int>& index, const NaivePositions& axis, unsigned long long position,
            NaiveDigits& digits) const {
    index.resize(dimensions.size());
    axis.decode(position, digits);
    for (std::size_t k = 0; k < digits.size(); ++k) {
      const NaiveDimensionLayout* const layout = dimension(axis.dimensions[k]);
      if (layout == nullptr || digits[k] >= layout->positionToSubscript.size()) continue;
      index[static_cast<std::size_t>(axis.dimensions[k])] = layout->positionToSubscript[digits[k]];
    }
  }
  void fill(std::vector<int>& index, const NaivePositions& axis,
            unsigned long long position) const {
    NaiveDigits digits;
    fill(index, axis, position, digits);
  }

  // The positions of an axis for which some position of the others leads to a cell.
  NaiveNumbers denseScan(const NaivePositions& axis, const NaivePositions& others,
                         std::vector<int> index) const {
    NaiveNumbers found;
    NaiveDigits digits;
    const unsigned long long axisCount = axis.count();
    const unsigned long long otherCount = others.count();
    for (unsigned long long p = 0; p < axisCount; ++p) {
      fill(index, axis, p, digits);
      for (unsigned long long q = 0; q < otherCount; ++q) {
        fill(index, others, q, digits);
        if (table.Cell(index) != nullptr) {
          found.push_back(p);
          break;
        }
      }
    }
    return found;
  }

  // The positions of an axis at which cells are stored, in whatever layer.
  NaiveNumbers sparseScan(const NaivePositions& axis) const {
    std::set<unsigned long long> found;
    for (auto at = table.FirstCell(); at.Cell() != nullptr; ++at) {
      NaiveDigits digits;
      for (std::size_t k = 0; k < axis.dimensions.size(); ++k) {
        const NaiveDimensionLayout* const layout = dimension(axis.dimensions[k]);
        if (layout == nullptr) {
          digits.push_back(0);
          continue;
        }
        const auto subscript =
            static_cast<std::size_t>(at.Index()[static_cast<std::size_t>(axis.dimensions[k])]);
        if (subscript >= layout->subscriptToPosition.size()) break;
        const int position = layout->subscriptToPosition[subscript];
        if (position < 0 || position >= axis.radices[k]) break;
        digits.push_back(static_cast<unsigned long long>(position));
      }
      if (digits.size() == axis.dimensions.size()) found.insert(axis.encode(digits));
    }
    return {found.begin(), found.end()};
  }

  NaiveNumbers scan(const NaivePositions& axis, const NaivePositions& others,
                    const std::vector<int>& index) const {
    return sparse ? sparseScan(axis) : denseScan(axis, others, index);
  }

  const OmPivotTable& table;
  bool sparse;
  std::vector<NaiveDimensionLayout> dimensions;
};

}  // namespace om::test

#endif  // OM_TESTS_DISPLAY_NAIVELAYOUT_H_
