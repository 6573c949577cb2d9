// Writes the sample documents in the formats that other programs read back, into a folder:
// render-records FOLDER.

#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <utility>

#include "render/JsonStatWriter.h"
#include "render/XlsxWriter.h"
#include "tests/render/SampleDocuments.h"

namespace {

using om::test::SampleTable;

void write(const std::filesystem::path& path, const auto& writeTo) {
  std::ofstream out(path, std::ios::binary);
  writeTo(out);
  if (!out.flush()) throw std::runtime_error("cannot write " + path.string());
}

void writeJsonStat(const std::filesystem::path& folder) {
  write(folder / "collection.json",
        [](auto& out) { om::render::writeJsonStat(om::test::sampleDocument(), out); });
  const auto writeTable = [&](const char* name, const SampleTable& table) {
    write(folder / name, [&](auto& out) { om::render::writeJsonStat(*table, out); });
  };
  writeTable("flat.json", om::test::flatTable());
  writeTable("nested.json", om::test::nestedTable());
  writeTable("footnotes.json", om::test::footnoteTable());
  writeTable("hostile.json", om::test::hostileTable());
  writeTable("empty.json", om::test::emptyTable());
  writeTable("columnless.json", om::test::columnlessTable());
}

// More sheets than are written in constant memory.
OmOutputTree manyTables() {
  OmOutputTree document;
  for (int i = 0; i < 101; ++i) document.AppendLast(om::test::nestedTable(), 1);
  return document;
}

// A table without cells, whose title and caption have footnotes, and one whose caption is not
// shown.
OmOutputTree partlyShown() {
  SampleTable cellless = om::test::emptyTable();
  om::test::addSampleNote(*cellless, "In grams.");
  om::test::addSampleNote(*cellless, "Not used.");
  om::test::addSampleNote(*cellless, "On land.");
  cellless->SetTableTitle(*om::test::noted("Weights", {2}));
  cellless->Caption(om::test::noted("Measured.", {0}).get());
  SampleTable captioned = om::test::flatTable();
  captioned->showCaption(false);
  OmOutputTree document;
  document.AppendLast(std::move(cellless), 1);
  document.AppendLast(std::move(captioned), 1);
  return document;
}

// Numbers in all formats, texts that a program could take for something else, very long ones.
OmOutputTree formatsDocument() {
  SampleTable table = om::test::sampleTable("it's [all]: 'in' a/b\\c * ? of a name that is long'");
  om::test::addSampleDimension(*table, "Row", std::vector<std::string>(14, "row"));
  table->Rows().push_back(0);
  om::test::addSampleNote(*table, "A note.");
  om::test::addSampleNote(*table, "Quoted.", "\"q\"");
  table->Cell({0}, OmNumber(0.1));
  table->Cell({1}, OmNumber(1234.5, {.decimals = 2, .grouping = true}));
  table->Cell({2}, OmNumber(12.5, {.decimals = 1, .percent = true}));
  table->Cell({3}, OmNumber(1234567, {.percent = true, .grouping = true}));
  table->Cell({4}, OmNumber(-1e300, {.decimals = 2}));
  table->Cell({5}, *om::test::noted(OmNumber(3, {.decimals = 0}), {0}));
  table->Cell({6}, *om::test::noted(OmNumber(4, {.decimals = 0}), {1}));
  table->Cell({7}, OmNumber(std::stod("inf")));
  table->Cell({8}, OmStringCell("=1+2"));
  table->Cell({9}, OmStringCell("http://example.org/"));
  table->Cell({10}, OmStringCell("_x0041_ 12"));
  table->Cell({11}, OmStringCell(std::string(40'000, 'x')));
  table->Cell({12}, *om::test::noted(std::string(40'000, 'y'), {0}));
  table->Cell({13}, OmStringCell("{=A1}"));
  OmOutputTree document;
  document.AppendLast(std::move(table), 1);
  return document;
}

void writeXlsx(const std::filesystem::path& folder) {
  om::render::writeXlsx(om::test::sampleDocument(), (folder / "sample.xlsx").string());
  om::render::writeXlsx(om::test::hostileDocument(), (folder / "hostile.xlsx").string());
  om::render::writeXlsx(formatsDocument(), (folder / "formats.xlsx").string());
  om::render::writeXlsx(manyTables(), (folder / "many.xlsx").string());
  om::render::writeXlsx(OmOutputTree(), (folder / "empty.xlsx").string());
  om::render::writeXlsx(partlyShown(), (folder / "partly.xlsx").string());
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
    writeJsonStat(folder);
    if (om::render::canWriteXlsx()) writeXlsx(folder);
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
