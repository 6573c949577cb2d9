// What the library does when it is loaded. This program supplies the common blocks itself and
// writes down who was asked for: each accessor once, in order, before the program's own code runs.

#include <gtest/gtest.h>

#include <array>
#include <cstddef>

#include "backend/LibraryEntry.h"
#include "backend/internal/CommonBlockCache.h"
#include "external/blocks/CommonBlocks.h"

namespace {

// Initialised before any code runs, as the library is entered before main.
constinit std::array<int, 100> asked{};
constinit std::size_t askedCount = 0;
constinit std::array<char, 22> blocks{};

void* give(int number) {
  if (askedCount < asked.size()) asked[askedCount] = number;
  ++askedCount;
  return &blocks[static_cast<std::size_t>(number) - 1];
}

}  // namespace

void* commonBlock01() { return give(1); }
void* commonBlock02() { return give(2); }
void* commonBlock03() { return give(3); }
void* commonBlock04() { return give(4); }
void* commonBlock05() { return give(5); }
void* commonBlock06() { return give(6); }
void* commonBlock07() { return give(7); }
void* commonBlock08() { return give(8); }
void* commonBlock09() { return give(9); }
void* commonBlock10() { return give(10); }
void* commonBlock11() { return give(11); }
void* commonBlock12() { return give(12); }
void* commonBlock13() { return give(13); }
void* commonBlock14() { return give(14); }
void* commonBlock15() { return give(15); }
void* commonBlock16() { return give(16); }
void* commonBlock17() { return give(17); }
void* commonBlock18() { return give(18); }
void* commonBlock19() { return give(19); }
void* commonBlock20() { return give(20); }
void* commonBlock21() { return give(21); }
void* commonBlock22() { return give(22); }

namespace om::test {
namespace {

TEST(LibraryLoad, AsksForEachCommonBlockOnceAndInOrder) {
  ASSERT_EQ(askedCount, 22U);
  for (std::size_t i = 0; i < 22; ++i) EXPECT_EQ(asked[i], static_cast<int>(i) + 1);
}

TEST(LibraryLoad, KeepsTheBlocksThatItWasGiven) {
  for (std::size_t i = 0; i < 22; ++i) EXPECT_EQ(om::internal::commonBlocks[i], &blocks[i]) << i;
}

TEST(LibraryLoad, KnowsItsModuleHandle) { EXPECT_NE(omModuleHandle(), nullptr); }

TEST(LibraryLoad, OtherReasonsAskForNothing) {
  const std::size_t before = askedCount;
  for (const unsigned reason : {0U, 2U, 3U}) omLibraryEntry(nullptr, reason, nullptr);
  EXPECT_EQ(askedCount, before);
}

}  // namespace
}  // namespace om::test
