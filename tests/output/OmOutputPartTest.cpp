// What every kind of part has from the base: its label, and the values that it carries along.

#include "output/OmOutputPart.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "external/cells/OmMemoryRegion.h"
#include "external/cells/OmNumber.h"
#include "external/cells/OmStringCell.h"
#include "external/platform/icuTracker.h"
#include "tests/output/PartKinds.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

using Texts = std::vector<std::string>;

// Writes down, when it is cloned, into which region and how many counted texts had died by then.
class WatchedText : public OmStringCell {
 public:
  explicit WatchedText(const std::string& text) : OmStringCell(text) {}

  WatchedText* Clone(OmMemoryRegion* region) const override {
    ++clones;
    clonedInto = region;
    diedBefore = CountedText::died().size();
    return new (region) WatchedText(*this);
  }

  mutable int clones = 0;
  mutable OmMemoryRegion* clonedInto = nullptr;
  mutable std::size_t diedBefore = 0;

 private:
  WatchedText(const WatchedText&) = default;
};

class KindWithoutAccept : public OmOutputPart {};

TEST(OmOutputPart, IsAbstract) { EXPECT_TRUE(std::is_abstract_v<OmOutputPart>); }

TEST(OmOutputPart, LeavesAcceptToTheKind) {
  EXPECT_TRUE(std::is_abstract_v<KindWithoutAccept>);
  EXPECT_FALSE(std::is_abstract_v<BarePart>);
}

TEST(OmOutputPart, EndsAsTheKindThatItIs) {
  std::unique_ptr<OmOutputPart> part = std::make_unique<CountedPart>("part");
  part.reset();
  EXPECT_EQ(CountedPart::died(), Texts{"part"});
}

template <class Part>
class EveryPart : public testing::Test {};

TYPED_TEST_SUITE(EveryPart, PartKinds, PartKindName);

TYPED_TEST(EveryPart, KeepsOneCloneOfTheLabel) {
  const CountedText label("label");
  const auto part = makePart<TypeParam>(label);
  EXPECT_NE(&part->Label(), &label);
  EXPECT_EQ(std::string(part->Label()), "label");
  EXPECT_EQ(CountedText::cloned(), 1);
  EXPECT_EQ(CountedText::made(), 2);
}

TYPED_TEST(EveryPart, KeepsItsLabelWhenTheGivenOneIsGone) {
  auto label = std::make_unique<OmStringCell>("a label that needs room of its own");
  const auto part = makePart<TypeParam>(*label);
  label.reset();
  EXPECT_EQ(std::string(part->Label()), "a label that needs room of its own");
}

TYPED_TEST(EveryPart, KeepsTheKindOfTheLabel) {
  const auto part = makePart<TypeParam>(OmNumber(2.5));
  const auto* const label = dynamic_cast<const OmNumber*>(&part->Label());
  ASSERT_NE(label, nullptr);
  EXPECT_EQ(label->Value(), 2.5);
}

TYPED_TEST(EveryPart, KeepsWhatTheLabelCarries) {
  icuTracker tracker({true, "en_US"});
  OmStringCell label("label");
  label.setTracker(&tracker);
  label.Footnotes() = {4, 2};
  const auto part = makePart<TypeParam>(label);
  EXPECT_EQ(part->Label().getTracker(), &tracker);
  EXPECT_EQ(std::as_const(*part).Label().Footnotes(), (std::vector<short>{4, 2}));
}

TYPED_TEST(EveryPart, NamesNoRegionForTheLabel) {
  OmMemoryRegion region(false);
  WatchedText label("label");
  label.clonedInto = &region;
  const auto part = makePart<TypeParam>(label);
  EXPECT_EQ(label.clones, 1);
  EXPECT_EQ(label.clonedInto, nullptr);
}

TYPED_TEST(EveryPart, KeepsTheLabelOnTheDefaultHeap) {
  OmMemoryRegion region(false);
  const std::unique_ptr<OmCellText> label(OmStringCell::Create("a label in a region", &region));
  const std::size_t before = OmMemoryRegion::DefaultHeap()->BlocksInUse();
  const auto part = makePart<TypeParam>(*label);
  EXPECT_EQ(region.BlocksInUse(), 1U);
  EXPECT_EQ(OmMemoryRegion::DefaultHeap()->BlocksInUse(), before + 1);
}

TYPED_TEST(EveryPart, GivesTheLabelItselfConstOrNot) {
  const auto part = makePart<TypeParam>(OmStringCell("label"));
  const TypeParam& constant = *part;
  EXPECT_EQ(&constant.Label(), &part->Label());
  part->Label().Footnotes().push_back(7);
  EXPECT_EQ(constant.Label().Footnotes(), std::vector<short>{7});
  EXPECT_TRUE((std::is_same_v<decltype(part->Label()), OmCellText&>));
  EXPECT_TRUE((std::is_same_v<decltype(constant.Label()), const OmCellText&>));
}

TYPED_TEST(EveryPart, ReplacesItsLabelByAClone) {
  const auto part = makePart<TypeParam>(OmStringCell("former"));
  const CountedText label("label");
  part->Label(label);
  EXPECT_NE(&part->Label(), &label);
  EXPECT_EQ(std::string(part->Label()), "label");
  EXPECT_EQ(CountedText::cloned(), 1);
}

TYPED_TEST(EveryPart, NamesNoRegionForANewLabel) {
  OmMemoryRegion region(false);
  const auto part = makePart<TypeParam>(OmStringCell("former"));
  WatchedText label("label");
  label.clonedInto = &region;
  part->Label(label);
  EXPECT_EQ(label.clones, 1);
  EXPECT_EQ(label.clonedInto, nullptr);
}

TYPED_TEST(EveryPart, DeletesTheFormerLabelOnce) {
  std::unique_ptr<TypeParam> part;
  {
    const CountedText label("former");
    part = makePart<TypeParam>(label);
  }
  resetCounted();
  part->Label(OmStringCell("label"));
  EXPECT_EQ(CountedText::died(), Texts{"former"});
  part.reset();
  EXPECT_EQ(CountedText::died(), Texts{"former"});
}

TYPED_TEST(EveryPart, ClonesANewLabelBeforeItDeletesTheFormerOne) {
  const CountedText former("former");
  const auto part = makePart<TypeParam>(former);
  const WatchedText label("label");
  label.diedBefore = 99;
  part->Label(label);
  EXPECT_EQ(label.diedBefore, 0U);
  EXPECT_EQ(CountedText::died(), Texts{"former"});
}

TYPED_TEST(EveryPart, TakesItsPresentLabelAsTheNewOne) {
  const auto part = makePart<TypeParam>(CountedText("a label that needs room of its own"));
  resetCounted();
  part->Label(part->Label());
  EXPECT_EQ(std::string(part->Label()), "a label that needs room of its own");
  EXPECT_EQ(CountedText::cloned(), 1);
  EXPECT_EQ(CountedText::died(), Texts{"a label that needs room of its own"});
}

TYPED_TEST(EveryPart, DeletesItsLabelOnceWhenItEnds) {
  std::unique_ptr<OmOutputPart> part = makePart<TypeParam>(CountedText("label"));
  resetCounted();
  part.reset();
  EXPECT_EQ(CountedText::died(), Texts{"label"});
  EXPECT_EQ(CountedText::live(), 0);
}

TYPED_TEST(EveryPart, HasNoClientDataAndIsVisibleAndExpandedAtFirst) {
  const auto part = makePart<TypeParam>(OmStringCell("label"));
  EXPECT_EQ(part->ClientData(), nullptr);
  EXPECT_TRUE(part->Visible());
  EXPECT_TRUE(part->Expanded());
}

TYPED_TEST(EveryPart, KeepsClientDataAlone) {
  int data = 0;
  const auto part = makePart<TypeParam>(OmStringCell("label"));
  part->ClientData(&data);
  EXPECT_EQ(part->ClientData(), &data);
  EXPECT_TRUE(part->Visible());
  EXPECT_TRUE(part->Expanded());
  part->ClientData(nullptr);
  EXPECT_EQ(part->ClientData(), nullptr);
}

TYPED_TEST(EveryPart, IsHiddenAlone) {
  const auto part = makePart<TypeParam>(OmStringCell("label"));
  part->Visible(false);
  EXPECT_FALSE(part->Visible());
  EXPECT_TRUE(part->Expanded());
  EXPECT_EQ(part->ClientData(), nullptr);
  part->Visible(true);
  EXPECT_TRUE(part->Visible());
}

TYPED_TEST(EveryPart, IsCollapsedAlone) {
  const auto part = makePart<TypeParam>(OmStringCell("label"));
  part->Expanded(false);
  EXPECT_FALSE(part->Expanded());
  EXPECT_TRUE(part->Visible());
  EXPECT_EQ(part->ClientData(), nullptr);
  part->Expanded(true);
  EXPECT_TRUE(part->Expanded());
}

TYPED_TEST(EveryPart, KeepsWhatItCarriesWhenItsLabelIsReplaced) {
  int data = 0;
  const auto part = makePart<TypeParam>(OmStringCell("former"));
  part->ClientData(&data);
  part->Visible(false);
  part->Expanded(false);
  part->Label(OmStringCell("label"));
  EXPECT_EQ(part->ClientData(), &data);
  EXPECT_FALSE(part->Visible());
  EXPECT_FALSE(part->Expanded());
}

TYPED_TEST(EveryPart, DoesNotOwnItsClientData) {
  const CountedText data("data");
  auto part = makePart<TypeParam>(OmStringCell("label"));
  part->ClientData(const_cast<CountedText*>(&data));
  part.reset();
  EXPECT_EQ(CountedText::died(), Texts());
}

}  // namespace
}  // namespace om::test
