// Copying parts when memory runs out: a copy that cannot be made takes nothing of its source along
// when it goes, and a part that cannot be assigned to stays what it was.

#include <gtest/gtest.h>

#include <cstddef>
#include <list>
#include <memory>
#include <optional>
#include <string>

#include "external/cells/OmStringCell.h"
#include "output/OmPageTitle.h"
#include "output/OmProcedure.h"
#include "output/OmTextBlock.h"
#include "tests/output/Undestroyed.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

using Lines = std::list<std::string>;

// Longer than the room that a string has in itself, so that each copy allocates.
const std::string kLong = "a text that is longer than the room in a string";
const std::string kOther = "another text, which is longer still than the first one of the two";

// Counts the deaths of its kind without allocating.
class MortalText : public OmStringCell {
 public:
  explicit MortalText(const std::string& text) : OmStringCell(text) {}
  ~MortalText() override { ++deaths; }
  MortalText* Clone(OmMemoryRegion* region) const override {
    return new (region) MortalText(*this);
  }

  static inline int deaths = 0;

 private:
  MortalText(const MortalText&) = default;
};

void freeRoomOf(OmTextBlock& block) {
  block.TextList().clear();
  freeRoom(block.LocaleCodePage());
}

void freeRoomOf(OmProcedure& procedure) {
  freeRoom(procedure.Command());
  freeRoom(procedure.LanguageCode());
  freeRoom(procedure.LocaleCodePage());
  freeRoom(procedure.LocaleName());
  freeRoom(procedure.TransCommand());
}

// Copies the part with the allocation failing. Only one of the two may end, and neither when the
// label has died already, which is what the test looks for.
template <class Part>
void copyOutOfMemory(Undestroyed<Part>& source, FailurePoint& point) {
  MortalText::deaths = 0;
  std::optional<Undestroyed<Part>> copy;
  const bool completed = point.during([&] { copy.emplace(*source); });
  EXPECT_EQ(completed, !point.failed());
  EXPECT_EQ(MortalText::deaths, 0) << "what the source owns was deleted";
  if (MortalText::deaths != 0) return;
  if (completed) freeRoomOf(**copy);
  source.destroy();
}

TEST(PartsCopyAllocation, ATextBlockThatCannotBeCopiedKeepsItsLabel) {
  const std::size_t failures = failEveryAllocation([](FailurePoint& point) {
    Undestroyed<OmTextBlock> source(MortalText("label"), kLong);
    source->TextList() = {kLong, kOther};
    copyOutOfMemory(source, point);
  });
  EXPECT_GE(failures, 5U);  // two lines with their texts, the code page
}

TEST(PartsCopyAllocation, APageTitleThatCannotBeCopiedKeepsItsLabel) {
  const std::size_t failures = failEveryAllocation([](FailurePoint& point) {
    Undestroyed<OmPageTitle> source(kLong);
    source->Label(MortalText("label"));
    source->TextList() = {kLong, kOther};
    copyOutOfMemory(source, point);
  });
  EXPECT_GE(failures, 5U);
}

TEST(PartsCopyAllocation, AProcedureThatCannotBeCopiedKeepsItsLabelAndFootnotes) {
  const std::size_t failures = failEveryAllocation([](FailurePoint& point) {
    Undestroyed<OmProcedure> source(MortalText("label"), kLong, kLong, kLong);
    source->SetCommand(kLong);
    source->SetTransCommand(kOther);
    const MortalText text("text");
    source->Footnotes().emplace_back(&text, nullptr, nullptr);
    copyOutOfMemory(source, point);
  });
  EXPECT_GE(failures, 5U);  // the five texts
}

template <class Block>
std::size_t assignBlocksOutOfMemory() {
  return failEveryAllocation([](FailurePoint& point) {
    const OmStringCell log("Log");
    std::optional<Block> source;
    if constexpr (std::is_same_v<Block, OmPageTitle>) {
      source.emplace(kLong);
    } else {
      source.emplace(log, kLong);
    }
    source->TextList() = {kLong, kOther, kLong};
    source->Visible(false);

    std::optional<Undestroyed<Block>> target;
    if constexpr (std::is_same_v<Block, OmPageTitle>) {
      target.emplace("UTF-8");
    } else {
      target.emplace(OmStringCell("former"), "UTF-8");
    }
    Block& block = **target;
    block.TextList() = {"a", "b"};
    const OmCellText* const formerLabel = &block.Label();

    const bool completed = point.during([&] { block = *source; });
    EXPECT_EQ(completed, !point.failed());
    EXPECT_EQ(&block.Label(), completed ? &source->Label() : formerLabel);
    EXPECT_EQ(block.TextList(), completed ? (Lines{kLong, kOther, kLong}) : (Lines{"a", "b"}));
    EXPECT_EQ(block.LocaleCodePage(), completed ? kLong : "UTF-8");
    EXPECT_EQ(block.IsLog(), completed && source->IsLog());
    EXPECT_EQ(block.Visible(), !completed);
    delete formerLabel;
    freeRoomOf(block);
  });
}

TEST(PartsCopyAllocation, ATextBlockThatCannotBeAssignedToStaysWhatItWas) {
  EXPECT_GE(assignBlocksOutOfMemory<OmTextBlock>(), 5U);
}

TEST(PartsCopyAllocation, APageTitleThatCannotBeAssignedToStaysWhatItWas) {
  EXPECT_GE(assignBlocksOutOfMemory<OmPageTitle>(), 5U);
}

TEST(PartsCopyAllocation, AProcedureThatCannotBeAssignedToStaysWhatItWas) {
  const std::size_t failures = failEveryAllocation([](FailurePoint& point) {
    OmProcedure source(OmStringCell("label"), kLong, kLong, kLong);
    source.SetCommand(kLong);
    source.SetTransCommand(kLong);
    source.TableVarDisplay(OmCellText::NAMES);
    source.Visible(false);
    Undestroyed<OmProcedure> target(OmStringCell("former"), "de", "UTF-8", "de_DE");
    const OmCellText* const formerLabel = &target->Label();
    const OmVector<OmFootnote>* const formerFootnotes = &target->Footnotes();

    const bool completed = point.during([&] { *target = source; });
    EXPECT_EQ(completed, !point.failed());
    EXPECT_EQ(&target->Label(), completed ? &source.Label() : formerLabel);
    EXPECT_EQ(&target->Footnotes(), completed ? &source.Footnotes() : formerFootnotes);
    EXPECT_EQ(target->Command(), completed ? kLong : "former");
    EXPECT_EQ(target->LanguageCode(), completed ? kLong : "de");
    EXPECT_EQ(target->LocaleCodePage(), completed ? kLong : "UTF-8");
    EXPECT_EQ(target->LocaleName(), completed ? kLong : "de_DE");
    EXPECT_EQ(target->TransCommand(), completed ? kLong : "");
    EXPECT_EQ(target->TableVarDisplay(), completed ? OmCellText::NAMES : OmCellText::LABELS);
    EXPECT_EQ(target->Visible(), !completed);
    delete formerFootnotes;
    delete formerLabel;
    freeRoomOf(*target);
  });
  EXPECT_GE(failures, 5U);
}

}  // namespace
}  // namespace om::test
