// OmVector: the life of its elements. They are copied in once, moved bitwise, and destroyed once.

#include <gtest/gtest.h>

#include <cstddef>
#include <utility>
#include <vector>

#include "backend/tables/OmFootnote.h"
#include "backend/tables/OmVector.h"
#include "tests/backend/tables/Brittle.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

using Values = std::vector<int>;

Values valuesOf(const OmVector<Brittle>& vector) {
  Values values;
  for (const Brittle& element : vector) values.push_back(element.value());
  return values;
}

// 1, 2, 3 ... `count`, in storage for `capacity`.
struct Filled : OmVector<Brittle> {
  explicit Filled(int count, std::size_t capacity = 4) : OmVector<Brittle>(nullptr, capacity) {
    for (int i = 1; i <= count; ++i) emplace_back(i);
  }
};

TEST(OmVectorElements, AnElementIsCopiedInOnce) {
  Filled vector(2);
  const Brittle element(9);
  const long before = Brittle::copies;
  vector.push_back(element);
  EXPECT_EQ(Brittle::copies, before + 1);
  vector.insert(0, element);
  EXPECT_EQ(Brittle::copies, before + 2);
  EXPECT_EQ(valuesOf(vector), (Values{9, 1, 2, 9}));
}

TEST(OmVectorElements, AnElementIsMadeInPlaceFromItsArguments) {
  const long before = Brittle::copies;
  const Filled vector(5);
  EXPECT_EQ(Brittle::copies, before);
  EXPECT_EQ(valuesOf(vector), (Values{1, 2, 3, 4, 5}));
}

TEST(OmVectorElements, GrowthMovesBitwise) {
  Filled vector(4);
  const long copies = Brittle::copies;
  const long live = Brittle::live;
  const Deaths deaths;
  vector.reserve(100);
  EXPECT_EQ(Brittle::copies, copies);
  EXPECT_EQ(Brittle::live, live);
  EXPECT_TRUE(deaths.values().empty());
  EXPECT_EQ(valuesOf(vector), (Values{1, 2, 3, 4}));
}

TEST(OmVectorElements, TheFifthElementIsTheOnlyOneThatIsCopied) {
  Filled vector(4);
  const Brittle element(5);
  const long copies = Brittle::copies;
  const Deaths deaths;
  vector.push_back(element);
  EXPECT_EQ(Brittle::copies, copies + 1);
  EXPECT_TRUE(deaths.values().empty());
  EXPECT_EQ(valuesOf(vector), (Values{1, 2, 3, 4, 5}));
}

TEST(OmVectorElements, InsertMovesTheFollowingElementsBitwise) {
  Filled vector(3);
  const Brittle element(9);
  const long copies = Brittle::copies;
  const Deaths deaths;
  vector.insert(1, element);
  EXPECT_EQ(Brittle::copies, copies + 1);
  EXPECT_TRUE(deaths.values().empty());
  EXPECT_EQ(valuesOf(vector), (Values{1, 9, 2, 3}));
}

TEST(OmVectorElements, EraseDestroysOneElementAndMovesTheOthersBitwise) {
  Filled vector(4);
  const long copies = Brittle::copies;
  const long live = Brittle::live;
  const Deaths deaths;
  vector.erase(1);
  EXPECT_EQ(Brittle::copies, copies);
  EXPECT_EQ(Brittle::live, live - 1);
  EXPECT_EQ(deaths.values(), (Values{2}));
  EXPECT_EQ(valuesOf(vector), (Values{1, 3, 4}));
}

TEST(OmVectorElements, ClearDestroysEveryElementInOrder) {
  Filled vector(3);
  const Deaths deaths;
  vector.clear();
  EXPECT_EQ(deaths.values(), (Values{1, 2, 3}));
  EXPECT_EQ(vector.capacity(), 4U);
}

TEST(OmVectorElements, TheEndOfTheVectorDestroysEveryElementOnceAndInOrder) {
  const long live = Brittle::live;
  const Deaths deaths;
  {
    Filled vector(9);
    vector.erase(0);
  }
  EXPECT_EQ(deaths.values(), (Values{1, 2, 3, 4, 5, 6, 7, 8, 9}));
  EXPECT_EQ(Brittle::live, live);
}

TEST(OmVectorElements, NothingDiesTwiceAfterClear) {
  const Deaths deaths;
  {
    Filled vector(2);
    vector.clear();
    vector.emplace_back(7);
  }
  EXPECT_EQ(deaths.values(), (Values{1, 2, 7}));
}

TEST(OmVectorElements, AssignmentDestroysTheFormerElements) {
  Filled vector(2);
  const Filled source(3);
  const Deaths deaths;
  vector = source;
  EXPECT_EQ(deaths.values(), (Values{1, 2}));
  EXPECT_EQ(valuesOf(vector), (Values{1, 2, 3}));
}

TEST(OmVectorElements, AnElementOfItsOwnIsPushedWithRoomAndWithout) {
  for (const std::size_t capacity : {std::size_t{3}, std::size_t{4}}) {
    for (std::size_t own = 0; own < 3; ++own) {
      Filled vector(3, capacity);
      vector.push_back(vector[own]);
      Values expected{1, 2, 3};
      expected.push_back(expected[own]);
      EXPECT_EQ(valuesOf(vector), expected);
    }
  }
}

TEST(OmVectorElements, AnElementOfItsOwnIsInsertedAtEveryPositionWithRoomAndWithout) {
  for (const std::size_t capacity : {std::size_t{3}, std::size_t{4}}) {
    for (std::size_t own = 0; own < 3; ++own) {
      for (std::size_t position = 0; position <= 3; ++position) {
        Filled vector(3, capacity);
        vector.insert(position, vector[own]);
        Values expected{1, 2, 3};
        const int value = expected[own];
        expected.insert(expected.begin() + static_cast<std::ptrdiff_t>(position), value);
        EXPECT_EQ(valuesOf(vector), expected);
      }
    }
  }
}

TEST(OmVectorElements, ADetachedElementGoesInWithoutACopy) {
  for (const std::size_t capacity : {std::size_t{3}, std::size_t{4}}) {
    for (std::size_t position = 0; position <= 3; ++position) {
      Filled vector(3, capacity);
      const long copies = Brittle::copies;
      const Deaths deaths;
      {
        OmVector<Brittle>::Detached element(std::in_place, 9);
        EXPECT_EQ((*element).value(), 9);
        EXPECT_EQ(vector.insert(position, std::move(element)).value(), 9);
      }
      Values expected{1, 2, 3};
      expected.insert(expected.begin() + static_cast<std::ptrdiff_t>(position), 9);
      EXPECT_EQ(valuesOf(vector), expected);
      EXPECT_EQ(Brittle::copies, copies);
      EXPECT_TRUE(deaths.values().empty());
    }
  }
}

TEST(OmVectorElements, ADetachedElementThatNoVectorTookDies) {
  const Deaths deaths;
  { const OmVector<Brittle>::Detached element(std::in_place, 9); }
  EXPECT_EQ(deaths.values(), (Values{9}));
}

TEST(OmVectorElements, AbandonDestroysNothing) {
  Filled vector(2);
  const Deaths deaths;
  for (Brittle& element : vector) element.~Brittle();
  vector.abandon();
  EXPECT_EQ(deaths.values(), (Values{1, 2}));
  EXPECT_TRUE(vector.empty());
}

TEST(OmVectorElements, ACopyThatThrowsLeavesTheVectorAsBefore) {
  for (const std::size_t capacity : {std::size_t{3}, std::size_t{4}}) {
    Filled vector(3, capacity);
    const Brittle* const storage = vector.begin();
    const Brittle element(9);
    const long live = Brittle::live;
    EXPECT_TRUE(refusesCopy(1, [&] { vector.push_back(element); }));
    EXPECT_TRUE(refusesCopy(1, [&] { vector.insert(1, element); }));
    EXPECT_EQ(valuesOf(vector), (Values{1, 2, 3}));
    EXPECT_EQ(vector.begin(), storage);
    EXPECT_EQ(vector.capacity(), capacity);
    EXPECT_EQ(Brittle::live, live);
    EXPECT_EQ(vector.checkInvariants(), nullptr);
  }
}

TEST(OmVectorElements, ACopyOfTheVectorThatThrowsLeavesNothingBehind) {
  const Filled source(3);
  const long live = Brittle::live;
  for (const long n : {1, 2, 3}) {
    EXPECT_TRUE(refusesCopy(n, [&] { const OmVector<Brittle> copy(source); }));
    EXPECT_EQ(Brittle::live, live);
  }
  EXPECT_FALSE(refusesCopy(4, [&] { const OmVector<Brittle> copy(source); }));
}

TEST(OmVectorElements, AnAssignmentThatThrowsLeavesTheVectorAsBefore) {
  const Filled source(3);
  for (const long n : {1, 2, 3}) {
    OmVector<Brittle> vector;
    vector.emplace_back(7);
    const Brittle* const storage = vector.begin();
    EXPECT_TRUE(refusesCopy(n, [&] { vector = source; }));
    EXPECT_EQ(valuesOf(vector), (Values{7}));
    EXPECT_EQ(vector.begin(), storage);
  }
}

TEST(OmVectorElements, FootnotesMoveWithTheirTextsAndDieWithTheVector) {
  const CountedText text("t");
  const CountedText marker("m");
  {
    OmVector<OmFootnote> notes;
    notes.emplace_back(&text, &marker, nullptr);
    const OmCellText* const ownText = notes[0].Text();
    for (int i = 0; i < 20; ++i) notes.emplace_back(&text, nullptr, nullptr);
    notes.insert(0, OmFootnote(nullptr, nullptr, nullptr));
    EXPECT_EQ(notes[1].Text(), ownText);
    EXPECT_EQ(CountedText::cloned(), 22);
    notes.erase(0);
    EXPECT_EQ(notes[0].Text(), ownText);
    EXPECT_TRUE(CountedText::died().empty());
  }
  EXPECT_EQ(CountedText::died().size(), 22U);
  EXPECT_EQ(CountedText::live(), 2);
}

}  // namespace
}  // namespace om::test
