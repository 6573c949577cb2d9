// OmCellText::endsWith: which texts may be left to the end of their region, and that such a text
// loses nothing then: what it holds outside of the region is freed as well.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "external/cells/OmComposite.h"
#include "external/cells/OmDateCell.h"
#include "external/cells/OmMemoryRegion.h"
#include "external/cells/OmMessageCell.h"
#include "external/cells/OmNumber.h"
#include "external/cells/OmStringCell.h"
#include "external/cells/OmValueCell.h"
#include "external/cells/OmVariableCell.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

using Text = std::unique_ptr<OmCellText>;

Text cloneIn(OmMemoryRegion& region, const OmCellText& text) { return Text(text.Clone(&region)); }

OmCellMetaData someMeta() {
  return {"mean", {"age", "income"}, "a note of some length, on the heap"};
}

TEST(OmCellTextEndsWith, HoldsForClonesOfStringsNumbersAndDates) {
  OmMemoryRegion region(false);
  EXPECT_TRUE(cloneIn(region, OmStringCell("short"))->endsWith(region));
  EXPECT_TRUE(cloneIn(region, OmStringCell("more than eight characters"))->endsWith(region));
  EXPECT_TRUE(cloneIn(region, OmNumber(1.5))->endsWith(region));
  EXPECT_TRUE(cloneIn(region, OmDateCell({2026, 11, 21, 0, 0, 0}))->endsWith(region));
}

TEST(OmCellTextEndsWith, HoldsForACreatedString) {
  OmMemoryRegion region(false);
  const Text text(OmStringCell::Create("more than eight characters", &region));
  EXPECT_TRUE(text->endsWith(region));
}

TEST(OmCellTextEndsWith, HoldsForTheDefaultHeapWhenNoRegionIsNamed) {
  const Text text(OmNumber(1.5).Clone(nullptr));
  EXPECT_TRUE(text->endsWith(*OmMemoryRegion::DefaultHeap()));
}

TEST(OmCellTextEndsWith, DoesNotHoldForKindsWithTextsOrStringsInside) {
  OmMemoryRegion region(false);
  EXPECT_FALSE(cloneIn(region, OmVariableCell("age", "Age in years"))->endsWith(region));
  EXPECT_FALSE(cloneIn(region, OmMessageCell(OmStringCell("{0}")))->endsWith(region));
  EXPECT_FALSE(cloneIn(region, OmComposite())->endsWith(region));
  EXPECT_FALSE(cloneIn(region, OmValueCell("1", "one"))->endsWith(region));
}

TEST(OmCellTextEndsWith, DoesNotHoldForADerivedClass) {
  OmMemoryRegion region(false);
  EXPECT_FALSE(cloneIn(region, CountedText("counted"))->endsWith(region));
}

TEST(OmCellTextEndsWith, DoesNotHoldOnTheStackOrForAnotherRegion) {
  OmMemoryRegion region(false);
  OmMemoryRegion other(false);
  EXPECT_FALSE(OmStringCell("text").endsWith(region));
  EXPECT_FALSE(cloneIn(region, OmStringCell("text"))->endsWith(other));
}

TEST(OmCellTextEndsWith, StillHoldsWithMetadataAndFootnotes) {
  OmMemoryRegion region(false);
  const Text text = cloneIn(region, OmNumber(2));
  text->setMeta(someMeta());
  text->Footnotes() = {1, 2};
  EXPECT_TRUE(text->endsWith(region));
  EXPECT_EQ(text->getMeta(), someMeta());
  EXPECT_EQ(text->Footnotes(), (std::vector<short>{1, 2}));
}

TEST(OmCellTextEndsWith, HoldsForTheCloneOfATextWithMetadata) {
  OmMemoryRegion region(false);
  OmNumber source(2);
  source.setMeta(someMeta());
  const Text text = cloneIn(region, source);
  EXPECT_TRUE(text->endsWith(region));
  EXPECT_EQ(text->getMeta(), someMeta());
}

// The harness fails the tests below if anything of the texts is left behind.

TEST(OmCellTextEndsWith, MetadataGivenLaterIsFreedWithTheRegionWithoutTheTextsDestructor) {
  OmMemoryRegion region(false);
  OmCellText* const text = OmNumber(3).Clone(&region);
  text->setMeta(someMeta());
  EXPECT_EQ(text->getMeta().statistic, "mean");
}

TEST(OmCellTextEndsWith, ClonedMetadataAndFootnotesAreFreedWithTheRegionToo) {
  OmStringCell source("source");
  source.setMeta(someMeta());
  source.Footnotes().assign(100, 7);
  OmMemoryRegion region(false);
  const OmCellText* const text = source.Clone(&region);
  EXPECT_EQ(text->Footnotes().size(), 100U);
}

TEST(OmCellTextEndsWith, MetadataIsFreedOnceWhenTheTextIsDeletedBeforeTheRegion) {
  OmMemoryRegion region(false);
  Text text = cloneIn(region, OmNumber(3));
  text->setMeta(someMeta());
  text.reset();
  EXPECT_EQ(region.BlocksInUse(), 0U);
}

TEST(OmCellTextEndsWith, ACopyOutsideOfTheRegionOutlivesIt) {
  auto region = std::make_unique<OmMemoryRegion>(false);
  OmCellText* const text = OmNumber(3).Clone(region.get());
  text->setMeta(someMeta());
  const Text copy(text->Clone(nullptr));
  region.reset();
  EXPECT_EQ(copy->getMeta(), someMeta());
  EXPECT_EQ(std::string(*copy), "3");
}

}  // namespace
}  // namespace om::test
