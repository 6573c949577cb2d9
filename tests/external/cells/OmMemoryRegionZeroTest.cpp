// OmMemoryRegion::AllocateZeroed: blocks of every size hold zeros, also where released blocks are
// used again, and are counted and given back as others.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <new>
#include <vector>

#include "external/cells/OmMemoryRegion.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

constexpr std::size_t kKiB = 1024;

bool holdsZeros(const void* block, std::size_t size) {
  const auto* const bytes = static_cast<const unsigned char*>(block);
  return std::all_of(bytes, bytes + size, [](unsigned char byte) { return byte == 0; });
}

class OmMemoryRegionZero : public testing::TestWithParam<std::size_t> {
 protected:
  OmMemoryRegion region_{false};
};

// From lists and chunks, as a chunk of its own, and as pages of the system.
INSTANTIATE_TEST_SUITE_P(Sizes, OmMemoryRegionZero,
                         testing::Values(1, 32, 1000, 4 * kKiB, 32 * kKiB, 32 * kKiB + 1,
                                         200 * kKiB, 300 * kKiB, 2048 * kKiB, 2048 * kKiB - 48,
                                         5000 * kKiB));

TEST_P(OmMemoryRegionZero, GivesABlockOfZeros) {
  void* const block = region_.AllocateZeroed(GetParam());
  EXPECT_TRUE(holdsZeros(block, GetParam()));
}

TEST_P(OmMemoryRegionZero, GivesZerosWhereAReleasedBlockWasFilled) {
  void* const first = region_.Allocate(GetParam());
  std::memset(first, 0xA5, GetParam());
  OmMemoryRegion::Release(first);
  EXPECT_TRUE(holdsZeros(region_.AllocateZeroed(GetParam()), GetParam()));
}

TEST_P(OmMemoryRegionZero, IsAlignedForEveryFundamentalType) {
  const auto place = reinterpret_cast<std::uintptr_t>(region_.AllocateZeroed(GetParam()));
  EXPECT_EQ(place % alignof(std::max_align_t), 0U);
}

TEST_P(OmMemoryRegionZero, CountsAsABlockUntilItIsReleased) {
  void* const block = region_.AllocateZeroed(GetParam());
  EXPECT_EQ(region_.BlocksInUse(), 1U);
  EXPECT_GE(region_.BytesInUse(), GetParam());
  OmMemoryRegion::Release(block);
  EXPECT_EQ(region_.BlocksInUse(), 0U);
  EXPECT_EQ(region_.BytesInUse(), 0U);
}

TEST_P(OmMemoryRegionZero, CanBeWrittenFromEndToEndAndDroppedWithTheRegion) {
  std::memset(region_.AllocateZeroed(GetParam()), 0x5A, GetParam());
  std::memset(region_.Allocate(GetParam()), 0x5A, GetParam());
  EXPECT_EQ(region_.BlocksInUse(), 2U);
}

TEST(OmMemoryRegionZeroed, ReleasesPagesInAnyOrder) {
  OmMemoryRegion region(false);
  std::vector<void*> blocks;
  for (int i = 0; i < 5; ++i) {
    blocks.push_back(region.AllocateZeroed(300 * kKiB));
    blocks.push_back(region.Allocate(300 * kKiB));
  }
  for (const std::size_t i : {4U, 0U, 9U, 1U, 8U, 2U, 3U, 7U, 5U, 6U}) {
    OmMemoryRegion::Release(blocks[i]);
  }
  EXPECT_EQ(region.BlocksInUse(), 0U);
}

TEST(OmMemoryRegionZeroed, FailsForMoreThanThereCanBeAndLeavesTheRegionAsItWas) {
  OmMemoryRegion region(false);
  for (const std::size_t size : {SIZE_MAX, SIZE_MAX - 48, SIZE_MAX / 2}) {
    EXPECT_THROW(region.AllocateZeroed(size), std::bad_alloc);
  }
  EXPECT_EQ(region.BlocksInUse(), 0U);
}

TEST(OmMemoryRegionZeroed, AsksTheProbe) {
  const std::size_t failures = failEveryAllocation([](FailurePoint& point) {
    OmMemoryRegion region(false);
    const bool completed = point.during([&] { region.AllocateZeroed(100); });
    EXPECT_EQ(region.BlocksInUse(), completed ? 1U : 0U);
  });
  EXPECT_EQ(failures, 1U);
}

}  // namespace
}  // namespace om::test
