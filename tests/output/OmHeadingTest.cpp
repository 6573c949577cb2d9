// Headings: their footnotes, what copies share, and what ends with them.

#include "output/OmHeading.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "external/cells/OmMemoryRegion.h"
#include "external/cells/OmStringCell.h"
#include "tests/output/Undestroyed.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

using Texts = std::vector<std::string>;

void addFootnote(OmHeading& heading, const char* text, const char* marker) {
  const CountedText textCell(text);
  const CountedText markerCell(marker);
  heading.Footnotes().emplace_back(&textCell, &markerCell, nullptr);
}

Texts sorted(Texts texts) {
  std::sort(texts.begin(), texts.end());
  return texts;
}

TEST(OmHeading, HasNoFootnotesAtFirst) {
  const OmHeading heading(OmStringCell("label"));
  EXPECT_TRUE(heading.Footnotes().empty());
  EXPECT_EQ(heading.Footnotes().capacity(), 0U);
}

TEST(OmHeading, KeepsItsFootnotesOnTheDefaultHeap) {
  const OmHeading heading(OmStringCell("label"));
  EXPECT_EQ(heading.Footnotes().region(), OmMemoryRegion::DefaultHeap());
}

TEST(OmHeading, GivesItsFootnotesThemselvesConstOrNot) {
  OmHeading heading(OmStringCell("label"));
  const OmHeading& constant = heading;
  EXPECT_EQ(&constant.Footnotes(), &heading.Footnotes());
  addFootnote(heading, "text", "a");
  ASSERT_EQ(constant.Footnotes().size(), 1U);
  EXPECT_EQ(std::string(*constant.Footnotes()[0].Text()), "text");
  EXPECT_TRUE((std::is_same_v<decltype(heading.Footnotes()), OmVector<OmFootnote>&>));
  EXPECT_TRUE((std::is_same_v<decltype(constant.Footnotes()), const OmVector<OmFootnote>&>));
}

TEST(OmHeading, HasFootnotesOfItsOwn) {
  OmHeading heading(OmStringCell("label"));
  const OmHeading other(OmStringCell("label"));
  addFootnote(heading, "text", "a");
  EXPECT_NE(&heading.Footnotes(), &other.Footnotes());
  EXPECT_TRUE(other.Footnotes().empty());
}

TEST(OmHeading, KeepsItsFootnotesWhenItsLabelIsReplaced) {
  OmHeading heading(OmStringCell("former"));
  const OmVector<OmFootnote>* const footnotes = &heading.Footnotes();
  addFootnote(heading, "text", "a");
  heading.Label(OmStringCell("label"));
  EXPECT_EQ(&heading.Footnotes(), footnotes);
  EXPECT_EQ(heading.Footnotes().size(), 1U);
}

TEST(OmHeading, DeletesEachFootnoteOnceAndThenItsLabel) {
  auto heading = std::make_unique<OmHeading>(CountedText("label"));
  addFootnote(*heading, "first", "a");
  addFootnote(*heading, "second", "b");
  resetCounted();
  heading.reset();
  const Texts died = CountedText::died();
  EXPECT_EQ(sorted(died), (Texts{"a", "b", "first", "label", "second"}));
  ASSERT_FALSE(died.empty());
  EXPECT_EQ(died.back(), "label");
  EXPECT_EQ(CountedText::live(), 0);
}

TEST(OmHeading, EndsWithFootnotesThatLackTexts) {
  auto heading = std::make_unique<OmHeading>(OmStringCell("label"));
  const CountedText marker("a");
  heading->Footnotes().emplace_back(nullptr, nullptr, nullptr);
  heading->Footnotes().emplace_back(nullptr, &marker, nullptr);
  heading.reset();
  EXPECT_EQ(CountedText::died(), Texts{"a"});
}

TEST(OmHeading, GivesTheRoomOfItsFootnotesBack) {
  const std::size_t before = OmMemoryRegion::DefaultHeap()->BlocksInUse();
  auto heading = std::make_unique<OmHeading>(OmStringCell("label"));
  heading->Footnotes().reserve(100);
  EXPECT_EQ(OmMemoryRegion::DefaultHeap()->BlocksInUse(), before + 2);
  heading.reset();
  EXPECT_EQ(OmMemoryRegion::DefaultHeap()->BlocksInUse(), before);
}

TEST(OmHeading, SharesItsFootnotesWithACopy) {
  OmHeading source(OmStringCell("label"));
  Undestroyed<OmHeading> copy(source);
  EXPECT_EQ(&copy->Footnotes(), &source.Footnotes());
  addFootnote(*copy, "text", "a");
  EXPECT_EQ(source.Footnotes().size(), 1U);
}

TEST(OmHeading, ClonesNothingForACopy) {
  OmHeading source(CountedText("label"));
  addFootnote(source, "text", "a");
  resetCounted();
  Undestroyed<OmHeading> copy(source);
  EXPECT_EQ(CountedText::made(), 0);
  EXPECT_EQ(copy->Footnotes()[0].Text(), source.Footnotes()[0].Text());
}

TEST(OmHeading, EndsWithEverythingThatItSharesWithASourceThatIsLetGoOf) {
  Undestroyed<OmHeading> source(CountedText("label"));
  addFootnote(*source, "text", "a");
  auto copy = std::make_unique<OmHeading>(*source);
  resetCounted();
  copy.reset();
  EXPECT_EQ(sorted(CountedText::died()), (Texts{"a", "label", "text"}));
  EXPECT_EQ(CountedText::live(), 0);
}

TEST(OmHeading, SharesFootnotesByAssignmentAndForgetsItsOwn) {
  OmHeading source(CountedText("label"));
  addFootnote(source, "text", "a");
  Undestroyed<OmHeading> target(CountedText("former"));
  addFootnote(*target, "former text", "f");
  const OmCellText* const formerLabel = &target->Label();
  OmVector<OmFootnote>* const formerFootnotes = &target->Footnotes();
  resetCounted();

  *target = source;
  EXPECT_EQ(&target->Footnotes(), &source.Footnotes());
  EXPECT_EQ(&target->Label(), &source.Label());
  EXPECT_EQ(CountedText::died(), Texts());
  EXPECT_EQ(CountedText::made(), 0);
  EXPECT_EQ(std::string(*formerLabel), "former");
  EXPECT_EQ(formerFootnotes->size(), 1U);

  delete formerFootnotes;
  delete formerLabel;
  EXPECT_EQ(sorted(CountedText::died()), (Texts{"f", "former", "former text"}));
}

TEST(OmHeading, KeepsItsFootnotesWhenItIsAssignedToItself) {
  OmHeading heading(OmStringCell("label"));
  addFootnote(heading, "text", "a");
  const OmVector<OmFootnote>* const footnotes = &heading.Footnotes();
  const OmHeading& itself = heading;
  heading = itself;
  EXPECT_EQ(&heading.Footnotes(), footnotes);
  EXPECT_EQ(heading.Footnotes().size(), 1U);
}

TEST(OmHeading, IsNotMadeFromALabelUnasked) {
  EXPECT_TRUE((std::is_constructible_v<OmHeading, const OmCellText&>));
  EXPECT_FALSE((std::is_convertible_v<const OmCellText&, OmHeading>));
}

}  // namespace
}  // namespace om::test
