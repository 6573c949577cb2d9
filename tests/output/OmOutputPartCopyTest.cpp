// Copies of every kind of part that does not count them are shallow: they share the label, and one
// of the two lets go of it.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "external/cells/OmStringCell.h"
#include "output/OmOutputPart.h"
#include "tests/output/PartKinds.h"
#include "tests/output/Undestroyed.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

using Texts = std::vector<std::string>;

// Targets of assignments are made from parts that have ended: an assignment neither reads nor
// deletes what its target points to.

template <class Part>
class EveryPartCopy : public testing::Test {};

TYPED_TEST_SUITE(EveryPartCopy, PlainKinds, PartKindName);

TYPED_TEST(EveryPartCopy, SharesTheLabel) {
  const auto source = makePart<TypeParam>(CountedText("label"));
  const long live = CountedText::live();
  Undestroyed<TypeParam> copy(*source);
  EXPECT_EQ(&copy->Label(), &source->Label());
  EXPECT_EQ(CountedText::live(), live);
}

TYPED_TEST(EveryPartCopy, TakesTheDefaultsOfWhatIsCarried) {
  const auto source = makePart<TypeParam>(OmStringCell("label"));
  Undestroyed<TypeParam> copy(*source);
  EXPECT_EQ(copy->ClientData(), nullptr);
  EXPECT_TRUE(copy->Visible());
  EXPECT_TRUE(copy->Expanded());
}

TYPED_TEST(EveryPartCopy, TakesEachValueThatIsCarried) {
  int data = 0;
  const auto source = makePart<TypeParam>(OmStringCell("label"));
  source->ClientData(&data);
  source->Visible(false);
  Undestroyed<TypeParam> hidden(*source);
  EXPECT_EQ(hidden->ClientData(), &data);
  EXPECT_FALSE(hidden->Visible());
  EXPECT_TRUE(hidden->Expanded());

  source->Visible(true);
  source->Expanded(false);
  Undestroyed<TypeParam> collapsed(*source);
  EXPECT_TRUE(collapsed->Visible());
  EXPECT_FALSE(collapsed->Expanded());
}

TYPED_TEST(EveryPartCopy, KeepsWhatItCarriesWhenTheSourceChanges) {
  int data = 0;
  const auto source = makePart<TypeParam>(OmStringCell("label"));
  source->ClientData(&data);
  Undestroyed<TypeParam> copy(*source);
  source->ClientData(nullptr);
  source->Visible(false);
  source->Expanded(false);
  EXPECT_EQ(copy->ClientData(), &data);
  EXPECT_TRUE(copy->Visible());
  EXPECT_TRUE(copy->Expanded());
}

TYPED_TEST(EveryPartCopy, LetsTheLabelDieOnceWithTheSource) {
  auto source = makePart<TypeParam>(CountedText("label"));
  Undestroyed<TypeParam> copy(*source);
  resetCounted();
  source.reset();
  EXPECT_EQ(CountedText::died(), Texts{"label"});
  EXPECT_EQ(CountedText::live(), 0);
}

TYPED_TEST(EveryPartCopy, SharesTheLabelByAssignment) {
  const auto source = makePart<TypeParam>(OmStringCell("label"));
  Undestroyed<TypeParam> target(*makePart<TypeParam>(OmStringCell("dead")));
  *target = *source;
  EXPECT_EQ(&target->Label(), &source->Label());
}

TYPED_TEST(EveryPartCopy, GivesTheTargetOfAnAssignmentBack) {
  const auto source = makePart<TypeParam>(OmStringCell("label"));
  Undestroyed<TypeParam> target(*makePart<TypeParam>(OmStringCell("dead")));
  TypeParam& result = (*target = *source);
  EXPECT_EQ(&result, &*target);
}

TYPED_TEST(EveryPartCopy, TakesEachCarriedValueByAssignment) {
  int data = 0;
  const auto source = makePart<TypeParam>(OmStringCell("label"));
  source->ClientData(&data);
  source->Expanded(false);
  Undestroyed<TypeParam> target(*makePart<TypeParam>(OmStringCell("dead")));
  target->Visible(false);
  *target = *source;
  EXPECT_EQ(target->ClientData(), &data);
  EXPECT_TRUE(target->Visible());
  EXPECT_FALSE(target->Expanded());
}

TYPED_TEST(EveryPartCopy, KeepsWhatTheTargetHadAliveByAssignment) {
  const auto source = makePart<TypeParam>(CountedText("label"));
  const auto owner = makePart<TypeParam>(CountedText("former"));
  Undestroyed<TypeParam> target(*owner);
  resetCounted();
  *target = *source;
  EXPECT_EQ(CountedText::died(), Texts());
  EXPECT_EQ(CountedText::made(), 0);
  EXPECT_EQ(std::string(owner->Label()), "former");
}

TYPED_TEST(EveryPartCopy, IsUnchangedByAssignmentToItself) {
  int data = 0;
  const auto part = makePart<TypeParam>(CountedText("label"));
  part->ClientData(&data);
  part->Visible(false);
  const OmCellText* const label = &part->Label();
  resetCounted();
  const TypeParam& itself = *part;
  *part = itself;
  EXPECT_EQ(&part->Label(), label);
  EXPECT_EQ(part->ClientData(), &data);
  EXPECT_FALSE(part->Visible());
  EXPECT_TRUE(part->Expanded());
  EXPECT_EQ(CountedText::died(), Texts());
  EXPECT_EQ(CountedText::made(), 0);
}

}  // namespace
}  // namespace om::test
