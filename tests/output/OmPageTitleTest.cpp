// Page titles: text blocks with an empty label.

#include "output/OmPageTitle.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <list>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "external/cells/OmMemoryRegion.h"
#include "external/cells/OmStringCell.h"
#include "tests/output/Undestroyed.h"
#include "tests/support/Allocations.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

using Lines = std::list<std::string>;

const char* const kCodePages[] = {"", "UTF-8", "IBM850", "Log", "a code page with a long name"};

TEST(OmPageTitle, IsATextBlock) { EXPECT_TRUE((std::is_base_of_v<OmTextBlock, OmPageTitle>)); }

TEST(OmPageTitle, HasAnEmptyLabelWhateverTheCodePage) {
  for (const char* codePage : kCodePages) {
    const OmPageTitle title(codePage);
    EXPECT_EQ(std::string(title.Label()), "") << codePage;
  }
}

TEST(OmPageTitle, HasNoLinesWhateverTheCodePage) {
  for (const char* codePage : kCodePages) EXPECT_EQ(OmPageTitle(codePage).Size(), 0U) << codePage;
}

TEST(OmPageTitle, IsNoLogWhateverTheCodePage) {
  for (const char* codePage : kCodePages) EXPECT_FALSE(OmPageTitle(codePage).IsLog()) << codePage;
}

TEST(OmPageTitle, KeepsTheCodePage) {
  for (const char* codePage : kCodePages) {
    EXPECT_EQ(OmPageTitle(codePage).LocaleCodePage(), codePage);
  }
}

TEST(OmPageTitle, IsLabelledByAStringCellThatIsNotMarkedAsUtf8) {
  const OmPageTitle title("UTF-8");
  const auto* const label = dynamic_cast<const OmStringCell*>(&title.Label());
  ASSERT_NE(label, nullptr);
  EXPECT_EQ(label->Kind(), OmCellText::STRING);
  EXPECT_FALSE(label->IsUtf8());
}

TEST(OmPageTitle, LeavesNothingButItsLabelOnTheDefaultHeap) {
  const std::size_t before = OmMemoryRegion::DefaultHeap()->BlocksInUse();
  const OmPageTitle title("UTF-8");
  EXPECT_EQ(OmMemoryRegion::DefaultHeap()->BlocksInUse(), before + 1);
}

TEST(OmPageTitle, HoldsLinesAsATextBlockDoes) {
  OmPageTitle title("UTF-8");
  title.TextList().emplace_back("Annual report");
  title.TextList().emplace_back("Page 1");
  EXPECT_EQ(title.Size(), 2U);
  EXPECT_EQ(title.TextList(), (Lines{"Annual report", "Page 1"}));
}

TEST(OmPageTitle, StaysNoLogWhenItIsLabelledLog) {
  OmPageTitle title("UTF-8");
  title.Label(OmStringCell("Log"));
  EXPECT_FALSE(title.IsLog());
}

TEST(OmPageTitle, CopiesLinesAndCodePageAndSharesTheLabel) {
  OmPageTitle source("UTF-8");
  source.TextList() = {"first", "second"};
  Undestroyed<OmPageTitle> copy(source);
  source.TextList().clear();
  EXPECT_EQ(&copy->Label(), &source.Label());
  EXPECT_EQ(copy->TextList(), (Lines{"first", "second"}));
  EXPECT_EQ(copy->LocaleCodePage(), "UTF-8");
  EXPECT_FALSE(copy->IsLog());
  copy->TextList().clear();
}

TEST(OmPageTitle, EndsWithTheLabelOfASourceThatIsLetGoOf) {
  const std::size_t before = OmMemoryRegion::DefaultHeap()->BlocksInUse();
  Undestroyed<OmPageTitle> source("UTF-8");
  auto copy = std::make_unique<OmPageTitle>(*source);
  copy.reset();
  EXPECT_EQ(OmMemoryRegion::DefaultHeap()->BlocksInUse(), before);
}

TEST(OmPageTitle, TakesLinesCodePageAndLabelByAssignment) {
  OmPageTitle source("UTF-8");
  source.TextList() = {"first", "second"};
  Undestroyed<OmPageTitle> target("IBM850");
  target->TextList() = {"former"};
  const OmCellText* const formerLabel = &target->Label();
  *target = source;
  EXPECT_EQ(&target->Label(), &source.Label());
  EXPECT_EQ(target->TextList(), (Lines{"first", "second"}));
  EXPECT_EQ(target->LocaleCodePage(), "UTF-8");
  target->TextList().clear();
  delete formerLabel;
}

TEST(OmPageTitle, KeepsItsLinesWhenItIsAssignedToItself) {
  OmPageTitle title("UTF-8");
  title.TextList() = {"first", "second"};
  const OmPageTitle& itself = title;
  title = itself;
  EXPECT_EQ(title.TextList(), (Lines{"first", "second"}));
}

TEST(OmPageTitle, IsNotMadeFromACodePageUnasked) {
  EXPECT_TRUE((std::is_constructible_v<OmPageTitle, const std::string&>));
  EXPECT_FALSE((std::is_convertible_v<const std::string&, OmPageTitle>));
}

}  // namespace
}  // namespace om::test
