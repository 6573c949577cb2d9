// Which footnotes a layer of a table uses, in what order, by which marks.

#include "render/FootnoteMarks.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <numeric>
#include <string>
#include <vector>

#include "render/TableOptions.h"
#include "tests/render/SampleTables.h"

namespace om::test {
namespace {

using render::FootnoteMarks;
using render::Marks;

// A table with a view of one layer and the marks of it.
class Marked {
 public:
  explicit Marked(SampleTable table, Marks marks = Marks::LETTERS, int layer = 0)
      : table_(std::move(table)),
        walk_(*table_, {.layers = render::Layers::ONE, .layer = layer, .marks = marks}) {
    EXPECT_TRUE(walk_.next());
  }

  const FootnoteMarks* operator->() const { return &walk_.marks(); }
  const render::TableView& view() const { return walk_.view(); }
  const OmPivotTable& table() const { return *table_; }
  std::string cellMarks(const std::vector<int>& index) const {
    return walk_.marks().marksOf(table_->Cell(index));
  }
  // As in "a=first b=third".
  std::string notes() const {
    std::string text;
    for (const FootnoteMarks::Note& note : walk_.marks().notes()) {
      if (!text.empty()) text += ' ';
      text += note.mark + "=" + note.text;
    }
    return text;
  }

 private:
  SampleTable table_;
  render::LayerWalk walk_;
};

void addNotes(OmPivotTable& table, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) addSampleNote(table, "note" + std::to_string(i));
}

// One row dimension with the categories "r0", "r1", a column dimension with "c0", "c1", and `notes`
// footnotes "note0", "note1", ... that nothing refers to.
SampleTable twoByTwo(std::size_t notes) {
  SampleTable table = sampleTable("Title");
  addNotes(*table, notes);
  addSampleDimension(*table, "R", {"r0", "r1"});
  addSampleDimension(*table, "C", {"c0", "c1"});
  table->Rows().push_back(0);
  table->Columns().push_back(1);
  return table;
}

// All four cells; each has the footnotes given.
SampleTable withCells(SampleTable table, const std::vector<std::vector<short>>& notes) {
  for (std::size_t i = 0; i < notes.size(); ++i) {
    table->Cell({static_cast<int>(i / 2), static_cast<int>(i % 2)}, *noted("x", notes[i]));
  }
  return table;
}

// ---- Order

TEST(FootnoteMarks, NotesComeInTheOrderOfTheirFirstAppearanceInTheBody) {
  const Marked marked(withCells(twoByTwo(3), {{2}, {0}, {2}, {1}}));
  EXPECT_EQ(marked.notes(), "a=note2 b=note0 c=note1");
  EXPECT_EQ(marked->notes()[0].number, 2U);
}

TEST(FootnoteMarks, TitleLayerCornerColumnsRowsAndCaptionAreReadInThisOrder) {
  SampleTable table = sampleTable("Label");
  addNotes(*table, 12);
  table->SetTableTitle(*noted("Title", {11}));
  const auto caption = noted("Caption", {0});
  table->Caption(caption.get());
  OmDimension& rows = table->AddDimension(*noted("R", {7}));
  rows.AddNewChild(rows.Root(), *noted("r0", {4}), 0, false);
  rows.AddNewChild(rows.Root(), *noted("r1", {2}), 1, false);
  OmDimension& columns = table->AddDimension(*noted("C", {6}));
  columns.AddNewChild(columns.Root(), *noted("c0", {10}), 0, false);
  columns.AddNewChild(columns.Root(), *noted("c1", {5}), 1, false);
  OmDimension& layers = table->AddDimension(*noted("L", {9}));
  layers.AddNewChild(layers.Root(), *noted("l0", {8}), 0, false);
  table->Rows().push_back(0);
  table->Columns().push_back(1);
  table->Layers().push_back(2);
  table->Cell({0, 0, 0}, OmStringCell("x"));
  table->Cell({0, 1, 0}, *noted("x", {3}));
  table->Cell({1, 0, 0}, *noted("x", {1}));
  const Marked marked(std::move(table));
  EXPECT_EQ(marked.notes(),
            "a=note11 b=note9 c=note8 d=note7 e=note6 f=note10 g=note5 h=note4 i=note3 j=note2 "
            "k=note1 l=note0");
}

TEST(FootnoteMarks, ATableWithoutATitleOfItsOwnShowsItsLabelWithItsFootnotes) {
  SampleTable table = std::make_unique<OmPivotTable>(*noted("Label", {1}), OmStringCell(""), false);
  addNotes(*table, 2);
  table->AddDimension(OmStringCell("R"));
  addSampleCategories(table->Dimension(0), table->Dimension(0).Root(), {"r0"});
  table->Rows().push_back(0);
  table->Cell({0}, *noted("x", {0}));
  const Marked marked(std::move(table));
  EXPECT_EQ(marked.notes(), "a=note1 b=note0");
}

TEST(FootnoteMarks, ColumnLabelsAreReadRowByRow) {
  SampleTable table = sampleTable("Title");
  addNotes(*table, 3);
  OmDimension& columns = table->AddDimension(OmStringCell("C"));
  const auto group = addSampleGroup(columns, columns.Root(), "g0");
  columns.AddNewChild(group, *noted("below g0", {2}), 0, false);
  const auto second = columns.AddNewChild(columns.Root(), *noted("g1", {1}), ~0ULL, true);
  columns.AddNewChild(second, *noted("below g1", {0}), 1, false);
  table->Columns().push_back(0);
  table->Cell({0}, OmStringCell("x"));
  table->Cell({1}, OmStringCell("x"));
  EXPECT_EQ(Marked(std::move(table)).notes(), "a=note1 b=note2 c=note0");
}

TEST(FootnoteMarks, TheLabelOfAMergedRowIsReadWithItsFirstRow) {
  SampleTable table = sampleTable("Title");
  addNotes(*table, 3);
  addSampleDimension(*table, "Inner", {"i0", "i1"});
  OmDimension& outer = table->AddDimension(OmStringCell("Outer"));
  outer.AddNewChild(outer.Root(), OmStringCell("o0"), 0, false);
  outer.AddNewChild(outer.Root(), *noted("o1", {0}), 1, false);
  table->Rows().push_back(0);
  table->Rows().push_back(1);
  table->Cell({0, 0}, OmStringCell("x"));
  table->Cell({1, 0}, *noted("x", {2}));
  table->Cell({0, 1}, OmStringCell("x"));
  table->Cell({1, 1}, *noted("x", {1}));
  EXPECT_EQ(Marked(std::move(table)).notes(), "a=note2 b=note0 c=note1");
}

TEST(FootnoteMarks, FootnotesThatTheLayerDoesNotShowAreLeftOut) {
  SampleTable table = sampleTable("Title");
  addNotes(*table, 3);
  addSampleDimension(*table, "R", {"r0"});
  OmDimension& layers = table->AddDimension(OmStringCell("L"));
  layers.AddNewChild(layers.Root(), *noted("l0", {1}), 0, false);
  layers.AddNewChild(layers.Root(), *noted("l1", {2}), 1, false);
  table->Rows().push_back(0);
  table->Layers().push_back(1);
  table->Cell({0, 0}, *noted("x", {0}));
  table->Cell({0, 1}, OmStringCell("x"));
  const Marked marked(std::move(table), Marks::LETTERS, 1);
  EXPECT_EQ(marked.notes(), "a=note2");
  EXPECT_EQ(marked.cellMarks({0, 0}), "");
}

TEST(FootnoteMarks, LabelsOfSkippedRowsAreLeftOut) {
  SampleTable table = sampleTable("Title");
  addNotes(*table, 2);
  OmDimension& rows = table->AddDimension(OmStringCell("R"));
  rows.AddNewChild(rows.Root(), *noted("empty", {0}), 0, false);
  rows.AddNewChild(rows.Root(), *noted("full", {1}), 1, false);
  table->Rows().push_back(0);
  table->Cell({1}, OmStringCell("x"));
  EXPECT_EQ(Marked(std::move(table)).notes(), "a=note1");
}

// ---- Marks

TEST(FootnoteMarks, LettersGoOnWithTwoLettersBehindZ) {
  const auto letters = [](std::size_t number) {
    return FootnoteMarks::defaultMark(Marks::LETTERS, number);
  };
  EXPECT_EQ(letters(0), "a");
  EXPECT_EQ(letters(1), "b");
  EXPECT_EQ(letters(25), "z");
  EXPECT_EQ(letters(26), "aa");
  EXPECT_EQ(letters(27), "ab");
  EXPECT_EQ(letters(51), "az");
  EXPECT_EQ(letters(52), "ba");
  EXPECT_EQ(letters(701), "zz");  // 26 + 26 * 26 marks of one or two letters
  EXPECT_EQ(letters(702), "aaa");
}

TEST(FootnoteMarks, NumbersCountFromOne) {
  EXPECT_EQ(FootnoteMarks::defaultMark(Marks::NUMBERS, 0), "1");
  EXPECT_EQ(FootnoteMarks::defaultMark(Marks::NUMBERS, 9), "10");
}

TEST(FootnoteMarks, SymbolsAreDoubledBehindTheSixth) {
  const std::vector<std::string> expected = {"*", "†", "‡", "§", "‖", "¶", "**", "††"};
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(FootnoteMarks::defaultMark(Marks::SYMBOLS, i), expected[i]);
  }
  EXPECT_EQ(FootnoteMarks::defaultMark(Marks::SYMBOLS, 17), "¶¶¶");
}

TEST(FootnoteMarks, ThirtyFootnotesAreMarkedPastZ) {
  std::vector<short> all(28);
  std::iota(all.begin(), all.end(), short{0});
  const Marked marked(withCells(twoByTwo(28), {all}));
  EXPECT_EQ(marked->notes()[25].mark, "z");
  EXPECT_EQ(marked->notes()[26].mark, "aa");
  EXPECT_EQ(marked->notes()[27].mark, "ab");
}

TEST(FootnoteMarks, AMarkerOfItsOwnIsKeptAndNoDefaultMarkIsSpentOnIt) {
  SampleTable table = twoByTwo(1);
  addSampleNote(*table, "own", "+");
  addSampleNote(*table, "last");
  EXPECT_EQ(Marked(withCells(std::move(table), {{0}, {1}, {2}})).notes(), "a=note0 +=own b=last");
}

TEST(FootnoteMarks, DefaultMarksPassThoseThatAFootnoteHasOfItsOwn) {
  SampleTable table = twoByTwo(2);
  addSampleNote(*table, "own", "a");
  addSampleNote(*table, "other", "c");
  EXPECT_EQ(Marked(withCells(std::move(table), {{0}, {1}, {2}, {3}})).notes(),
            "b=note0 d=note1 a=own c=other");
}

TEST(FootnoteMarks, SymbolsAndNumbersPassOwnMarkersToo) {
  for (const auto& [marks, own, first] :
       {std::tuple(Marks::NUMBERS, "1", "2"), std::tuple(Marks::SYMBOLS, "*", "†")}) {
    SampleTable table = twoByTwo(1);
    addSampleNote(*table, "own", own);
    const Marked marked(withCells(std::move(table), {{0}, {1}}), marks);
    EXPECT_EQ(marked->notes()[0].mark, first);
    EXPECT_EQ(marked->notes()[1].mark, own);
  }
}

TEST(FootnoteMarks, TwoFootnotesMayHaveOneMarkerOfTheirOwn) {
  SampleTable table = twoByTwo(0);
  addSampleNote(*table, "one", "*");
  addSampleNote(*table, "two", "*");
  EXPECT_EQ(Marked(withCells(std::move(table), {{1}, {0}})).notes(), "*=two *=one");
}

// ---- One text

TEST(FootnoteMarks, SeveralFootnotesOfOneTextKeepItsOrder) {
  const Marked marked(withCells(twoByTwo(3), {{1}, {2, 0, 1}}));
  EXPECT_EQ(marked.notes(), "a=note1 b=note2 c=note0");
  EXPECT_EQ(marked.cellMarks({0, 1}), "b,c,a");
  EXPECT_EQ(marked->notesOf(marked.table().Cell({0, 1})), (std::vector<std::size_t>{1, 2, 0}));
}

TEST(FootnoteMarks, AFootnoteThatATextHasTwiceIsMarkedOnce) {
  const Marked marked(withCells(twoByTwo(2), {{1, 0, 1}}));
  EXPECT_EQ(marked.cellMarks({0, 0}), "a,b");
}

TEST(FootnoteMarks, ATextWithoutFootnotesAndNoTextHaveNoMarks) {
  const Marked marked(withCells(twoByTwo(1), {{0}, {}}));
  EXPECT_EQ(marked.cellMarks({0, 1}), "");
  EXPECT_EQ(marked->marksOf(nullptr), "");
  EXPECT_TRUE(marked->notesOf(nullptr).empty());
}

TEST(FootnoteMarks, NumbersOfNoFootnoteArePassedOver) {
  const Marked marked(withCells(twoByTwo(1), {{-1, 7, 0, 32767}}));
  EXPECT_EQ(marked.notes(), "a=note0");
  EXPECT_EQ(marked.cellMarks({0, 0}), "a");
}

TEST(FootnoteMarks, ATableWithoutFootnotesHasNoMarksWhateverItsTextsSay) {
  const Marked marked(withCells(twoByTwo(0), {{0}}));
  EXPECT_TRUE(marked->notes().empty());
  EXPECT_EQ(marked.cellMarks({0, 0}), "");
}

TEST(FootnoteMarks, AFootnoteWithoutATextKeepsItsMark) {
  SampleTable table = twoByTwo(0);
  addSampleNote(*table, "");
  table->Footnotes()[0] = OmFootnote(nullptr, nullptr, table->Footnotes()[0].Region());
  EXPECT_EQ(Marked(withCells(std::move(table), {{0}})).notes(), "a=");
}

// ---- Tables whose caption or layers are not shown

TEST(FootnoteMarks, ACaptionThatIsNotShownUsesNoFootnotes) {
  SampleTable table = withCells(twoByTwo(3), {{2}, {}});
  table->Caption(noted("caption", {0, 2}).get());
  table->showCaption(false);
  EXPECT_EQ(Marked(std::move(table)).notes(), "a=note2");
}

TEST(FootnoteMarks, ATableWithoutALayerUsesThoseOfTitleAndCaption) {
  const SampleTable table = withCells(twoByTwo(4), {{3}});
  table->SetTableTitle(*noted("title", {2}));
  table->Caption(noted("caption", {0, 2}).get());
  const FootnoteMarks marks(*table, Marks::NUMBERS);
  ASSERT_EQ(marks.notes().size(), 2U);
  EXPECT_EQ(marks.notes()[0].text, "note2");
  EXPECT_EQ(marks.notes()[1].text, "note0");
  EXPECT_EQ(marks.marksOf(table->GetTableTitle()), "1");
  EXPECT_EQ(marks.marksOf(table->Caption()), "2,1");
}

}  // namespace
}  // namespace om::test
