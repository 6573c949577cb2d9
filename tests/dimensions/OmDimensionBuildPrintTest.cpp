// The print of a whole dimension: a line for each node, parents before children, by depth.

#include <gtest/gtest.h>

#include <ostream>
#include <streambuf>
#include <string>

#include "tests/dimensions/DimensionText.h"

namespace om::test {
namespace {

TEST(OmDimensionPrint, OfAnEmptyDimensionIsTheLineOfItsRoot) {
  EXPECT_EQ(printed(*dimensionNamed("name")),
            "Subscript: -1, Group: yes, hide: no, hideLabels: no, Text: name\n");
}

TEST(OmDimensionPrint, OfARootWithoutATextHasNone) {
  EXPECT_EQ(printed(*DimensionFactory::make(OmDimensionNode(), nullptr)),
            "Subscript: -1, Group: no, hide: no, hideLabels: no\n");
}

TEST(OmDimensionPrint, GoesThroughASubtreeBeforeTheNextSiblingAndIndentsByDepth) {
  const DimensionOwner dimension = dimensionNamed("name");
  const Node outer = addGroup(*dimension, dimension->Root(), "G");
  addCategory(*dimension, addGroup(*dimension, outer, "H"), "a", 0);
  addCategory(*dimension, outer, "b", 1);
  addCategory(*dimension, dimension->Root(), "c", 2);
  EXPECT_EQ(printed(*dimension),
            "Subscript: -1, Group: yes, hide: no, hideLabels: no, Children: 0, 1, Text: name\n"
            "  Subscript: -1, Group: yes, hide: no, hideLabels: no, Children: 0, 1, Text: G\n"
            "    Subscript: -1, Group: yes, hide: no, hideLabels: no, Children: 0, Text: H\n"
            "      Subscript: 0, Group: no, hide: no, hideLabels: no, Text: a\n"
            "    Subscript: 1, Group: no, hide: no, hideLabels: no, Text: b\n"
            "  Subscript: 2, Group: no, hide: no, hideLabels: no, Text: c\n");
}

TEST(OmDimensionPrint, FollowsTheChildrenNotTheirIndex) {
  const DimensionOwner dimension = dimensionNamed("name");
  category(*dimension, dimension->Root(), "b", 0);
  category(*dimension, dimension->Root(), "a", 1);
  EXPECT_EQ(printed(*dimension),
            "Subscript: -1, Group: yes, hide: no, hideLabels: no, Children: 1, 0, Text: name\n"
            "  Subscript: 0, Group: no, hide: no, hideLabels: no, Text: b\n"
            "  Subscript: 1, Group: no, hide: no, hideLabels: no, Text: a\n");
}

TEST(OmDimensionPrint, ShowsHiddenNodesToo) {
  const DimensionOwner dimension = dimensionNamed("name");
  const Node outer = addGroup(*dimension, dimension->Root(), "G");
  outer->Hide(true);
  addCategory(*dimension, outer, "a", 0)->Hide(true);
  EXPECT_EQ(printed(*dimension),
            "Subscript: -1, Group: yes, hide: no, hideLabels: no, Children: 0, Text: name\n"
            "  Subscript: -1, Group: yes, hide: yes, hideLabels: no, Children: 0, Text: G\n"
            "    Subscript: 0, Group: no, hide: yes, hideLabels: no, Text: a\n");
}

TEST(OmDimensionPrint, ChangesNothing) {
  OmMemoryRegion region(false);
  const DimensionOwner dimension = dimensionNamed("name", &region);
  addCategory(*dimension, dimension->Root(), "a");
  const std::size_t blocks = region.BlocksInUse();
  const std::string first = printed(*dimension);
  EXPECT_EQ(printed(*dimension), first);
  EXPECT_EQ(region.BlocksInUse(), blocks);
  EXPECT_EQ(dimension->NumCategories(), 1);
}

// Counts how often the stream is flushed.
class FlushCounter : public std::streambuf {
 public:
  FlushCounter() : former_(std::cout.rdbuf(this)) {}
  ~FlushCounter() override { std::cout.rdbuf(former_); }
  FlushCounter(const FlushCounter&) = delete;
  FlushCounter& operator=(const FlushCounter&) = delete;

  int flushes() const { return flushes_; }

 private:
  int overflow(int c) override { return c; }
  int sync() override {
    ++flushes_;
    return 0;
  }

  std::streambuf* former_;
  int flushes_ = 0;
};

TEST(OmDimensionPrint, FlushesEachLine) {
  const DimensionOwner dimension = dimensionNamed("name");
  addCategory(*dimension, addGroup(*dimension, dimension->Root(), "G"), "a");
  const FlushCounter counter;
  dimension->Print();
  EXPECT_EQ(counter.flushes(), 3);
}

}  // namespace
}  // namespace om::test
