// OmMemoryRegion beside operator new and the two unsynchronised resources of the standard library.
// One word is written into each block, as a block that nobody writes to is no use to anyone. Every
// figure is for one block:
//
//   Allocate   10^6 blocks from a new allocator, in a process that has done so before
//   Release    the same blocks one by one, in the order in which they were allocated
//   Churn      a released block and an allocated one, at random places among 10^4 blocks
//   BulkDrop   10^6 blocks at once, by ending the allocator (operator new: one by one)
//
// Sizes in bytes; 0 stands for sizes from 16 to 256 at random.

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstddef>
#include <memory_resource>
#include <new>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "external/cells/OmMemoryRegion.h"

namespace {

using Clock = std::chrono::steady_clock;

class Region {
 public:
  void* allocate(std::size_t size) { return region_.Allocate(size); }
  void release(void* block, std::size_t) { OmMemoryRegion::Release(block); }
  void drop(const std::vector<void*>&, const std::vector<std::size_t>&) {
    region_.WorkingRelease(false);
  }

 private:
  OmMemoryRegion region_{false};
};

class OperatorNew {
 public:
  void* allocate(std::size_t size) { return ::operator new(size); }
  void release(void* block, std::size_t size) { ::operator delete(block, size); }
  void drop(const std::vector<void*>& blocks, const std::vector<std::size_t>& sizes) {
    for (std::size_t i = 0; i < blocks.size(); ++i) release(blocks[i], sizes[i]);
  }
};

template <class Resource>
class Standard {
 public:
  void* allocate(std::size_t size) { return resource_.allocate(size); }
  void release(void* block, std::size_t size) { resource_.deallocate(block, size); }
  void drop(const std::vector<void*>&, const std::vector<std::size_t>&) {}

 private:
  Resource resource_;
};
using Pool = Standard<std::pmr::unsynchronized_pool_resource>;
using Monotonic = Standard<std::pmr::monotonic_buffer_resource>;

std::vector<std::size_t> sizesFor(std::int64_t size, std::size_t count) {
  std::vector<std::size_t> sizes(count, static_cast<std::size_t>(size));
  std::mt19937 random(1);
  if (size == 0) {
    for (std::size_t& each : sizes) each = 16 + random() % 241;
  }
  return sizes;
}

enum class Phase { kAllocate, kRelease, kBulkDrop };

// Fills an allocator and empties it, one block at a time or at once. Gives the time of one phase.
template <class Allocator, Phase phase>
Clock::duration fillAndEmpty(const std::vector<std::size_t>& sizes, std::vector<void*>& blocks) {
  std::optional<Allocator> allocator(std::in_place);
  const Clock::time_point start = Clock::now();
  for (std::size_t i = 0; i < sizes.size(); ++i) {
    blocks[i] = ::new (allocator->allocate(sizes[i])) std::size_t(i);
  }
  const Clock::time_point full = Clock::now();
  benchmark::DoNotOptimize(blocks.data());
  benchmark::ClobberMemory();
  if (phase == Phase::kBulkDrop) {
    allocator->drop(blocks, sizes);
  } else {
    for (std::size_t i = 0; i < sizes.size(); ++i) allocator->release(blocks[i], sizes[i]);
  }
  const Clock::time_point released = Clock::now();
  allocator.reset();
  const Clock::time_point gone = Clock::now();

  switch (phase) {
    case Phase::kAllocate:
      return full - start;
    case Phase::kRelease:
      return released - full;
    case Phase::kBulkDrop:
      break;
  }
  return gone - full;
}

template <class Allocator, Phase phase>
void onePhase(benchmark::State& state) {
  constexpr std::size_t kBlocks = 1'000'000;
  const std::vector<std::size_t> sizes = sizesFor(state.range(0), kBlocks);
  std::vector<void*> blocks(kBlocks);
  fillAndEmpty<Allocator, phase>(sizes, blocks);  // every allocator is measured warm
  for (auto _ : state) {
    const Clock::duration timed = fillAndEmpty<Allocator, phase>(sizes, blocks);
    state.SetIterationTime(std::chrono::duration<double>(timed).count() / kBlocks);
  }
}

template <class Allocator>
void churn(benchmark::State& state) {
  constexpr std::size_t kBlocks = 10'000;
  const std::vector<std::size_t> sizes = sizesFor(state.range(0), kBlocks);
  std::vector<std::size_t> order(kBlocks);
  std::mt19937 random(2);
  for (std::size_t& place : order) place = random() % kBlocks;

  Allocator allocator;
  std::vector<void*> blocks(kBlocks);
  for (std::size_t i = 0; i < kBlocks; ++i) blocks[i] = allocator.allocate(sizes[i]);
  for (auto _ : state) {
    const Clock::time_point start = Clock::now();
    for (const std::size_t place : order) {
      allocator.release(blocks[place], sizes[place]);
      blocks[place] = ::new (allocator.allocate(sizes[place])) std::size_t(place);
    }
    const auto timed = Clock::now() - start;
    state.SetIterationTime(std::chrono::duration<double>(timed).count() / kBlocks);
  }
  for (std::size_t i = 0; i < kBlocks; ++i) allocator.release(blocks[i], sizes[i]);
}

template <class Allocator>
void measure(const std::string& name) {
  const auto add = [&name](const std::string& phase, auto function, int iterations) {
    benchmark::RegisterBenchmark((phase + "/" + name).c_str(), function)
        ->ArgName("bytes")
        ->Arg(16)
        ->Arg(64)
        ->Arg(256)
        ->Arg(0)
        ->UseManualTime()
        ->Unit(benchmark::kNanosecond)
        ->Iterations(iterations);
  };
  add("Allocate", onePhase<Allocator, Phase::kAllocate>, 7);
  add("Release", onePhase<Allocator, Phase::kRelease>, 7);
  add("Churn", churn<Allocator>, 200);
  add("BulkDrop", onePhase<Allocator, Phase::kBulkDrop>, 7);
}

[[maybe_unused]] const bool registered = [] {
  measure<Region>("OmMemoryRegion");
  measure<Pool>("unsynchronized_pool_resource");
  measure<Monotonic>("monotonic_buffer_resource");
  measure<OperatorNew>("operator_new");
  return true;
}();

}  // namespace
