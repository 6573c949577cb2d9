// Amputate: what an output tree holds at a node goes, and a text block takes its place.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

#include "output/OmOutputTree.h"
#include "output/OmPageTitle.h"
#include "output/OmTextBlock.h"
#include "tests/output/PartTree.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

using Node = OmOutputTree::Node;

const OmTextBlock* blockAt(const Node& node) {
  return node.IsEnd() ? nullptr : dynamic_cast<const OmTextBlock*>(node.Item());
}

// What is left and who died, after a part was replaced by a block labelled T where T is used.
std::string amputated(const std::string& line, const std::string& name) {
  resetCounted();
  PartTree tree(line);
  const OmStringCell text("T");
  Amputate(tree.at(name), &text, "page");
  EXPECT_EQ(tree.checkInvariants(), nullptr);
  return lineOf(tree) + "; died: " + diedLine();
}

TEST(AmputateTop, TheRootIsLeftWithTheBlockAsItsOnlyChild) {
  EXPECT_EQ(amputated("r0 a1 b1 c1", "r"), "r0 [T]1; died: a b c");
}

TEST(AmputateTop, TheRootLosesWholeSubtreesEachNodeAfterWhatIsBelowIt) {
  EXPECT_EQ(amputated("r0 a1 b2 c3 d2 e1 f2", "r"), "r0 [T]1; died: c b d a f e");
}

TEST(AmputateTop, ALeafRootGetsTheBlock) { EXPECT_EQ(amputated("r0", "r"), "r0 [T]1; died: "); }

TEST(AmputateTop, ATopLevelNodeIsLeftWithTheBlockAsItsOnlyChild) {
  EXPECT_EQ(amputated("r0 a1 b2 c3 d2 e1 f2", "a"), "r0 a1 [T]2 e1 f2; died: c b d");
}

TEST(AmputateTop, TheLastTopLevelNodeGetsTheBlockAtTheEndOfTheTree) {
  EXPECT_EQ(amputated("r0 a1 b2 c1 d2", "c"), "r0 a1 b2 c1 [T]2; died: d");
}

TEST(AmputateTop, ATopLevelLeafGetsTheBlock) {
  EXPECT_EQ(amputated("r0 a1 b1 c2", "a"), "r0 a1 [T]2 b1 c2; died: ");
}

TEST(AmputateTop, NullItemsBelowTheNodeGoWithoutADeletion) {
  EXPECT_EQ(amputated("r0 a1 -2 b3 -2", "a"), "r0 a1 [T]2; died: b");
}

TEST(AmputateTop, TheNodeItselfMayHaveANullItem) {
  EXPECT_EQ(amputated("r0 -1 a2 b1", "-"), "r0 -1 [T]2 b1; died: a");
  EXPECT_EQ(amputated("-0", "-"), "-0 [T]1; died: ");
}

TEST(AmputateTop, TheOwnPartOfTheNodeStays) {
  PartTree tree("r0 a1 b1");
  const OmOutputPart* const root = tree.Root().Item();
  const OmStringCell text("T");
  Amputate(tree.Root(), &text, "page");
  EXPECT_EQ(tree.Root().Item(), root);
  EXPECT_EQ(nameOf(root), "r");
}

TEST(AmputateTop, GivesTheRecordOfTheBlockBelowTheRoot) {
  PartTree tree("r0 a1 b2");
  const OmStringCell text("T");
  const Node block = Amputate(tree.Root(), &text, "page");
  EXPECT_TRUE(block == tree.at("[T]"));
  EXPECT_EQ(block.Level(), 1);
  EXPECT_EQ(&block.Owner(), &tree);
}

TEST(AmputateTop, GivesTheRecordOfTheBlockBelowATopLevelNode) {
  PartTree tree("r0 a1 b2 c1");
  const OmStringCell text("T");
  const Node block = Amputate(tree.at("a"), &text, "page");
  EXPECT_TRUE(block == tree.at("[T]"));
  EXPECT_EQ(block.Level(), 2);
  EXPECT_TRUE(block.NextSibling() == tree.at("c"));
}

TEST(AmputateTop, TheBlockHasTheTextAsItsLabelAndTheCodePageAndNoLines) {
  OmOutputTree tree;
  const OmStringCell text("Too large to be kept");
  const OmTextBlock* const block = blockAt(Amputate(tree.Root(), &text, "windows-1252"));
  ASSERT_NE(block, nullptr);
  EXPECT_EQ(std::string(block->Label()), "Too large to be kept");
  EXPECT_EQ(block->LocaleCodePage(), "windows-1252");
  EXPECT_TRUE(block->TextList().empty());
  EXPECT_FALSE(block->IsLog());
}

TEST(AmputateTop, TheLabelOfTheBlockIsACloneOfTheText) {
  {
    OmOutputTree tree;
    const CountedText text("T");
    const Node block = Amputate(tree.Root(), &text, "page");
    EXPECT_NE(&block.Item()->Label(), &text);
    EXPECT_EQ(CountedText::live(), 2);
  }
  EXPECT_EQ(CountedText::live(), 0);
}

TEST(AmputateTop, TheTextMayBeTheLabelOfAPartThatGoes) {
  PartTree tree("r0 a1 b2 c3 d1");
  Amputate(tree.Root(), &tree.at("c").Item()->Label(), "page");
  EXPECT_EQ(lineOf(tree), "r0 [c]1");
  EXPECT_EQ(diedLine(), "c b a d");
}

TEST(AmputateTop, TheTextMayBeTheLabelOfTheNode) {
  PartTree tree("r0 a1 b2");
  const Node a = tree.at("a");
  Amputate(a, &a.Item()->Label(), "page");
  EXPECT_EQ(lineOf(tree), "r0 a1 [a]2");
}

TEST(AmputateTop, TheCodePageMayBeThatOfABlockThatGoes) {
  OmOutputTree tree;
  auto old = std::make_unique<OmTextBlock>(OmStringCell("old"), "a code page with a long name");
  const std::string& codePage = old->LocaleCodePage();
  tree.Append(tree.Root(), std::move(old));
  const OmStringCell text("T");
  const OmTextBlock* const block = blockAt(Amputate(tree.Root(), &text, codePage));
  ASSERT_NE(block, nullptr);
  EXPECT_EQ(block->LocaleCodePage(), "a code page with a long name");
}

TEST(AmputateTop, CanBeRepeated) {
  PartTree tree("r0 a1 b2");
  const OmStringCell first("T");
  const OmStringCell second("U");
  Amputate(tree.at("a"), &first, "page");
  Amputate(tree.at("a"), &second, "page");
  EXPECT_EQ(lineOf(tree), "r0 a1 [U]2");
}

TEST(AmputateDeep, ALeafIsReplacedByABlockWithItsLabel) {
  EXPECT_EQ(amputated("r0 a1 b2 c2 d2 e1", "c"), "r0 a1 b2 [c]2 d2 e1; died: c");
}

TEST(AmputateDeep, TheLastLeafIsReplacedAtTheEndOfTheTree) {
  EXPECT_EQ(amputated("r0 a1 b2", "b"), "r0 a1 [b]2; died: b");
}

TEST(AmputateDeep, ANodeIsReplacedByItsChildrenAndThenTheBlock) {
  EXPECT_EQ(amputated("r0 a1 b2 c3 d3 e2 f1", "b"), "r0 a1 c2 d2 [b]2 e2 f1; died: b");
}

TEST(AmputateDeep, TheChildrenKeepTheirSubtrees) {
  EXPECT_EQ(amputated("r0 a1 b2 c3 d4 e5 f3 g4", "b"), "r0 a1 c2 d3 e4 f2 g3 [b]2; died: b");
}

TEST(AmputateDeep, ADeeperNodeIsReplacedAtItsLevel) {
  EXPECT_EQ(amputated("r0 a1 b2 c3 d4 e3 f2", "c"), "r0 a1 b2 d3 [c]3 e3 f2; died: c");
}

TEST(AmputateDeep, NullChildrenAreLiftedLikeOthers) {
  EXPECT_EQ(amputated("r0 a1 b2 -3 c4 -3", "b"), "r0 a1 -2 c3 -2 [b]2; died: b");
}

TEST(AmputateDeep, ATextBlockIsReplacedByANewOne) {
  PartTree tree("r0 a1 [b]2");
  const Node b = tree.at("[b]");
  dynamic_cast<OmTextBlock*>(b.Item())->TextList().push_back("a line");
  const OmTextBlock* const block = blockAt(Amputate(b, nullptr, "page"));
  ASSERT_NE(block, nullptr);
  EXPECT_EQ(lineOf(tree), "r0 a1 [b]2");
  EXPECT_EQ(block->LocaleCodePage(), "page");
  EXPECT_TRUE(block->TextList().empty());
}

TEST(AmputateDeep, APageTitleIsReplacedByABlockWithoutALabel) {
  PartTree tree("r0 a1");
  const Node title = tree.Append(tree.at("a"), std::make_unique<OmPageTitle>("old page"));
  const OmTextBlock* const block = blockAt(Amputate(title, nullptr, "page"));
  ASSERT_NE(block, nullptr);
  EXPECT_EQ(dynamic_cast<const OmPageTitle*>(block), nullptr);
  EXPECT_EQ(lineOf(tree), "r0 a1 []2");
}

TEST(AmputateDeep, ForALeafGivesTheBlockWithTheLevelOfTheNode) {
  PartTree tree("r0 a1 b2 c2");
  const Node result = Amputate(tree.at("b"), nullptr, "page");
  EXPECT_TRUE(result == tree.at("[b]"));
  EXPECT_EQ(result.Level(), 2);
  EXPECT_EQ(&result.Owner(), &tree);
}

TEST(AmputateDeep, ForANodeWithChildrenGivesTheFirstOfThemWithTheLevelOfTheNode) {
  PartTree tree("r0 a1 b2 c3 d4 e4 f3");
  const Node c = tree.at("c");
  const Node f = tree.at("f");
  const Node result = Amputate(tree.at("b"), nullptr, "page");
  EXPECT_TRUE(result == c);
  EXPECT_EQ(result.Level(), 2);
  EXPECT_TRUE(result.NextSibling() == f);
}

TEST(AmputateDeep, FarBelowTheRootGivesTheLevelOfTheNode) {
  PartTree tree("r0 a1 b2 c3 d4 e5");
  const Node result = Amputate(tree.at("d"), nullptr, "page");
  EXPECT_TRUE(result == tree.at("e"));
  EXPECT_EQ(result.Level(), 4);
  EXPECT_EQ(lineOf(tree), "r0 a1 b2 c3 e4 [d]4");
}

TEST(AmputateDeep, TheBlockHasTheCodePageAndNoLines) {
  PartTree tree("r0 a1 b2");
  const OmStringCell text("T");
  const OmTextBlock* const block = blockAt(Amputate(tree.at("b"), &text, "windows-1252"));
  ASSERT_NE(block, nullptr);
  EXPECT_EQ(block->LocaleCodePage(), "windows-1252");
  EXPECT_TRUE(block->TextList().empty());
}

// The message goes into the code page's place, and the text is for the other path only.
TEST(AmputateDeep, TheTextPlaysNoPart) {
  {
    PartTree tree("r0 a1 b2");
    const CountedText text("T");
    Amputate(tree.at("b"), &text, "page");
    EXPECT_EQ(lineOf(tree), "r0 a1 [b]2");
  }
  EXPECT_EQ(CountedText::cloned(), 0);
}

TEST(AmputateDeep, TheLabelOfTheBlockIsACloneOfTheNodesLabel) {
  PartTree tree("r0 a1 b2");
  tree.at("b").Item()->Label(CountedText("B"));
  ASSERT_EQ(CountedText::live(), 1);
  const Node block = Amputate(tree.at("B"), nullptr, "page");
  EXPECT_EQ(lineOf(tree), "r0 a1 [B]2");
  EXPECT_NE(dynamic_cast<const CountedText*>(&block.Item()->Label()), nullptr);
  EXPECT_EQ(CountedText::live(), 1);
  EXPECT_EQ(CountedText::cloned(), 2);
}

TEST(AmputateDeep, TheCodePageMayBeThatOfTheBlockThatGoes) {
  PartTree tree("r0 a1");
  auto old = std::make_unique<OmTextBlock>(OmStringCell("old"), "a code page with a long name");
  const std::string& codePage = old->LocaleCodePage();
  const Node node = tree.Append(tree.at("a"), std::move(old));
  const OmTextBlock* const block = blockAt(Amputate(node, nullptr, codePage));
  ASSERT_NE(block, nullptr);
  EXPECT_EQ(block->LocaleCodePage(), "a code page with a long name");
}

TEST(AmputateDeep, ANullItemChangesNothingAndGivesTheNode) {
  PartTree tree("r0 a1 -2 b3 c2");
  const OmStringCell text("T");
  const Node node = tree.at("-");
  const Node result = Amputate(node, &text, "page");
  EXPECT_TRUE(result == node);
  EXPECT_EQ(result.Level(), 2);
  EXPECT_EQ(lineOf(tree), "r0 a1 -2 b3 c2");
  EXPECT_EQ(diedLine(), "");
}

// Flatten brought b up to level 1, but its handle still says 2: b is replaced, where a node at
// level 1 would stay. Its record's own level decides where the block comes to stand.
TEST(AmputateDeep, GoesByTheLevelThatTheHandleWasMadeWith) {
  PartTree tree("r0 a1 b2 c2");
  const Node b = tree.at("b");
  Node a = tree.at("a");
  tree.Flatten(a);
  ASSERT_EQ(lineOf(tree), "r0 a1 b1 c1");
  const OmStringCell text("T");
  const Node result = Amputate(b, &text, "page");
  EXPECT_EQ(lineOf(tree), "r0 a1 [b]1 c1");
  EXPECT_TRUE(result == tree.at("[b]"));
  EXPECT_EQ(result.Level(), 2);
}

TEST(AmputateDeep, HandlesOnTheOtherRecordsStayValid) {
  PartTree tree("r0 a1 b2 c3 d1");
  const Node c = tree.at("c");
  const Node d = tree.at("d");
  Amputate(tree.at("b"), nullptr, "page");
  EXPECT_EQ(nameOf(c.Item()) + nameOf(d.Item()), "cd");
}

TEST(Amputate, ABlockLabelledLogIsALog) {
  PartTree tree("r0 Log1 Log2");
  const OmStringCell log("Log");
  const OmTextBlock* const deep =
      blockAt(Amputate(tree.Root().FirstChild().FirstChild(), nullptr, ""));
  ASSERT_NE(deep, nullptr);
  EXPECT_TRUE(deep->IsLog());
  const OmTextBlock* const top = blockAt(Amputate(tree.Root(), &log, ""));
  ASSERT_NE(top, nullptr);
  EXPECT_TRUE(top->IsLog());
}

TEST(Amputate, TheTreeOwnsTheNewBlock) {
  const OmStringCell text("T");
  PartTree tree("r0 a1 b2");
  Amputate(tree.at("b"), nullptr, "page");
  Node block = tree.at("[b]");
  tree.Prune(block);
  Node top = Amputate(tree.at("a"), &text, "page");
  tree.Erase(top);
  EXPECT_EQ(lineOf(tree), "r0 a1");
}

}  // namespace
}  // namespace om::test
