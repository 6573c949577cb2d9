// The first number of a composite, in reading order.

#include "output/OmUtility.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "external/cells/OmComposite.h"
#include "external/cells/OmMemoryRegion.h"
#include "external/cells/OmNumber.h"
#include "external/cells/OmStringCell.h"
#include "tests/support/Oracle.h"

namespace om::test {
namespace {

// A number of a kind of the test's own.
class SpecialNumber : public OmNumber {
 public:
  using OmNumber::OmNumber;
  SpecialNumber* Clone(OmMemoryRegion* region) const override {
    return new (region) SpecialNumber(*this);
  }

 private:
  SpecialNumber(const SpecialNumber&) = default;
};

void addText(OmComposite& composite, std::size_t depth = 0) {
  composite.Append(OmStringCell("text"), depth);
}

void addNumber(OmComposite& composite, double value, std::size_t depth = 0) {
  composite.Append(OmNumber(value), depth);
}

// The first number has to be the cell of the component at the position.
void expectFound(const OmComposite& composite, std::size_t position) {
  ASSERT_LT(position, composite.Components().size());
  EXPECT_EQ(OmUtility::GetFirstNumber(composite), composite.Components()[position].cell.get());
}

void expectNoneFound(const OmComposite& composite) {
  EXPECT_EQ(OmUtility::GetFirstNumber(composite), nullptr);
}

TEST(OmUtility, FindsNoNumberInAnEmptyComposite) { expectNoneFound(OmComposite()); }

TEST(OmUtility, FindsNoNumberAmongTexts) {
  OmComposite composite;
  addText(composite);
  addText(composite, 1);
  addText(composite, 2);
  addText(composite);
  expectNoneFound(composite);
}

TEST(OmUtility, FindsNoNumberInATextThatReadsAsOne) {
  OmComposite composite;
  composite.Append(OmStringCell("42"));
  expectNoneFound(composite);
}

TEST(OmUtility, FindsANumberThatStandsFirst) {
  OmComposite composite;
  addNumber(composite, 1);
  addNumber(composite, 2);
  expectFound(composite, 0);
}

TEST(OmUtility, FindsTheFirstOfSeveralNumbersBehindTexts) {
  OmComposite composite;
  addText(composite);
  addText(composite);
  addNumber(composite, 1);
  addNumber(composite, 2);
  expectFound(composite, 2);
}

TEST(OmUtility, PrefersANumberBelowAnEarlierComponentToOneAtTheTop) {
  OmComposite composite;
  addText(composite);
  addNumber(composite, 1, 1);
  addNumber(composite, 2);
  expectFound(composite, 1);
}

TEST(OmUtility, PrefersADeepNumberToALaterOneThatIsLessDeep) {
  OmComposite composite;
  addText(composite);
  addText(composite, 1);
  addNumber(composite, 1, 2);
  addNumber(composite, 2, 1);
  addNumber(composite, 3);
  expectFound(composite, 2);
}

TEST(OmUtility, PrefersAComponentToItsSubComponents) {
  OmComposite composite;
  addNumber(composite, 1);
  addNumber(composite, 2, 1);
  expectFound(composite, 0);
}

TEST(OmUtility, LooksOnBehindSubComponentsWithoutANumber) {
  OmComposite composite;
  addText(composite);
  addText(composite, 1);
  addText(composite, 2);
  addNumber(composite, 1);
  expectFound(composite, 3);
}

TEST(OmUtility, FindsANumberBelowALaterComponent) {
  OmComposite composite;
  addText(composite);
  addText(composite, 1);
  addText(composite);
  addText(composite, 1);
  addNumber(composite, 1, 2);
  expectFound(composite, 4);
}

TEST(OmUtility, DoesNotLookIntoACompositeThatIsAComponent) {
  OmComposite inner;
  addNumber(inner, 1);
  OmComposite composite;
  composite.Append(inner);
  expectNoneFound(composite);
}

TEST(OmUtility, PassesACompositeThatIsAComponentAndLooksBelowIt) {
  OmComposite inner;
  addNumber(inner, 1);
  OmComposite composite;
  composite.Append(inner);
  addNumber(composite, 2, 1);
  addNumber(composite, 3);
  expectFound(composite, 1);
}

TEST(OmUtility, FindsNumbersOfDerivedKinds) {
  OmComposite composite;
  addText(composite);
  composite.Append(SpecialNumber(1));
  addNumber(composite, 2);
  expectFound(composite, 1);
}

TEST(OmUtility, FindsNumbersOfEveryValueAndFormat) {
  OmComposite missing;
  addNumber(missing, std::numeric_limits<double>::quiet_NaN());
  addNumber(missing, 1);
  expectFound(missing, 0);
  OmComposite zero;
  zero.Append(OmNumber(0, {2, true, true}));
  addNumber(zero, 1);
  expectFound(zero, 0);
}

TEST(OmUtility, GivesTheNumberItselfInAnyRegion) {
  OmMemoryRegion region(false);
  OmComposite composite(&region);
  addText(composite);
  addNumber(composite, 2.5);
  const std::unique_ptr<OmComposite> clone(composite.Clone(&region));
  expectFound(composite, 1);
  expectFound(*clone, 1);
  const OmNumber* const number = OmUtility::GetFirstNumber(composite);
  ASSERT_NE(number, nullptr);
  EXPECT_EQ(number->Value(), 2.5);
}

TEST(OmUtility, FindsANumberAHundredThousandLevelsDeep) {
  constexpr std::size_t kDepth = 100'000;
  OmComposite composite;
  for (std::size_t depth = 0; depth < kDepth; ++depth) addText(composite, depth);
  expectNoneFound(composite);
  addNumber(composite, 1, kDepth);
  addNumber(composite, 2);
  expectFound(composite, kDepth);
}

TEST(OmUtility, FindsANumberBehindAHundredThousandComponents) {
  constexpr std::size_t kCount = 100'000;
  OmComposite composite;
  for (std::size_t i = 0; i < kCount; ++i) addText(composite);
  addNumber(composite, 1);
  expectFound(composite, kCount);
}

TEST(OmUtility, IsNotMade) { EXPECT_FALSE(std::is_default_constructible_v<OmUtility>); }

// A component of the naive model: its position in reading order and its sub-components.
struct Component {
  std::size_t position;
  bool isNumber;
  std::vector<Component> below;
};

const Component* firstNumber(const std::vector<Component>& components) {
  for (const Component& component : components) {
    if (component.isNumber) return &component;
    if (const Component* const found = firstNumber(component.below)) return found;
  }
  return nullptr;
}

TEST(OmUtility, FindsWhatASearchByTheNestingFinds) {
  runRandomOperations(20240611, 2000, [](Random& random) {
    OmComposite composite;
    std::vector<Component> model;
    std::size_t deepest = 0;
    const std::size_t count = random.below(20);
    for (std::size_t position = 0; position < count; ++position) {
      const std::size_t depth = random.below(deepest + 1);
      const bool isNumber = random.oneIn(8);
      if (isNumber) {
        addNumber(composite, static_cast<double>(position), depth);
      } else {
        addText(composite, depth);
      }
      std::vector<Component>* level = &model;
      for (std::size_t i = 0; i < depth; ++i) level = &level->back().below;
      level->push_back({position, isNumber, {}});
      deepest = depth + 1;
    }
    const Component* const expected = firstNumber(model);
    if (expected == nullptr) {
      expectNoneFound(composite);
    } else {
      expectFound(composite, expected->position);
    }
  });
}

}  // namespace
}  // namespace om::test
