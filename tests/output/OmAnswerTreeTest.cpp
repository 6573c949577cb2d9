// Answer trees: type, compressed XML with its length, and the code page that they refer to.

#include "output/OmAnswerTree.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>

#include "external/cells/OmStringCell.h"
#include "output/internal/AnswerTreeRecord.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

class ANewAnswerTree : public testing::Test {
 protected:
  const std::string codePage = "windows-1252";
  OmAnswerTree tree{OmStringCell("Z\u00FCrich"), codePage};
};

TEST_F(ANewAnswerTree, HasTypeMinusOneAndLengthZero) {
  EXPECT_EQ(tree.GetTreeType(), -1);
  EXPECT_EQ(tree.GetXmlUncompressedLength(), 0U);
}

TEST_F(ANewAnswerTree, KeepsTheTypeThatWasSetLast) {
  tree.SetTreeType(3);
  EXPECT_EQ(tree.GetTreeType(), 3);
  tree.SetTreeType(std::numeric_limits<int>::min());
  EXPECT_EQ(tree.GetTreeType(), std::numeric_limits<int>::min());
}

TEST_F(ANewAnswerTree, AppendsCompressedXmlAndKeepsTheLastLength) {
  tree.SetCompressedXML("abcd", 4, 100);
  EXPECT_EQ(tree.GetXmlUncompressedLength(), 100U);
  tree.SetCompressedXML("ef", 2, 150);
  EXPECT_EQ(tree.GetCompressedXml(), "abcdef");
  EXPECT_EQ(tree.GetXmlUncompressedLength(), 150U);
}

TEST_F(ANewAnswerTree, TakesALengthWithoutAPiece) {
  tree.SetCompressedXML("abcd", 4, 100);
  tree.SetCompressedXML(nullptr, 0, 4'000'000'000U);
  EXPECT_EQ(tree.GetCompressedXml(), "abcd");
  EXPECT_EQ(tree.GetXmlUncompressedLength(), 4'000'000'000U);
  tree.SetCompressedXML("e", 1, 0);
  EXPECT_EQ(tree.GetXmlUncompressedLength(), 0U);
}

TEST_F(ANewAnswerTree, KeepsEachFieldApart) {
  tree.SetPath("path", 4);
  tree.SetCompressedXML("zip", 3, 10);
  tree.SetUncompressedXML("<a/>", 4);
  tree.SetUncompressedDisplayXML("<b/>", 4);
  EXPECT_EQ(tree.GetPath(), "path");
  EXPECT_EQ(tree.GetCompressedXml(), "zip");
  EXPECT_EQ(tree.GetUncompressedXml(), "<a/>");
  EXPECT_EQ(tree.GetUncompressedDisplayXML(), "<b/>");
}

TEST_F(ANewAnswerTree, IsNotChangedByDone) {
  tree.SetTreeType(3);
  tree.SetPath("path", 4);
  tree.SetCompressedXML("zip", 3, 10);
  tree.Done();
  EXPECT_EQ(tree.GetTreeType(), 3);
  EXPECT_EQ(tree.GetPath(), "path");
  EXPECT_EQ(tree.GetCompressedXml(), "zip");
  EXPECT_EQ(tree.GetXmlUncompressedLength(), 10U);
  tree.SetPath("/more", 5);
  EXPECT_EQ(tree.GetPath(), "path/more");
}

TEST_F(ANewAnswerTree, RefersToTheCallersCodePage) {
  EXPECT_EQ(&internal::PartRecords::of(tree).codePage, &codePage);
  const OmAnswerTree copy(tree);
  EXPECT_EQ(&internal::PartRecords::of(copy).codePage, &codePage);
}

TEST_F(ANewAnswerTree, DoesNotPutItsLabelIntoTheCodePage) {
  EXPECT_EQ(std::string(tree.Label()), "Z\u00FCrich");
}

TEST_F(ANewAnswerTree, SharesTypeAndLengthWithItsCopy) {
  const OmAnswerTree copy(tree);
  tree.SetTreeType(3);
  tree.SetCompressedXML("zip", 3, 10);
  EXPECT_EQ(copy.GetTreeType(), 3);
  EXPECT_EQ(copy.GetXmlUncompressedLength(), 10U);
}

TEST(OmAnswerTree, KeepsTheLengthWhenAPieceCannotBeAppended) {
  const std::string codePage;
  const std::string piece(100, 'x');
  const std::size_t failures = failEveryAllocation([&](FailurePoint& point) {
    OmAnswerTree tree(OmStringCell("label"), codePage);
    tree.SetCompressedXML("ab", 2, 10);
    const bool completed = point.during([&] { tree.SetCompressedXML(piece.data(), 100, 20); });
    EXPECT_EQ(completed, !point.failed());
    EXPECT_EQ(tree.GetCompressedXml(), completed ? "ab" + piece : "ab");
    EXPECT_EQ(tree.GetXmlUncompressedLength(), completed ? 20U : 10U);
  });
  EXPECT_EQ(failures, 1U);
}

TEST(OmAnswerTree, IsMadeWholeOrNotAtAllWhenMemoryRunsOut) {
  const std::string codePage;
  const OmStringCell label("a label of more than eight characters");
  const std::size_t failures = failEveryAllocation([&](FailurePoint& point) {
    std::unique_ptr<OmAnswerTree> tree;
    const bool completed =
        point.during([&] { tree = std::make_unique<OmAnswerTree>(label, codePage); });
    EXPECT_EQ(completed, !point.failed());
    EXPECT_EQ(tree != nullptr, completed);
  });
  EXPECT_EQ(failures, 3U);  // the part, its label, its record
}

}  // namespace
}  // namespace om::test
