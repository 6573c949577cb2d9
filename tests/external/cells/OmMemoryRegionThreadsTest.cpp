// The default heap, and any region that is made as shared, under several threads at once.

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "external/cells/OmMemoryRegion.h"
#include "external/cells/OmStringCell.h"
#include "tests/support/Oracle.h"

namespace om::test {
namespace {

constexpr std::size_t kThreads = 4;

struct Block {
  unsigned char* place;
  std::size_t size;
  unsigned char fill;
};

bool isIntact(const Block& block) {
  return std::all_of(block.place, block.place + block.size,
                     [&block](unsigned char c) { return c == block.fill; });
}

// Allocates, fills, checks and releases; gives the number of blocks whose content had changed.
std::size_t work(OmMemoryRegion& region, std::size_t thread, std::size_t steps) {
  Random random(thread + 1);
  std::vector<Block> blocks;
  std::size_t damaged = 0;
  const auto releaseLast = [&] {
    if (!isIntact(blocks.back())) ++damaged;
    OmMemoryRegion::Release(blocks.back().place);
    blocks.pop_back();
  };
  for (std::size_t step = 0; step < steps; ++step) {
    if (blocks.size() < 100 && random.below(10) < 6) {
      const std::size_t size = random.below(random.oneIn(100) ? 50000 : 300);
      const auto fill = static_cast<unsigned char>(random.below(256));
      blocks.push_back({static_cast<unsigned char*>(region.Allocate(size)), size, fill});
      std::memset(blocks.back().place, fill, size);
    } else if (!blocks.empty()) {
      std::swap(blocks[random.below(blocks.size())], blocks.back());
      releaseLast();
    }
  }
  while (!blocks.empty()) releaseLast();
  return damaged;
}

template <class Work>
void runThreads(Work body) {
  std::vector<std::thread> threads;
  for (std::size_t t = 0; t < kThreads; ++t) threads.emplace_back([&body, t] { body(t); });
  for (std::thread& thread : threads) thread.join();
}

TEST(OmMemoryRegionThreads, TheDefaultHeapServesSeveralAtOnce) {
  OmMemoryRegion& heap = *OmMemoryRegion::DefaultHeap();
  const std::size_t bytes = heap.BytesInUse();
  const std::size_t blocks = heap.BlocksInUse();
  std::atomic<std::size_t> damaged{0};
  runThreads([&](std::size_t thread) { damaged += work(heap, thread, 20000); });
  EXPECT_EQ(damaged, 0U);
  EXPECT_EQ(heap.BytesInUse(), bytes);
  EXPECT_EQ(heap.BlocksInUse(), blocks);
}

TEST(OmMemoryRegionThreads, ASharedRegionServesSeveralAtOnce) {
  OmMemoryRegion region(true);
  std::atomic<std::size_t> damaged{0};
  runThreads([&](std::size_t thread) { damaged += work(region, thread, 20000); });
  EXPECT_EQ(damaged, 0U);
  EXPECT_EQ(region.BytesInUse(), 0U);
  EXPECT_EQ(region.BlocksInUse(), 0U);
}

TEST(OmMemoryRegionThreads, RegionsOfTheirOwnDoNotDisturbEachOther) {
  std::atomic<std::size_t> damaged{0};
  std::atomic<std::size_t> left{0};
  runThreads([&](std::size_t thread) {
    OmMemoryRegion region(false);
    damaged += work(region, thread, 20000);
    left += region.BytesInUse();
  });
  EXPECT_EQ(damaged, 0U);
  EXPECT_EQ(left, 0U);
}

TEST(OmMemoryRegionThreads, ABlockOfTheDefaultHeapMayBeReleasedByAnotherThread) {
  const std::size_t before = OmMemoryRegion::DefaultHeap()->BlocksInUse();
  std::vector<std::vector<void*>> blocks(kThreads, std::vector<void*>(1000));
  runThreads([&](std::size_t thread) {
    for (void*& block : blocks[thread]) block = OmMemoryRegion::DefaultHeap()->Allocate(24);
  });
  EXPECT_EQ(OmMemoryRegion::DefaultHeap()->BlocksInUse(), before + kThreads * 1000);
  runThreads([&](std::size_t thread) {
    for (void* const block : blocks[(thread + 1) % kThreads]) OmMemoryRegion::Release(block);
  });
  EXPECT_EQ(OmMemoryRegion::DefaultHeap()->BlocksInUse(), before);
}

TEST(OmMemoryRegionThreads, TextsMayBeMadeInSeveralAtOnce) {
  std::atomic<std::size_t> wrong{0};
  runThreads([&](std::size_t thread) {
    const OmStringCell cell("a text of thread " + std::to_string(thread));
    for (int i = 0; i < 5000; ++i) {
      const std::unique_ptr<OmCellText> clone(cell.Clone(nullptr));
      if (clone->Compare(cell) != 0) ++wrong;
    }
  });
  EXPECT_EQ(wrong, 0U);
}

}  // namespace
}  // namespace om::test
