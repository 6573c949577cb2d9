// Building when memory runs out or a text refuses to be cloned: whichever allocation fails, the
// tree is as before and can be read, added to and destroyed, and nothing is left behind.

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "tests/dimensions/DimensionText.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

const OmStringCell kCategory("a category with a long label");
const OmStringCell kGroup("a group with a long label");

std::string everything(const OmDimension& dimension) {
  return printed(dimension) + std::to_string(dimension.NumCategories());
}

// As many categories, by turns behind kCategory and before it in the order of labels, each with one
// below it.
void fill(OmDimension& dimension, std::size_t children) {
  for (std::size_t i = 0; i < children; ++i) {
    const Node child = category(dimension, dimension.Root(),
                                i % 2 == 0 ? "z" + std::to_string(i) : "A" + std::to_string(i));
    addCategory(dimension, child, "below");
  }
}

// The operation on a dimension that has so many children. Where it was refused memory, it is done
// once more, and that once it does what it should.
std::size_t expectUnchangedByFailure(std::size_t children,
                                     const std::function<void(OmDimension&)>& operation) {
  return failEveryAllocation([&](FailurePoint& point) {
    OmMemoryRegion region(false);
    {
      const DimensionOwner dimension = dimensionNamed("name", &region);
      fill(*dimension, children);
      const std::string before = everything(*dimension);
      const bool completed = point.during([&] { operation(*dimension); });
      EXPECT_NE(completed, point.failed());
      EXPECT_EQ(dimension->checkInvariants(), nullptr);
      if (!completed) {
        EXPECT_EQ(everything(*dimension), before);
        EXPECT_EQ(dimension->Root().ChildCount(), children);
        operation(*dimension);
        EXPECT_EQ(dimension->checkInvariants(), nullptr);
      }
      EXPECT_NE(everything(*dimension), before);
      EXPECT_EQ(dimension->Root().ChildCount(), children + 1);
    }
    EXPECT_EQ(region.BlocksInUse(), 0U);
  });
}

void addNew(OmDimension& dimension) {
  dimension.AddNewChild(dimension.Root(), kCategory, 1, false);
}
void addNewGroup(OmDimension& dimension) {
  dimension.AddNewChild(dimension.Root(), kGroup, kAllBits, true);
}
void childByText(OmDimension& dimension) { dimension.Child(dimension.Root(), kCategory, 1, false); }

// With no child before, and with four, the children, the index and the text each need room.
TEST(OmDimensionBuildAllocation, AddNewChildAddsAFirstChildOrNothing) {
  EXPECT_GE(expectUnchangedByFailure(0, addNew), 3U);
  EXPECT_GE(expectUnchangedByFailure(0, addNewGroup), 3U);
}

TEST(OmDimensionBuildAllocation, AddNewChildAddsAFifthChildOrNothing) {
  EXPECT_GE(expectUnchangedByFailure(4, addNew), 3U);
  EXPECT_GE(expectUnchangedByFailure(4, addNewGroup), 3U);
}

TEST(OmDimensionBuildAllocation, AddNewChildAddsASecondChildOrNothing) {
  EXPECT_GE(expectUnchangedByFailure(1, addNew), 1U);
}

TEST(OmDimensionBuildAllocation, ChildAddsAFirstChildOrNothing) {
  EXPECT_GE(expectUnchangedByFailure(0, childByText), 3U);
}

TEST(OmDimensionBuildAllocation, ChildAddsAFifthChildOrNothing) {
  EXPECT_GE(expectUnchangedByFailure(4, childByText), 3U);
}

TEST(OmDimensionBuildAllocation, ChildByNodeAddsAFifthChildOrNothing) {
  const OmDimensionNode node(kCategory, 1, false, nullptr);
  EXPECT_GE(expectUnchangedByFailure(
                4, [&](OmDimension& dimension) { dimension.Child(dimension.Root(), node); }),
            3U);
  EXPECT_EQ(std::string(*node.Text()), "a category with a long label");
}

TEST(OmDimensionBuildAllocation, ChildByNodeWithAnIndexAddsItOrNothing) {
  const DimensionOwner other = dimensionNamed("other name, and a long one");
  category(*other, other->Root(), "a");
  EXPECT_GE(
      expectUnchangedByFailure(
          4, [&](OmDimension& dimension) { dimension.Child(dimension.Root(), *other->Root()); }),
      3U);
  EXPECT_EQ(indexOf(*other->Root()), "0");
}

TEST(OmDimensionBuildAllocation, AWholeTreeIsBuiltAsFarAsMemoryAllows) {
  EXPECT_GE(failEveryAllocation([](FailurePoint& point) {
              OmMemoryRegion region(false);
              const DimensionOwner dimension = dimensionNamed("name", &region);
              std::size_t built = 0;
              const bool completed = point.during([&] {
                Node at = dimension->Root();
                for (unsigned level = 0; level < 6; ++level) {
                  at = dimension->Child(at, kGroup, kAllBits, true);
                  ++built;
                  for (unsigned i = 0; i < 5; ++i) {
                    dimension->AddNewChild(at, kCategory, i, false);
                    ++built;
                  }
                }
              });
              EXPECT_NE(completed, point.failed());
              EXPECT_EQ(dimension->checkInvariants(), nullptr);
              const std::string lines = printed(*dimension);
              std::size_t count = 0;
              for (const char c : lines) count += c == '\n' ? 1 : 0;
              EXPECT_EQ(count, built + 1);
              EXPECT_EQ(static_cast<std::size_t>(dimension->NumCategories()),
                        built - (built + 5) / 6);
            }),
            36U);
}

TEST(OmDimensionBuildAllocation, ADimensionIsMadeOrNothingIsLeft) {
  const OmDimensionNode node(OmStringCell("a name of some length"), 0, true, nullptr);
  EXPECT_GE(failEveryAllocation([&node](FailurePoint& point) {
              OmMemoryRegion region(false);
              DimensionOwner dimension;
              const bool completed =
                  point.during([&] { dimension = DimensionFactory::make(node, &region); });
              EXPECT_NE(completed, point.failed());
              EXPECT_EQ(dimension != nullptr, completed);
              EXPECT_EQ(std::string(*node.Text()), "a name of some length");
            }),
            2U);
}

// The object, seven texts, two indexes with more than one entry and more.
TEST(OmDimensionBuildAllocation, ADimensionIsCopiedOrNothingIsLeft) {
  EXPECT_GE(failEveryAllocation([](FailurePoint& point) {
              OmMemoryRegion region(false);
              const DimensionOwner dimension = dimensionNamed("name");
              fill(*dimension, 3);
              const std::string before = everything(*dimension);
              DimensionOwner copy;
              const bool completed =
                  point.during([&] { copy = DimensionFactory::copy(*dimension, &region); });
              EXPECT_NE(completed, point.failed());
              EXPECT_EQ(everything(*dimension), before);
              EXPECT_EQ(dimension->checkInvariants(), nullptr);
              if (completed) {
                EXPECT_EQ(everything(*copy), before);
              } else {
                EXPECT_EQ(region.BlocksInUse(), 0U);
              }
            }),
            16U);
}

TEST(OmDimensionBuildAllocation, AddNewChildOfATextThatIsNotClonedAddsNothing) {
  for (const std::size_t children : {0U, 1U, 4U}) {
    const DimensionOwner dimension = dimensionNamed("name");
    fill(*dimension, children);
    const std::string before = everything(*dimension);
    EXPECT_THROW(dimension->AddNewChild(dimension->Root(), UniqueText("b"), 0, false),
                 CloneRefused);
    EXPECT_EQ(everything(*dimension), before);
    EXPECT_EQ(dimension->checkInvariants(), nullptr);
  }
}

TEST(OmDimensionBuildAllocation, ChildOfATextThatIsNotClonedAddsNothing) {
  for (const std::size_t children : {0U, 1U, 4U}) {
    const DimensionOwner dimension = dimensionNamed("name");
    fill(*dimension, children);
    const std::string before = everything(*dimension);
    EXPECT_THROW(dimension->Child(dimension->Root(), UniqueText("b"), 0, false), CloneRefused);
    EXPECT_EQ(everything(*dimension), before);
    EXPECT_EQ(dimension->checkInvariants(), nullptr);
  }
}

// A string cell that is cloned while there are clones left.
class RationedText : public OmStringCell {
 public:
  explicit RationedText(const std::string& text) : OmStringCell(text) {}
  RationedText* Clone(OmMemoryRegion* region) const override {
    if (left == 0) throw CloneRefused();
    --left;
    return new (region) RationedText(*this);
  }

  static inline int left = 0;

 private:
  RationedText(const RationedText&) = default;
};

TEST(OmDimensionBuildAllocation, ACopyWhoseTextIsNotClonedLeavesNothing) {
  RationedText::left = 100;
  const DimensionOwner dimension = DimensionFactory::make(
      OmDimensionNode(RationedText("a name of some length"), 0, true, nullptr), nullptr);
  const Node inner = dimension->Child(dimension->Root(), RationedText("G"), kAllBits, true);
  dimension->Child(inner, RationedText("b"), 0, false);
  dimension->Child(inner, RationedText("a"), 1, false);
  const std::string before = everything(*dimension);
  OmMemoryRegion region(false);
  for (int clones = 0; clones < 4; ++clones) {
    RationedText::left = clones;
    EXPECT_THROW(DimensionFactory::copy(*dimension, &region), CloneRefused);
    EXPECT_EQ(region.BlocksInUse(), 0U);
    EXPECT_EQ(everything(*dimension), before);
  }
  RationedText::left = 4;
  EXPECT_EQ(everything(*DimensionFactory::copy(*dimension, &region)), before);
}

}  // namespace
}  // namespace om::test
