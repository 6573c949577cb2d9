// Cells of characters: what they hold, and where.

#include "external/cells/OmStringCell.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "external/cells/OmMemoryRegion.h"
#include "external/cells/OmNumber.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

constexpr std::array<std::size_t, 7> kLengths{0, 1, 7, 8, 9, 16, 1000};

std::string textOf(std::size_t length) {
  std::string text;
  for (std::size_t i = 0; i < length; ++i) text += static_cast<char>('a' + i % 26);
  return text;
}

void expectText(const OmStringCell& cell, const std::string& text) {
  EXPECT_EQ(std::string(cell), text);
  EXPECT_EQ(cell.View(), text);
  EXPECT_EQ(cell.Size(), text.size());
}

TEST(OmStringCell, HoldsTextsOfAnyLength) {
  for (const std::size_t length : kLengths) {
    std::string text = textOf(length);
    const OmStringCell cell(text);
    const std::string kept = text;
    text.assign(length, '?');
    expectText(cell, kept);
  }
}

TEST(OmStringCell, ClonesTextsOfAnyLength) {
  OmMemoryRegion region(false);
  for (const std::size_t length : kLengths) {
    const OmStringCell cell(textOf(length));
    const std::unique_ptr<OmStringCell> clone(cell.Clone(&region));
    const std::unique_ptr<OmStringCell> again(clone->Clone(nullptr));
    expectText(*clone, textOf(length));
    expectText(*again, textOf(length));
  }
}

TEST(OmStringCell, CreatesTextsOfAnyLength) {
  OmMemoryRegion region(false);
  for (const std::size_t length : kLengths) {
    const std::string text = textOf(length);
    const std::unique_ptr<OmStringCell> cell(OmStringCell::Create(text, &region));
    expectText(*cell, text);
  }
}

TEST(OmStringCell, CreatesAnEmptyTextFromAnEmptyView) {
  const std::unique_ptr<OmStringCell> cell(OmStringCell::Create(std::string_view(), nullptr));
  expectText(*cell, "");
}

TEST(OmStringCell, HoldsBytesOfValueZero) {
  for (const std::size_t length : {5U, 50U}) {
    std::string text(length, '\0');
    text.back() = 'x';
    const OmStringCell cell(text);
    const std::unique_ptr<OmStringCell> clone(cell.Clone(nullptr));
    expectText(cell, text);
    expectText(*clone, text);
  }
}

TEST(OmStringCell, ACloneIsOneAllocation) {
  for (const std::size_t length : kLengths) {
    OmMemoryRegion region(false);
    const OmStringCell cell(textOf(length));
    const std::size_t others = totalNewBlocks();
    const std::unique_ptr<OmStringCell> clone(cell.Clone(&region));
    EXPECT_EQ(totalNewBlocks(), others) << length;
    EXPECT_EQ(region.BlocksInUse(), 1U) << length;
  }
}

TEST(OmStringCell, CreateIsOneAllocation) {
  for (const std::size_t length : kLengths) {
    OmMemoryRegion region(false);
    const std::string text = textOf(length);
    const std::size_t others = totalNewBlocks();
    const std::unique_ptr<OmStringCell> cell(OmStringCell::Create(text, &region));
    EXPECT_EQ(totalNewBlocks(), others) << length;
    EXPECT_EQ(region.BlocksInUse(), 1U) << length;
  }
}

TEST(OmStringCell, CreateWithoutARegionUsesTheDefaultHeap) {
  const OmMemoryRegion& heap = *OmMemoryRegion::DefaultHeap();
  const std::size_t before = heap.BlocksInUse();
  std::unique_ptr<OmStringCell> cell(OmStringCell::Create(textOf(100), nullptr));
  EXPECT_EQ(heap.BlocksInUse(), before + 1);
  cell.reset();
  EXPECT_EQ(heap.BlocksInUse(), before);
}

TEST(OmStringCell, UpTo8CharactersOnTheStackNeedNoAllocation) {
  OmMemoryRegion region(false);
  const OmStringCell cell(textOf(8), &region);
  EXPECT_EQ(region.BlocksInUse(), 0U);
}

TEST(OmStringCell, MoreThan8CharactersOnTheStackTakeOneBlockOfTheRegion) {
  OmMemoryRegion region(false);
  {
    const OmStringCell cell(textOf(9), &region);
    EXPECT_EQ(region.BlocksInUse(), 1U);
  }
  EXPECT_EQ(region.BlocksInUse(), 0U);
}

TEST(OmStringCell, MoreThan8CharactersWithoutARegionTakeOneBlockOfTheDefaultHeap) {
  const OmMemoryRegion& heap = *OmMemoryRegion::DefaultHeap();
  const std::size_t before = heap.BlocksInUse();
  {
    const OmStringCell cell(textOf(9));
    EXPECT_EQ(heap.BlocksInUse(), before + 1);
  }
  EXPECT_EQ(heap.BlocksInUse(), before);
}

TEST(OmStringCell, IsUtf8UnlessItIsToldOtherwise) {
  EXPECT_TRUE(OmStringCell("a").IsUtf8());
  EXPECT_TRUE(OmStringCell("a", nullptr, true).IsUtf8());
  EXPECT_FALSE(OmStringCell("a", nullptr, false).IsUtf8());
  EXPECT_TRUE(std::unique_ptr<OmStringCell>(OmStringCell::Create("a", nullptr))->IsUtf8());
  EXPECT_FALSE(std::unique_ptr<OmStringCell>(OmStringCell::Create("a", nullptr, false))->IsUtf8());
}

TEST(OmStringCell, ACloneKeepsWhetherItIsUtf8) {
  const OmStringCell cell("a", nullptr, false);
  EXPECT_FALSE(std::unique_ptr<OmStringCell>(cell.Clone(nullptr))->IsUtf8());
}

TEST(OmStringCell, KeepsBytesThatAreNoUtf8AsTheyAre) {
  expectText(OmStringCell("\xFC\xFF\x80 and more", nullptr, false), "\xFC\xFF\x80 and more");
}

class Marked : public OmStringCell {
 public:
  Marked(const std::string& text, int mark) : OmStringCell(text), mark_(mark) {}
  Marked* Clone(OmMemoryRegion* region) const override { return new (region) Marked(*this); }
  int mark() const { return mark_; }

 private:
  Marked(const Marked&) = default;
  int mark_;
};

TEST(OmStringCellDerived, ClonesWithAllThatItHolds) {
  for (const std::size_t length : kLengths) {
    OmMemoryRegion region(false);
    const Marked cell(textOf(length), 17);
    const std::unique_ptr<Marked> clone(cell.Clone(&region));
    expectText(*clone, textOf(length));
    EXPECT_EQ(clone->mark(), 17);
    EXPECT_EQ(region.BlocksInUse(), 1U);
  }
}

TEST(OmStringCellDerived, ComparesAsAStringCell) {
  EXPECT_EQ(Marked("a", 1).Compare(OmStringCell("a")), 0);
  EXPECT_LT(OmStringCell("a").Compare(Marked("b", 1)), 0);
}

class WithoutItsOwnClone : public OmStringCell {
 public:
  explicit WithoutItsOwnClone(const std::string& text) : OmStringCell(text) {}
};

TEST(OmStringCellDerived, WithoutItsOwnCloneItClonesToAPlainStringCell) {
  const WithoutItsOwnClone cell("a long text of its own");
  const std::unique_ptr<OmCellText> clone(cell.Clone(nullptr));
  EXPECT_EQ(dynamic_cast<WithoutItsOwnClone*>(clone.get()), nullptr);
  EXPECT_EQ(std::string(*clone), "a long text of its own");
}

}  // namespace
}  // namespace om::test
