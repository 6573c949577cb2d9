// What a workbook can hold of texts and formats.

#include "render/internal/XlsxText.h"

#include <gtest/gtest.h>

#include <string>

namespace om::test {
namespace {

using render::internal::fitXlsxFormat;
using render::internal::xlsxNumberFormat;
using render::internal::xlsxSheetName;
using render::internal::xlsxText;
using render::internal::xlsxUnits;

const std::string kReplacement = "\xEF\xBF\xBD";
const std::string kEllipsis = "\xE2\x80\xA6";

TEST(XlsxText, KeepsTextWithItsLineEndsAndTabs) {
  EXPECT_EQ(xlsxText("=1+2 <a> \"b\"\n\tc \xE6\xBC\xA2"), "=1+2 <a> \"b\"\n\tc \xE6\xBC\xA2");
  EXPECT_EQ(xlsxText("a\r\nb\rc\n"), "a\nb\nc\n");
}

TEST(XlsxText, ReplacesWhatXmlCannotHold) {
  EXPECT_EQ(xlsxText(std::string_view("\0\x1B\xFF\xEF\xBF\xBE\xEF\xBF\xBF", 9)),
            kReplacement + kReplacement + kReplacement + kReplacement + kReplacement);
}

TEST(XlsxText, EscapesWhatProgramsTakeForTheCodeOfACharacter) {
  EXPECT_EQ(xlsxText("_x000D_"), "_x005F_x000D_");
  EXPECT_EQ(xlsxText("a_xabCD_"), "a_x005F_xabCD_");
  EXPECT_EQ(xlsxText("_x00D_ _x000G_ _X000D_ _x000D"), "_x00D_ _x000G_ _X000D_ _x000D");
}

TEST(XlsxText, CutsOffWhatIsTooLongByUnitsOfUtf16) {
  EXPECT_EQ(xlsxText("abcde", 5), "abcde");
  EXPECT_EQ(xlsxText("abcdef", 5), "abcd" + kEllipsis);
  const std::string rocket = "\xF0\x9F\x9A\x80";
  EXPECT_EQ(xlsxText(rocket + rocket, 4), rocket + rocket);
  EXPECT_EQ(xlsxText(rocket + rocket, 3), rocket + kEllipsis);
  EXPECT_EQ(xlsxText(rocket + rocket, 2), kEllipsis);
  EXPECT_EQ(xlsxText("_x000D_", 12), "_x005F_x000" + kEllipsis);
  EXPECT_EQ(xlsxText("_x000D_", 6), kEllipsis);
  EXPECT_EQ(xlsxText("a", 0), "");
  EXPECT_EQ(xlsxText(std::string(32'768, 'x')), std::string(32'766, 'x') + kEllipsis);
}

TEST(XlsxUnits, CountsTwoBeyondTheFirstPlane) {
  EXPECT_EQ(xlsxUnits("a\xC3\xA9\xE6\xBC\xA2\xF0\x9F\x9A\x80"), 5U);
}

TEST(XlsxSheetName, LeavesOutWhatANameMustNotHave) {
  EXPECT_EQ(xlsxSheetName("1", "a[b]:c*d?e/f\\g\nh"), "1 a b  c d e f g h");
  EXPECT_EQ(xlsxSheetName("2.1", "'quoted'"), "2.1 'quoted");
  EXPECT_EQ(xlsxSheetName("3", ""), "3");
  EXPECT_EQ(xlsxSheetName("3", " '' "), "3");
}

TEST(XlsxSheetName, CutsOffLongTitles) {
  EXPECT_EQ(xlsxSheetName("12.34", std::string(26, 'x')),
            "12.34 " + std::string(24, 'x') + kEllipsis);
  EXPECT_EQ(xlsxSheetName("12.34", std::string(25, 'x')), "12.34 " + std::string(25, 'x'));
}

TEST(XlsxNumberFormat, FollowsTheFormatOfTheNumber) {
  EXPECT_EQ(xlsxNumberFormat(OmNumber(1.5), ""), "General");
  EXPECT_EQ(xlsxNumberFormat(OmNumber(1.5, {.decimals = 0}), ""), "0");
  EXPECT_EQ(xlsxNumberFormat(OmNumber(1.5, {.decimals = 3}), ""), "0.000");
  EXPECT_EQ(xlsxNumberFormat(OmNumber(1500, {.decimals = 2, .grouping = true}), ""), "#,##0.00");
  EXPECT_EQ(xlsxNumberFormat(OmNumber(1.5, {.decimals = 1, .percent = true}), ""), "0.0\"%\"");
  EXPECT_EQ(xlsxNumberFormat(OmNumber(1, {.decimals = 64}), ""), "0." + std::string(30, '0'));
}

TEST(XlsxNumberFormat, ShowsTheDigitsOfAGroupedNumberWithoutDecimals) {
  EXPECT_EQ(xlsxNumberFormat(OmNumber(1500, {.grouping = true}), ""), "#,##0");
  EXPECT_EQ(xlsxNumberFormat(OmNumber(1500.25, {.grouping = true}), ""), "#,##0.00");
  EXPECT_EQ(xlsxNumberFormat(OmNumber(1.5, {.percent = true}), ""), "General\"%\"");
  EXPECT_EQ(xlsxNumberFormat(OmNumber(1e-7, {.grouping = true}), ""), "General");
}

TEST(XlsxNumberFormat, PutsMarksBehind) {
  EXPECT_EQ(xlsxNumberFormat(OmNumber(1.5, {.decimals = 1}), "a,b"), "0.0\" a,b\"");
}

TEST(XlsxNumberFormat, TakesMarksThatStandInQuotes) {
  EXPECT_TRUE(fitXlsxFormat("a,*,\xE2\x80\xA0"));
  for (const std::string& marks : {std::string("\""), std::string("a\\"), std::string("\n"),
                                   std::string("\xFF"), std::string(41, 'a')}) {
    EXPECT_FALSE(fitXlsxFormat(marks)) << marks;
  }
}

}  // namespace
}  // namespace om::test
