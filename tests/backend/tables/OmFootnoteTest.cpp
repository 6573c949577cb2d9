// OmFootnote: the texts that it owns, in its region, and its count.

#include "backend/tables/OmFootnote.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "external/cells/OmMemoryRegion.h"
#include "external/cells/OmStringCell.h"
#include "tests/support/Allocations.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

using Names = std::vector<std::string>;

static_assert(std::is_same_v<decltype(std::declval<const OmFootnote&>().Count()), std::int32_t>);

std::string stringOf(const OmCellText* text) {
  return text == nullptr ? "none" : std::string(*text);
}

std::size_t heapBlocks() { return OmMemoryRegion::DefaultHeap()->BlocksInUse(); }

TEST(OmFootnote, ClonesBothTextsIntoItsRegion) {
  OmMemoryRegion region(false);
  const CountedText text("text");
  const CountedText marker("m");
  const std::size_t heapBefore = heapBlocks();
  const OmFootnote note(&text, &marker, &region);
  EXPECT_EQ(note.Region(), &region);
  EXPECT_EQ(region.BlocksInUse(), 2U);
  EXPECT_EQ(heapBlocks(), heapBefore);
  EXPECT_EQ(CountedText::cloned(), 2);
  EXPECT_NE(note.Text(), &text);
  EXPECT_NE(note.Marker(), &marker);
  EXPECT_EQ(stringOf(note.Text()), "text");
  EXPECT_EQ(stringOf(note.Marker()), "m");
}

TEST(OmFootnote, StartsWithACountOfZero) {
  const CountedText text("text");
  EXPECT_EQ(OmFootnote(&text, nullptr, nullptr).Count(), 0);
  EXPECT_EQ(OmFootnote(nullptr, nullptr, nullptr).Count(), 0);
}

TEST(OmFootnote, ANullRegionMeansTheDefaultHeap) {
  const CountedText text("text");
  const std::size_t before = heapBlocks();
  const OmFootnote note(&text, nullptr, nullptr);
  EXPECT_EQ(note.Region(), OmMemoryRegion::DefaultHeap());
  EXPECT_EQ(heapBlocks(), before + 1);
}

TEST(OmFootnote, TextsThatAreNullStayNull) {
  const OmFootnote note(nullptr, nullptr, nullptr);
  EXPECT_EQ(note.Text(), nullptr);
  EXPECT_EQ(note.Marker(), nullptr);
}

TEST(OmFootnote, WithoutAMarkerOnlyTheTextIsMadeAndDestroyed) {
  const CountedText text("text");
  {
    const OmFootnote note(&text, nullptr, nullptr);
    EXPECT_EQ(note.Marker(), nullptr);
    EXPECT_EQ(CountedText::live(), 2);
  }
  EXPECT_EQ(CountedText::died(), (Names{"text"}));
  EXPECT_EQ(CountedText::live(), 1);
}

TEST(OmFootnote, DestroysBothTextsOnceAndGivesTheirStorageBack) {
  OmMemoryRegion region(false);
  const CountedText text("text");
  const CountedText marker("m");
  { const OmFootnote note(&text, &marker, &region); }
  EXPECT_EQ(CountedText::died().size(), 2U);
  EXPECT_EQ(CountedText::live(), 2);
  EXPECT_EQ(region.BlocksInUse(), 0U);
}

TEST(OmFootnote, OutlivesTheTextsItWasMadeFrom) {
  const OmFootnote note = [] {
    const CountedText text("text");
    const CountedText marker("m");
    return OmFootnote(&text, &marker, nullptr);
  }();
  EXPECT_EQ(stringOf(note.Text()), "text");
  EXPECT_EQ(stringOf(note.Marker()), "m");
}

TEST(OmFootnote, ATextThatIsSetReplacesTheOldOneByAClone) {
  OmMemoryRegion region(false);
  const CountedText text("old");
  const CountedText other("new");
  OmFootnote note(&text, nullptr, &region);
  note.Text(other);
  EXPECT_EQ(stringOf(note.Text()), "new");
  EXPECT_NE(note.Text(), &other);
  EXPECT_EQ(CountedText::died(), (Names{"old"}));
  EXPECT_EQ(region.BlocksInUse(), 1U);
}

TEST(OmFootnote, ATextCanBeSetInARecordWithoutOne) {
  OmMemoryRegion region(false);
  const CountedText text("text");
  OmFootnote note(nullptr, nullptr, &region);
  note.Text(text);
  EXPECT_EQ(stringOf(note.Text()), "text");
  EXPECT_EQ(region.BlocksInUse(), 1U);
}

TEST(OmFootnote, AMarkerThatIsSetReplacesTheOldOneByAClone) {
  OmMemoryRegion region(false);
  const CountedText text("text");
  const CountedText marker("old");
  const CountedText other("new");
  OmFootnote note(&text, &marker, &region);
  note.Marker(&other);
  EXPECT_EQ(stringOf(note.Marker()), "new");
  EXPECT_NE(note.Marker(), &other);
  EXPECT_EQ(stringOf(note.Text()), "text");
  EXPECT_EQ(CountedText::died(), (Names{"old"}));
  EXPECT_EQ(region.BlocksInUse(), 2U);
}

TEST(OmFootnote, AMarkerCanBeSetInARecordWithoutOne) {
  const CountedText marker("m");
  OmFootnote note(nullptr, nullptr, nullptr);
  note.Marker(&marker);
  EXPECT_EQ(stringOf(note.Marker()), "m");
}

TEST(OmFootnote, ANullMarkerRemovesTheMarker) {
  const CountedText marker("m");
  OmFootnote note(nullptr, &marker, nullptr);
  note.Marker(nullptr);
  EXPECT_EQ(note.Marker(), nullptr);
  EXPECT_EQ(CountedText::died(), (Names{"m"}));
  note.Marker(nullptr);
  EXPECT_EQ(note.Marker(), nullptr);
}

TEST(OmFootnote, ItsOwnTextsMayBeSetAgain) {
  const CountedText text("text");
  const CountedText marker("m");
  OmFootnote note(&text, &marker, nullptr);
  note.Text(*note.Text());
  EXPECT_EQ(stringOf(note.Text()), "text");
  note.Marker(note.Marker());
  EXPECT_EQ(stringOf(note.Marker()), "m");
  EXPECT_EQ(CountedText::live(), 4);
}

TEST(OmFootnote, ItsTextsMayChangePlaces) {
  const CountedText text("text");
  const CountedText marker("m");
  OmFootnote note(&text, &marker, nullptr);
  note.Text(*note.Marker());
  EXPECT_EQ(stringOf(note.Text()), "m");
  EXPECT_NE(note.Text(), note.Marker());
}

TEST(OmFootnote, ItsTextsAreReachableForWriting) {
  const CountedText text("text");
  OmFootnote note(&text, &text, nullptr);
  note.Text()->Footnotes().push_back(3);
  note.Marker()->Footnotes().push_back(4);
  const OmFootnote& constNote = note;
  EXPECT_EQ(constNote.Text()->Footnotes(), (std::vector<short>{3}));
  EXPECT_EQ(constNote.Marker()->Footnotes(), (std::vector<short>{4}));
}

TEST(OmFootnote, TheCountIsKeptAsItIsGiven) {
  OmFootnote note(nullptr, nullptr, nullptr);
  for (const std::int32_t count : {1, 0, -1, -7, std::numeric_limits<std::int32_t>::min(),
                                   std::numeric_limits<std::int32_t>::max()}) {
    note.Count(count);
    EXPECT_EQ(note.Count(), count);
  }
}

TEST(OmFootnote, ACopyHasClonesInTheRegionOfItsSourceAndTheCount) {
  OmMemoryRegion region(false);
  const CountedText text("text");
  const CountedText marker("m");
  OmFootnote note(&text, &marker, &region);
  note.Count(-3);
  const OmFootnote copy(note);
  EXPECT_EQ(copy.Region(), &region);
  EXPECT_EQ(region.BlocksInUse(), 4U);
  EXPECT_NE(copy.Text(), note.Text());
  EXPECT_NE(copy.Marker(), note.Marker());
  EXPECT_EQ(stringOf(copy.Text()), "text");
  EXPECT_EQ(stringOf(copy.Marker()), "m");
  EXPECT_EQ(copy.Count(), -3);
}

TEST(OmFootnote, ACopyKeepsTextsThatAreNull) {
  const OmFootnote note(nullptr, nullptr, nullptr);
  const OmFootnote copy(note);
  EXPECT_EQ(copy.Text(), nullptr);
  EXPECT_EQ(copy.Marker(), nullptr);
}

TEST(OmFootnote, AssignmentClonesIntoTheRegionOfItsSource) {
  OmMemoryRegion region(false);
  OmMemoryRegion other(false);
  const CountedText text("old");
  const CountedText newText("new");
  OmFootnote note(&text, &text, &region);
  OmFootnote source(&newText, nullptr, &other);
  source.Count(5);
  EXPECT_EQ(&(note = source), &note);
  EXPECT_EQ(note.Region(), &other);
  EXPECT_EQ(stringOf(note.Text()), "new");
  EXPECT_NE(note.Text(), source.Text());
  EXPECT_EQ(note.Marker(), nullptr);
  EXPECT_EQ(note.Count(), 5);
  EXPECT_EQ(region.BlocksInUse(), 0U);
  EXPECT_EQ(other.BlocksInUse(), 2U);
  EXPECT_EQ(CountedText::died(), (Names{"old", "old"}));
}

TEST(OmFootnote, AssignmentToItselfKeepsItsContent) {
  const CountedText text("text");
  const CountedText marker("m");
  OmFootnote note(&text, &marker, nullptr);
  note.Count(2);
  const OmFootnote& itself = note;
  note = itself;
  EXPECT_EQ(stringOf(note.Text()), "text");
  EXPECT_EQ(stringOf(note.Marker()), "m");
  EXPECT_EQ(note.Count(), 2);
  EXPECT_EQ(CountedText::live(), 4);
}

// A record with text "t", marker "m" and count 3, and another one with "x", "y" and 4.
template <class Operation>
std::size_t expectUnchangedByFailure(Operation operation) {
  return failEveryAllocation([&](FailurePoint& point) {
    OmMemoryRegion region(false);
    OmFootnote note(nullptr, nullptr, &region);
    note.Text(OmStringCell("t"));
    const OmStringCell marker("m");
    note.Marker(&marker);
    note.Count(3);
    const OmStringCell x("x");
    const OmStringCell y("y");
    OmFootnote other(&x, &y, nullptr);
    other.Count(4);
    const OmCellText* const textBefore = note.Text();
    const OmCellText* const markerBefore = note.Marker();
    const bool completed = point.during([&] { operation(note, other); });
    EXPECT_NE(completed, point.failed());
    if (completed) return;
    EXPECT_EQ(note.Text(), textBefore);
    EXPECT_EQ(note.Marker(), markerBefore);
    EXPECT_EQ(stringOf(note.Text()) + stringOf(note.Marker()), "tm");
    EXPECT_EQ(note.Count(), 3);
    EXPECT_EQ(note.Region(), &region);
    EXPECT_EQ(region.BlocksInUse(), 2U);
    EXPECT_EQ(stringOf(other.Text()) + stringOf(other.Marker()), "xy");
    EXPECT_EQ(other.Count(), 4);
  });
}

TEST(OmFootnote, ATextThatCannotBeClonedLeavesTheRecordAsBefore) {
  EXPECT_EQ(expectUnchangedByFailure(
                [](OmFootnote& note, const OmFootnote& other) { note.Text(*other.Text()); }),
            1U);
}

TEST(OmFootnote, AMarkerThatCannotBeClonedLeavesTheRecordAsBefore) {
  EXPECT_EQ(expectUnchangedByFailure(
                [](OmFootnote& note, const OmFootnote& other) { note.Marker(other.Marker()); }),
            1U);
}

TEST(OmFootnote, AnAssignmentThatFailsLeavesTheRecordAsBefore) {
  EXPECT_EQ(
      expectUnchangedByFailure([](OmFootnote& note, const OmFootnote& other) { note = other; }),
      2U);
}

TEST(OmFootnote, ACopyThatFailsLeavesNothingBehind) {
  EXPECT_EQ(expectUnchangedByFailure(
                [](const OmFootnote& note, const OmFootnote&) { const OmFootnote copy(note); }),
            2U);
}

TEST(OmFootnote, AConstructionThatFailsLeavesNothingBehind) {
  EXPECT_EQ(expectUnchangedByFailure([](const OmFootnote& note, const OmFootnote& other) {
              const OmFootnote made(other.Text(), other.Marker(), note.Region());
            }),
            2U);
}

}  // namespace
}  // namespace om::test
