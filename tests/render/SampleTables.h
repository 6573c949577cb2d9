// Tables for the tests of the writers, one for each thing that a writer has to get right.

#ifndef OM_TESTS_RENDER_SAMPLETABLES_H_
#define OM_TESTS_RENDER_SAMPLETABLES_H_

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "external/cells/OmNumber.h"
#include "external/cells/OmStringCell.h"
#include "pivot/OmPivotTable.h"

namespace om::test {

using SampleTable = std::unique_ptr<OmPivotTable>;

inline SampleTable sampleTable(const std::string& title) {
  return std::make_unique<OmPivotTable>(OmStringCell(title), OmStringCell("Sample"), false);
}

// A text with footnotes.
inline std::unique_ptr<OmCellText> noted(const OmCellText& text, const std::vector<short>& notes) {
  std::unique_ptr<OmCellText> result(text.Clone(nullptr));
  result->Footnotes() = notes;
  return result;
}
inline std::unique_ptr<OmCellText> noted(const std::string& text, const std::vector<short>& notes) {
  return noted(OmStringCell(text), notes);
}

inline OmDimension::Node addSampleGroup(OmDimension& dimension, const OmDimension::Node& parent,
                                        const std::string& label) {
  return dimension.AddNewChild(parent, OmStringCell(label), ~0ULL, true);
}

// Categories whose subscripts go on from those that the dimension has.
inline void addSampleCategories(OmDimension& dimension, const OmDimension::Node& parent,
                                const std::vector<std::string>& labels) {
  for (const std::string& label : labels) {
    const auto subscript = static_cast<unsigned long long>(dimension.NumCategories());
    dimension.AddNewChild(parent, OmStringCell(label), subscript, false);
  }
}

inline OmDimension& addSampleDimension(OmPivotTable& table, const std::string& name,
                                       const std::vector<std::string>& labels) {
  OmDimension& dimension = table.AddDimension(OmStringCell(name));
  addSampleCategories(dimension, dimension.Root(), labels);
  return dimension;
}

inline OmNumber count(double value) { return OmNumber(value, {.decimals = 0, .grouping = true}); }
inline OmNumber percent(double value) { return OmNumber(value, {.decimals = 1, .percent = true}); }

inline OmFootnote sampleNote(const std::string& text, const char* marker = nullptr) {
  const OmStringCell noteText(text);
  const OmStringCell markerText(marker != nullptr ? marker : "");
  return OmFootnote(&noteText, marker != nullptr ? &markerText : nullptr, nullptr);
}

inline void addSampleNote(OmPivotTable& table, const std::string& text,
                          const char* marker = nullptr) {
  table.Footnote(sampleNote(text, marker), true);
}

// Rows and columns of one dimension each; one cell is missing, one has no value.
inline SampleTable flatTable() {
  SampleTable table = sampleTable("Penguins by species");
  addSampleDimension(*table, "Species", {"Adelie", "Chinstrap", "Gentoo"});
  addSampleDimension(*table, "Statistics", {"N", "Per cent", "Mean mass"});
  table->Rows().push_back(0);
  table->Columns().push_back(1);
  const std::vector<std::vector<double>> values = {
      {152, 44.2, 3700.66}, {68, 19.8, 3733.09}, {1240, 36.0, 5076.02}};
  for (int row = 0; row < 3; ++row) {
    const std::vector<double>& of = values[static_cast<std::size_t>(row)];
    table->Cell({row, 0}, count(of[0]));
    if (row != 1) table->Cell({row, 1}, percent(of[1]));
    table->Cell({row, 2},
                row == 2 ? OmNumber(-of[2], {.decimals = 3}) : OmNumber(of[2], {.decimals = 2}));
  }
  table->Cell({1, 2}, OmNumber(std::stod("nan")));
  const OmStringCell caption("Palmer Archipelago, 2007 to 2009.");
  table->Caption(&caption);
  return table;
}

// Two nested dimensions on each axis, one of them with groups at different depths, one dimension on
// the layers, a hidden category, hidden labels of a group, an empty layer and an empty row.
inline SampleTable nestedTable() {
  SampleTable table = sampleTable("Survival by region, sex and class");
  OmDimension& region = table->AddDimension(OmStringCell("Region"));
  const auto europe = addSampleGroup(region, region.Root(), "Europe");
  addSampleCategories(region, europe, {"Britain", "France"});
  addSampleCategories(region, region.Root(), {"Elsewhere", "Nowhere"});
  addSampleDimension(*table, "Sex", {"Female", "Male"});
  OmDimension& age = table->AddDimension(OmStringCell("Age"));
  const auto grown = addSampleGroup(age, age.Root(), "Of age");
  grown->Hide(true);
  addSampleCategories(age, grown, {"Adult"});
  addSampleCategories(age, age.Root(), {"Child"});
  addSampleDimension(*table, "Survived", {"No", "Yes"});
  addSampleDimension(*table, "Class", {"First", "Crew", "Third"});
  for (const short dimension : std::to_array<short>({1, 0})) table->Rows().push_back(dimension);
  for (const short dimension : std::to_array<short>({3, 2})) table->Columns().push_back(dimension);
  table->Layers().push_back(4);
  for (int place = 0; place < 4 * 2 * 2 * 2 * 3; ++place) {
    const int at[] = {place % 4, place / 4 % 2, place / 8 % 2, place / 16 % 2, place / 32};
    const bool isEmpty = at[0] == 3 || at[4] == 1 || (at[0] == 2 && at[1] == 1);
    if (isEmpty) continue;
    table->Cell({at[0], at[1], at[2], at[3], at[4]}, count(place * place));
  }
  return table;
}

// Footnotes on the title, a dimension's name, labels and cells, several on one cell; one has a
// marker of its own, one marker is a default mark, and one footnote is not used.
inline SampleTable footnoteTable() {
  SampleTable table = sampleTable("Weights");
  table->SetTableTitle(*noted("Weights of penguins", {2}));
  addSampleNote(*table, "Weighted by island.");
  addSampleNote(*table, "Nobody refers to this.");
  addSampleNote(*table, "In grams.");
  addSampleNote(*table, "Significant at 5 per cent.", "*");
  addSampleNote(*table, "Estimated.", "b");
  addSampleNote(*table, "Few birds.");
  OmDimension& species = table->AddDimension(*noted("Species", {0}));
  addSampleCategories(species, species.Root(), {"Adelie"});
  species.AddNewChild(species.Root(), *noted("Gentoo", {5}), 1, false);
  addSampleDimension(*table, "Statistics", {"Mean", "Difference"});
  table->Rows().push_back(0);
  table->Columns().push_back(1);
  table->Cell({0, 0}, *noted(OmNumber(3700.7, {.decimals = 1}), {3, 4}));
  table->Cell({0, 1}, OmNumber(-12.25, {.decimals = 2}));
  table->Cell({1, 0}, OmNumber(5076, {.decimals = 0}));
  table->Cell({1, 1}, *noted(OmNumber(1375.3, {.decimals = 1}), {3}));
  const std::unique_ptr<OmCellText> caption = noted("Measured on land.", {0});
  table->Caption(caption.get());
  return table;
}

// More columns than a page has room for, in groups of three.
inline SampleTable wideTable() {
  SampleTable table = sampleTable("Births by month");
  addSampleDimension(*table, "Town", {"Ash", "Birchwood", "Cedar Hill"});
  OmDimension& month = table->AddDimension(OmStringCell("Month"));
  const std::vector<std::vector<std::string>> quarters = {{"January", "February", "March"},
                                                          {"April", "May", "June"},
                                                          {"July", "August", "September"},
                                                          {"October", "November", "December"}};
  for (const std::vector<std::string>& labels : quarters) {
    const auto number = std::to_string(month.Root().ChildCount() + 1);
    addSampleCategories(month, addSampleGroup(month, month.Root(), "Quarter " + number), labels);
  }
  table->Rows().push_back(0);
  table->Columns().push_back(1);
  for (int town = 0; town < 3; ++town) {
    for (int i = 0; i < 12; ++i) table->Cell({town, i}, count((town + 1) * 1000 + 37 * i));
  }
  return table;
}

// Dimensions, but no cells.
inline SampleTable emptyTable() {
  SampleTable table = sampleTable("Nothing was counted");
  addSampleDimension(*table, "Rows", {"One", "Two"});
  addSampleDimension(*table, "Columns", {"Left", "Right"});
  table->Rows().push_back(0);
  table->Columns().push_back(1);
  return table;
}

// One dimension, which is on the rows: there is one column, without labels.
inline SampleTable columnlessTable() {
  SampleTable table = sampleTable("Notes");
  addSampleDimension(*table, "Item", {"Output created", "Records read"});
  table->Rows().push_back(0);
  table->Cell({0}, OmStringCell("on a Monday"));
  table->Cell({1}, count(344));
  return table;
}

// Texts that try to be something else than text.
inline const std::vector<std::string>& hostileTexts() {
  static const std::vector<std::string> texts = {
      "<script>alert(\"1\")</script> & 'more'",
      "=1+2",
      "line\nbreak\r\nand\ttab",
      std::string("zero\0byte", 9) + "\x1B[31mred\x7F",
      "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D \xE2\x80\xAE"
      "abc",  // Hebrew, then an override
      "broken \xFF\xC3\x28 \xED\xA0\x80",
      "",
      std::string(300, 'x'),
      "\xE6\xBC\xA2\xE5\xAD\x97 e\xCC\x81 \xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x9A\x80",
      "a,b;\"c\"\\ {\"d\": ]]> --> %s\xE2\x80\xA8"
      "e",
  };
  return texts;
}
// Before any test counts what it leaves behind.
inline const bool kHostileTextsAreMade = !hostileTexts().empty();

// Everything in it is hostile: title, names, labels, cells, footnote, caption, corner.
inline SampleTable hostileTable() {
  const std::vector<std::string>& texts = hostileTexts();
  SampleTable table = sampleTable(texts[0]);
  addSampleNote(*table, texts[0] + texts[3], texts[5].c_str());
  addSampleDimension(*table, texts[2], texts);
  addSampleDimension(*table, texts[4], {texts[0], texts[5], texts[8]});
  table->Rows().push_back(0);
  table->Columns().push_back(1);
  for (int row = 0; row < static_cast<int>(texts.size()); ++row) {
    table->Cell({row, 0}, OmStringCell(texts[static_cast<std::size_t>(row)]));
    table->Cell({row, 1}, *noted(OmNumber(row * 1.5), {0}));
  }
  table->Cell({0, 2}, OmStringCell(texts[8]));
  const OmStringCell caption(texts[5]);
  table->Caption(&caption);
  const OmStringCell corner(texts[9]);
  table->CornerText(&corner);
  return table;
}

}  // namespace om::test

#endif  // OM_TESTS_RENDER_SAMPLETABLES_H_
