// OmVector when memory runs out: whichever allocation fails, the vector is as before.

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <utility>

#include "backend/tables/OmFootnote.h"
#include "backend/tables/OmVector.h"
#include "external/cells/OmMemoryRegion.h"
#include "external/cells/OmStringCell.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

using Notes = OmVector<OmFootnote>;

void add(Notes& notes, const std::string& text) {
  const OmStringCell cell(text);
  notes.emplace_back(&cell, &cell, nullptr);
}

std::string textsOf(const Notes& notes) {
  std::string texts;
  for (const OmFootnote& note : notes) {
    texts += std::string(*note.Text()) + std::string(*note.Marker()) + " ";
  }
  return texts;
}

// Four footnotes in storage for four, or for more.
template <class Operation>
std::size_t expectUnchangedByFailure(std::size_t capacity, Operation operation) {
  return failEveryAllocation([&](FailurePoint& point) {
    Notes notes(nullptr, capacity);
    for (const char* const text : {"a", "b", "c", "d"}) add(notes, text);
    Notes other;
    for (const char* const text : {"x", "y"}) add(other, text);
    const OmFootnote* const storage = notes.begin();
    const bool completed = point.during([&] { operation(notes, other); });
    EXPECT_NE(completed, point.failed());
    EXPECT_EQ(notes.checkInvariants(), nullptr);
    if (completed) return;
    EXPECT_EQ(textsOf(notes), "aa bb cc dd ");
    EXPECT_EQ(textsOf(other), "xx yy ");
    EXPECT_EQ(notes.begin(), storage);
    EXPECT_EQ(notes.capacity(), capacity);
  });
}

TEST(OmVectorAllocation, ConstructionWithACapacity) {
  const std::size_t failures = failEveryAllocation([](FailurePoint& point) {
    OmMemoryRegion region(false);
    point.during([&] { const OmVector<int> vector(&region, 5); });
    EXPECT_EQ(region.BlocksInUse(), 0U);
  });
  EXPECT_EQ(failures, 1U);
}

// Each footnote allocates two texts, and the fifth of four the storage.
TEST(OmVectorAllocation, PushWhileGrowing) {
  EXPECT_EQ(expectUnchangedByFailure(
                4, [](Notes& notes, const Notes& other) { notes.push_back(other[0]); }),
            3U);
}

TEST(OmVectorAllocation, PushWithRoom) {
  EXPECT_EQ(expectUnchangedByFailure(
                5, [](Notes& notes, const Notes& other) { notes.push_back(other[0]); }),
            2U);
}

TEST(OmVectorAllocation, PushOfAnOwnElementWhileGrowing) {
  EXPECT_EQ(
      expectUnchangedByFailure(4, [](Notes& notes, const Notes&) { notes.push_back(notes[3]); }),
      3U);
}

TEST(OmVectorAllocation, EmplaceWhileGrowing) {
  EXPECT_EQ(expectUnchangedByFailure(4,
                                     [](Notes& notes, const Notes& other) {
                                       notes.emplace_back(other[0].Text(), nullptr, nullptr);
                                     }),
            2U);
}

TEST(OmVectorAllocation, InsertWhileGrowing) {
  EXPECT_EQ(expectUnchangedByFailure(
                4, [](Notes& notes, const Notes& other) { notes.insert(1, other[0]); }),
            3U);
}

TEST(OmVectorAllocation, InsertWithRoom) {
  EXPECT_EQ(expectUnchangedByFailure(
                5, [](Notes& notes, const Notes& other) { notes.insert(1, other[0]); }),
            2U);
}

TEST(OmVectorAllocation, InsertOfADetachedElementFailsOnlyForTheStorage) {
  for (const std::size_t capacity : {std::size_t{4}, std::size_t{5}}) {
    const std::size_t failures = failEveryAllocation([&](FailurePoint& point) {
      Notes notes(nullptr, capacity);
      for (const char* const text : {"a", "b", "c", "d"}) add(notes, text);
      const OmStringCell cell("x");
      Notes::Detached element(std::in_place, &cell, &cell, nullptr);
      const bool completed = point.during([&] { notes.insert(1, std::move(element)); });
      EXPECT_EQ(textsOf(notes), completed ? "aa xx bb cc dd " : "aa bb cc dd ");
      if (!completed) {
        EXPECT_EQ(std::string(*(*element).Text()), "x");
      }
    });
    EXPECT_EQ(failures, capacity == 4 ? 1U : 0U);
  }
}

TEST(OmVectorAllocation, MakeRoom) {
  EXPECT_EQ(expectUnchangedByFailure(4, [](Notes& notes, const Notes&) { notes.makeRoom(20); }),
            1U);
}

TEST(OmVectorAllocation, Reserve) {
  EXPECT_EQ(expectUnchangedByFailure(4, [](Notes& notes, const Notes&) { notes.reserve(20); }), 1U);
}

TEST(OmVectorAllocation, Assignment) {
  EXPECT_EQ(expectUnchangedByFailure(4, [](Notes& notes, const Notes& other) { notes = other; }),
            5U);
}

TEST(OmVectorAllocation, Copying) {
  EXPECT_EQ(expectUnchangedByFailure(
                4, [](const Notes& notes, const Notes&) { const Notes copy(notes); }),
            9U);
}

TEST(OmVectorAllocation, EraseAndClearAllocateNothing) {
  EXPECT_EQ(expectUnchangedByFailure(4,
                                     [](Notes& notes, const Notes&) {
                                       notes.erase(0);
                                       notes.clear();
                                     }),
            0U);
}

}  // namespace
}  // namespace om::test
