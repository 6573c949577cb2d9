// What validate finds in the texts of a table: footnotes that are not in the list.

#include <gtest/gtest.h>

#include "tests/pivot/Validated.h"

namespace om::test {
namespace {

TEST(OmPivotTableValidateTexts, FindsAFootnoteOfACellBeyondTheList) {
  SoundTable table;
  table.Footnote(noteOf("note"), false);
  table.Cell({1, 0}, NotedText(1));
  expectOnly(table, OmTableFinding::FOOTNOTE_BEYOND_LIST, "cell (1, 0)", 1,
             "cell (1, 0): there is no footnote 1");
}

TEST(OmPivotTableValidateTexts, FindsANegativeFootnote) {
  SoundTable table;
  table.Footnote(noteOf("note"), false);
  table.Cell({1, 0}, NotedText(-1));
  expectOnly(table, OmTableFinding::FOOTNOTE_BEYOND_LIST, "cell (1, 0)", kMinus1,
             "cell (1, 0): there is no footnote -1");
}

TEST(OmPivotTableValidateTexts, FindsEachFootnoteOfATextThatIsBeyondTheList) {
  SoundTable table;
  table.Footnote(noteOf("note"), false);
  OmStringCell text("text");
  text.Footnotes() = {3, 0, 1};
  table.Cell({0, 0}, text);
  EXPECT_EQ(messagesOf(table), (Messages{"cell (0, 0): there is no footnote 1",
                                         "cell (0, 0): there is no footnote 3"}));
}

TEST(OmPivotTableValidateTexts, FindsTheFootnotesOfTheLabel) {
  SoundTable table;
  table.Label(NotedText(0));
  expectOnly(table, OmTableFinding::FOOTNOTE_BEYOND_LIST, "label", 0,
             "label: there is no footnote 0");
}

TEST(OmPivotTableValidateTexts, FindsTheFootnotesOfTheTableTitle) {
  SoundTable table;
  table.SetTableTitle(NotedText(2));
  expectOnly(table, OmTableFinding::FOOTNOTE_BEYOND_LIST, "table title", 2,
             "table title: there is no footnote 2");
}

TEST(OmPivotTableValidateTexts, FindsTheFootnotesOfTheCaption) {
  SoundTable table;
  const NotedText text(2);
  table.Caption(&text);
  expectOnly(table, OmTableFinding::FOOTNOTE_BEYOND_LIST, "caption", 2,
             "caption: there is no footnote 2");
}

TEST(OmPivotTableValidateTexts, FindsTheFootnotesOfTheCornerText) {
  SoundTable table;
  const NotedText text(2);
  table.CornerText(&text);
  expectOnly(table, OmTableFinding::FOOTNOTE_BEYOND_LIST, "corner text", 2,
             "corner text: there is no footnote 2");
}

TEST(OmPivotTableValidateTexts, FindsTheFootnotesOfADimensionsName) {
  SoundTable table;
  table.Dimension(1).Name().Footnotes().push_back(4);
  expectOnly(table, OmTableFinding::FOOTNOTE_BEYOND_LIST, "dimension 1", 4,
             "dimension 1: there is no footnote 4");
}

TEST(OmPivotTableValidateTexts, FindsTheFootnotesOfACategory) {
  SoundTable table;
  table.Dimension(0).Root().ChildAt(1)->Text()->Footnotes().push_back(0);
  expectOnly(table, OmTableFinding::FOOTNOTE_BEYOND_LIST, "dimension 0, node 1", 0,
             "dimension 0, node 1: there is no footnote 0");
}

}  // namespace
}  // namespace om::test
