// The twenty-two common blocks of the process.

#include "external/blocks/CommonBlocks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace om::test {
namespace {

using Accessor = void* (*)();

constexpr std::array<Accessor, 22> kAccessors{
    commonBlock01, commonBlock02, commonBlock03, commonBlock04, commonBlock05, commonBlock06,
    commonBlock07, commonBlock08, commonBlock09, commonBlock10, commonBlock11, commonBlock12,
    commonBlock13, commonBlock14, commonBlock15, commonBlock16, commonBlock17, commonBlock18,
    commonBlock19, commonBlock20, commonBlock21, commonBlock22};

bool holdsOnly(const void* block, unsigned char value) {
  const auto* const bytes = static_cast<const unsigned char*>(block);
  return std::all_of(bytes, bytes + kBytesOfCommonBlock,
                     [value](unsigned char byte) { return byte == value; });
}

// What a block held before any code of this program ran.
const bool zeroBeforeMain = holdsOnly(commonBlock01(), 0) && holdsOnly(commonBlock22(), 0);

TEST(CommonBlocks, MayBeAskedForBeforeMain) { EXPECT_TRUE(zeroBeforeMain); }

TEST(CommonBlocks, AreZeroAtTheStart) {
  for (const Accessor accessor : kAccessors) EXPECT_TRUE(holdsOnly(accessor(), 0));
}

TEST(CommonBlocks, StandAtLeastTheirSizeApart) {
  std::vector<std::uintptr_t> addresses;
  for (const Accessor accessor : kAccessors) {
    addresses.push_back(reinterpret_cast<std::uintptr_t>(accessor()));
  }
  std::sort(addresses.begin(), addresses.end());
  EXPECT_NE(addresses.front(), 0U);
  for (std::size_t i = 1; i < addresses.size(); ++i) {
    EXPECT_GE(addresses[i] - addresses[i - 1], kBytesOfCommonBlock);
  }
}

TEST(CommonBlocks, AreTheSameAtEachCall) {
  for (const Accessor accessor : kAccessors) EXPECT_EQ(accessor(), accessor());
}

TEST(CommonBlocks, KeepWhatIsWrittenToThem) {
  for (std::size_t i = 0; i < kAccessors.size(); ++i) {
    std::memset(kAccessors[i](), static_cast<int>(i + 1), kBytesOfCommonBlock);
  }
  for (std::size_t i = 0; i < kAccessors.size(); ++i) {
    EXPECT_TRUE(holdsOnly(kAccessors[i](), static_cast<unsigned char>(i + 1)));
  }
  for (const Accessor accessor : kAccessors) std::memset(accessor(), 0, kBytesOfCommonBlock);
}

}  // namespace
}  // namespace om::test
