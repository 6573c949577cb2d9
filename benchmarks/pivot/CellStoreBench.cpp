// The cells of OmPivotTable beside maps from an index to a text. Every figure is for one cell.
//
//   <order>/<cells>/<operation>/<store>
//
//   order        in_order: a full table, dimension 0 fastest; random: the same table in random
//   order;
//                sparse: 1 % of a table of 1000 x 1000 x 100, in random order
//   fill         an empty store is given all cells
//   find, miss   each cell, or as many places without one, in an order of its own
//   iterate      all cells by index, dimension 0 fastest; hash maps are copied out and sorted
//   destroy      the store with its cells goes
//
// The counter "beyond" is the memory of a store in bytes a cell beyond the text's own block. Every
// cell gets its own copy of one small text: in the table by Clone, elsewhere as an object of the
// same class from operator new, behind a std::unique_ptr. "array" keys are the subscripts, "packed"
// keys are made of them in 64 bits. "dense_vector" is the limit: an element for every place.

#include <absl/container/btree_map.h>
#include <absl/container/flat_hash_map.h>
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <algorithm>
#include <array>
#include <boost/unordered/unordered_flat_map.hpp>
#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <numeric>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

#include "external/cells/OmStringCell.h"
#include "pivot/OmPivotTable.h"
#include "pivot/internal/PivotTableData.h"

namespace {

using Index = std::array<int, 3>;
using Clock = std::chrono::steady_clock;

struct Task {
  Index sizes;
  std::vector<Index> cells;   // in the order in which they are stored
  std::vector<Index> hits;    // the same in another order
  std::vector<Index> misses;  // as many places without a cell
};

Index indexAt(std::size_t linear, const Index& sizes) {
  const auto a = static_cast<std::size_t>(sizes[0]);
  const auto b = static_cast<std::size_t>(sizes[1]);
  return {static_cast<int>(linear % a), static_cast<int>(linear / a % b),
          static_cast<int>(linear / a / b)};
}

Task makeTask(const std::string& order, std::size_t count) {
  Task task;
  std::mt19937_64 random(42);
  if (order == "sparse") {
    task.sizes = {1000, 1000, 100};
    const std::size_t places = count * 100;
    std::vector<bool> taken(places);
    const auto draw = [&](std::vector<Index>& drawn) {
      while (drawn.size() < count) {
        const std::size_t place = random() % places;
        if (taken[place]) continue;
        taken[place] = true;
        drawn.push_back(indexAt(place, task.sizes));
      }
    };
    draw(task.cells);
    draw(task.misses);
  } else {
    task.sizes = count == 10'000'000  ? Index{1000, 100, 100}
                 : count == 1'000'000 ? Index{100, 100, 100}
                                      : Index{100, 100, 10};
    for (std::size_t i = 0; i < count; ++i) task.cells.push_back(indexAt(i, task.sizes));
    for (const Index& cell : task.cells) {
      task.misses.push_back({cell[0] + task.sizes[0], cell[1], cell[2]});
    }
    if (order == "random") std::shuffle(task.cells.begin(), task.cells.end(), random);
    std::shuffle(task.misses.begin(), task.misses.end(), random);
  }
  task.hits = task.cells;
  std::shuffle(task.hits.begin(), task.hits.end(), random);
  return task;
}

const OmStringCell& text() {
  static const OmStringCell cell("123.45");
  return cell;
}

// The text on the ordinary heap.
class HeapText final : public OmStringCell {
 public:
  HeapText() : OmStringCell(text()) {}
  static void* operator new(std::size_t size) { return ::operator new(size); }
  static void operator delete(void* place) { ::operator delete(place); }
};
using OwnedText = std::unique_ptr<OmCellText>;

class Table {
 public:
  static constexpr bool kSorted = true;

  explicit Table(const Index& sizes) {
    for (const int size : sizes) {
      OmDimension& dimension = table_->AddDimension(OmStringCell("dimension"));
      for (int i = 0; i < size; ++i) {
        dimension.AddNewChild(dimension.Root(), OmStringCell("category"),
                              static_cast<unsigned long long>(i), false);
      }
    }
    before_ = region().BytesInUse();
  }

  void store(const Index& at) {
    std::copy(at.begin(), at.end(), index_.begin());
    table_->Cell(index_, text());
  }
  const OmCellText* find(const Index& at) {
    std::copy(at.begin(), at.end(), index_.begin());
    return std::as_const(*table_).Cell(index_);
  }
  template <class Visit>
  void iterate(const Visit& visit) const {
    for (auto at = std::as_const(*table_).FirstCell(); at.Cell() != nullptr; ++at) visit(at.Cell());
  }

  static double beyond(const Task& task) {
    OmMemoryRegion other(false);
    const OwnedText one(text().Clone(&other));
    const std::size_t block = other.BytesInUse();
    Table table(task.sizes);
    for (const Index& at : task.cells) table.store(at);
    const std::size_t bytes = table.region().BytesInUse() - table.before_;
    return static_cast<double>(bytes) / static_cast<double>(task.cells.size()) -
           static_cast<double>(block);
  }

 private:
  OmMemoryRegion& region() const {
    return om::internal::PivotTableInternals::dataOf(*table_).region;
  }
  std::unique_ptr<OmPivotTable> table_ =
      std::make_unique<OmPivotTable>(OmStringCell("title"), OmStringCell("template"), false);
  std::vector<int> index_ = std::vector<int>(3);
  std::size_t before_;
};

// The last dimension first, so that the order of keys is that of the table's iteration.
struct ArrayKey {
  using Type = Index;
  static Type of(const Index& at) { return {at[2], at[1], at[0]}; }
};
struct PackedKey {
  using Type = std::uint64_t;
  static Type of(const Index& at) {
    return static_cast<std::uint64_t>(at[2]) << 40 | static_cast<std::uint64_t>(at[1]) << 20 |
           static_cast<std::uint64_t>(at[0]);
  }
};
struct ArrayHash {
  std::size_t operator()(const Index& key) const { return absl::Hash<Index>()(key); }
};

std::size_t heapBytes() {
  const auto info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

template <class Key, class Map, bool sorted>
class Mapped {
 public:
  explicit Mapped(const Index&) {}

  void store(const Index& at) { (*map_)[Key::of(at)] = std::make_unique<HeapText>(); }
  const OmCellText* find(const Index& at) {
    const auto found = map_->find(Key::of(at));
    return found != map_->end() ? found->second.get() : nullptr;
  }
  template <class Visit>
  void iterate(const Visit& visit) const {
    if constexpr (sorted) {
      for (const auto& [key, cell] : *map_) visit(cell.get());
    } else {
      std::vector<std::pair<typename Key::Type, const OmCellText*>> cells;
      cells.reserve(map_->size());
      for (const auto& [key, cell] : *map_) cells.emplace_back(key, cell.get());
      std::sort(cells.begin(), cells.end());
      for (const auto& [key, cell] : cells) visit(cell);
    }
  }

  static double beyond(const Task& task) {
    const std::size_t before = heapBytes();
    Map map;
    for (const Index& at : task.cells) map[Key::of(at)] = nullptr;
    return static_cast<double>(heapBytes() - before) / static_cast<double>(task.cells.size());
  }

 private:
  std::unique_ptr<Map> map_ = std::make_unique<Map>();
};

class DenseVector {
 public:
  explicit DenseVector(const Index& sizes)
      : sizes_(sizes),
        cells_(static_cast<std::size_t>(sizes[0]) * static_cast<std::size_t>(sizes[1]) *
               static_cast<std::size_t>(sizes[2])) {}

  void store(const Index& at) { cells_[linear(at)] = std::make_unique<HeapText>(); }
  const OmCellText* find(const Index& at) {
    return at[0] < sizes_[0] ? cells_[linear(at)].get() : nullptr;
  }
  template <class Visit>
  void iterate(const Visit& visit) const {
    for (const OwnedText& cell : cells_) {
      if (cell) visit(cell.get());
    }
  }

  static double beyond(const Task& task) {
    return 8.0 * static_cast<double>(DenseVector(task.sizes).cells_.size()) /
           static_cast<double>(task.cells.size());
  }

 private:
  std::size_t linear(const Index& at) const {
    return static_cast<std::size_t>((at[2] * sizes_[1] + at[1]) * sizes_[0] + at[0]);
  }

  Index sizes_;
  std::vector<OwnedText> cells_;
};

template <class Store>
std::unique_ptr<Store> filled(const Task& task) {
  auto store = std::make_unique<Store>(task.sizes);
  for (const Index& at : task.cells) store->store(at);
  return store;
}

// One task at a time, since they are large; rows that follow each other mostly share it.
const Task& taskOf(const std::string& order, std::size_t count) {
  static std::string present;
  static Task task;
  if (const std::string wanted = order + std::to_string(count); present != wanted) {
    task = Task();
    task = makeTask(order, count);
    present = wanted;
  }
  return task;
}

void perCell(benchmark::State& state, const Task& task) {
  state.counters["each"] = benchmark::Counter(
      static_cast<double>(task.cells.size()),
      benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

double secondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

template <class Store>
void fill(benchmark::State& state, const std::string& order, std::size_t count) {
  const Task& task = taskOf(order, count);
  for (auto _ : state) {
    auto store = std::make_unique<Store>(task.sizes);
    const auto start = Clock::now();
    for (const Index& at : task.cells) store->store(at);
    state.SetIterationTime(secondsSince(start));
  }
  perCell(state, task);
  state.counters["beyond"] = Store::beyond(task);
}

template <class Store>
void find(benchmark::State& state, const std::string& order, std::size_t count, bool hit) {
  const Task& task = taskOf(order, count);
  const auto store = filled<Store>(task);
  std::uintptr_t found = 0;
  for (auto _ : state) {
    const auto start = Clock::now();
    for (const Index& at : hit ? task.hits : task.misses) {
      found += reinterpret_cast<std::uintptr_t>(store->find(at));
    }
    state.SetIterationTime(secondsSince(start));
  }
  benchmark::DoNotOptimize(found);
  perCell(state, task);
}

template <class Store>
void iterate(benchmark::State& state, const std::string& order, std::size_t count) {
  const Task& task = taskOf(order, count);
  const auto store = filled<Store>(task);
  std::uintptr_t found = 0;
  for (auto _ : state) {
    const auto start = Clock::now();
    store->iterate(
        [&found](const OmCellText* cell) { found += reinterpret_cast<std::uintptr_t>(cell); });
    state.SetIterationTime(secondsSince(start));
  }
  benchmark::DoNotOptimize(found);
  perCell(state, task);
}

template <class Store>
void destroy(benchmark::State& state, const std::string& order, std::size_t count) {
  const Task& task = taskOf(order, count);
  for (auto _ : state) {
    auto store = filled<Store>(task);
    const auto start = Clock::now();
    store.reset();
    state.SetIterationTime(secondsSince(start));
  }
  perCell(state, task);
}

using std::string;

template <class Store>
void registerStore(const string& store, const string& order, std::size_t count) {
  const string start = order + "/" + std::to_string(count) + "/";
  // A fixed number: what stands around the timed part takes longer than that part.
  const auto iterations = static_cast<benchmark::IterationCount>(count < 1'000'000 ? 10 : 3);
  const auto add = [&](const string& operation, auto&& run) {
    benchmark::RegisterBenchmark((start + operation + "/" + store).c_str(), run)
        ->UseManualTime()
        ->Iterations(iterations)
        ->Unit(benchmark::kMillisecond);
  };
  add("fill", [=](benchmark::State& state) { fill<Store>(state, order, count); });
  add("find", [=](benchmark::State& state) { find<Store>(state, order, count, true); });
  add("miss", [=](benchmark::State& state) { find<Store>(state, order, count, false); });
  add("iterate", [=](benchmark::State& state) { iterate<Store>(state, order, count); });
  add("destroy", [=](benchmark::State& state) { destroy<Store>(state, order, count); });
}

template <class Key>
void registerMaps(const string& key, const string& order, std::size_t count) {
  using Type = typename Key::Type;
  using StdHash = std::conditional_t<std::is_same_v<Type, Index>, ArrayHash, std::hash<Type>>;
  using BoostHash = std::conditional_t<std::is_same_v<Type, Index>, ArrayHash, boost::hash<Type>>;
  using FlatHash = Mapped<Key, absl::flat_hash_map<Type, OwnedText>, false>;
  using FlatMap = Mapped<Key, boost::unordered_flat_map<Type, OwnedText, BoostHash>, false>;
  using StdHashMap = Mapped<Key, std::unordered_map<Type, OwnedText, StdHash>, false>;
  using Btree = Mapped<Key, absl::btree_map<Type, OwnedText>, true>;
  using StdMap = Mapped<Key, std::map<Type, OwnedText>, true>;
  registerStore<FlatHash>("absl_flat_hash_map_" + key, order, count);
  registerStore<FlatMap>("boost_unordered_flat_map_" + key, order, count);
  registerStore<StdHashMap>("std_unordered_map_" + key, order, count);
  registerStore<Btree>("absl_btree_map_" + key, order, count);
  registerStore<StdMap>("std_map_" + key, order, count);
}

void registerAll(const string& order, std::size_t count) {
  registerStore<Table>("OmPivotTable", order, count);
  registerMaps<ArrayKey>("array", order, count);
  registerMaps<PackedKey>("packed", order, count);
  registerStore<DenseVector>("dense_vector", order, count);
}

}  // namespace

int main(int argc, char** argv) {
  for (const std::size_t count : {100'000, 1'000'000, 10'000'000}) {
    registerAll("in_order", count);
    registerAll("random", count);
  }
  registerAll("sparse", 1'000'000);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
