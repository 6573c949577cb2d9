// OmDimension beside ordered maps from the same labels to a subscript. Every figure is for one
// category.
//
//   AddInOrder     10^6 categories under one parent, in label order, that nobody looks up
//   FindOrAdd      10^5 categories in random order, looked up and added where they are missing
//   Find           each of these 10^5, in another random order
//   CopyDeep       a dimension of 10^4 levels, copied and destroyed; the maps hold its labels
//   MeasureDeep    the depth of that dimension
//
// The labels stand ready as texts for the dimension and as strings for the maps.

#include <absl/container/btree_map.h>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <deque>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "dimensions/internal/DimensionFactory.h"
#include "external/cells/OmMemoryRegion.h"
#include "external/cells/OmStringCell.h"

namespace {

// The order is that of the numbers.
std::string labelOf(std::size_t number) {
  char label[32];
  std::snprintf(label, sizeof label, "category %07zu", number);
  return label;
}

std::vector<std::size_t> shuffled(std::size_t count, unsigned seed) {
  std::vector<std::size_t> numbers(count);
  for (std::size_t i = 0; i < count; ++i) numbers[i] = i;
  std::shuffle(numbers.begin(), numbers.end(), std::mt19937(seed));
  return numbers;
}

class Dimension {
 public:
  using Label = OmStringCell;

  void add(const Label& label, std::size_t subscript) {
    dimension_->AddNewChild(dimension_->Root(), label, subscript, false);
  }
  void findOrAdd(const Label& label, std::size_t subscript) {
    dimension_->Child(dimension_->Root(), label, subscript, false);
  }
  bool has(const Label& label) const {
    return OmDimension::FindChild(std::as_const(*dimension_).Root(), label, false) >= 0;
  }

 private:
  OmMemoryRegion region_{false};
  std::unique_ptr<OmDimension> dimension_ = om::internal::DimensionFactory::make(
      OmDimensionNode(OmStringCell("name"), ~0ULL, true, nullptr), &region_);
};

template <class Map>
class Labels {
 public:
  using Label = std::string;

  void add(const Label& label, std::size_t subscript) {
    map_.emplace_hint(map_.end(), label, subscript);
  }
  void findOrAdd(const Label& label, std::size_t subscript) { map_.try_emplace(label, subscript); }
  bool has(const Label& label) const { return map_.find(label) != map_.end(); }

 private:
  Map map_;
};
using StdMap = Labels<std::map<std::string, std::size_t>>;
using BtreeMap = Labels<absl::btree_map<std::string, std::size_t>>;

template <class Store>
std::deque<typename Store::Label> labelsFor(const std::vector<std::size_t>& numbers) {
  std::deque<typename Store::Label> labels;
  for (const std::size_t number : numbers) labels.emplace_back(labelOf(number));
  return labels;
}

void perCategory(benchmark::State& state, std::size_t categories) {
  state.counters["each"] = benchmark::Counter(
      static_cast<double>(categories),
      benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

template <class Store>
void addInOrder(benchmark::State& state) {
  std::vector<std::size_t> numbers = shuffled(1'000'000, 1);
  std::sort(numbers.begin(), numbers.end());
  const auto labels = labelsFor<Store>(numbers);
  for (auto _ : state) {
    auto store = std::make_unique<Store>();
    std::size_t subscript = 0;
    for (const auto& label : labels) store->add(label, subscript++);
    benchmark::DoNotOptimize(store.get());
    state.PauseTiming();
    store.reset();
    state.ResumeTiming();
  }
  perCategory(state, numbers.size());
}

template <class Store>
void findOrAdd(benchmark::State& state) {
  const auto labels = labelsFor<Store>(shuffled(100'000, 1));
  for (auto _ : state) {
    auto store = std::make_unique<Store>();
    std::size_t subscript = 0;
    for (const auto& label : labels) store->findOrAdd(label, subscript++);
    benchmark::DoNotOptimize(store.get());
    state.PauseTiming();
    store.reset();
    state.ResumeTiming();
  }
  perCategory(state, labels.size());
}

template <class Store>
void find(benchmark::State& state) {
  const auto labels = labelsFor<Store>(shuffled(100'000, 1));
  const auto wanted = labelsFor<Store>(shuffled(100'000, 2));
  Store store;
  std::size_t subscript = 0;
  for (const auto& label : labels) store.findOrAdd(label, subscript++);
  std::size_t found = 0;
  for (auto _ : state) {
    for (const auto& label : wanted) found += store.has(label) ? 1 : 0;
  }
  benchmark::DoNotOptimize(found);
  perCategory(state, labels.size());
}

constexpr std::size_t kLevels = 10'000;

std::unique_ptr<OmDimension> deepDimension(OmMemoryRegion* region) {
  auto dimension = om::internal::DimensionFactory::make(
      OmDimensionNode(OmStringCell("name"), ~0ULL, true, nullptr), region);
  OmDimension::Node at = dimension->Root();
  for (std::size_t i = 0; i < kLevels; ++i) {
    at = dimension->AddNewChild(at, OmStringCell(labelOf(i)), i, true);
  }
  return dimension;
}

void copyDeep(benchmark::State& state) {
  OmMemoryRegion region(false);
  const auto dimension = deepDimension(&region);
  for (auto _ : state) {
    OmMemoryRegion other(false);
    benchmark::DoNotOptimize(om::internal::DimensionFactory::copy(*dimension, &other).get());
  }
  perCategory(state, kLevels);
}

template <class Map>
void copyMap(benchmark::State& state) {
  Map map;
  for (std::size_t i = 0; i < kLevels; ++i) map.emplace(labelOf(i), i);
  for (auto _ : state) {
    Map copy(map);
    benchmark::DoNotOptimize(&copy);
  }
  perCategory(state, kLevels);
}

void measureDeep(benchmark::State& state) {
  OmMemoryRegion region(false);
  const auto dimension = deepDimension(&region);
  for (auto _ : state) benchmark::DoNotOptimize(dimension->getMaximumDepth());
  perCategory(state, kLevels);
}

BENCHMARK(addInOrder<Dimension>)->Name("AddInOrder/OmDimension")->Unit(benchmark::kMillisecond);
BENCHMARK(addInOrder<StdMap>)->Name("AddInOrder/std_map")->Unit(benchmark::kMillisecond);
BENCHMARK(addInOrder<BtreeMap>)->Name("AddInOrder/absl_btree_map")->Unit(benchmark::kMillisecond);
BENCHMARK(findOrAdd<Dimension>)->Name("FindOrAdd/OmDimension")->Unit(benchmark::kMillisecond);
BENCHMARK(findOrAdd<StdMap>)->Name("FindOrAdd/std_map")->Unit(benchmark::kMillisecond);
BENCHMARK(findOrAdd<BtreeMap>)->Name("FindOrAdd/absl_btree_map")->Unit(benchmark::kMillisecond);
BENCHMARK(find<Dimension>)->Name("Find/OmDimension")->Unit(benchmark::kMillisecond);
BENCHMARK(find<StdMap>)->Name("Find/std_map")->Unit(benchmark::kMillisecond);
BENCHMARK(find<BtreeMap>)->Name("Find/absl_btree_map")->Unit(benchmark::kMillisecond);
BENCHMARK(copyDeep)->Name("CopyDeep/OmDimension")->Unit(benchmark::kMillisecond);
BENCHMARK(copyMap<std::map<std::string, std::size_t>>)
    ->Name("CopyDeep/std_map")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(copyMap<absl::btree_map<std::string, std::size_t>>)
    ->Name("CopyDeep/absl_btree_map")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(measureDeep)->Name("MeasureDeep/OmDimension")->Unit(benchmark::kMillisecond);

}  // namespace
