// The display headings beside a naive layout written straight from the definitions, which is also
// their peer in the tests. Every figure is for one item.
//
//   Scan/<table>/<fill>/<axis>    a heading that skips empty positions is built and dropped.
//                                 Item: a position of the axis
//   Layout/<leaves>/<tree>        a table with one dimension is laid out: a layer heading is built
//                                 and dropped. Item: a leaf
//   Levels/<table>/<skipping>     all rows of column labels. Item: an entry
//   Position/<table>              the labels of one column, in an arbitrary order. Item: a column
//   Body/<table>                  the cells of the grid: two Fills and a Cell, in an index that is
//                                 new for each cell, or used again ("om_reused"). Item: a cell
//   Sparse/<places>/<cells>       few cells in a large table: all headings that skip, and all
//                                 labels. Item: a stored cell. The label says what the headings
//                                 hold
//
// Tables: "flat" is 1000 rows by 1000 columns, of a dimension each; "nested" has rows of dimensions
// of 10, 20 and 50 categories and columns of 20 and 25. The time of Body in them is mostly that of
// fetching far places of the cell store from memory, which the tables "in_cache", of 100 rows by
// 100 columns, do without. `scripts/bench-ratios` prints the ratios.

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "benchmarks/display/DisplayTables.h"
#include "display/OmDisplayColumnHeading.h"
#include "display/OmDisplayLayerHeading.h"
#include "display/OmDisplayRowHeading.h"
#include "tests/display/NaiveHeadings.h"

namespace om::bench {
namespace {

using std::string;
using test::NaiveAxis;
using test::NaiveLayers;
using test::NaiveLayout;

void perItem(benchmark::State& state, std::size_t items) {
  state.SetItemsProcessed(static_cast<std::int64_t>(items) * state.iterations());
  state.counters["each"] =
      benchmark::Counter(static_cast<double>(items), benchmark::Counter::kIsIterationInvariantRate |
                                                         benchmark::Counter::kInvert);
}

template <class Run>
void add(const string& name, Run run) {
  benchmark::RegisterBenchmark(name.c_str(), run)->Unit(benchmark::kMicrosecond);
}

// One table at a time, since they are large; rows that follow each other share it.
template <class Make>
OmPivotTable& tableOf(const string& name, const Make& make) {
  static string present;
  static Table table;
  if (present != name) {
    table.reset();
    table = make();
    present = name;
  }
  return *table;
}

// ---- Scan

void registerScan(const string& name, const Shape& shape, const string& fill) {
  const string key = "Scan/" + name + "/" + fill;
  const auto table = [=]() -> OmPivotTable& {
    return tableOf(key, [&] { return tableWith(fill, shape); });
  };
  for (const bool ofRows : {true, false}) {
    const string axis = ofRows ? "/rows" : "/columns";
    const auto positions = static_cast<std::size_t>(count(ofRows ? shape.rows : shape.columns));
    add(key + axis + "/om", [=](benchmark::State& state) {
      OmDisplayLayerHeading layers(table(), false);
      layers.NextLayer();
      for (auto _ : state) {
        benchmark::DoNotOptimize(ofRows ? OmDisplayRowHeading(layers, true, false).NRows()
                                        : OmDisplayColumnHeading(layers, true).NColumns());
      }
      perItem(state, positions);
    });
    add(key + axis + "/naive", [=](benchmark::State& state) {
      NaiveLayers layers(table(), false);
      layers.nextLayer();
      for (auto _ : state) {
        benchmark::DoNotOptimize(
            (ofRows ? NaiveAxis::rows(layers, true, false) : NaiveAxis::columns(layers, true))
                .positionCount());
      }
      perItem(state, positions);
    });
  }
}

// ---- Layout

void registerLayout(int leaves, const string& tree, int inGroup) {
  const string key = "Layout/" + std::to_string(leaves) + "/" + tree;
  const auto table = [=]() -> OmPivotTable& {
    return tableOf(key, [&] {
      Table made = emptyTable({});
      addLeaves(made->AddDimension(OmStringCell("dimension")), leaves, inGroup);
      made->Columns().push_back(0);
      return made;
    });
  };
  add(key + "/om", [=](benchmark::State& state) {
    OmPivotTable& laidOut = table();
    for (auto _ : state) {
      OmDisplayLayerHeading layers(laidOut, false);
      benchmark::DoNotOptimize(&layers);
    }
    perItem(state, static_cast<std::size_t>(leaves));
  });
  add(key + "/naive", [=](benchmark::State& state) {
    const OmPivotTable& laidOut = table();
    for (auto _ : state) {
      NaiveLayout layout(laidOut);
      benchmark::DoNotOptimize(&layout);
    }
    perItem(state, static_cast<std::size_t>(leaves));
  });
}

// ---- Labels

// Every second column holds cells.
const Shape kFlatLabels{{2}, {1000}};
const Shape kWideLabels{{2}, {100'000}};
const Shape kNestedLabels{{2}, {10, 20, 50}};

OmPivotTable& labelTable(const string& name, const Shape& shape) {
  return tableOf("labels " + name, [&] {
    return filledTable(shape, [](int, int column) { return column % 2 == 0; });
  });
}

void registerLevels(const string& name, const Shape& shape, bool skipping) {
  const string key = "Levels/" + name + (skipping ? "/skipping" : "/all");
  add(key + "/om", [=](benchmark::State& state) {
    OmDisplayLayerHeading layers(labelTable(name, shape), false);
    layers.NextLayer();
    const OmDisplayColumnHeading columns(layers, skipping);
    for (auto _ : state) {
      for (int level = 0; level < columns.NRows(); ++level) {
        benchmark::DoNotOptimize(columns.Row(level).size());
      }
    }
    perItem(state, static_cast<std::size_t>(columns.NRows() * columns.NColumns()));
  });
  add(key + "/naive", [=](benchmark::State& state) {
    NaiveLayers layers(labelTable(name, shape), false);
    layers.nextLayer();
    const NaiveAxis columns = NaiveAxis::columns(layers, skipping);
    for (auto _ : state) {
      for (int level = 0; level < columns.totalLevels(); ++level) {
        benchmark::DoNotOptimize(columns.level(level).size());
      }
    }
    perItem(state, static_cast<std::size_t>(columns.totalLevels() * columns.positionCount()));
  });
}

void registerPosition(const string& name, const Shape& shape) {
  const string key = "Position/" + name;
  constexpr int kStep = 7;  // prime to the numbers of columns
  add(key + "/om", [=](benchmark::State& state) {
    OmDisplayLayerHeading layers(labelTable(name, shape), false);
    const OmDisplayColumnHeading columns(layers, false);
    int column = 0;
    for (auto _ : state) {
      benchmark::DoNotOptimize(columns.Column(column).size());
      column = (column + kStep) % columns.NColumns();
    }
    perItem(state, 1);
  });
  add(key + "/naive", [=](benchmark::State& state) {
    const NaiveLayers layers(labelTable(name, shape), false);
    const NaiveAxis columns = NaiveAxis::columns(layers, false);
    int column = 0;
    for (auto _ : state) {
      benchmark::DoNotOptimize(columns.labels(column).size());
      column = (column + kStep) % columns.positionCount();
    }
    perItem(state, 1);
  });
}

// ---- Body

template <class Visit>
std::size_t forEveryPlace(int rows, int columns, const Visit& visit) {
  const int step = rows > 1000 ? 20 : 1;  // of so many rows, some must do
  std::size_t places = 0;
  for (int row = 0; row < rows; row += step) {
    for (int column = 0; column < columns; ++column, ++places) visit(row, column);
  }
  return places;
}

void registerBody(const string& name, const string& fill, const Shape& shape) {
  const string key = "Body/" + name;
  const auto makeTable = [=] { return tableWith(fill, shape); };
  for (const bool reused : {false, true}) {
    add(key + (reused ? "/om_reused" : "/om"), [=](benchmark::State& state) {
      OmPivotTable& table = tableOf(key, makeTable);
      OmDisplayLayerHeading layers(table, false);
      layers.NextLayer();
      const OmDisplayRowHeading rows(layers, false, false);
      const OmDisplayColumnHeading columns(layers, false);
      const auto visit = [&](std::vector<int>& index, int row, int column) {
        rows.Fill(index, row);
        columns.Fill(index, column);
        benchmark::DoNotOptimize(table.Cell(index));
      };
      std::size_t places = 0;
      for (auto _ : state) {
        std::vector<int> one;
        places = forEveryPlace(rows.NRows(), columns.NColumns(), [&](int row, int column) {
          if (reused) return visit(one, row, column);
          std::vector<int> index;
          visit(index, row, column);
        });
      }
      perItem(state, places);
    });
  }
  add(key + "/naive", [=](benchmark::State& state) {
    OmPivotTable& table = tableOf(key, makeTable);
    NaiveLayers layers(table, false);
    layers.nextLayer();
    const NaiveAxis rows = NaiveAxis::rows(layers, false, false);
    const NaiveAxis columns = NaiveAxis::columns(layers, false);
    std::size_t places = 0;
    for (auto _ : state) {
      places =
          forEveryPlace(rows.positionCount(), columns.positionCount(), [&](int row, int column) {
            std::vector<int> index;
            rows.fill(index, row);
            columns.fill(index, column);
            benchmark::DoNotOptimize(table.Cell(index));
          });
    }
    perItem(state, places);
  });
}

// ---- Sparse

std::size_t heapBytes() {
  const auto info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

void registerSparse(const string& places, const Shape& shape, std::size_t cells) {
  const string key = "Sparse/" + places + "/" + std::to_string(cells);
  add(key + "/om", [=](benchmark::State& state) {
    OmPivotTable& table = tableOf(key, [&] { return scatteredTable(shape, cells); });
    std::size_t bytes = 0;
    for (auto _ : state) {
      const std::size_t before = heapBytes();
      OmDisplayLayerHeading layers(table, true);
      layers.NextLayer();
      const OmDisplayRowHeading rows(layers, true, true);
      const OmDisplayColumnHeading columns(layers, true);
      bytes = heapBytes() - before;
      for (int level = 0; level < rows.NColumns(); ++level) {
        benchmark::DoNotOptimize(rows.Column(level).size());
      }
      for (int level = 0; level < columns.NRows(); ++level) {
        benchmark::DoNotOptimize(columns.Row(level).size());
      }
    }
    perItem(state, cells);
    state.SetLabel(std::to_string(bytes) + " bytes");
  });
}

void registerAll() {
  for (const auto& [name, shape] : {std::pair("flat", kFlat), std::pair("nested", kNested)}) {
    for (const char* const fill : kFills) registerScan(name, shape, fill);
  }
  for (const int leaves : {1000, 10'000, 100'000}) {
    registerLayout(leaves, "flat", 0);
    registerLayout(leaves, "groups_of_10", 10);
  }
  for (const auto& [name, shape] :
       {std::pair("flat", kFlatLabels), std::pair("flat_100000", kWideLabels),
        std::pair("nested", kNestedLabels)}) {
    registerLevels(name, shape, false);
    registerLevels(name, shape, true);
    registerPosition(name, shape);
  }
  registerBody("flat", "half", kFlat);
  registerBody("nested", "half", kNested);
  for (const string fill : {"half", "full"}) {
    registerBody("flat_in_cache/" + fill, fill, {{100}, {100}});
    registerBody("nested_in_cache/" + fill, fill, {{4, 5, 5}, {10, 10}});
  }
  for (const std::size_t cells : {1000, 10'000, 50'000}) {
    registerSparse("10^7", {{100, 100, 100}, {10}}, cells);
  }
  registerSparse("10^8", {{100, 1000, 100}, {10}}, 10'000);
  registerSparse("10^9", {{1000, 1000, 100}, {10}}, 10'000);
}

}  // namespace
}  // namespace om::bench

int main(int argc, char** argv) {
  om::bench::registerAll();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
