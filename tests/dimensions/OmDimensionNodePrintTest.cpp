// The line that a node prints.

#include <gtest/gtest.h>

#include <iostream>
#include <sstream>
#include <string>

#include "external/cells/OmNumber.h"
#include "tests/dimensions/DimensionText.h"

namespace om::test {
namespace {

TEST(OmDimensionNodePrint, OfANodeMadeOfARegion) {
  OmMemoryRegion region(false);
  EXPECT_EQ(printed(OmDimensionNode(&region)),
            "Subscript: -1, Group: no, hide: no, hideLabels: no\n");
}

TEST(OmDimensionNodePrint, OfACategory) {
  EXPECT_EQ(printed(OmDimensionNode(OmStringCell("Male"), 3, false, nullptr)),
            "Subscript: 3, Group: no, hide: no, hideLabels: no, Text: Male\n");
}

TEST(OmDimensionNodePrint, OfAnEmptyText) {
  EXPECT_EQ(printed(OmDimensionNode(OmStringCell(""), 0, false, nullptr)),
            "Subscript: 0, Group: no, hide: no, hideLabels: no, Text: \n");
}

TEST(OmDimensionNodePrint, OfAGroup) {
  EXPECT_EQ(printed(OmDimensionNode(OmStringCell("Total"), 3, true, nullptr)),
            "Subscript: 3, Group: yes, hide: no, hideLabels: no, Text: Total\n");
}

TEST(OmDimensionNodePrint, OfAHiddenNode) {
  OmDimensionNode node;
  node.Hide(true);
  EXPECT_EQ(printed(node), "Subscript: -1, Group: no, hide: yes, hideLabels: no\n");
}

TEST(OmDimensionNodePrint, OfANodeWithHiddenLabels) {
  OmDimensionNode node;
  node.HideLabels(true);
  EXPECT_EQ(printed(node), "Subscript: -1, Group: no, hide: no, hideLabels: yes\n");
}

TEST(OmDimensionNodePrint, OfASortUpAndDown) {
  OmDimensionNode node(OmStringCell("a"), 0, false, nullptr);
  node.Sort(OmSort::UP);
  EXPECT_EQ(printed(node),
            "Subscript: 0, Group: no, hide: no, hideLabels: no, Sort: up, Text: a\n");
  node.Sort(OmSort::DOWN);
  EXPECT_EQ(printed(node),
            "Subscript: 0, Group: no, hide: no, hideLabels: no, Sort: down, Text: a\n");
}

TEST(OmDimensionNodePrint, OfAnyOtherSortSaysNothing) {
  OmDimensionNode node;
  for (const int order : {2, 3, -1}) {
    node.Sort(static_cast<OmSort::Order>(order));
    EXPECT_EQ(printed(node), "Subscript: -1, Group: no, hide: no, hideLabels: no\n") << order;
  }
}

TEST(OmDimensionNodePrint, ShowsTheLowBitsOfTheSubscriptAsASignedNumber) {
  struct Case {
    unsigned long long subscript;
    const char* shown;
  };
  OmDimensionNode node;
  for (const Case& each : {Case{0x7FFFFFFFULL, "2147483647"}, Case{0x80000000ULL, "-2147483648"},
                           Case{0xFFFFFFFFULL, "-1"}, Case{0xFFFFFFFEULL, "-2"},
                           Case{0x100000005ULL, "5"}, Case{~0ULL - 1, "-2"}}) {
    node.Subscript(each.subscript);
    EXPECT_EQ(printed(node),
              std::string("Subscript: ") + each.shown + ", Group: no, hide: no, hideLabels: no\n");
  }
}

TEST(OmDimensionNodePrint, ListsTheIndexInItsOrder) {
  const DimensionOwner dimension = dimensionNamed("Sex");
  for (const char* const label : {"c", "a", "b"}) category(*dimension, dimension->Root(), label);
  EXPECT_EQ(printed(*dimension->Root()),
            "Subscript: -1, Group: yes, hide: no, hideLabels: no, Children: 1, 2, 0, Text: Sex\n");
}

TEST(OmDimensionNodePrint, ListsAnIndexOfOne) {
  const DimensionOwner dimension = dimensionNamed("Sex");
  category(*dimension, dimension->Root(), "a");
  dimension->Root()->Sort(OmSort::UP);
  EXPECT_EQ(printed(*dimension->Root()),
            "Subscript: -1, Group: yes, hide: no, hideLabels: no, Sort: up, Children: 0, "
            "Text: Sex\n");
}

TEST(OmDimensionNodePrint, IndentsByTwoBlanksAStep) {
  const OmDimensionNode node(OmStringCell("a"), 0, false, nullptr);
  EXPECT_EQ(printed(node, 1), "  Subscript: 0, Group: no, hide: no, hideLabels: no, Text: a\n");
  EXPECT_EQ(printed(node, 3), "      Subscript: 0, Group: no, hide: no, hideLabels: no, Text: a\n");
}

TEST(OmDimensionNodePrint, LetsTheTextPrintItself) {
  const OmDimensionNode node(OmNumber(1234.5, {2, false, true}), 0, false, nullptr);
  EXPECT_EQ(printed(node), "Subscript: 0, Group: no, hide: no, hideLabels: no, Text: 1,234.50\n");
}

// A buffer that remembers how much had been written when it was last flushed.
class FlushedBuffer : public std::stringbuf {
 public:
  std::size_t flushed = 0;

 private:
  int sync() override {
    flushed = str().size();
    return 0;
  }
};

TEST(OmDimensionNodePrint, FlushesBehindTheEndOfTheLine) {
  FlushedBuffer buffer;
  std::streambuf* const former = std::cout.rdbuf(&buffer);
  OmDimensionNode().Print(0);
  std::cout.rdbuf(former);
  EXPECT_EQ(buffer.flushed, sizeof("Subscript: -1, Group: no, hide: no, hideLabels: no\n") - 1);
}

}  // namespace
}  // namespace om::test
