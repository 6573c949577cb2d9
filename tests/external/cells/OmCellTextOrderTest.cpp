// The order of texts: numbers by value, dates by time, all other texts by their bytes.

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "tests/external/cells/Samples.h"

namespace om::test {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

int signOf(int value) { return value < 0 ? -1 : value > 0 ? 1 : 0; }

int compare(const OmCellText& a, const OmCellText& b) { return signOf(a.Compare(b)); }

OmStringCell cell(const std::string& text) { return OmStringCell(text); }

TextOwner string(const std::string& text) { return TextOwner(new OmStringCell(text)); }
TextOwner number(double value, int decimals = -1) {
  return TextOwner(new OmNumber(value, {decimals, false, false}));
}
TextOwner date(const OmDateCell::Moment& when, bool showsTime) {
  return TextOwner(new OmDateCell(when, showsTime));
}
TextOwner variable(const std::string& name, const std::string& label) {
  return TextOwner(new OmVariableCell(name, label));
}
TextOwner value(const std::string& data, const std::string& label) {
  return TextOwner(new OmValueCell(data, label));
}
TextOwner composite(const std::string& first, const std::string& second) {
  auto text = std::make_unique<OmComposite>();
  text->Append(OmStringCell(first));
  text->Append(OmStringCell(second), 1);
  return text;
}
TextOwner message(const std::string& pattern, const std::string& argument) {
  auto text = std::make_unique<OmMessageCell>(OmStringCell(pattern));
  text->Append(OmStringCell(argument));
  return text;
}

// Texts with the place of each in the order; texts of one place are equal.
struct Placed {
  int place;
  TextOwner text;
};

std::vector<Placed> mixedTexts() {
  std::vector<Placed> all;
  int place = 0;
  const auto next = [&](auto... texts) {
    ++place;
    (all.push_back({place, std::move(texts)}), ...);
  };
  next(number(-kInfinity));
  next(number(-1e300));
  next(number(-1.5, 0), number(-1.5, 3));
  next(number(-5e-324));
  next(number(0.0), number(-0.0));
  next(number(5e-324));
  next(number(2), number(2, 4));
  next(number(10));  // behind 2, though "10" sorts before "2"
  next(number(kInfinity));
  next(date({-300, 1, 1}, false));
  next(date({1999, 12, 31}, false), date({1999, 12, 31}, true));
  next(date({1999, 12, 31, 0, 0, 1}, true));
  next(date({2000, 1, 1}, false));
  next(date({10000, 1, 1}, false));
  next(string(""), variable("", ""), value("", ""));
  next(string(std::string(1, '\0')));
  next(string(std::string(2, '\0')));
  next(string("-5"), value("-5", ""));
  next(string("10"));
  next(string("1999-12-31"), variable("1999-12-31", ""));
  next(string("2"), value("1", "2"));
  next(string("Z"));
  next(string("a"), variable("a", ""), variable("x", "a"), value("a", ""), value("9", "a"),
       message("{0}", "a"));
  next(string(std::string("a\0", 2)), variable(std::string("a\0", 2), ""));
  next(string(std::string("a\0b", 3)));
  next(composite("a", "b"), string("a (b)"), message("a {0}", "(b)"));
  next(string("aa"));
  next(string("ab"), message("{0}b", "a"));
  next(string("b"));
  next(string("\x7F"));
  next(string("\x80"), variable("\x80", ""));
  next(string("\xC3\xA9"), value("1", "\xC3\xA9"));
  next(string("\xFF"));
  next(string("\xFF\xFF"));
  return all;
}

TEST(OmCellTextOrder, EveryPairOfTextsStandsInTheSameOrderSeenFromBoth) {
  const std::vector<Placed> all = mixedTexts();
  for (const Placed& a : all) {
    for (const Placed& b : all) {
      EXPECT_EQ(compare(*a.text, *b.text), signOf(a.place - b.place))
          << '"' << std::string(*a.text) << "\" (kind " << a.text->Kind() << ") and \""
          << std::string(*b.text) << "\" (kind " << b.text->Kind() << ")";
    }
  }
}

TEST(OmCellTextOrder, ClonesStandWhereTheirOriginalsDo) {
  const std::vector<Placed> all = mixedTexts();
  for (const Placed& a : all) {
    const TextOwner clone(a.text->Clone(nullptr));
    for (const Placed& b : all) {
      EXPECT_EQ(compare(*clone, *b.text), signOf(a.place - b.place));
      EXPECT_EQ(compare(*b.text, *clone), signOf(b.place - a.place));
    }
  }
}

TEST(OmCellTextOrder, EveryPairOfKindsComparesByItsStringFormButForNumbersAndDates) {
  // The samples by place: number, date, then "3 of", "Age", "a text", "employed", "income".
  const std::vector<int> order{2, 5, 0, 3, 1, 4, 6};
  for (std::size_t i = 0; i < order.size(); ++i) {
    for (std::size_t j = 0; j < order.size(); ++j) {
      const TextOwner a = kSamples[static_cast<std::size_t>(order[i])].make(nullptr);
      const TextOwner b = kSamples[static_cast<std::size_t>(order[j])].make(nullptr);
      EXPECT_EQ(compare(*a, *b), signOf(static_cast<int>(i) - static_cast<int>(j)))
          << order[i] << " and " << order[j];
    }
  }
}

TEST(OmCellTextOrder, BytesAbove127StandBehindAllOthers) {
  EXPECT_EQ(compare(cell("\xC3\xA9"), cell("z")), 1);
  EXPECT_EQ(compare(cell("z"), cell("\xC3\xA9")), -1);
}

TEST(OmCellTextOrder, AByteOfValueZeroEndsNoText) {
  const OmStringCell first(std::string("a\0b", 3));
  const OmStringCell second(std::string("a\0c", 3));
  EXPECT_EQ(compare(first, second), -1);
  EXPECT_EQ(compare(cell("a"), first), -1);
}

TEST(OmCellTextOrder, ATextStandsBeforeItsContinuations) {
  EXPECT_EQ(compare(cell("abc"), cell("abcd")), -1);
  EXPECT_EQ(compare(cell("abcd"), cell("abc")), 1);
}

TEST(OmCellTextOrder, TheDisplayFormatOfANumberDoesNotMatter) {
  EXPECT_EQ(compare(OmNumber(1.24, {1, false, false}), OmNumber(1.21, {1, false, false})), 1);
  EXPECT_EQ(compare(OmNumber(1.25, {0, true, true}), OmNumber(1.25)), 0);
}

TEST(OmCellTextOrder, TheTimeOfADayCountsWhetherItIsShownOrNot) {
  EXPECT_EQ(compare(OmDateCell({2026, 1, 1, 5, 0, 0}, true), OmDateCell({2026, 1, 1}, false)), 1);
  EXPECT_EQ(compare(OmDateCell({2026, 1, 1}, false), OmDateCell({2026, 1, 1, 5, 0, 0}, true)), -1);
}

TEST(OmCellTextOrder, FieldsOfADateCountFromTheYearDown) {
  const std::vector<OmDateCell::Moment> ascending{
      {2025, 12, 31, 23, 59, 59}, {2026, 1, 31, 23, 59, 59}, {2026, 2, 1, 23, 59, 59},
      {2026, 2, 2, 0, 59, 59},    {2026, 2, 2, 1, 0, 59},    {2026, 2, 2, 1, 1, 0},
      {2026, 2, 2, 1, 1, 1}};
  for (std::size_t i = 1; i < ascending.size(); ++i) {
    EXPECT_EQ(compare(OmDateCell(ascending[i - 1]), OmDateCell(ascending[i])), -1) << i;
  }
}

TEST(OmCellTextOrder, AValueThatIsNoNumberHasOnePlaceAmongTheNumbers) {
  const OmNumber missing(kNoNumber);
  EXPECT_EQ(compare(missing, missing), 0);
  EXPECT_EQ(compare(missing, OmNumber(-kNoNumber, {2, true, false})), 0);
  const int side = compare(missing, OmNumber(0));
  EXPECT_NE(side, 0);
  for (const double other : {-kInfinity, -1.0, 0.0, 1.0, kInfinity}) {
    EXPECT_EQ(compare(missing, OmNumber(other)), side) << other;
    EXPECT_EQ(compare(OmNumber(other), missing), -side) << other;
  }
  EXPECT_EQ(compare(missing, OmDateCell({1, 1, 1})), -1);
  EXPECT_EQ(compare(missing, cell("")), -1);
}

TEST(OmCellTextOrder, NeitherMetadataNorFootnotesNorTheCodePageMatter) {
  OmStringCell one("same");
  one.setMeta(kSampleMeta);
  one.Footnotes().push_back(1);
  EXPECT_EQ(compare(one, OmStringCell("same", nullptr, false)), 0);
}

}  // namespace
}  // namespace om::test
