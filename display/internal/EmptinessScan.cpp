#include "display/internal/EmptinessScan.h"

#include <limits>

#include "display/internal/DenseScan.h"
#include "display/internal/OmDisplayLayerData.h"
#include "display/internal/SparseScan.h"
#include "pivot/internal/CellIteration.h"
#include "pivot/internal/PivotTableData.h"

namespace om::internal {

namespace {

// The product of all sizes, or the largest number there is.
std::uint64_t placesOf(const OmPivotTable& table) {
  constexpr std::uint64_t kMost = std::numeric_limits<std::uint64_t>::max();
  std::uint64_t places = 1;
  for (const int size : table.SizeVector()) {
    if (size == 0) return 0;
    const auto factor = static_cast<std::uint64_t>(size);
    places = places > kMost / factor ? kMost : places * factor;
  }
  return places;
}

// The number of cells that an iteration meets, or `most` when there are as many or more.
std::uint64_t countCells(const OmPivotTable& table, std::uint64_t most) {
  std::uint64_t count = 0;
  CellIteration cells(PivotTableInternals::dataOf(table).cells.Root(), table.SizeVector());
  cells.First();
  for (; count < most && cells.Cell() != nullptr; cells.Next()) ++count;
  return count;
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
  return layers.census.sparse ? SparseScan(layers, axis)() : DenseScan(layers, axis, others)();
}

}  // namespace om::internal
