// Text blocks: their lines, which of them are logs, and what copies share.

#include "output/OmTextBlock.h"

#include <gtest/gtest.h>

#include <list>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "external/cells/OmComposite.h"
#include "external/cells/OmNumber.h"
#include "external/cells/OmStringCell.h"
#include "tests/output/Undestroyed.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

using Lines = std::list<std::string>;

bool isLog(const OmCellText& label) { return OmTextBlock(label, "UTF-8").IsLog(); }
bool isLog(const std::string& label) { return isLog(OmStringCell(label)); }

TEST(OmTextBlock, HasNoLinesAtFirst) {
  const OmTextBlock block(OmStringCell("label"), "UTF-8");
  EXPECT_EQ(block.Size(), 0U);
  EXPECT_TRUE(block.TextList().empty());
}

TEST(OmTextBlock, CountsTheLinesThatAreAppendedToItsList) {
  OmTextBlock block(OmStringCell("label"), "UTF-8");
  block.TextList().emplace_back("first line");
  block.TextList().emplace_back("second line");
  EXPECT_EQ(block.Size(), 2U);
  EXPECT_EQ(block.TextList(), (Lines{"first line", "second line"}));
  block.TextList().clear();
  EXPECT_EQ(block.Size(), 0U);
}

TEST(OmTextBlock, KeepsEmptyAndRepeatedLinesAndEndsOfLines) {
  OmTextBlock block(OmStringCell("label"), "UTF-8");
  block.TextList() = {"", "twice", "twice", "a\nb", ""};
  EXPECT_EQ(block.Size(), 5U);
  EXPECT_EQ(block.TextList(), (Lines{"", "twice", "twice", "a\nb", ""}));
}

TEST(OmTextBlock, GivesItsListItselfConstOrNot) {
  OmTextBlock block(OmStringCell("label"), "UTF-8");
  const OmTextBlock& constant = block;
  EXPECT_EQ(&constant.TextList(), &block.TextList());
  EXPECT_TRUE((std::is_same_v<decltype(block.TextList()), Lines&>));
  EXPECT_TRUE((std::is_same_v<decltype(constant.TextList()), const Lines&>));
}

TEST(OmTextBlock, CountsIn64Bits) {
  EXPECT_TRUE((std::is_same_v<decltype(std::declval<const OmTextBlock&>().Size()),  //
                              unsigned long long>));
  EXPECT_EQ(sizeof(unsigned long long), 8U);
}

TEST(OmTextBlock, KeepsTheCodePage) {
  std::string codePage = "a code page with a long name";
  const OmTextBlock block(OmStringCell("label"), codePage);
  codePage = "another one";
  EXPECT_EQ(block.LocaleCodePage(), "a code page with a long name");
}

TEST(OmTextBlock, KeepsAnEmptyCodePage) {
  EXPECT_EQ(OmTextBlock(OmStringCell("label"), "").LocaleCodePage(), "");
}

TEST(OmTextBlock, GivesTheCodePageItself) {
  const OmTextBlock block(OmStringCell("label"), "UTF-8");
  EXPECT_EQ(&block.LocaleCodePage(), &block.LocaleCodePage());
  EXPECT_TRUE((std::is_same_v<decltype(block.LocaleCodePage()), const std::string&>));
}

TEST(OmTextBlock, IsALogWhenItsLabelIsLog) { EXPECT_TRUE(isLog("Log")); }

TEST(OmTextBlock, IsNoLogWhenItsLabelDiffersInCase) {
  EXPECT_FALSE(isLog("log"));
  EXPECT_FALSE(isLog("LOG"));
  EXPECT_FALSE(isLog("LoG"));
}

TEST(OmTextBlock, IsNoLogWhenItsLabelDiffersInLength) {
  EXPECT_FALSE(isLog(""));
  EXPECT_FALSE(isLog("Lo"));
  EXPECT_FALSE(isLog("Log "));
  EXPECT_FALSE(isLog(" Log"));
  EXPECT_FALSE(isLog("Logs"));
  EXPECT_FALSE(isLog(std::string("Log\0", 4)));
}

TEST(OmTextBlock, IsNoLogWhenItsLabelIsANumber) { EXPECT_FALSE(isLog(OmNumber(3))); }

TEST(OmTextBlock, IsALogWhenALabelOfAnyKindReadsLog) {
  OmComposite label;
  label.Append(OmStringCell("Log"));
  EXPECT_TRUE(isLog(label));
  EXPECT_TRUE(isLog(OmStringCell("Log", nullptr, false)));
}

TEST(OmTextBlock, StaysALogWhenItsLabelIsReplaced) {
  OmTextBlock block(OmStringCell("Log"), "UTF-8");
  block.Label(OmStringCell("label"));
  EXPECT_TRUE(block.IsLog());
}

TEST(OmTextBlock, BecomesNoLogWhenItsLabelIsReplaced) {
  OmTextBlock block(OmStringCell("label"), "UTF-8");
  block.Label(OmStringCell("Log"));
  EXPECT_FALSE(block.IsLog());
}

TEST(OmTextBlock, IsALogWhateverTheCodePage) {
  EXPECT_TRUE(OmTextBlock(OmStringCell("Log"), "").IsLog());
  EXPECT_FALSE(OmTextBlock(OmStringCell("label"), "Log").IsLog());
}

TEST(OmTextBlock, CopiesItsLines) {
  OmTextBlock source(OmStringCell("label"), "UTF-8");
  source.TextList() = {"first", "second"};
  Undestroyed<OmTextBlock> copy(source);
  EXPECT_NE(&copy->TextList(), &source.TextList());
  EXPECT_EQ(copy->TextList(), (Lines{"first", "second"}));

  copy->TextList().emplace_back("third");
  source.TextList().clear();
  EXPECT_EQ(source.Size(), 0U);
  EXPECT_EQ(copy->TextList(), (Lines{"first", "second", "third"}));
  copy->TextList().clear();
}

TEST(OmTextBlock, CopiesItsCodePage) {
  const OmTextBlock source(OmStringCell("label"), "UTF-8");
  Undestroyed<OmTextBlock> copy(source);
  EXPECT_EQ(copy->LocaleCodePage(), "UTF-8");
  EXPECT_NE(&copy->LocaleCodePage(), &source.LocaleCodePage());
}

TEST(OmTextBlock, CopiesWhetherItIsALogAndNotWhatItsLabelReadsNow) {
  OmTextBlock log(OmStringCell("Log"), "UTF-8");
  OmTextBlock other(OmStringCell("label"), "UTF-8");
  log.Label(OmStringCell("label"));
  other.Label(OmStringCell("Log"));
  Undestroyed<OmTextBlock> copyOfLog(log);
  Undestroyed<OmTextBlock> copyOfOther(other);
  EXPECT_TRUE(copyOfLog->IsLog());
  EXPECT_FALSE(copyOfOther->IsLog());
}

TEST(OmTextBlock, EndsWithTheLabelOfASourceThatIsLetGoOf) {
  Undestroyed<OmTextBlock> source(CountedText("label"), "UTF-8");
  auto copy = std::make_unique<OmTextBlock>(*source);
  resetCounted();
  copy.reset();
  EXPECT_EQ(CountedText::died(), std::vector<std::string>{"label"});
  EXPECT_EQ(CountedText::live(), 0);
}

TEST(OmTextBlock, TakesLinesFlagAndCodePageByAssignment) {
  OmTextBlock source(OmStringCell("Log"), "UTF-8");
  source.TextList() = {"first", "second"};
  Undestroyed<OmTextBlock> target(OmStringCell("former"), "IBM850");
  target->TextList() = {"a", "b", "c"};
  const OmCellText* const formerLabel = &target->Label();
  *target = source;
  EXPECT_EQ(&target->Label(), &source.Label());
  EXPECT_EQ(target->TextList(), (Lines{"first", "second"}));
  EXPECT_TRUE(target->IsLog());
  EXPECT_EQ(target->LocaleCodePage(), "UTF-8");

  source.TextList().clear();
  EXPECT_EQ(target->Size(), 2U);
  target->TextList().clear();
  delete formerLabel;
}

TEST(OmTextBlock, KeepsItsLinesWhenItIsAssignedToItself) {
  OmTextBlock block(OmStringCell("Log"), "UTF-8");
  block.TextList() = {"first", "second"};
  const std::string* const first = &block.TextList().front();
  const OmTextBlock& itself = block;
  block = itself;
  EXPECT_EQ(block.TextList(), (Lines{"first", "second"}));
  EXPECT_EQ(&block.TextList().front(), first);
  EXPECT_TRUE(block.IsLog());
  EXPECT_EQ(block.LocaleCodePage(), "UTF-8");
}

}  // namespace
}  // namespace om::test
