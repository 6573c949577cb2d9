// Labels that cannot be cloned or read: the error passes on, and nothing is left or changed.

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

#include "external/cells/OmStringCell.h"
#include "tests/output/PartKinds.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

struct CloneError : std::runtime_error {
  CloneError() : std::runtime_error("no clone") {}
};
struct ReadError : std::runtime_error {
  ReadError() : std::runtime_error("no string form") {}
};

class UnclonableText : public OmStringCell {
 public:
  UnclonableText() : OmStringCell("unclonable") {}
  UnclonableText* Clone(OmMemoryRegion*) const override { throw CloneError(); }
};

// Its clones cannot be read either; all of them are counted.
class UnreadableText : public OmStringCell {
 public:
  UnreadableText() : OmStringCell("unreadable") { ++live; }
  ~UnreadableText() override { --live; }
  UnreadableText* Clone(OmMemoryRegion* region) const override {
    return new (region) UnreadableText(*this);
  }
  operator std::string() const override { throw ReadError(); }  // NOLINT

  static inline int live = 0;

 private:
  UnreadableText(const UnreadableText& other) : OmStringCell(other) { ++live; }
};

template <class Part>
class EveryPartWithABadLabel : public testing::Test {};

TYPED_TEST_SUITE(EveryPartWithABadLabel, PartKinds, PartKindName);

TYPED_TEST(EveryPartWithABadLabel, IsNotMadeFromALabelThatCannotBeCloned) {
  EXPECT_THROW(makePart<TypeParam>(UnclonableText()), CloneError);
}

TYPED_TEST(EveryPartWithABadLabel, KeepsItsLabelWhenANewOneCannotBeCloned) {
  const auto part = makePart<TypeParam>(CountedText("label"));
  const OmCellText* const former = &part->Label();
  resetCounted();
  EXPECT_THROW(part->Label(UnclonableText()), CloneError);
  EXPECT_EQ(&part->Label(), former);
  EXPECT_TRUE(CountedText::died().empty());
}

class ALabelThatCannotBeRead : public testing::Test {
 protected:
  UnreadableText label;
};

TEST_F(ALabelThatCannotBeRead, MakesAHeadingAllTheSame) {
  {
    const OmHeading heading(label);
    EXPECT_EQ(UnreadableText::live, 2);
  }
  EXPECT_EQ(UnreadableText::live, 1);
}

TEST_F(ALabelThatCannotBeRead, MakesNoProcedureAndLeavesNoClone) {
  EXPECT_THROW(OmProcedure(label, "en", "UTF-8", "en_US"), ReadError);
  EXPECT_EQ(UnreadableText::live, 1);
}

TEST_F(ALabelThatCannotBeRead, MakesNoTextBlockAndLeavesNoClone) {
  EXPECT_THROW(OmTextBlock(label, "UTF-8"), ReadError);
  EXPECT_EQ(UnreadableText::live, 1);
}

TEST_F(ALabelThatCannotBeRead, LeavesTheOutlineTextOfAProcedureAsItWas) {
  OmProcedure procedure(OmStringCell("former"), "en", "UTF-8", "en_US");
  const OmCellText* const former = &procedure.Label();
  EXPECT_THROW(procedure.setOutlineText(label), ReadError);
  EXPECT_EQ(&procedure.Label(), former);
  EXPECT_EQ(procedure.Command(), "former");
  EXPECT_EQ(UnreadableText::live, 1);
}

TEST(ALabelThatCannotBeCloned, LeavesTheOutlineTextOfAProcedureAsItWas) {
  OmProcedure procedure(OmStringCell("former"), "en", "UTF-8", "en_US");
  const OmCellText* const former = &procedure.Label();
  EXPECT_THROW(procedure.setOutlineText(UnclonableText()), CloneError);
  EXPECT_EQ(&procedure.Label(), former);
  EXPECT_EQ(std::string(procedure.Label()), "former");
  EXPECT_EQ(procedure.Command(), "former");
}

}  // namespace
}  // namespace om::test
