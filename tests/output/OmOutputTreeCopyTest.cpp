// OmOutputTree: copies share their parts. Of each pair of trees one is let go by List().clear().

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "output/OmOutputTree.h"
#include "tests/output/PartTree.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

std::vector<const OmOutputPart*> partsOf(const OmOutputTree& tree) {
  std::vector<const OmOutputPart*> parts;
  for (const auto& record : tree.List()) parts.push_back(record._data);
  return parts;
}

// Parts that no tree owns, and a tree that holds them until it is let go.
class Unowned {
 public:
  explicit Unowned(const std::vector<const char*>& labels) {
    for (const char* const label : labels) parts_.push_back(counted(label));
  }
  void fill(OmOutputTree& tree) const {
    delete tree.Root().Item();
    tree.List().clear();
    for (const auto& part : parts_) tree.List().push_back({part.get(), tree.Size() == 0 ? 0 : 1});
  }

 private:
  std::vector<std::unique_ptr<OmOutputPart>> parts_;
};

TEST(OmOutputTreeCopy, HoldsTheSamePartsAtTheSameLevels) {
  const PartTree source("r0 a1 -2 b1");
  OmOutputTree copy(source);
  EXPECT_EQ(partsOf(copy), partsOf(source));
  EXPECT_EQ(lineOf(copy), "r0 a1 -2 b1");
  EXPECT_TRUE(copy == source);
  EXPECT_EQ(CountedPart::live(), 3);
  copy.List().clear();
}

TEST(OmOutputTreeCopy, OneOfTheTwoDeletesThePartsOnce) {
  {
    PartTree source("r0 a1 b2");
    const OmOutputTree copy(source);
    source.List().clear();
  }
  EXPECT_EQ(diedLine(), "r a b");
}

TEST(OmOutputTreeCopy, HasRecordsOfItsOwn) {
  PartTree source("r0 a1 b2");
  OmOutputTree copy(source);
  OmOutputTree::Node a = copy.Root().FirstChild();
  copy.Flatten(a);
  copy.ListTree::Erase(a);
  EXPECT_EQ(lineOf(copy), "r0 b1");
  EXPECT_EQ(lineOf(source), "r0 a1 b2");
  copy.List().clear();
}

TEST(OmOutputTreeCopy, SharesAChangeToAPart) {
  PartTree source("r0 a1");
  OmOutputTree copy(source);
  source.at("a").Item()->Label(OmStringCell("b"));
  EXPECT_EQ(lineOf(copy), "r0 b1");
  copy.List().clear();
}

TEST(OmOutputTreeCopy, OfAnEmptyTreeIsEmpty) {
  const PartTree source("");
  const OmOutputTree copy(source);
  EXPECT_EQ(copy.Size(), 0);
}

TEST(OmOutputTreeAssign, HoldsThePartsOfTheOtherTree) {
  const PartTree source("s0 x1 y2");
  const Unowned held({"r", "a"});
  OmOutputTree target;
  held.fill(target);
  OmOutputTree& result = (target = source);
  EXPECT_EQ(&result, &target);
  EXPECT_EQ(partsOf(target), partsOf(source));
  EXPECT_EQ(lineOf(target), "s0 x1 y2");
  target.List().clear();
}

TEST(OmOutputTreeAssign, DoesNotDeleteThePartsThatWereHeld) {
  const Unowned held({"r", "a", "b", "c"});
  {
    OmOutputTree target;
    held.fill(target);
    OmOutputTree source;
    target = source;
    EXPECT_EQ(lineOf(target), "Output0");
    source.List().clear();
  }
  EXPECT_EQ(diedLine(), "");
  EXPECT_EQ(CountedPart::live(), 4);
}

TEST(OmOutputTreeAssign, OneOfTheTwoDeletesThePartsOnce) {
  {
    PartTree target("");
    PartTree source("r0 a1 b2");
    static_cast<OmOutputTree&>(target) = source;
    source.List().clear();
  }
  EXPECT_EQ(diedLine(), "r a b");
}

TEST(OmOutputTreeAssign, ToItselfHasNoEffect) {
  PartTree tree("r0 a1 b2");
  OmOutputTree& itself = tree;
  const auto before = partsOf(tree);
  EXPECT_EQ(&(itself = static_cast<const OmOutputTree&>(tree)), &itself);
  EXPECT_EQ(partsOf(tree), before);
  EXPECT_EQ(diedLine(), "");
}

TEST(OmOutputTreeCompare, TreesOfDifferentPartsWithTheSameLabelsDiffer) {
  const PartTree first("r0 a1");
  const PartTree second("r0 a1");
  EXPECT_TRUE(first != second);
}

TEST(OmOutputTreeCompare, TheSamePartsAtOtherLevelsDiffer) {
  const PartTree first("r0 a1 b1");
  OmOutputTree second(first);
  second.List().back()._level = 2;
  EXPECT_TRUE(first != second);
  EXPECT_TRUE(first < second);
  second.List().clear();
}

TEST(OmOutputTreeCompare, ATreeIsLessThanALongerOneThatStartsWithItsRecords) {
  PartTree longer("r0 a1 b1");
  OmOutputTree shorter(longer);
  shorter.List().pop_back();
  EXPECT_TRUE(shorter < longer);
  EXPECT_FALSE(longer < shorter);
  shorter.List().clear();
}

}  // namespace
}  // namespace om::test
