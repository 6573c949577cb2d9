// Every allocation of the cell library fails once: nothing is left behind, nothing half done.

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "external/cells/OmMemoryRegion.h"
#include "external/platform/icuTracker.h"
#include "tests/external/cells/Samples.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

class EachKindOutOfMemory : public testing::TestWithParam<Sample> {};

std::string nameOf(const testing::TestParamInfo<Sample>& info) { return info.param.name; }

INSTANTIATE_TEST_SUITE_P(OmCellText, EachKindOutOfMemory, testing::ValuesIn(kSamples), nameOf);

TEST_P(EachKindOutOfMemory, IsMadeWholeOrNotAtAll) {
  const std::size_t failures = failEveryAllocation([](FailurePoint& point) {
    TextOwner text;
    const bool completed = point.during([&] { text = GetParam().make(nullptr); });
    EXPECT_EQ(completed, !point.failed());
    EXPECT_EQ(text != nullptr, completed);
    if (completed) {
      EXPECT_EQ(std::string(*text), GetParam().text);
    }
  });
  EXPECT_GE(failures, 1U);
}

TEST_P(EachKindOutOfMemory, IsMadeInARegionWholeOrNotAtAll) {
  OmMemoryRegion region(false);
  const std::size_t failures = failEveryAllocation([&region](FailurePoint& point) {
    TextOwner text;
    point.during([&] { text = GetParam().make(&region); });
    text.reset();
    EXPECT_EQ(region.BlocksInUse(), 0U);
  });
  EXPECT_GE(failures, 1U);
}

TEST_P(EachKindOutOfMemory, IsClonedWithAllThatItCarriesOrNotAtAll) {
  OmMemoryRegion region(false);
  icuTracker tracker({true, "en_US"});
  const TextOwner text = GetParam().make(nullptr);
  text->setTracker(&tracker);
  text->setMeta(kSampleMeta);
  text->Footnotes() = {1, 2, 3};
  const std::size_t failures = failEveryAllocation([&](FailurePoint& point) {
    TextOwner clone;
    const bool completed = point.during([&] { clone.reset(text->Clone(&region)); });
    EXPECT_EQ(completed, !point.failed());
    EXPECT_EQ(clone != nullptr, completed);
    if (completed) {
      EXPECT_EQ(std::string(*clone), GetParam().text);
      EXPECT_EQ(clone->getTracker(), &tracker);
      EXPECT_EQ(clone->getMeta(), kSampleMeta);
      EXPECT_EQ(clone->Footnotes(), (std::vector<short>{1, 2, 3}));
    }
    clone.reset();
    EXPECT_EQ(region.BlocksInUse(), 0U);
    EXPECT_EQ(std::string(*text), GetParam().text);
  });
  // The text itself, its extras, the metadata with four strings and their list, the footnotes.
  EXPECT_GE(failures, 8U);
}

TEST_P(EachKindOutOfMemory, GainsMetadataOrStaysWithout) {
  const std::size_t failures = failEveryAllocation([](FailurePoint& point) {
    const TextOwner text = GetParam().make(nullptr);
    const bool completed = point.during([&] { text->setMeta(kSampleMeta); });
    EXPECT_EQ(text->hasMeta(), completed);
    EXPECT_EQ(text->getMeta(), completed ? kSampleMeta : OmCellMetaData());
  });
  EXPECT_GE(failures, 2U);
}

TEST_P(EachKindOutOfMemory, KeepsItsOldMetadataWhenNewCannotBeKept) {
  const OmCellMetaData former{"the number of valid values", {}, ""};
  const std::size_t failures = failEveryAllocation([&former](FailurePoint& point) {
    const TextOwner text = GetParam().make(nullptr);
    text->setMeta(former);
    text->Footnotes() = {9};
    const bool completed = point.during([&] { text->setMeta(kSampleMeta); });
    EXPECT_EQ(text->getMeta(), completed ? kSampleMeta : former);
    EXPECT_EQ(text->Footnotes(), (std::vector<short>{9}));
  });
  EXPECT_GE(failures, 2U);
}

TEST_P(EachKindOutOfMemory, GainsFootnotesOrStaysWithout) {
  const std::size_t failures = failEveryAllocation([](FailurePoint& point) {
    const TextOwner text = GetParam().make(nullptr);
    const bool completed = point.during([&] { text->Footnotes().push_back(3); });
    EXPECT_EQ(std::as_const(*text).Footnotes(),
              completed ? std::vector<short>{3} : std::vector<short>());
  });
  EXPECT_GE(failures, 2U);
}

TEST_P(EachKindOutOfMemory, KeepsItsFootnotesWhenAnotherCannotBeAdded) {
  const std::size_t failures = failEveryAllocation([](FailurePoint& point) {
    const TextOwner text = GetParam().make(nullptr);
    text->Footnotes() = {1, 2};
    const bool completed = point.during([&] { text->Footnotes().push_back(3); });
    EXPECT_EQ(text->Footnotes(),
              completed ? (std::vector<short>{1, 2, 3}) : (std::vector<short>{1, 2}));
  });
  EXPECT_GE(failures, 1U);
}

TEST_P(EachKindOutOfMemory, ConvertsToAStringOrLeavesItAtThat) {
  const TextOwner text = GetParam().make(nullptr);
  failEveryAllocation([&text](FailurePoint& point) {
    std::string form;
    const bool completed = point.during([&] { form = std::string(*text); });
    EXPECT_EQ(form, completed ? GetParam().text : "");
    EXPECT_EQ(std::string(*text), GetParam().text);
  });
}

TEST(AllocationFailure, ALongStringCellOnTheStackTakesItsRoomOrNothing) {
  const std::string text = "a text of more than eight characters";
  const std::size_t failures = failEveryAllocation([&text](FailurePoint& point) {
    std::optional<OmStringCell> cell;
    const bool completed = point.during([&] { cell.emplace(text); });
    EXPECT_EQ(cell.has_value(), completed);
    if (completed) {
      EXPECT_EQ(std::string(*cell), text);
    }
  });
  EXPECT_EQ(failures, 1U);
}

TEST(AllocationFailure, CreateGivesACellOrNothing) {
  OmMemoryRegion region(false);
  const std::size_t failures = failEveryAllocation([&region](FailurePoint& point) {
    std::unique_ptr<OmStringCell> cell;
    point.during([&] { cell.reset(OmStringCell::Create("a text of many characters", &region)); });
    cell.reset();
    EXPECT_EQ(region.BlocksInUse(), 0U);
  });
  EXPECT_EQ(failures, 1U);
}

TEST(AllocationFailure, AMessageGainsAnArgumentOrStaysAsItWas) {
  OmMemoryRegion region(false);
  const std::size_t failures = failEveryAllocation([&region](FailurePoint& point) {
    OmMessageCell message(OmStringCell("{0}, {1}"), &region);
    message.Append(OmStringCell("one"));
    const OmStringCell another("another one");
    const std::size_t blocks = region.BlocksInUse();
    const bool completed = point.during([&] { message.Append(another); });
    EXPECT_EQ(message.Arguments().size(), completed ? 2U : 1U);
    EXPECT_EQ(std::string(message), completed ? "one, another one" : "one, {1}");
    EXPECT_EQ(region.BlocksInUse(), completed ? blocks + 1 : blocks);
    if (!completed) message.Append(another);
    EXPECT_EQ(std::string(message), "one, another one");
  });
  EXPECT_EQ(failures, 2U);  // the clone, and room for it in the list
}

TEST(AllocationFailure, ACompositeGainsAComponentOrStaysAsItWas) {
  OmMemoryRegion region(false);
  const std::size_t failures = failEveryAllocation([&region](FailurePoint& point) {
    OmComposite composite(&region);
    composite.Append(OmStringCell("a"));
    const OmStringCell component("a component");
    const std::size_t blocks = region.BlocksInUse();
    const bool completed = point.during([&] { composite.Append(component, 1); });
    EXPECT_EQ(composite.Components().size(), completed ? 2U : 1U);
    EXPECT_EQ(std::string(composite), completed ? "a (a component)" : "a");
    EXPECT_EQ(region.BlocksInUse(), completed ? blocks + 1 : blocks);
    if (!completed) composite.Append(component, 1);
    EXPECT_EQ(std::string(composite), "a (a component)");
  });
  EXPECT_EQ(failures, 2U);
}

}  // namespace
}  // namespace om::test
