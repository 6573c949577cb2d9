// Components with sub-components, to any depth.

#include "external/cells/OmComposite.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "external/cells/OmMemoryRegion.h"
#include "external/cells/OmNumber.h"
#include "external/cells/OmStringCell.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

using Components = std::vector<std::pair<const char*, std::size_t>>;

void append(OmComposite& composite, const Components& components) {
  for (const auto& [text, depth] : components) composite.Append(OmStringCell(text), depth);
}

std::string textOf(const Components& components) {
  OmComposite composite;
  append(composite, components);
  return composite;
}

TEST(OmComposite, IsEmptyAtFirst) {
  EXPECT_EQ(textOf({}), "");
  EXPECT_TRUE(OmComposite().Components().empty());
}

TEST(OmComposite, SeparatesItsComponentsByCommas) {
  EXPECT_EQ(textOf({{"a", 0}}), "a");
  EXPECT_EQ(textOf({{"a", 0}, {"b", 0}, {"c", 0}}), "a, b, c");
}

TEST(OmComposite, PutsSubComponentsInBrackets) {
  EXPECT_EQ(textOf({{"a", 0}, {"b", 1}, {"c", 1}, {"d", 0}}), "a (b, c), d");
  EXPECT_EQ(textOf({{"a", 0}, {"b", 1}}), "a (b)");
}

TEST(OmComposite, NestsBrackets) {
  EXPECT_EQ(textOf({{"a", 0}, {"b", 1}, {"c", 2}}), "a (b (c))");
  EXPECT_EQ(textOf({{"a", 0}, {"b", 1}, {"c", 2}, {"d", 1}}), "a (b (c), d)");
  EXPECT_EQ(textOf({{"a", 0}, {"b", 1}, {"c", 2}, {"d", 0}}), "a (b (c)), d");
  EXPECT_EQ(textOf({{"a", 0}, {"b", 1}, {"c", 0}, {"d", 1}, {"e", 1}}), "a (b), c (d, e)");
}

TEST(OmComposite, KeepsThePlacesOfEmptyTexts) {
  EXPECT_EQ(textOf({{"", 0}}), "");
  EXPECT_EQ(textOf({{"", 0}, {"", 0}}), ", ");
  EXPECT_EQ(textOf({{"", 0}, {"b", 0}}), ", b");
  EXPECT_EQ(textOf({{"", 0}, {"b", 1}}), " (b)");
  EXPECT_EQ(textOf({{"a", 0}, {"", 1}, {"", 0}}), "a (), ");
}

TEST(OmComposite, HoldsCellsOfAnyKind) {
  OmComposite inner;
  append(inner, {{"x", 0}, {"y", 1}});
  OmComposite composite;
  composite.Append(inner);
  composite.Append(OmNumber(2.5));
  EXPECT_EQ(std::string(composite), "x (y), 2.5");
}

TEST(OmComposite, TakesItselfAsAComponent) {
  OmComposite composite;
  append(composite, {{"a", 0}});
  composite.Append(composite, 1);
  EXPECT_EQ(std::string(composite), "a (a)");
}

TEST(OmComposite, GivesItsComponentsInReadingOrder) {
  OmComposite composite;
  const Components wanted{{"a", 0}, {"b", 1}, {"c", 2}, {"d", 1}, {"e", 0}};
  append(composite, wanted);
  ASSERT_EQ(composite.Components().size(), wanted.size());
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    EXPECT_EQ(std::string(*composite.Components()[i].cell), wanted[i].first);
    EXPECT_EQ(composite.Components()[i].depth, wanted[i].second);
  }
}

void expectTooDeep(OmComposite& composite, std::size_t depth) {
  const std::string before = composite;
  const std::size_t components = composite.Components().size();
  try {
    composite.Append(CountedText("x"), depth);
    ADD_FAILURE() << "appended at depth " << depth;
  } catch (const std::out_of_range& error) {
    EXPECT_STREQ(error.what(), "OmComposite::Append() -- depth > deepest");
  }
  EXPECT_EQ(composite.Components().size(), components);
  EXPECT_EQ(std::string(composite), before);
}

TEST(OmComposite, TheFirstComponentStandsAtTheTop) {
  OmComposite composite;
  expectTooDeep(composite, 1);
  expectTooDeep(composite, static_cast<std::size_t>(-1));
}

TEST(OmComposite, AComponentIsAtMostOneDeeperThanTheLast) {
  OmComposite composite;
  append(composite, {{"a", 0}});
  expectTooDeep(composite, 2);
  append(composite, {{"b", 1}, {"c", 0}});
  expectTooDeep(composite, 2);
  expectTooDeep(composite, static_cast<std::size_t>(-1));
  append(composite, {{"d", 1}});
  EXPECT_EQ(std::string(composite), "a (b), c (d)");
}

TEST(OmComposite, OwnsClonesInItsRegion) {
  OmMemoryRegion region(false);
  {
    OmComposite composite(&region);
    append(composite, {{"a", 0}, {"a longer component", 1}});
    EXPECT_EQ(region.BlocksInUse(), 2U);
  }
  EXPECT_EQ(region.BlocksInUse(), 0U);
}

TEST(OmComposite, ClonesEveryComponent) {
  OmMemoryRegion region(false);
  auto composite = std::make_unique<OmComposite>();
  composite->Append(CountedText("a"));
  composite->Append(CountedText("b"), 1);
  const std::unique_ptr<OmComposite> clone(composite->Clone(&region));
  EXPECT_EQ(CountedText::live(), 4);
  EXPECT_EQ(region.BlocksInUse(), 3U);
  composite.reset();
  EXPECT_EQ(CountedText::live(), 2);
  EXPECT_EQ(std::string(*clone), "a (b)");
  EXPECT_EQ(clone->Components()[1].depth, 1U);
}

TEST(OmComposite, ACloneOfAnEmptyCompositeTakesComponentsOfItsOwn) {
  OmMemoryRegion region(false);
  const OmComposite composite;
  const std::unique_ptr<OmComposite> clone(composite.Clone(&region));
  append(*clone, {{"a", 0}});
  EXPECT_EQ(region.BlocksInUse(), 2U);
  EXPECT_EQ(std::string(*clone), "a");
  EXPECT_TRUE(composite.Components().empty());
}

TEST(OmComposite, Has100000LevelsWithoutADeepCall) {
  constexpr std::size_t kLevels = 100000;
  OmComposite composite;
  const OmStringCell cell("x");
  std::string wanted;
  for (std::size_t depth = 0; depth < kLevels; ++depth) {
    composite.Append(cell, depth);
    wanted += depth == 0 ? "x" : " (x";
  }
  wanted.append(kLevels - 1, ')');
  EXPECT_TRUE(std::string(composite) == wanted);
  OmMemoryRegion region(false);
  std::unique_ptr<OmComposite> clone(composite.Clone(&region));
  EXPECT_TRUE(std::string(*clone) == wanted);
  EXPECT_EQ(clone->Compare(composite), 0);
  EXPECT_EQ(region.BlocksInUse(), kLevels + 1);
  clone.reset();
  EXPECT_EQ(region.BlocksInUse(), 0U);
}

}  // namespace
}  // namespace om::test
