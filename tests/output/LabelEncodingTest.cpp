// The labels of charts and interactive outputs, which are put into the code page of their locale.

#include "output/internal/LabelEncoding.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "external/cells/OmMemoryRegion.h"
#include "external/cells/OmNumber.h"
#include "external/cells/OmStringCell.h"
#include "output/OmAnswerTree.h"
#include "output/OmChart.h"
#include "output/OmInteractive.h"
#include "output/OmModel.h"
#include "tests/output/PartKinds.h"
#include "tests/support/Allocations.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

template <class Part>
class EveryEncodedLabel : public testing::Test {
 protected:
  static std::string encoded(const std::string& label, const std::string& codePage) {
    return Part(OmStringCell(label), codePage, 1).Label();
  }
};

using EncodingKinds = testing::Types<OmChart, OmInteractive>;
TYPED_TEST_SUITE(EveryEncodedLabel, EncodingKinds, PartKindName);

TYPED_TEST(EveryEncodedLabel, IsPutIntoWindows1252) {
  // u with diaeresis, the euro sign
  EXPECT_EQ(this->encoded("Z\u00FCrich \u20AC", "windows-1252"), "Z\xFCrich \x80");
}

TYPED_TEST(EveryEncodedLabel, IsPutIntoGreek) {
  // alpha, capital omega, capital alpha with tonos
  EXPECT_EQ(this->encoded("a\u03B1\u03A9\u0386", "ISO-8859-7"), "a\xE1\xD9\xB6");
}

TYPED_TEST(EveryEncodedLabel, IsPutIntoShiftJis) {
  // two kanji, a hiragana, a half-width katakana, and a kanji whose second byte is a backslash
  EXPECT_EQ(this->encoded("A\u65E5\u672C\u3042\uFF71\u8868", "Shift_JIS"),
            "A\x93\xFA\x96\x7B\x82\xA0\xB1\x95\x5C");
}

TYPED_TEST(EveryEncodedLabel, IsPutIntoCyrillic) {
  EXPECT_EQ(this->encoded("\u043F\u0440\u0438\u0432\u0435\u0442 \u041F", "KOI8-R"),
            "\xD0\xD2\xC9\xD7\xC5\xD4 \xF0");
}

TYPED_TEST(EveryEncodedLabel, StaysTheSameInUtf8) {
  EXPECT_EQ(this->encoded("\u00E9 \u65E5", "UTF-8"), "\u00E9 \u65E5");
}

TYPED_TEST(EveryEncodedLabel, MayBeEmptyOrHoldBytesOfValueZero) {
  EXPECT_EQ(this->encoded("", "windows-1252"), "");
  EXPECT_EQ(this->encoded(std::string("a\0\u00E9", 4), "windows-1252"), std::string("a\0\xE9", 3));
}

TYPED_TEST(EveryEncodedLabel, StaysAsItIsInAnUnknownCodePage) {
  EXPECT_EQ(this->encoded("Z\u00FCrich", "no-such-code-page"), "Z\u00FCrich");
  EXPECT_EQ(this->encoded("Z\u00FCrich", "windows-1252//TRANSLIT"), "Z\u00FCrich");
}

TYPED_TEST(EveryEncodedLabel, StaysAsItIsWhenACharacterDoesNotFit) {
  EXPECT_EQ(this->encoded("Z\u00FCrich \u65E5", "windows-1252"), "Z\u00FCrich \u65E5");
  EXPECT_EQ(this->encoded("\u03B1\u0431", "ISO-8859-7"), "\u03B1\u0431");
  EXPECT_EQ(this->encoded("\u65E5\u00FC", "Shift_JIS"), "\u65E5\u00FC");
  EXPECT_EQ(this->encoded("\u043F\u65E5", "KOI8-R"), "\u043F\u65E5");
}

TYPED_TEST(EveryEncodedLabel, StaysAsItIsWhenItIsNoUtf8) {
  EXPECT_EQ(this->encoded("a\xFF\xE9", "windows-1252"), "a\xFF\xE9");
}

TYPED_TEST(EveryEncodedLabel, IsAStringCellThatDoesNotClaimToBeUtf8) {
  for (const char* const codePage : {"windows-1252", "UTF-8", "no-such-code-page"}) {
    const TypeParam part(OmNumber(42), codePage, 1);
    ASSERT_EQ(part.Label().Kind(), OmCellText::STRING) << codePage;
    const auto* const cell = dynamic_cast<const OmStringCell*>(&part.Label());
    ASSERT_NE(cell, nullptr) << codePage;
    EXPECT_FALSE(cell->IsUtf8()) << codePage;
    EXPECT_EQ(cell->View(), "42") << codePage;
  }
}

TYPED_TEST(EveryEncodedLabel, TakesThePlaceOfTheClone) {
  const CountedText label("label");
  resetCounted();
  const TypeParam part(label, "windows-1252", 1);
  EXPECT_EQ(CountedText::cloned(), 1);
  EXPECT_EQ(CountedText::live(), 1);
}

TYPED_TEST(EveryEncodedLabel, IsOnTheDefaultHeap) {
  const std::size_t before = OmMemoryRegion::DefaultHeap()->BlocksInUse();
  const TypeParam part(OmStringCell("label"), "windows-1252", 1);
  EXPECT_EQ(OmMemoryRegion::DefaultHeap()->BlocksInUse(), before + 1);
}

TYPED_TEST(EveryEncodedLabel, BringsNothingAlongThatTheLabelCarried) {
  OmStringCell label("label");
  label.Footnotes().push_back(3);
  const TypeParam encoded(label, "windows-1252", 1);
  EXPECT_TRUE(encoded.Label().Footnotes().empty());
}

TYPED_TEST(EveryEncodedLabel, LeavesTheCloneWithAnEmptyCodePage) {
  OmNumber label(42);
  label.Footnotes().push_back(3);
  const TypeParam part(label, "", 1);
  EXPECT_NE(&part.Label(), &label);
  EXPECT_EQ(part.Label().Kind(), OmCellText::NUMBER);
  EXPECT_EQ(part.Label().Footnotes(), std::vector<short>{3});
}

TYPED_TEST(EveryEncodedLabel, IsNotPutIntoTheCodePageWhenItIsReplacedLater) {
  TypeParam part(OmStringCell("label"), "windows-1252", 1);
  part.Label(OmStringCell("Z\u00FCrich"));
  EXPECT_EQ(std::string(part.Label()), "Z\u00FCrich");
}

TYPED_TEST(EveryEncodedLabel, ComesWithAWholePartOrNone) {
  const std::string text = "Z\u00FCrich, with more characters than a cell has room for";
  const std::string codePage = "windows-1252";
  const OmStringCell label(text);
  const std::size_t failures = failEveryAllocation([&](FailurePoint& point) {
    std::unique_ptr<TypeParam> part;
    const bool completed =
        point.during([&] { part = std::make_unique<TypeParam>(label, codePage, 1); });
    EXPECT_EQ(completed, !point.failed());
    EXPECT_EQ(part != nullptr, completed);
    if (part) {
      EXPECT_EQ(std::string(part->Label()),
                "Z\xFCrich, with more characters than a cell has room for");
    }
  });
  // the part, the clone, the record, the string form, the converter, the converted text, the cell
  // and its clone at least
  EXPECT_GE(failures, 8U);
}

TEST(LabelEncoding, DoesNotTouchTheLabelsOfModelsAndAnswerTrees) {
  const std::string codePage = "windows-1252";
  const CountedText label("Z\u00FCrich");
  resetCounted();
  const OmModel model(label);
  const OmAnswerTree tree(label, codePage);
  EXPECT_EQ(CountedText::cloned(), 2);
  EXPECT_EQ(CountedText::died(), std::vector<std::string>());
  EXPECT_EQ(std::string(model.Label()), "Z\u00FCrich");
  EXPECT_EQ(std::string(tree.Label()), "Z\u00FCrich");
}

}  // namespace
}  // namespace om::test
