// A text as the field of a CSV record: quotes, and what a spreadsheet program takes for a formula.

#include "render/internal/CsvField.h"

#include <gtest/gtest.h>

#include <string>

namespace om::test {
namespace {

using render::internal::CsvField;

std::string guarded(std::string_view text) { return std::string(CsvField(true)(text)); }
std::string plain(std::string_view text) { return std::string(CsvField(false)(text)); }

TEST(CsvField, LeavesPlainTextAsItIs) {
  EXPECT_EQ(guarded(""), "");
  EXPECT_EQ(guarded("Adelie; 'x' | y"), "Adelie; 'x' | y");
  EXPECT_EQ(guarded("\xE6\xBC\xA2"), "\xE6\xBC\xA2");
}

TEST(CsvField, QuotesSeparatorsQuotesAndLineEnds) {
  EXPECT_EQ(guarded("a,b"), "\"a,b\"");
  EXPECT_EQ(guarded("a\"b"), "\"a\"\"b\"");
  EXPECT_EQ(guarded("a\nb"), "\"a\nb\"");
  EXPECT_EQ(guarded("a\r"), "\"a\r\"");
  EXPECT_EQ(guarded("\""), "\"\"\"\"");
}

TEST(CsvField, ReplacesWhatIsNotUtf8AndBytesOfZero) {
  EXPECT_EQ(guarded("a\xFF"), "a\xEF\xBF\xBD");
  EXPECT_EQ(guarded(std::string_view("a\0\0b", 4)),
            "a\xEF\xBF\xBD\xEF\xBF\xBD"
            "b");
}

TEST(CsvField, GuardsWhatBeginsLikeAFormula) {
  EXPECT_EQ(guarded("=1+2"), "'=1+2");
  EXPECT_EQ(guarded("@SUM(A1)"), "'@SUM(A1)");
  EXPECT_EQ(guarded("+cmd|' /C calc'!A0"), "'+cmd|' /C calc'!A0");
  EXPECT_EQ(guarded("-1+1"), "'-1+1");
  EXPECT_EQ(guarded("\t=1"), "'\t=1");
  EXPECT_EQ(guarded("\r=1"), "\"'\r=1\"");
  EXPECT_EQ(guarded("=\"a\",1"), "\"'=\"\"a\"\",1\"");
  EXPECT_EQ(guarded("\xEF\xBC\x9D"
                    "1"),
            "'\xEF\xBC\x9D"
            "1");
}

TEST(CsvField, LeavesSignedNumbersAndSingleSigns) {
  for (const char* const text : {"-5", "-1,234.50", "+3.2%", "-1e-07", "-2.5E+20", "-", "+", "="}) {
    EXPECT_EQ(CsvField::isFormula(text), false) << text;
  }
}

TEST(CsvField, IsStrictAboutNumbers) {
  for (const char* const text : {"-inf", "-5%%", "-1e", "-5 ", "-1e5+A1", "--5", "-.5", "+-5"}) {
    EXPECT_EQ(CsvField::isFormula(text), true) << text;
  }
}

TEST(CsvField, AddsAnApostropheToThoseInFrontOfAFormulaSoThatItCanBeTakenAway) {
  EXPECT_EQ(guarded("'=1+2"), "''=1+2");
  EXPECT_EQ(guarded("''=1+2"), "'''=1+2");
  EXPECT_EQ(guarded("'tis"), "'tis");
  EXPECT_EQ(guarded("'"), "'");
}

TEST(CsvField, GuardsNothingWhenToldSo) {
  EXPECT_EQ(plain("=1+2"), "=1+2");
  EXPECT_EQ(plain("=1,2"), "\"=1,2\"");
}

}  // namespace
}  // namespace om::test
