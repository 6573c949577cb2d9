// Seeded random requests and releases against a map of what every block must hold.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <map>
#include <memory>
#include <set>
#include <vector>

#include "external/cells/OmMemoryRegion.h"
#include "tests/support/Oracle.h"

namespace om::test {
namespace {

// Regions, and a model of all blocks that are in use in them.
class ModelledRegions {
 public:
  ModelledRegions() {
    for (std::size_t r = 0; r < kRegions; ++r) {
      regions_[r] = std::make_unique<OmMemoryRegion>(r == 2);
    }
  }
  ModelledRegions(const ModelledRegions&) = delete;
  ModelledRegions& operator=(const ModelledRegions&) = delete;

  std::size_t blocks() const { return blocks_.size(); }

  void allocate(Random& random) {
    const std::size_t r = random.below(kRegions);
    const std::size_t size = randomSize(random);
    const std::size_t before = regions_[r]->BytesInUse();
    auto* const place = static_cast<unsigned char*>(regions_[r]->Allocate(size));
    const std::size_t cost = regions_[r]->BytesInUse() - before;
    const auto fill = static_cast<unsigned char>(random.below(256));
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(place) % alignof(std::max_align_t), 0U);
    EXPECT_GE(cost, size + 8);
    EXPECT_LE(cost, size + 48);
    EXPECT_FALSE(lost_.contains(place)) << "released without reuse, and handed out again";
    std::memset(place, fill, size);

    const auto [entry, isNew] = blocks_.insert({place, {r, size, cost, fill}});
    EXPECT_TRUE(isNew) << "handed out twice";
    if (entry != blocks_.begin()) {
      const auto former = std::prev(entry);
      EXPECT_LE(former->first + former->second.size, place) << "overlaps the block before it";
    }
    const auto following = std::next(entry);
    if (following != blocks_.end()) {
      EXPECT_LE(place + size, following->first) << "overlaps the block behind it";
    }
    addresses_.push_back(place);
    counted_[r].bytes += cost;
    ++counted_[r].blocks;
    compare(r);
  }

  // REQUIRES: blocks() > 0.
  void release(Random& random) {
    std::swap(addresses_[random.below(addresses_.size())], addresses_.back());
    unsigned char* const place = addresses_.back();
    addresses_.pop_back();
    const Block block = blocks_.at(place);
    blocks_.erase(place);
    EXPECT_EQ(std::count(place, place + block.size, block.fill),
              static_cast<std::ptrdiff_t>(block.size));
    OmMemoryRegion::Release(place);
    if (!reuse_[block.region]) lost_.insert(place);
    counted_[block.region].bytes -= block.cost;
    --counted_[block.region].blocks;
    compare(block.region);
  }

  void switchReuse(Random& random) {
    const std::size_t r = random.below(kRegions);
    reuse_[r] = !reuse_[r];
    regions_[r]->WorkingRelease(reuse_[r]);
  }

  void releaseAll(Random& random) {
    while (!addresses_.empty()) release(random);
    for (const auto& region : regions_) EXPECT_EQ(region->BytesInUse(), 0U);
  }

 private:
  static constexpr std::size_t kRegions = 3;

  struct Block {
    std::size_t region;
    std::size_t size;
    std::size_t cost;
    unsigned char fill;
  };
  struct Count {
    std::size_t bytes = 0;
    std::size_t blocks = 0;
  };

  static std::size_t randomSize(Random& random) {
    if (random.oneIn(200)) return random.below(100 * 1024 + 1);
    if (random.oneIn(20)) return random.below(6000);
    return random.below(random.oneIn(2) ? 40 : 400);
  }

  void compare(std::size_t r) const {
    EXPECT_EQ(regions_[r]->BytesInUse(), counted_[r].bytes);
    EXPECT_EQ(regions_[r]->BlocksInUse(), counted_[r].blocks);
  }

  std::array<std::unique_ptr<OmMemoryRegion>, kRegions> regions_;
  std::array<Count, kRegions> counted_;
  std::array<bool, kRegions> reuse_{true, true, true};
  std::map<unsigned char*, Block> blocks_;
  std::vector<unsigned char*> addresses_;
  std::set<unsigned char*> lost_;
};

TEST(OmMemoryRegionOracle, RandomRequestsAndReleasesKeepEveryBlockIntact) {
  ModelledRegions model;
  // Grows to some 600 blocks and shrinks to few, over and over.
  bool growing = true;
  runRandomOperations(20260307, 400000, [&](Random& random) {
    if (model.blocks() < 10) growing = true;
    if (model.blocks() > 600) growing = false;
    if (model.blocks() == 0 || random.below(10) < (growing ? 6U : 4U)) {
      model.allocate(random);
    } else {
      model.release(random);
    }
  });
  Random random(1);
  model.releaseAll(random);
}

TEST(OmMemoryRegionOracle, SwitchingReuseOnAndOffKeepsEveryBlockIntact) {
  ModelledRegions model;
  runRandomOperations(77, 30000, [&](Random& random) {
    if (random.oneIn(500)) {
      model.switchReuse(random);
    } else if (model.blocks() == 0 || (model.blocks() < 300 && random.oneIn(2))) {
      model.allocate(random);
    } else {
      model.release(random);
    }
  });
  Random random(2);
  model.releaseAll(random);
}

}  // namespace
}  // namespace om::test
