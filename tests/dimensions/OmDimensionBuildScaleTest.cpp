// Dimensions far deeper and wider than real ones: built, copied, looked up, printed and destroyed.
// The deep ones are treated on a stack that has no room for a call at each level.

#include <gtest/gtest.h>
#include <pthread.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <iostream>
#include <streambuf>
#include <string>

#include "tests/dimensions/DimensionText.h"

namespace om::test {
namespace {

constexpr std::uint32_t kDepth = 10'000;
// Some 13 bytes a level.
constexpr std::size_t kSmallStack = 128 * 1024;

// Runs the operation to its end on a small stack. It may throw nothing.
void onSmallStack(const std::function<void()>& operation) {
  pthread_attr_t attributes;
  ASSERT_EQ(pthread_attr_init(&attributes), 0);
  ASSERT_EQ(pthread_attr_setstacksize(&attributes, kSmallStack), 0);
  pthread_t thread{};
  const auto run = [](void* argument) -> void* {
    (*static_cast<const std::function<void()>*>(argument))();
    return nullptr;
  };
  auto* const argument = const_cast<std::function<void()>*>(&operation);
  ASSERT_EQ(pthread_create(&thread, &attributes, run, argument), 0);
  ASSERT_EQ(pthread_join(thread, nullptr), 0);
  pthread_attr_destroy(&attributes);
}

// Groups "g" on levels 1 to kDepth - 1, each the only child of the one before, and a category "c"
// below them.
void buildDeep(OmDimension& dimension, bool byChild) {
  const OmStringCell groupText("g");
  const OmStringCell categoryText("c");
  const auto add = [&](const Node& parent, const OmCellText& text, bool isGroup) {
    const unsigned long long subscript = isGroup ? kAllBits : 0;
    return byChild ? dimension.Child(parent, text, subscript, isGroup)
                   : dimension.AddNewChild(parent, text, subscript, isGroup);
  };
  Node at = dimension.Root();
  for (std::uint32_t level = 1; level < kDepth; ++level) at = add(at, groupText, true);
  add(at, categoryText, false);
}

Node bottomOf(OmDimension& dimension) {
  Node at = dimension.Root();
  while (at.ChildCount() != 0) at = at.FirstChild();
  return at;
}

void expectDeep(OmDimension& dimension) {
  EXPECT_EQ(dimension.checkInvariants(), nullptr);
  EXPECT_EQ(dimension.NumCategories(), 1);
  const Node bottom = bottomOf(dimension);
  EXPECT_EQ(bottom.Depth(), kDepth);
  EXPECT_EQ(printed(*bottom), "Subscript: 0, Group: no, hide: no, hideLabels: no, Text: c\n");
  EXPECT_EQ(printed(*bottom.Parent()),
            "Subscript: -1, Group: yes, hide: no, hideLabels: no, Children: 0, Text: g\n");
}

class OmDimensionBuildDeep : public testing::Test {
 protected:
  ~OmDimensionBuildDeep() override {
    onSmallStack([this] { dimension_.reset(); });
    EXPECT_EQ(region_.BlocksInUse(), 0U);
  }

  OmMemoryRegion region_{false};
  DimensionOwner dimension_ = dimensionNamed("name", &region_);
};

TEST_F(OmDimensionBuildDeep, IsBuiltByAddNewChildAndDestroyed) {
  onSmallStack([this] { buildDeep(*dimension_, false); });
  expectDeep(*dimension_);
}

TEST_F(OmDimensionBuildDeep, IsBuiltByChildAndDestroyed) {
  onSmallStack([this] { buildDeep(*dimension_, true); });
  expectDeep(*dimension_);
}

TEST_F(OmDimensionBuildDeep, IsFoundAgainByChildAndNothingIsAdded) {
  buildDeep(*dimension_, true);
  const std::size_t blocks = region_.BlocksInUse();
  onSmallStack([this] { buildDeep(*dimension_, true); });
  EXPECT_EQ(region_.BlocksInUse(), blocks);
  expectDeep(*dimension_);
}

TEST_F(OmDimensionBuildDeep, IsCopied) {
  buildDeep(*dimension_, false);
  OmMemoryRegion another(false);
  DimensionOwner copy;
  onSmallStack([&] { copy = DimensionFactory::copy(*dimension_, &another); });
  expectDeep(*copy);
  EXPECT_EQ(another.BlocksInUse(), region_.BlocksInUse());
  onSmallStack([&] { copy.reset(); });
  EXPECT_EQ(another.BlocksInUse(), 0U);
  expectDeep(*dimension_);
}

TEST_F(OmDimensionBuildDeep, HasACounterpartForItsBottom) {
  buildDeep(*dimension_, false);
  const DimensionOwner copy = DimensionFactory::copy(*dimension_, nullptr);
  Node mapped;
  onSmallStack([&] { mapped = copy->Counterpart(bottomOf(*dimension_)); });
  EXPECT_EQ(mapped, bottomOf(*copy));
  EXPECT_EQ(mapped.Depth(), kDepth);
}

// Counts what is written and keeps none of it.
class OutputCounter : public std::streambuf {
 public:
  OutputCounter() : former_(std::cout.rdbuf(this)) {}
  ~OutputCounter() override { std::cout.rdbuf(former_); }
  OutputCounter(const OutputCounter&) = delete;
  OutputCounter& operator=(const OutputCounter&) = delete;

  std::size_t bytes() const { return bytes_; }
  std::size_t lines() const { return lines_; }

 private:
  int overflow(int c) override {
    ++bytes_;
    if (c == '\n') ++lines_;
    return c;
  }

  std::streambuf* former_;
  std::size_t bytes_ = 0;
  std::size_t lines_ = 0;
};

// The lines without the blanks in front, and two blanks for each step down on each level.
TEST_F(OmDimensionBuildDeep, IsPrinted) {
  buildDeep(*dimension_, false);
  const std::string root =
      "Subscript: -1, Group: yes, hide: no, hideLabels: no, Children: 0, Text: name\n";
  const std::string inner =
      "Subscript: -1, Group: yes, hide: no, hideLabels: no, Children: 0, Text: g\n";
  const std::string leaf = "Subscript: 0, Group: no, hide: no, hideLabels: no, Text: c\n";
  const std::size_t blanks = std::size_t{kDepth} * (kDepth + 1);
  const OutputCounter counter;
  onSmallStack([this] { dimension_->Print(); });
  EXPECT_EQ(counter.lines(), kDepth + 1U);
  EXPECT_EQ(counter.bytes(), root.size() + (kDepth - 1) * inner.size() + leaf.size() + blanks);
}

// Labels "00000" to "99999" in an order that jumps about: 31 has no divisor in common with 100 000.
TEST(OmDimensionBuildWide, AHundredThousandChildrenAreAddedFoundAndCopied) {
  constexpr std::size_t kWidth = 100'000;
  const auto label = [](std::size_t i) {
    const std::string digits = std::to_string(i * 31 % kWidth);
    return std::string(5 - digits.size(), '0') + digits;
  };
  const DimensionOwner dimension = dimensionNamed("name");
  for (std::size_t i = 0; i < kWidth; ++i) category(*dimension, dimension->Root(), label(i), i);
  EXPECT_EQ(dimension->NumCategories(), static_cast<std::int32_t>(kWidth));
  EXPECT_EQ(dimension->checkInvariants(), nullptr);

  const DimensionOwner copy = DimensionFactory::copy(*dimension, nullptr);
  for (std::size_t i = 0; i < kWidth; ++i) {
    const OmStringCell text(label(i));
    ASSERT_EQ(OmDimension::FindChild(dimension->Root(), text, false), static_cast<int>(i));
    ASSERT_EQ(OmDimension::FindChild(copy->Root(), text, false), static_cast<int>(i));
  }
}

}  // namespace
}  // namespace om::test
