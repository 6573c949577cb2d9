// What a region hands out, what it takes back, and how it ends.

#include "external/cells/OmMemoryRegion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>
#include <new>
#include <set>
#include <utility>
#include <vector>

namespace om::test {
namespace {

constexpr std::size_t kMostBytes = std::numeric_limits<std::size_t>::max();

constexpr std::array<std::size_t, 9> kAssortedSizes{0, 1, 8, 9, 100, 1016, 1017, 5000, 32000};
constexpr std::array<std::size_t, 4> kFewSizes{1, 100, 2000, 40000};

bool isAligned(const void* block) {
  return reinterpret_cast<std::uintptr_t>(block) % alignof(std::max_align_t) == 0;
}

TEST(OmMemoryRegion, AlignsBlocksOfEverySize) {
  OmMemoryRegion region(false);
  std::size_t misaligned = 0;
  for (std::size_t size = 0; size <= 70000; ++size) {
    auto* const block = static_cast<unsigned char*>(region.Allocate(size));
    if (!isAligned(block)) ++misaligned;
    if (size > 0) block[0] = block[size - 1] = 1;
    OmMemoryRegion::Release(block);
  }
  EXPECT_EQ(misaligned, 0U);
}

TEST(OmMemoryRegion, AlignsBlocksOfEverySizeThatStayInUse) {
  OmMemoryRegion region(false);
  std::size_t misaligned = 0;
  for (std::size_t size = 0; size <= 2500; ++size) {
    if (!isAligned(region.Allocate(size))) ++misaligned;
  }
  EXPECT_EQ(misaligned, 0U);
}

TEST(OmMemoryRegion, BlocksInUseDoNotOverlap) {
  OmMemoryRegion region(false);
  std::vector<std::pair<std::uintptr_t, std::size_t>> blocks;
  for (std::size_t size = 0; size <= 70000; size += size < 2000 ? 1 : 97) {
    blocks.emplace_back(reinterpret_cast<std::uintptr_t>(region.Allocate(size)), size);
  }
  std::sort(blocks.begin(), blocks.end());
  for (std::size_t i = 1; i < blocks.size(); ++i) {
    ASSERT_GE(blocks[i].first,
              blocks[i - 1].first + std::max<std::size_t>(blocks[i - 1].second, 1));
  }
}

TEST(OmMemoryRegion, GivesEachRequestOfZeroBytesABlockOfItsOwn) {
  OmMemoryRegion region(false);
  std::set<void*> blocks;
  for (int i = 0; i < 1000; ++i) blocks.insert(region.Allocate(0));
  EXPECT_EQ(blocks.count(nullptr), 0U);
  EXPECT_EQ(blocks.size(), 1000U);
}

TEST(OmMemoryRegion, KeepsTheContentOfLargeBlocks) {
  OmMemoryRegion region(false);
  constexpr std::array<std::size_t, 5> kSizes{32 * 1024 + 1, 32 * 1024 + 16, 100000, 1 << 20,
                                              5000000};
  std::array<unsigned char*, kSizes.size()> blocks{};
  for (std::size_t i = 0; i < kSizes.size(); ++i) {
    blocks[i] = static_cast<unsigned char*>(region.Allocate(kSizes[i]));
    EXPECT_TRUE(isAligned(blocks[i]));
    std::memset(blocks[i], static_cast<int>(i + 1), kSizes[i]);
  }
  for (std::size_t i = 0; i < kSizes.size(); ++i) {
    const auto wanted = static_cast<unsigned char>(i + 1);
    EXPECT_EQ(std::count(blocks[i], blocks[i] + kSizes[i], wanted),
              static_cast<std::ptrdiff_t>(kSizes[i]));
    OmMemoryRegion::Release(blocks[i]);
  }
  EXPECT_EQ(region.BytesInUse(), 0U);
}

TEST(OmMemoryRegion, ReleaseOfNullIsHarmless) {
  OmMemoryRegion region(false);
  void* const block = region.Allocate(10);
  OmMemoryRegion::Release(nullptr);
  EXPECT_EQ(region.BlocksInUse(), 1U);
  OmMemoryRegion::Release(block);
}

TEST(OmMemoryRegion, ReleaseFindsTheRegionOfABareBlock) {
  std::array<std::unique_ptr<OmMemoryRegion>, 4> regions;
  for (std::size_t r = 0; r < regions.size(); ++r) {
    regions[r] = std::make_unique<OmMemoryRegion>(r % 2 == 1);
  }
  std::vector<void*> blocks;
  for (std::size_t i = 0; i < 4000; ++i) {
    blocks.push_back(regions[i % 4]->Allocate(i * 37 % 40000));
  }
  // Every second round, so that regions 0 to 3 keep 500 blocks each; then region 2 alone gives all.
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    if (i / 4 % 2 == 0) OmMemoryRegion::Release(blocks[i]);
  }
  for (const auto& region : regions) EXPECT_EQ(region->BlocksInUse(), 500U);
  for (std::size_t i = 2; i < blocks.size(); i += 4) {
    if (i / 4 % 2 == 1) OmMemoryRegion::Release(blocks[i]);
  }
  EXPECT_EQ(regions[0]->BlocksInUse(), 500U);
  EXPECT_EQ(regions[1]->BlocksInUse(), 500U);
  EXPECT_EQ(regions[2]->BlocksInUse(), 0U);
  EXPECT_EQ(regions[3]->BlocksInUse(), 500U);
}

TEST(OmMemoryRegion, HandsAReleasedBlockOutAgain) {
  for (const std::size_t size : kAssortedSizes) {
    OmMemoryRegion region(false);
    void* const first = region.Allocate(size);
    std::set<void*> blocks;
    for (int i = 0; i < 10000; ++i) {
      OmMemoryRegion::Release(i == 0 ? first : *blocks.begin());
      blocks.insert(region.Allocate(size));
      ASSERT_EQ(blocks.size(), 1U) << size;
    }
    EXPECT_EQ(*blocks.begin(), first) << size;
  }
}

TEST(OmMemoryRegion, CyclesOfManyBlocksKeepToTheSameStorage) {
  OmMemoryRegion region(false);
  std::set<void*> known;
  std::vector<void*> blocks(200);
  std::size_t added = 0;
  for (int cycle = 0; cycle < 100; ++cycle) {
    for (void*& block : blocks) {
      block = region.Allocate(40);
      if (known.insert(block).second && cycle > 0) ++added;
    }
    for (void* const block : blocks) OmMemoryRegion::Release(block);
  }
  EXPECT_EQ(added, 0U);
}

TEST(OmMemoryRegion, WithoutReuseAReleasedBlockIsNotHandedOutAgain) {
  OmMemoryRegion region(false);
  region.WorkingRelease(false);
  std::set<void*> released;
  for (const std::size_t size : kFewSizes) {
    for (int i = 0; i < 300; ++i) {
      void* const block = region.Allocate(size);
      ASSERT_TRUE(released.insert(block).second) << size;
      OmMemoryRegion::Release(block);
    }
  }
}

TEST(OmMemoryRegion, BlocksThatWereReleasedWithoutReuseStayLostWhenReuseIsBack) {
  OmMemoryRegion region(false);
  void* const lost = region.Allocate(100);
  region.WorkingRelease(false);
  OmMemoryRegion::Release(lost);
  region.WorkingRelease(true);
  void* const other = region.Allocate(100);
  EXPECT_NE(other, lost);
  OmMemoryRegion::Release(other);
  EXPECT_EQ(region.Allocate(100), other);
}

TEST(OmMemoryRegion, ThrowsForSizesThatNoSystemCanServe) {
  OmMemoryRegion region(false);
  auto* const block = static_cast<unsigned char*>(region.Allocate(10));
  std::memset(block, 7, 10);
  const std::size_t bytes = region.BytesInUse();
  for (std::size_t lack = 0; lack <= 130; ++lack) {
    EXPECT_THROW(region.Allocate(kMostBytes - lack), std::bad_alloc) << lack;
  }
  EXPECT_THROW(region.Allocate(kMostBytes / 2), std::bad_alloc);
  EXPECT_THROW(region.Allocate(kMostBytes / 2 + 1), std::bad_alloc);
  EXPECT_EQ(region.BytesInUse(), bytes);
  EXPECT_EQ(region.BlocksInUse(), 1U);
  EXPECT_EQ(std::count(block, block + 10, 7), 10);
}

TEST(OmMemoryRegion, StaysUsableAfterARequestThatCannotBeServed) {
  OmMemoryRegion region(false);
  EXPECT_THROW(region.Allocate(kMostBytes), std::bad_alloc);
  void* const block = region.Allocate(50);
  std::memset(block, 1, 50);
  OmMemoryRegion::Release(block);
  EXPECT_EQ(region.Allocate(50), block);
}

TEST(OmMemoryRegion, EndsWithBlocksStillInUse) {
  const auto region = std::make_unique<OmMemoryRegion>(false);
  for (std::size_t i = 0; i < 3000; ++i) std::memset(region->Allocate(i * 13), 1, i * 13);
  EXPECT_EQ(region->BlocksInUse(), 3000U);
}

class StateInARegion : public OmMemoryRegion {
 public:
  explicit StateInARegion(bool* ended) : OmMemoryRegion(false), ended_(ended) {}
  ~StateInARegion() override { *ended_ = true; }
  int value = 5;

 private:
  bool* ended_;
};

TEST(OmMemoryRegion, ServesAsABaseClassAndIsDestroyedThroughIt) {
  bool ended = false;
  auto state = std::make_unique<StateInARegion>(&ended);
  std::memset(state->Allocate(1000), 0xFF, 1000);
  OmMemoryRegion::Release(state->Allocate(20));
  EXPECT_EQ(state->BlocksInUse(), 1U);
  EXPECT_EQ(state->value, 5);
  std::unique_ptr<OmMemoryRegion> base = std::move(state);
  base.reset();
  EXPECT_TRUE(ended);
}

TEST(OmMemoryRegion, TheDefaultHeapIsOneObject) {
  OmMemoryRegion* const heap = OmMemoryRegion::DefaultHeap();
  ASSERT_NE(heap, nullptr);
  EXPECT_EQ(OmMemoryRegion::DefaultHeap(), heap);
}

TEST(OmMemoryRegion, TheDefaultHeapStandsInForANullRegion) {
  OmMemoryRegion region(false);
  EXPECT_EQ(OmMemoryRegion::OrDefaultHeap(nullptr), OmMemoryRegion::DefaultHeap());
  EXPECT_EQ(OmMemoryRegion::OrDefaultHeap(&region), &region);
}

}  // namespace
}  // namespace om::test
