// Copies of charts, models, interactive outputs and answer trees share record and label with their
// source, and outlive it.

#include "output/internal/SharedRecord.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "external/cells/OmStringCell.h"
#include "tests/output/PartKinds.h"
#include "tests/output/PayloadFields.h"
#include "tests/support/Allocations.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

using Texts = std::vector<std::string>;

template <class Part>
class EverySharingKind : public testing::Test {
 protected:
  static void store(Part& part, const std::string& piece) {
    PayloadsOf<Part>::fields[0].append(part, piece.data(), static_cast<unsigned>(piece.size()));
  }
  static const std::string& stored(const Part& part) {
    return (part.*PayloadsOf<Part>::fields[0].get)();
  }
  static std::unique_ptr<Part> counted(const char* label) {
    auto part = makePart<Part>(CountedText(label));
    resetCounted();
    return part;
  }
};

TYPED_TEST_SUITE(EverySharingKind, SharingKinds, PartKindName);

TYPED_TEST(EverySharingKind, SharesTheLabelWithItsCopy) {
  const auto source = this->counted("label");
  const TypeParam copy(*source);
  EXPECT_EQ(&copy.Label(), &source->Label());
  EXPECT_EQ(CountedText::made(), 0);
}

TYPED_TEST(EverySharingKind, SharesEveryFieldWithItsCopy) {
  const auto source = this->counted("label");
  TypeParam copy(*source);
  for (const auto& field : PayloadsOf<TypeParam>::fields) {
    field.append(*source, "a", 1);
    field.append(copy, "b", 1);
    EXPECT_EQ((copy.*field.view)(), "ab") << field.name;
    EXPECT_EQ(((*source).*field.view)().data(), (copy.*field.view)().data()) << field.name;
  }
}

TYPED_TEST(EverySharingKind, IsCopiedWithoutItsPayload) {
  const auto source = this->counted("label");
  this->store(*source, std::string(100'000, 'x'));
  const TypeParam first(*source);  // the record takes the label over
  const std::size_t blocks = totalNewBlocks();
  const TypeParam second(*source);
  EXPECT_EQ(totalNewBlocks(), blocks);
  EXPECT_EQ(this->stored(second).size(), 100'000U);
}

TYPED_TEST(EverySharingKind, OutlivesItsSourceAsACopy) {
  auto source = this->counted("label");
  this->store(*source, "payload");
  const TypeParam copy(*source);
  source.reset();
  EXPECT_EQ(CountedText::died(), Texts());
  EXPECT_EQ(std::string(copy.Label()), "label");
  EXPECT_EQ(this->stored(copy), "payload");
}

TYPED_TEST(EverySharingKind, OutlivesItsCopy) {
  const auto source = this->counted("label");
  this->store(*source, "payload");
  std::make_unique<TypeParam>(*source).reset();
  EXPECT_EQ(CountedText::died(), Texts());
  EXPECT_EQ(std::string(source->Label()), "label");
  EXPECT_EQ(this->stored(*source), "payload");
}

TYPED_TEST(EverySharingKind, EndsOnceWithTheLastCopyInEachOrder) {
  for (int order = 0; order < 6; ++order) {
    std::vector<std::unique_ptr<TypeParam>> parts;
    parts.push_back(this->counted("label"));
    this->store(*parts[0], "payload");
    parts.push_back(std::make_unique<TypeParam>(*parts[0]));
    parts.push_back(std::make_unique<TypeParam>(*parts[1]));
    const auto first = static_cast<std::size_t>(order % 3);
    const std::size_t second = (first + 1 + static_cast<std::size_t>(order / 3)) % 3;
    const std::size_t last = 3 - first - second;
    parts[first].reset();
    parts[second].reset();
    EXPECT_EQ(CountedText::died(), Texts()) << order;
    EXPECT_EQ(std::string(parts[last]->Label()), "label") << order;
    EXPECT_EQ(this->stored(*parts[last]), "payload") << order;
    parts[last].reset();
    EXPECT_EQ(CountedText::died(), Texts{"label"}) << order;
    EXPECT_EQ(CountedText::live(), 0) << order;
  }
}

TYPED_TEST(EverySharingKind, KeepsItsLabelWhenTheSourceGetsAnotherOne) {
  const auto source = this->counted("label");
  const TypeParam copy(*source);
  source->Label(CountedText("other"));
  EXPECT_EQ(std::string(copy.Label()), "label");
  EXPECT_EQ(std::string(source->Label()), "other");
}

TYPED_TEST(EverySharingKind, LeavesTheSourceItsLabelWhenItGetsAnotherOne) {
  const auto source = this->counted("label");
  {
    TypeParam copy(*source);
    copy.Label(CountedText("other"));
    resetCounted();
  }
  EXPECT_EQ(CountedText::died(), Texts{"other"});
  EXPECT_EQ(std::string(source->Label()), "label");
}

TYPED_TEST(EverySharingKind, DeletesALabelThatIsNotSharedWhenItGetsAnotherOne) {
  const auto part = this->counted("label");
  part->Label(CountedText("other"));
  EXPECT_EQ(CountedText::died(), (Texts{"label", "other"}));  // "other" is the temporary
  const auto copy = std::make_unique<TypeParam>(*part);
  copy->Label(CountedText("third"));
  resetCounted();
  copy->Label(CountedText("fourth"));
  EXPECT_EQ(CountedText::died(), (Texts{"third", "fourth"}));
}

TYPED_TEST(EverySharingKind, SharesALaterLabelWithALaterCopy) {
  auto source = this->counted("first");
  const auto early = std::make_unique<TypeParam>(*source);
  source->Label(CountedText("second"));
  const auto late = std::make_unique<TypeParam>(*source);
  EXPECT_EQ(&late->Label(), &source->Label());
  source.reset();
  EXPECT_EQ(std::string(early->Label()), "first");
  EXPECT_EQ(std::string(late->Label()), "second");
}

TYPED_TEST(EverySharingKind, CopiesWhatItCarriesAlong) {
  int data = 0;
  const auto source = this->counted("label");
  source->ClientData(&data);
  source->Visible(false);
  const TypeParam hidden(*source);
  source->Visible(true);
  source->Expanded(false);
  const TypeParam collapsed(*source);
  EXPECT_EQ(hidden.ClientData(), &data);
  EXPECT_FALSE(hidden.Visible());
  EXPECT_TRUE(hidden.Expanded());
  EXPECT_TRUE(collapsed.Visible());
  EXPECT_FALSE(collapsed.Expanded());
}

TYPED_TEST(EverySharingKind, CannotBeAssigned) {
  EXPECT_FALSE(std::is_copy_assignable_v<TypeParam>);
  EXPECT_FALSE(std::is_move_assignable_v<TypeParam>);
  EXPECT_TRUE(std::is_copy_constructible_v<TypeParam>);
}

TYPED_TEST(EverySharingKind, IsWholeWhenItCannotBeCopied) {
  const std::size_t failures = failEveryAllocation([this](FailurePoint& point) {
    const auto source = makePart<TypeParam>(OmStringCell("a label of more than eight characters"));
    this->store(*source, "payload");
    std::unique_ptr<TypeParam> copy;
    const bool completed = point.during([&] { copy = std::make_unique<TypeParam>(*source); });
    EXPECT_EQ(completed, !point.failed());
    EXPECT_EQ(copy != nullptr, completed);
    EXPECT_EQ(std::string(source->Label()), "a label of more than eight characters");
    EXPECT_EQ(this->stored(*source), "payload");
  });
  EXPECT_EQ(failures, 2U);  // the copy, the record's list of labels
}

TYPED_TEST(EverySharingKind, HasACopyAsTheKindThatDerivesFromIt) {
  class Derived : public TypeParam {
   public:
    explicit Derived(const TypeParam& part) : TypeParam(part) {}
  };
  auto source = this->counted("label");
  this->store(*source, "payload");
  const Derived first(*source);
  const Derived second(first);
  source.reset();
  EXPECT_EQ(this->stored(second), "payload");
  EXPECT_EQ(&first.Label(), &second.Label());
}

}  // namespace
}  // namespace om::test
