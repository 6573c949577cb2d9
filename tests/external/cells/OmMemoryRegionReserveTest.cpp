// Chunks that outlive their regions and serve later ones.

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstring>
#include <set>
#include <thread>
#include <vector>

#include "external/cells/OmMemoryRegion.h"

namespace om::test {
namespace {

constexpr std::size_t kMiB = std::size_t{1024} * 1024;
constexpr std::size_t kUsualLimit = 256 * kMiB;
constexpr std::size_t kBlockBytes = 30000;

// Begins with nothing in the reserve and leaves nothing in it.
class OmMemoryRegionReserve : public testing::Test {
 protected:
  OmMemoryRegionReserve() : former_(OmMemoryRegion::SetReserveLimit(0)) {
    OmMemoryRegion::SetReserveLimit(former_);
  }
  ~OmMemoryRegionReserve() override {
    OmMemoryRegion::SetReserveLimit(0);
    OmMemoryRegion::SetReserveLimit(former_);
  }

 private:
  std::size_t former_;
};

// Fills a region with about 9 MiB, checks what it holds, ends it, and gives the blocks it had; none
// when the content was not what had been written.
std::set<void*> useARegion(int fill) {
  OmMemoryRegion region(false);
  std::set<void*> blocks;
  for (int i = 0; i < 300; ++i) {
    void* const block = region.Allocate(kBlockBytes);
    std::memset(block, fill, kBlockBytes);
    blocks.insert(block);
  }
  const bool intact = std::all_of(blocks.begin(), blocks.end(), [fill](const void* block) {
    const auto* const bytes = static_cast<const unsigned char*>(block);
    return std::count(bytes, bytes + kBlockBytes, static_cast<unsigned char>(fill)) ==
           static_cast<std::ptrdiff_t>(kBlockBytes);
  });
  return intact && blocks.size() == 300 ? blocks : std::set<void*>();
}

TEST_F(OmMemoryRegionReserve, KeepsUpTo256MiBUnlessToldOtherwise) {
  EXPECT_EQ(OmMemoryRegion::SetReserveLimit(5), kUsualLimit);
  EXPECT_EQ(OmMemoryRegion::SetReserveLimit(0), 5U);
  EXPECT_EQ(OmMemoryRegion::SetReserveLimit(kUsualLimit), 0U);
}

TEST_F(OmMemoryRegionReserve, ALaterRegionTakesOverTheStorageOfAnEarlierOne) {
  const std::set<void*> earlier = useARegion(1);
  const std::set<void*> later = useARegion(2);
  ASSERT_EQ(earlier.size(), 300U);
  ASSERT_EQ(later.size(), 300U);
  // All but the blocks in the short chunks that every region begins with.
  const auto taken = std::count_if(later.begin(), later.end(),
                                   [&](void* block) { return earlier.contains(block); });
  EXPECT_GE(taken, 200);
}

TEST_F(OmMemoryRegionReserve, RegionsWorkWithoutAReserve) {
  OmMemoryRegion::SetReserveLimit(0);
  for (int fill = 1; fill <= 3; ++fill) EXPECT_EQ(useARegion(fill).size(), 300U);
}

TEST_F(OmMemoryRegionReserve, RegionsWorkWhenItIsEmptiedWhileTheyAreInUse) {
  EXPECT_EQ(useARegion(1).size(), 300U);
  OmMemoryRegion region(false);
  std::vector<unsigned char*> blocks;
  for (int i = 0; i < 300; ++i) {
    if (i == 150) OmMemoryRegion::SetReserveLimit(kMiB);
    blocks.push_back(static_cast<unsigned char*>(region.Allocate(kBlockBytes)));
    std::memset(blocks.back(), i % 251, kBlockBytes);
  }
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    EXPECT_EQ(std::count(blocks[i], blocks[i] + kBlockBytes, static_cast<unsigned char>(i % 251)),
              static_cast<std::ptrdiff_t>(kBlockBytes));
  }
}

TEST_F(OmMemoryRegionReserve, ServesRegionsOfSeveralThreadsAtOnce) {
  std::atomic<int> damaged{0};
  std::vector<std::thread> threads;
  for (int t = 0; t < 4; ++t) {
    threads.emplace_back([t, &damaged] {
      for (int i = 0; i < 10; ++i) {
        if (useARegion(10 * t + i).empty()) ++damaged;
        if (t == 0) OmMemoryRegion::SetReserveLimit(i % 2 == 0 ? 4 * kMiB : kUsualLimit);
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(damaged, 0);
}

}  // namespace
}  // namespace om::test
