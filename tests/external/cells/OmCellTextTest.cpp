// What holds for a text of any kind.

#include "external/cells/OmCellText.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "external/cells/OmMemoryRegion.h"
#include "external/platform/icuTracker.h"
#include "tests/external/cells/Samples.h"
#include "tests/support/StandardOutput.h"

namespace om::test {
namespace {

class EachKind : public testing::TestWithParam<Sample> {
 protected:
  static TextOwner make(OmMemoryRegion* region = nullptr) { return GetParam().make(region); }
};

std::string nameOf(const testing::TestParamInfo<Sample>& info) { return info.param.name; }

INSTANTIATE_TEST_SUITE_P(OmCellText, EachKind, testing::ValuesIn(kSamples), nameOf);

TEST_P(EachKind, HasItsStringForm) { EXPECT_EQ(std::string(*make()), GetParam().text); }

TEST_P(EachKind, HasTheSizeOfItsStringForm) {
  EXPECT_EQ(make()->Size(), std::string(GetParam().text).size());
}

TEST_P(EachKind, HasItsCode) { EXPECT_EQ(make()->Kind(), GetParam().kind); }

TEST_P(EachKind, ComparesAsEqualWithItself) {
  const TextOwner text = make();
  EXPECT_EQ(text->Compare(*text), 0);
}

// Writes down every visit as the kind's code and the text's address.
class VisitRecorder : public OmCellText::Visitor {
 public:
  using Visits = std::vector<std::pair<int, const OmCellText*>>;

  void Visit(OmMessageCell& text) override { visits.emplace_back(0, &text); }
  void Visit(OmStringCell& text) override { visits.emplace_back(1, &text); }
  void Visit(OmNumber& text) override { visits.emplace_back(2, &text); }
  void Visit(OmVariableCell& text) override { visits.emplace_back(3, &text); }
  void Visit(OmValueCell& text) override { visits.emplace_back(4, &text); }
  void Visit(OmDateCell& text) override { visits.emplace_back(5, &text); }
  void Visit(OmComposite& text) override { visits.emplace_back(6, &text); }

  Visits visits;
};

TEST_P(EachKind, AsksForExactlyTheVisitOfItsKind) {
  const TextOwner text = make();
  VisitRecorder recorder;
  text->Accept(recorder);
  EXPECT_EQ(recorder.visits, (VisitRecorder::Visits{{GetParam().kind, text.get()}}));
}

TEST_P(EachKind, PrintsItselfBehindTwoBlanksForEachIndent) {
  const TextOwner text = make();
  const StandardOutput output;
  text->Print(3);
  EXPECT_EQ(output.text(), "      " + std::string(GetParam().text));
}

TEST_P(EachKind, PrintsNothingButItselfWithoutAnIndent) {
  const TextOwner text = make();
  const StandardOutput output;
  text->Print(0);
  text->Print(0);
  EXPECT_EQ(output.text(), std::string(GetParam().text) + GetParam().text);
}

TEST_P(EachKind, HasNoTrackerAtFirst) { EXPECT_EQ(make()->getTracker(), nullptr); }

TEST_P(EachKind, KeepsTheTrackerThatItWasGivenLast) {
  icuTracker first({true, "en_US"});
  icuTracker second({false, "de_DE"});
  const TextOwner text = make();
  text->setTracker(&first);
  EXPECT_EQ(text->getTracker(), &first);
  text->setTracker(&second);
  EXPECT_EQ(text->getTracker(), &second);
  text->setTracker(nullptr);
  EXPECT_EQ(text->getTracker(), nullptr);
}

TEST_P(EachKind, HasNoMetadataAtFirst) {
  const TextOwner text = make();
  EXPECT_FALSE(text->hasMeta());
  EXPECT_EQ(text->getMeta(), OmCellMetaData());
}

TEST_P(EachKind, KeepsACopyOfItsMetadata) {
  const TextOwner text = make();
  OmCellMetaData meta = kSampleMeta;
  text->setMeta(meta);
  meta.statistic = "changed";
  EXPECT_TRUE(text->hasMeta());
  EXPECT_EQ(text->getMeta(), kSampleMeta);
}

TEST_P(EachKind, ReplacesItsMetadata) {
  const TextOwner text = make();
  text->setMeta(kSampleMeta);
  text->setMeta({"sum", {}, ""});
  EXPECT_EQ(text->getMeta(), (OmCellMetaData{"sum", {}, ""}));
}

TEST_P(EachKind, HasMetadataEvenWhenTheRecordIsEmpty) {
  const TextOwner text = make();
  text->setMeta({});
  EXPECT_TRUE(text->hasMeta());
}

TEST_P(EachKind, TakesItsOwnMetadataAgain) {
  const TextOwner text = make();
  text->setMeta(kSampleMeta);
  text->setMeta(text->getMeta());
  EXPECT_EQ(text->getMeta(), kSampleMeta);
}

TEST_P(EachKind, HasNoFootnotesAtFirst) {
  const TextOwner text = make();
  EXPECT_TRUE(std::as_const(*text).Footnotes().empty());
  EXPECT_TRUE(text->Footnotes().empty());
}

TEST_P(EachKind, KeepsThePositionsOfItsFootnotes) {
  const TextOwner text = make();
  text->Footnotes().push_back(3);
  text->Footnotes().push_back(-1);
  EXPECT_EQ(std::as_const(*text).Footnotes(), (std::vector<short>{3, -1}));
  EXPECT_EQ(&std::as_const(*text).Footnotes(), &text->Footnotes());
}

TEST_P(EachKind, FootnotesAreNoMetadata) {
  const TextOwner text = make();
  text->Footnotes().push_back(1);
  EXPECT_FALSE(text->hasMeta());
  EXPECT_EQ(text->getMeta(), OmCellMetaData());
}

TEST_P(EachKind, ACloneHasKindTextAndPlaceInTheOrder) {
  OmMemoryRegion region(false);
  const TextOwner text = make();
  const TextOwner clone(text->Clone(&region));
  EXPECT_NE(clone.get(), text.get());
  EXPECT_EQ(clone->Kind(), GetParam().kind);
  EXPECT_EQ(std::string(*clone), GetParam().text);
  EXPECT_EQ(clone->Compare(*text), 0);
}

TEST_P(EachKind, ACloneOfAPlainTextCarriesNothing) {
  const TextOwner text = make();
  const TextOwner clone(text->Clone(nullptr));
  EXPECT_EQ(clone->getTracker(), nullptr);
  EXPECT_FALSE(clone->hasMeta());
  EXPECT_TRUE(std::as_const(*clone).Footnotes().empty());
}

TEST_P(EachKind, ACloneCarriesTrackerMetadataAndFootnotes) {
  icuTracker tracker({true, "en_US"});
  const TextOwner text = make();
  text->setTracker(&tracker);
  text->setMeta(kSampleMeta);
  text->Footnotes() = {4, 0, 2};
  const TextOwner clone(text->Clone(nullptr));
  EXPECT_EQ(clone->getTracker(), &tracker);
  EXPECT_EQ(clone->getMeta(), kSampleMeta);
  EXPECT_EQ(clone->Footnotes(), (std::vector<short>{4, 0, 2}));
}

TEST_P(EachKind, ACloneGoesItsOwnWay) {
  const TextOwner text = make();
  text->setMeta(kSampleMeta);
  text->Footnotes() = {4};
  const TextOwner clone(text->Clone(nullptr));
  clone->setMeta({"sum", {}, ""});
  clone->Footnotes().push_back(5);
  clone->setTracker(nullptr);
  EXPECT_EQ(text->getMeta(), kSampleMeta);
  EXPECT_EQ(text->Footnotes(), (std::vector<short>{4}));
}

TEST_P(EachKind, ACloneOutlivesItsOriginal) {
  TextOwner text = make();
  text->setMeta(kSampleMeta);
  const TextOwner clone(text->Clone(nullptr));
  text.reset();
  EXPECT_EQ(std::string(*clone), GetParam().text);
  EXPECT_EQ(clone->getMeta(), kSampleMeta);
}

TEST_P(EachKind, ACloneWithoutARegionStandsInTheDefaultHeap) {
  const OmMemoryRegion& heap = *OmMemoryRegion::DefaultHeap();
  OmMemoryRegion region(false);
  const TextOwner text = make(&region);
  const std::size_t before = heap.BlocksInUse();
  const std::size_t inRegion = region.BlocksInUse();
  TextOwner clone(text->Clone(nullptr));
  EXPECT_GT(heap.BlocksInUse(), before);
  EXPECT_EQ(region.BlocksInUse(), inRegion);
  clone.reset();
  EXPECT_EQ(heap.BlocksInUse(), before);
}

TEST_P(EachKind, ACloneInARegionTakesNothingFromTheDefaultHeap) {
  const OmMemoryRegion& heap = *OmMemoryRegion::DefaultHeap();
  OmMemoryRegion region(false);
  const TextOwner text = make();
  const std::size_t before = heap.BlocksInUse();
  TextOwner clone(text->Clone(&region));
  EXPECT_EQ(heap.BlocksInUse(), before);
  EXPECT_GT(region.BlocksInUse(), 0U);
  clone.reset();
  EXPECT_EQ(region.BlocksInUse(), 0U);
  EXPECT_EQ(region.BytesInUse(), 0U);
}

TEST_P(EachKind, NewWithARegionAndDeleteUseThatRegion) {
  const OmMemoryRegion& heap = *OmMemoryRegion::DefaultHeap();
  OmMemoryRegion region(false);
  const std::size_t before = heap.BlocksInUse();
  TextOwner text = make(&region);
  EXPECT_EQ(heap.BlocksInUse(), before);
  EXPECT_GT(region.BlocksInUse(), 0U);
  text.reset();
  EXPECT_EQ(region.BytesInUse(), 0U);
}

TEST_P(EachKind, NewWithANullRegionAndDeleteUseTheDefaultHeap) {
  const OmMemoryRegion& heap = *OmMemoryRegion::DefaultHeap();
  const std::size_t before = heap.BlocksInUse();
  TextOwner text = make(nullptr);
  EXPECT_GT(heap.BlocksInUse(), before);
  text.reset();
  EXPECT_EQ(heap.BlocksInUse(), before);
}

template <class Make>
void expectOneBlockOfTheDefaultHeap(Make make) {
  const OmMemoryRegion& heap = *OmMemoryRegion::DefaultHeap();
  const std::size_t before = heap.BlocksInUse();
  TextOwner text(make());
  EXPECT_EQ(heap.BlocksInUse(), before + 1);
  text.reset();
  EXPECT_EQ(heap.BlocksInUse(), before);
}

TEST(OmCellTextStorage, PlainNewTakesEachKindFromTheDefaultHeap) {
  expectOneBlockOfTheDefaultHeap([] { return new OmStringCell("short"); });
  expectOneBlockOfTheDefaultHeap([] { return new OmNumber(1); });
  expectOneBlockOfTheDefaultHeap([] { return new OmVariableCell("age", "Age"); });
  expectOneBlockOfTheDefaultHeap([] { return new OmValueCell("1", "male"); });
  expectOneBlockOfTheDefaultHeap([] { return new OmDateCell({2026, 1, 1}); });
  expectOneBlockOfTheDefaultHeap([] { return new OmComposite; });
}

TEST(OmCellTextStorage, PlainNewTakesAMessageAndItsPatternFromTheDefaultHeap) {
  const OmMemoryRegion& heap = *OmMemoryRegion::DefaultHeap();
  const std::size_t before = heap.BlocksInUse();
  TextOwner text(new OmMessageCell(OmStringCell("p")));
  EXPECT_EQ(heap.BlocksInUse(), before + 2);
  text.reset();
  EXPECT_EQ(heap.BlocksInUse(), before);
}

// A kind of somebody else's, with a string form and a code of its own.
class Shouted : public OmVariableCell {
 public:
  explicit Shouted(const std::string& name) : OmVariableCell(name, "") {}
  Shouted* Clone(OmMemoryRegion* region) const override { return new (region) Shouted(*this); }
  operator std::string() const override { return Name() + "!"; }

 protected:
  Shouted(const Shouted&) = default;
};

TEST(OmCellTextDerived, SizeCompareAndPrintFollowTheStringForm) {
  const Shouted text("age");
  EXPECT_EQ(text.Size(), 4U);
  EXPECT_EQ(text.Compare(OmStringCell("age!")), 0);
  const StandardOutput output;
  text.Print(1);
  EXPECT_EQ(output.text(), "  age!");
}

TEST(OmCellTextDerived, ClonesIntoARegionAndIsDeletedFromIt) {
  OmMemoryRegion region(false);
  const Shouted text("age");
  TextOwner clone(text.Clone(&region));
  EXPECT_EQ(std::string(*clone), "age!");
  EXPECT_EQ(region.BlocksInUse(), 1U);
  clone.reset();
  EXPECT_EQ(region.BlocksInUse(), 0U);
}

TEST(OmCellTextDerived, IsVisitedAsTheKindItDerivesFrom) {
  Shouted text("age");
  VisitRecorder recorder;
  text.Accept(recorder);
  EXPECT_EQ(recorder.visits, (VisitRecorder::Visits{{3, &text}}));
}

}  // namespace
}  // namespace om::test
