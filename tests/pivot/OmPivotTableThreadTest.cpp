// Two threads that use a table each, at the same time.

#include <gtest/gtest.h>

#include <cstddef>
#include <iostream>
#include <streambuf>
#include <string>
#include <thread>

#include "tests/pivot/TableText.h"

namespace om::test {
namespace {

// Takes what several threads write at once and counts the characters of each of them.
class Sink : public std::streambuf {
 public:
  static inline thread_local std::size_t written = 0;

 private:
  int overflow(int character) override {
    ++written;
    return character;
  }
  std::streamsize xsputn(const char*, std::streamsize count) override {
    written += static_cast<std::size_t>(count);
    return count;
  }
};

constexpr int kRows = 40;
constexpr int kColumns = 25;

OmStringCell numbered(const std::string& name, int number) {
  return OmStringCell(name + " " + std::to_string(number));
}

void fill(OmPivotTable& table, const std::string& name) {
  table.setBackendSettings(settingsOf(true, false, name));
  table.SetTableTitle(OmStringCell(name));
  OmDimension& rows = table.AddDimension(OmStringCell("rows"));
  OmDimension& columns = table.AddDimension(OmStringCell("columns"));
  for (int i = 0; i < kRows; ++i) {
    rows.Child(rows.Root(), numbered("row", i), static_cast<unsigned long long>(i), false);
  }
  for (int i = 0; i < kColumns; ++i) {
    columns.Child(columns.Root(), numbered("column", i), static_cast<unsigned long long>(i), false);
  }
  table.Rows().push_back(0);
  table.Columns().push_back(1);
  for (int i = 0; i < kRows; ++i) {
    for (int j = 0; j < kColumns; ++j) table.Cell({i, j}, numbered(name, i * kColumns + j));
  }
  for (int i = 0; i < 10; ++i) table.Footnote(noteOf("note " + std::to_string(i % 5), "*"), false);
  const OmStringCell text("a caption and a corner text");
  table.Caption(&text);
  table.CornerText(&text);
  auto* const format = new FormatArea(FormatArea::DATA);
  format->setFontName(name);
  table.setAreaFormat(format);
  table.addMiscProperty(name);
  table.EndTable();
}

struct Outcome {
  std::size_t printedBytes = 0;
  std::size_t cells = 0;
  std::size_t findings = 1;
};

void fillAndPrint(const std::string& name, Outcome& outcome) {
  for (int round = 0; round < 5; ++round) {
    OmPivotTable table(OmStringCell("label"), OmStringCell("template"), false);
    fill(table, name);
    Sink::written = 0;
    table.Print();
    outcome.printedBytes = Sink::written;
    for (auto at = table.FirstCell(); at.Cell() != nullptr; ++at) ++outcome.cells;
    outcome.findings = table.validate().size();
  }
}

// What one thread alone prints.
std::size_t printedBytesOf(const std::string& name) {
  OmPivotTable table(OmStringCell("label"), OmStringCell("template"), false);
  fill(table, name);
  return printed(table).size();
}

TEST(OmPivotTableThread, TwoThreadsEachFillAndPrintTheirOwnTable) {
  const std::size_t expectedOfOne = printedBytesOf("one");
  const std::size_t expectedOfOther = printedBytesOf("the other");
  Outcome one;
  Outcome other;
  {
    Sink sink;
    std::streambuf* const former = std::cout.rdbuf(&sink);
    std::thread first([&one] { fillAndPrint("one", one); });
    std::thread second([&other] { fillAndPrint("the other", other); });
    first.join();
    second.join();
    std::cout.rdbuf(former);
  }
  EXPECT_EQ(one.printedBytes, expectedOfOne);
  EXPECT_EQ(other.printedBytes, expectedOfOther);
  for (const Outcome& outcome : {one, other}) {
    EXPECT_EQ(outcome.cells, std::size_t{5} * kRows * kColumns);
    EXPECT_EQ(outcome.findings, 0U);
  }
}

}  // namespace
}  // namespace om::test
