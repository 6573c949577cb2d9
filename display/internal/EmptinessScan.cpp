#include "display/internal/EmptinessScan.h"

#include <limits>

#include "display/internal/DenseScan.h"
#include "display/internal/OmDisplayLayerData.h"
#include "display/internal/PositionSet.h"
#include "pivot/internal/CellIteration.h"
#include "pivot/internal/PivotTableData.h"

namespace om::internal {

namespace {

CellIteration firstCell(const OmPivotTable& table) {
  CellIteration cells(PivotTableInternals::dataOf(table).cells.Root(), table.SizeVector());
  cells.First();
  return cells;
}

// The product of all sizes, or the largest number there is.
std::uint64_t placesOf(const OmPivotTable& table) {
  std::uint64_t places = 1;
  bool tooMany = false;
  for (const int size : table.SizeVector()) {
    if (size == 0) return 0;
    tooMany |= __builtin_mul_overflow(places, static_cast<std::uint64_t>(size), &places);
  }
  return tooMany ? std::numeric_limits<std::uint64_t>::max() : places;
}

// The number of cells that an iteration meets, or `most` when there are as many or more.
std::uint64_t countCells(const OmPivotTable& table, std::uint64_t most) {
  std::uint64_t count = 0;
  CellIteration cells = firstCell(table);
  for (; count < most && cells.Cell() != nullptr; cells.Next()) ++count;
  return count;
}

std::vector<unsigned long long> sparseScan(const OmDisplayLayerData& layers,
                                           const MultiBase& axis) {
  MultiBase::Digits digits(axis.size());
  // Digit k for a subscript; the radix where the subscript has none.
  const auto digitOf = [&](std::size_t k, const std::vector<int>& index) {
    const OmDimensionLayout* const layout = layers.layoutOf(axis.dimension(k));
    if (layout == nullptr) return 0;
    return layout->subscriptToPosition(index[static_cast<std::size_t>(axis.dimension(k))]);
  };
  const auto toDigits = [&](const std::vector<int>& index) {
    for (std::size_t k = 0; k < digits.size(); ++k) {
      const int digit = digitOf(k, index);
      if (digit < 0 || digit >= axis.radix(k)) return false;
      digits[k] = static_cast<std::uint64_t>(digit);
    }
    return true;
  };

  PositionSet positions(axis.count(), layers.census.cells);
  for (CellIteration cells = firstCell(*layers.table); cells.Cell() != nullptr; cells.Next()) {
    if (toDigits(cells.Index())) positions.insert(axis.encode(digits));
  }
  return positions.ascending();
}

}  // namespace

CellCensus takeCensus(const OmPivotTable& table) {
  // One per cent of the places, rounded half up; the sum cannot overflow.
  const std::uint64_t places = placesOf(table);
  const std::uint64_t threshold = places / 100 + (places % 100 + 50) / 100;
  const std::uint64_t cells = countCells(table, threshold);
  return {cells < threshold, cells};
}

std::vector<unsigned long long> nonEmptyPositions(const OmDisplayLayerData& layers,
                                                  const MultiBase& axis,
                                                  const PuppetVector<short>& others) {
  return layers.census.sparse ? sparseScan(layers, axis) : DenseScan(layers, axis, others)();
}

}  // namespace om::internal
