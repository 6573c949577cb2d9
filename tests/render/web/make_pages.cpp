// Writes the sample pages that the browser tests open, into a folder: render-web-pages FOLDER.

#include <array>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "render/HtmlWriter.h"
#include "tests/render/SampleDocuments.h"

namespace {

using om::test::SampleTable;

// Three dimensions on the layers. The second one has a category only with one of the first; the
// third one has a single category. The table remembers its last layer.
SampleTable layeredTable() {
  SampleTable table = om::test::sampleTable("Survival by sex");
  om::test::addSampleDimension(*table, "Sex", {"Female", "Male"});
  om::test::addSampleDimension(*table, "Survived", {"No", "Yes"});
  OmDimension& age = table->AddDimension(OmStringCell("Age"));
  const auto grown = om::test::addSampleGroup(age, age.Root(), "Of age");
  om::test::addSampleCategories(age, grown, {"Adult"});
  om::test::addSampleCategories(age, age.Root(), {"Child"});
  om::test::addSampleDimension(*table, "Class", {"First", "Second", "Crew"});
  om::test::addSampleDimension(*table, "Ship", {"Titanic"});
  om::test::addSampleNote(*table, "There were no children among the crew.");
  table->Rows().push_back(0);
  table->Columns().push_back(1);
  for (const short dimension : std::to_array<short>({4, 2, 3})) {
    table->Layers().push_back(dimension);
  }
  const double counts[3][2][2][2] = {{{{4, 118}, {140, 57}}, {{0, 0}, {1, 5}}},
                                     {{{13, 154}, {80, 14}}, {{0, 0}, {13, 11}}},
                                     {{{3, 670}, {20, 192}}, {{-1, -1}, {-1, -1}}}};
  for (int place = 0; place < 3 * 2 * 2 * 2; ++place) {
    const int at[] = {place % 2, place / 2 % 2, place / 4 % 2, place / 8};
    const double value = counts[at[3]][at[2]][at[1]][at[0]];
    if (value < 0) continue;
    table->Cell({at[0], at[1], at[2], at[3], 0}, om::test::count(value));
    if (at[3] == 2) table->Cell({at[0], at[1], at[2], at[3], 0})->Footnotes().push_back(0);
  }
  table->setLayerLoc(4);
  return table;
}

// More rows than a window has room for, in groups.
SampleTable longTable() {
  SampleTable table = om::test::sampleTable("Rain by town and month");
  const std::vector<std::string> months = {"January",   "February", "March",    "April",
                                           "May",       "June",     "July",     "August",
                                           "September", "October",  "November", "December"};
  om::test::addSampleDimension(*table, "Town", {"Ash", "Birchwood", "Cedar Hill", "Dale", "Elm"});
  om::test::addSampleDimension(*table, "Month", months);
  om::test::addSampleDimension(*table, "Statistics", {"Days", "Millimetres", "Per cent", "Remark"});
  for (const short dimension : std::to_array<short>({1, 0})) table->Rows().push_back(dimension);
  table->Columns().push_back(2);
  for (int town = 0; town < 5; ++town) {
    for (int month = 0; month < 12; ++month) {
      const double days = (town * 7 + month * 5) % 23 + 3;
      table->Cell({town, month, 0}, om::test::count(days));
      table->Cell({town, month, 1}, OmNumber(days * 4.25, {.decimals = 2}));
      table->Cell({town, month, 2}, om::test::percent(days / 0.31));
      if (month % 5 == 0) table->Cell({town, month, 3}, OmStringCell("Gauge was moved"));
    }
  }
  return table;
}

// Labels in Arabic and Hebrew among others.
SampleTable rightToLeftTable() {
  SampleTable table = om::test::sampleTable("السكان بالملايين (2020)");
  om::test::addSampleNote(*table, "תחזית (2019)");
  om::test::addSampleDimension(*table, "الدولة", {"مصر", "ישראל (IL)", "Malta"});
  om::test::addSampleDimension(*table, "שנה", {"2010", "2020"});
  table->Rows().push_back(0);
  table->Columns().push_back(1);
  const double values[3][2] = {{82.8, 102.3}, {7.6, 9.2}, {0.4, 0.5}};
  for (int place = 0; place < 6; ++place) {
    const OmNumber number(values[place / 2][place % 2], {.decimals = 1});
    table->Cell({place / 2, place % 2}, number);
    if (place % 2 == 1) table->Cell({place / 2, place % 2})->Footnotes().push_back(0);
  }
  return table;
}

// Tables that ask for something of the page: layers to choose, room to scroll, directions.
OmOutputTree tablesDocument() {
  OmOutputTree tree;
  tree.AppendLast(om::test::sampleHeading("Layers"), 1);
  tree.AppendLast(layeredTable(), 2);
  tree.AppendLast(om::test::nestedTable(), 2);
  tree.AppendLast(om::test::sampleHeading("Size"), 1);
  tree.AppendLast(om::test::wideTable(), 2);
  tree.AppendLast(longTable(), 2);
  tree.AppendLast(om::test::sampleHeading("Direction"), 1);
  tree.AppendLast(rightToLeftTable(), 2);
  return tree;
}

void writePage(const std::filesystem::path& path, const OmOutputTree& document,
               const std::string& title) {
  std::ofstream out(path, std::ios::binary);
  om::render::HtmlOptions options;
  options.title = title;
  om::render::writeHtml(document, out, options);
  if (!out.flush()) throw std::runtime_error("cannot write " + path.string());
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: " << argv[0] << " FOLDER\n";
    return 2;
  }
  try {
    const std::filesystem::path folder = argv[1];
    std::filesystem::create_directories(folder);
    writePage(folder / "sample.html", om::test::sampleDocument(), "Penguins and passengers");
    writePage(folder / "tables.html", tablesDocument(), "Tables");
    writePage(folder / "hostile.html", om::test::hostileDocument(), om::test::hostileTexts()[0]);
    writePage(folder / "empty.html", OmOutputTree(), "Output");
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
