// The writers as they ship: a program fills a table of one shared library and has it written by the
// other.

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <sstream>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <utility>
#include <vector>

#include "external/cells/OmNumber.h"
#include "external/cells/OmStringCell.h"
#include "output/OmTextBlock.h"
#include "pivot/OmPivotTable.h"
#include "render/CsvWriter.h"
#include "render/DocumentWalk.h"
#include "render/TextWriter.h"

namespace {

std::unique_ptr<OmPivotTable> classes() {
  auto table = std::make_unique<OmPivotTable>(OmStringCell("Classes"), OmStringCell(""), false);
  OmDimension& dimension = table->AddDimension(OmStringCell("Class"));
  dimension.AddNewChild(dimension.Root(), OmStringCell("First"), 0, false);
  dimension.AddNewChild(dimension.Root(), OmStringCell("Second"), 1, false);
  table->Rows().push_back(0);
  table->Cell({0}, OmNumber(325));
  table->Cell({1}, OmNumber(285));
  return table;
}

TEST(RenderBoundary, ATableIsWritten) {
  std::ostringstream out;
  om::render::writeCsv(*classes(), out);
  EXPECT_EQ(out.str(),
            "table,title,Class,text,number,notes\n"
            "1,Classes,First,325,325,\n"
            "1,Classes,Second,285,285,\n");
}

// A walk of the program's own.
class Names : public om::render::DocumentWalk {
 public:
  std::vector<std::string> names;

 private:
  void table(OmPivotTable& table, int) override {
    names.push_back(std::string(om::render::titleOf(table)));
  }
  void text(const Text& text, int) override { names.push_back(nameOf(text.kind)); }
};

TEST(RenderBoundary, AWalkOfTheProgramIsToldOfTheParts) {
  OmOutputTree tree;
  tree.AppendLast(std::make_unique<OmTextBlock>(OmStringCell("Notes"), "UTF-8"), 1);
  tree.AppendLast(classes(), 1);
  Names walk;
  walk.walk(tree);
  EXPECT_EQ(walk.names, (std::vector<std::string>{"Text", "Classes"}));
}

// A device that is broken, and says so with an exception of the program's own.
class Broken : public std::streambuf {
 public:
  class Error : public std::runtime_error {
    using std::runtime_error::runtime_error;
  };

 private:
  int_type overflow(int_type) override { throw Error("broken"); }
};

TEST(RenderBoundary, AnExceptionOfTheProgramPassesThrough) {
  Broken buffer;
  std::ostream out(&buffer);
  out.exceptions(std::ios::badbit);
  EXPECT_THROW(om::render::writeText(*classes(), out), Broken::Error);
}

}  // namespace
