// What a region says of its blocks, and the probe that sees every allocation.

#include <gtest/gtest.h>

#include <cstddef>
#include <new>
#include <vector>

#include "external/cells/OmMemoryRegion.h"

namespace om::test {
namespace {

constexpr std::size_t kLargestCheap = 32 * 1024;

// A head of 8 bytes, and both together in steps of 16.
std::size_t costOf(std::size_t size) { return (size + 8 + 15) / 16 * 16; }

std::size_t bytesFor(OmMemoryRegion& region, std::size_t size) {
  const std::size_t before = region.BytesInUse();
  void* const block = region.Allocate(size);
  const std::size_t bytes = region.BytesInUse() - before;
  OmMemoryRegion::Release(block);
  return bytes;
}

TEST(OmMemoryRegionAccounting, ANewRegionHasNothingInUse) {
  const OmMemoryRegion region(false);
  EXPECT_EQ(region.BytesInUse(), 0U);
  EXPECT_EQ(region.BlocksInUse(), 0U);
}

TEST(OmMemoryRegionAccounting, CountsTheHeadAndTheRoundingIn) {
  OmMemoryRegion region(false);
  EXPECT_EQ(bytesFor(region, 0), 16U);
  EXPECT_EQ(bytesFor(region, 8), 16U);
  EXPECT_EQ(bytesFor(region, 9), 32U);
  EXPECT_EQ(bytesFor(region, 24), 32U);
  EXPECT_EQ(bytesFor(region, 25), 48U);
}

TEST(OmMemoryRegionAccounting, ABlockCostsAtMostItsHeadAndRounding) {
  OmMemoryRegion region(false);
  for (std::size_t size = 0; size <= kLargestCheap - 8; ++size) {
    const std::size_t bytes = bytesFor(region, size);
    ASSERT_GE(bytes, size + 8);
    ASSERT_LE(bytes, costOf(size)) << size;
  }
}

TEST(OmMemoryRegionAccounting, ABlockOfJust32KiBCostsAtMostItsHeadAndRounding) {
  OmMemoryRegion region(false);
  for (std::size_t size = kLargestCheap - 7; size <= kLargestCheap; ++size) {
    EXPECT_LE(bytesFor(region, size), costOf(size)) << size;
  }
}

TEST(OmMemoryRegionAccounting, ALargeBlockCosts48BytesMore) {
  OmMemoryRegion region(false);
  for (const std::size_t size : {kLargestCheap + 1, kLargestCheap + 16, std::size_t{1000000}}) {
    EXPECT_EQ(bytesFor(region, size), size + 48);
  }
}

TEST(OmMemoryRegionAccounting, AReusedBlockCostsNoMoreThanANewOne) {
  OmMemoryRegion region(false);
  // Leaves released blocks of every size behind for the requests below.
  std::vector<void*> blocks;
  for (std::size_t size = 0; size < 20000; size += 56) blocks.push_back(region.Allocate(size));
  for (void* const block : blocks) OmMemoryRegion::Release(block);
  for (std::size_t size = 0; size < 20000; size += 41) {
    ASSERT_LE(bytesFor(region, size), costOf(size)) << size;
  }
}

TEST(OmMemoryRegionAccounting, GoesBackToZeroWithTheLastRelease) {
  OmMemoryRegion region(false);
  std::vector<void*> blocks;
  for (std::size_t i = 0; i < 2000; ++i) blocks.push_back(region.Allocate(i * 31));
  EXPECT_EQ(region.BlocksInUse(), 2000U);
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    EXPECT_NE(region.BytesInUse(), 0U);
    OmMemoryRegion::Release(blocks[i * 7 % blocks.size()]);  // 7 and 2000 have no common divisor
    EXPECT_EQ(region.BlocksInUse(), 1999 - i);
  }
  EXPECT_EQ(region.BytesInUse(), 0U);
}

TEST(OmMemoryRegionAccounting, WithoutReuseAReleasedBlockIsCountedOff) {
  OmMemoryRegion region(false);
  void* const small = region.Allocate(100);
  void* const large = region.Allocate(100000);
  region.WorkingRelease(false);
  EXPECT_EQ(region.BlocksInUse(), 2U);
  OmMemoryRegion::Release(large);
  EXPECT_EQ(region.BlocksInUse(), 1U);
  EXPECT_EQ(region.BytesInUse(), costOf(100));
  OmMemoryRegion::Release(small);
  EXPECT_EQ(region.BlocksInUse(), 0U);
  EXPECT_EQ(region.BytesInUse(), 0U);
}

// The probes are plain functions, so what they saw stands here.
std::vector<std::size_t> sizesSeen;

void note(std::size_t size) { sizesSeen.push_back(size); }
void refuse(std::size_t) { throw std::bad_alloc(); }

class AllocationProbe : public testing::Test {
 protected:
  AllocationProbe() : former_(OmMemoryRegion::SetAllocationProbe(nullptr)) {}
  ~AllocationProbe() override {
    OmMemoryRegion::SetAllocationProbe(former_);
    std::vector<std::size_t>().swap(sizesSeen);
  }

 private:
  OmMemoryRegion::AllocationProbe former_;
};

TEST_F(AllocationProbe, SettingOneGivesTheFormerOneBack) {
  EXPECT_EQ(OmMemoryRegion::SetAllocationProbe(&note), nullptr);
  EXPECT_EQ(OmMemoryRegion::SetAllocationProbe(&refuse), &note);
  EXPECT_EQ(OmMemoryRegion::SetAllocationProbe(nullptr), &refuse);
  EXPECT_EQ(OmMemoryRegion::SetAllocationProbe(nullptr), nullptr);
}

TEST_F(AllocationProbe, SeesTheSizeOfEveryAllocationOfEveryRegion) {
  OmMemoryRegion one(false);
  OmMemoryRegion other(true);
  OmMemoryRegion::SetAllocationProbe(&note);
  one.Allocate(0);
  other.Allocate(7);
  OmMemoryRegion::Release(OmMemoryRegion::DefaultHeap()->Allocate(100000));
  OmMemoryRegion::SetAllocationProbe(nullptr);
  one.Allocate(3);
  EXPECT_EQ(sizesSeen, (std::vector<std::size_t>{0, 7, 100000}));
}

TEST_F(AllocationProbe, OneThatThrowsLeavesTheRegionUnchanged) {
  OmMemoryRegion region(false);
  void* const kept = region.Allocate(50);
  void* const released = region.Allocate(50);
  OmMemoryRegion::Release(released);
  const std::size_t bytes = region.BytesInUse();
  OmMemoryRegion::SetAllocationProbe(&refuse);
  EXPECT_THROW(region.Allocate(50), std::bad_alloc);
  EXPECT_THROW(region.Allocate(50000), std::bad_alloc);
  OmMemoryRegion::SetAllocationProbe(nullptr);
  EXPECT_EQ(region.BytesInUse(), bytes);
  EXPECT_EQ(region.BlocksInUse(), 1U);
  EXPECT_EQ(region.Allocate(50), released);
  OmMemoryRegion::Release(kept);
}

TEST_F(AllocationProbe, ReleaseNeedsNoAllocation) {
  OmMemoryRegion region(false);
  void* const small = region.Allocate(50);
  void* const large = region.Allocate(50000);
  OmMemoryRegion::SetAllocationProbe(&note);
  OmMemoryRegion::Release(small);
  OmMemoryRegion::Release(large);
  EXPECT_TRUE(sizesSeen.empty());
}

}  // namespace
}  // namespace om::test
