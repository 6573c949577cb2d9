// A program that uses the shared library as it is shipped: a pivot table is built, read and refused
// across the boundary.

#include <gtest/gtest.h>

#include <backend/OMSException.h>
#include <external/cells/OmNumber.h>
#include <external/cells/OmStringCell.h>
#include <output/OmOutputTree.h>
#include <output/OmOutputWalker.h>
#include <pivot/OmPivotTable.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

std::unique_ptr<OmPivotTable> smallTable() {
  auto table = std::make_unique<OmPivotTable>(OmStringCell("title"), OmStringCell("Notes"), false);
  for (const char* const name : {"rows", "columns"}) {
    OmDimension& dimension = table->AddDimension(OmStringCell(name));
    for (unsigned long long i = 0; i < 2; ++i) {
      dimension.AddNewChild(dimension.Root(), OmStringCell("category"), i, false);
    }
  }
  table->Rows().push_back(0);
  table->Columns().push_back(1);
  table->Cell({0, 0}, OmNumber(1));
  table->Cell({1, 1}, OmStringCell("a text of more than eight characters"));
  table->EndTable();
  return table;
}

TEST(PivotTableBoundary, CellsAreStoredFoundAndIterated) {
  const auto table = smallTable();
  EXPECT_EQ(std::string(*table->Cell({0, 0})), "1");
  EXPECT_EQ(table->Cell({1, 0}), nullptr);
  std::vector<std::string> texts;
  for (const auto& [index, text] : *table) texts.push_back(text);
  EXPECT_EQ(texts, (std::vector<std::string>{"1", "a text of more than eight characters"}));
  EXPECT_TRUE(table->validate().empty());
}

TEST(PivotTableBoundary, ExceptionsAreCaughtWithTheirTextAndNumbers) {
  const auto table = smallTable();
  try {
    table->Dimension(2);
    FAIL() << "nothing was thrown";
  } catch (const OMSException& refused) {
    EXPECT_STREQ(refused.what(),
                 "OmPivotTable::Dimension() -- which < NDimensions(), value 1 == 2, value 2 == 2");
  }
}

class Finder final : public OmOutputWalker {
 public:
  OmPivotTable* found = nullptr;

  void Visit(OmInteractive&) override {}
  void Visit(OmModel&) override {}
  void Visit(OmAnswerTree&) override {}
  void Visit(OmChart&) override {}
  void Visit(OmTextBlock&) override {}
  void Visit(OmHeading&) override {}
  void Visit(OmPivotTable& table) override { found = &table; }
};

TEST(PivotTableBoundary, ATreeOwnsATableAndAVisitorOfTheProgramFindsIt) {
  OmOutputTree tree;
  auto table = smallTable();
  const OmPivotTable* const added = table.get();
  tree.Append(tree.Root(), std::move(table));
  Finder finder;
  EXPECT_TRUE(finder.Walk(tree));
  EXPECT_EQ(finder.found, added);
}

class Upper : public OmStringCell {
 public:
  explicit Upper(int& alive) : OmStringCell("upper"), alive_(alive) { ++alive_; }
  ~Upper() override { --alive_; }
  Upper* Clone(OmMemoryRegion* region) const override { return new (region) Upper(alive_); }

 private:
  int& alive_;
};

TEST(PivotTableBoundary, ATextClassOfTheProgramIsDestroyedByTheTable) {
  int alive = 0;
  {
    const auto table = smallTable();
    table->Cell({0, 1}, Upper(alive));
    EXPECT_EQ(alive, 1);
  }
  EXPECT_EQ(alive, 0);
}

TEST(PivotTableBoundary, FormatsThatTheProgramMadeAreFreedByTheTable) {
  const auto table = smallTable();
  table->setAreaFormat(new FormatArea(FormatArea::DATA));
  table->setAreaFormat(new FormatArea(FormatArea::DATA));
  EXPECT_EQ(table->getAreaFormat(FormatArea::DATA)->getMarginLeft(), 6);
}

}  // namespace
