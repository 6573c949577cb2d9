// Parts when memory runs out: each is made whole or not at all, and a value that cannot be replaced
// stays.

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>

#include "external/cells/OmNumber.h"
#include "external/cells/OmStringCell.h"
#include "tests/output/PartKinds.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

// Longer than the room that a string or a string cell has in itself, so that each copy allocates.
const std::string kLong = "a text that is longer than the room in a string";
const std::string kOther = "another text, which is longer still than the first one of the two";

template <class Make>
std::size_t expectMadeWholeOrNotAtAll(const std::string& label, Make make) {
  return failEveryAllocation([&](FailurePoint& point) {
    std::unique_ptr<OmOutputPart> part;
    const bool completed = point.during([&] { part = make(); });
    EXPECT_EQ(completed, !point.failed());
    EXPECT_EQ(part != nullptr, completed);
    if (part) {
      EXPECT_EQ(std::string(part->Label()), label);
    }
  });
}

TEST(PartsAllocation, AHeadingIsMadeWholeOrNotAtAll) {
  const OmStringCell label(kLong);
  const std::size_t failures =
      expectMadeWholeOrNotAtAll(kLong, [&] { return std::make_unique<OmHeading>(label); });
  EXPECT_GE(failures, 3U);  // the part, its label, its footnotes
}

TEST(PartsAllocation, AProcedureIsMadeWholeOrNotAtAll) {
  const OmStringCell label(kLong);
  const std::size_t failures = expectMadeWholeOrNotAtAll(
      kLong, [&] { return std::make_unique<OmProcedure>(label, kLong, kLong, kLong); });
  EXPECT_GE(failures, 7U);  // a heading's three, and four texts
}

TEST(PartsAllocation, ATextBlockIsMadeWholeOrNotAtAll) {
  const OmStringCell label(kLong);
  const std::size_t failures =
      expectMadeWholeOrNotAtAll(kLong, [&] { return std::make_unique<OmTextBlock>(label, kLong); });
  EXPECT_GE(failures, 3U);  // the part, its label, the code page
}

TEST(PartsAllocation, APageTitleIsMadeWholeOrNotAtAll) {
  const std::size_t failures =
      expectMadeWholeOrNotAtAll("", [] { return std::make_unique<OmPageTitle>(kLong); });
  EXPECT_GE(failures, 3U);  // the part, its label, the code page
}

template <class Part>
class EveryPartOutOfMemory : public testing::Test {};

TYPED_TEST_SUITE(EveryPartOutOfMemory, PartKinds, PartKindName);

TYPED_TEST(EveryPartOutOfMemory, KeepsItsLabelWhenANewOneCannotBeCloned) {
  const std::size_t failures = failEveryAllocation([](FailurePoint& point) {
    const auto part = makePart<TypeParam>(OmStringCell(kLong));
    const OmCellText* const former = &part->Label();
    const OmStringCell label(kOther);
    const bool completed = point.during([&] { part->Label(label); });
    EXPECT_EQ(completed, !point.failed());
    if (completed) return;
    EXPECT_EQ(&part->Label(), former);
    EXPECT_EQ(std::string(part->Label()), kLong);
    part->Label(label);
    EXPECT_EQ(std::string(part->Label()), kOther);
  });
  EXPECT_GE(failures, 1U);
}

TYPED_TEST(EveryPartOutOfMemory, KeepsItsLabelWhenThatCannotBeClonedAnew) {
  const std::size_t failures = failEveryAllocation([](FailurePoint& point) {
    const auto part = makePart<TypeParam>(OmStringCell(kLong));
    const OmCellText* const former = &part->Label();
    const bool completed = point.during([&] { part->Label(part->Label()); });
    EXPECT_EQ(std::string(part->Label()), kLong);
    if (!completed) {
      EXPECT_EQ(&part->Label(), former);
    }
  });
  EXPECT_GE(failures, 1U);
}

TEST(PartsAllocation, AProcedureKeepsLabelAndCommandWhenItsOutlineTextCannotChange) {
  const std::size_t failures = failEveryAllocation([](FailurePoint& point) {
    OmProcedure procedure(OmStringCell(kLong), "en", "UTF-8", "en_US");
    const OmCellText* const former = &procedure.Label();
    const OmStringCell text(kOther);
    const bool completed = point.during([&] { procedure.setOutlineText(text); });
    EXPECT_EQ(completed, !point.failed());
    if (!completed) {
      EXPECT_EQ(&procedure.Label(), former);
      EXPECT_EQ(std::string(procedure.Label()), kLong);
      EXPECT_EQ(procedure.Command(), kLong);
      procedure.setOutlineText(text);
    }
    EXPECT_EQ(std::string(procedure.Label()), kOther);
    EXPECT_EQ(procedure.Command(), kOther);
  });
  EXPECT_GE(failures, 2U);  // the string form, the clone
}

TEST(PartsAllocation, AProcedureKeepsLabelAndCommandWhenItsLabelCannotBecomeItsOutlineText) {
  const std::size_t failures = failEveryAllocation([](FailurePoint& point) {
    OmProcedure procedure(OmStringCell(kLong), "en", "UTF-8", "en_US");
    procedure.SetCommand(kOther);
    const OmCellText* const former = &procedure.Label();
    const bool completed = point.during([&] { procedure.setOutlineText(procedure.Label()); });
    EXPECT_EQ(std::string(procedure.Label()), kLong);
    EXPECT_EQ(procedure.Command(), completed ? kLong : kOther);
    if (!completed) {
      EXPECT_EQ(&procedure.Label(), former);
    }
  });
  EXPECT_GE(failures, 2U);
}

TEST(PartsAllocation, AProcedureKeepsItsCommandWhenANewOneCannotBeCopied) {
  const std::size_t failures = failEveryAllocation([](FailurePoint& point) {
    OmProcedure procedure(OmStringCell(kLong), "en", "UTF-8", "en_US");
    const bool completed = point.during([&] { procedure.SetCommand(kOther); });
    EXPECT_EQ(completed, !point.failed());
    EXPECT_EQ(procedure.Command(), completed ? kOther : kLong);
    EXPECT_EQ(std::string(procedure.Label()), kLong);
  });
  EXPECT_GE(failures, 1U);
}

TEST(PartsAllocation, AProcedureKeepsItsTranslatedCommandWhenANewOneCannotBeCopied) {
  const std::size_t failures = failEveryAllocation([](FailurePoint& point) {
    OmProcedure procedure(OmStringCell("label"), "en", "UTF-8", "en_US");
    procedure.SetTransCommand(kLong);
    const bool completed = point.during([&] { procedure.SetTransCommand(kOther); });
    EXPECT_EQ(completed, !point.failed());
    EXPECT_EQ(procedure.TransCommand(), completed ? kOther : kLong);
    EXPECT_EQ(procedure.Command(), "label");
  });
  EXPECT_GE(failures, 1U);
}

TEST(PartsAllocation, AHeadingKeepsItsFootnotesWhenAnotherCannotBeAdded) {
  const std::size_t failures = failEveryAllocation([](FailurePoint& point) {
    OmHeading heading(OmStringCell("label"));
    const OmStringCell text(kLong);
    heading.Footnotes().emplace_back(&text, &text, nullptr);
    const OmStringCell other(kOther);
    const bool completed =
        point.during([&] { heading.Footnotes().emplace_back(&other, &other, nullptr); });
    ASSERT_EQ(heading.Footnotes().size(), completed ? 2U : 1U);
    EXPECT_EQ(std::string(*heading.Footnotes()[0].Text()), kLong);
  });
  EXPECT_GE(failures, 2U);  // the text, the marker
}

}  // namespace
}  // namespace om::test
