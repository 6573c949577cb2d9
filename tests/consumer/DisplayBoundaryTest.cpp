// A program that uses the shared library as it is shipped: a table is laid out across the boundary.

#include <gtest/gtest.h>

#include <display/OmDisplayColumnHeading.h>
#include <display/OmDisplayLayerHeading.h>
#include <display/OmDisplayRowHeading.h>
#include <external/cells/OmStringCell.h>
#include <pivot/OmPivotTable.h>

#include <memory>
#include <string>
#include <vector>

namespace {

std::unique_ptr<OmPivotTable> crossTable() {
  auto table = std::make_unique<OmPivotTable>(OmStringCell("title"), OmStringCell("name"), false);
  for (const std::string name : {"R", "C", "L"}) {
    OmDimension& dimension = table->AddDimension(OmStringCell(name));
    for (unsigned long long i = 0; i < 2; ++i) {
      dimension.AddNewChild(dimension.Root(), OmStringCell(name + std::to_string(i)), i, false);
    }
  }
  table->Rows().push_back(0);
  table->Columns().push_back(1);
  table->Layers().push_back(2);
  table->Cell({1, 0, 1}, OmStringCell("cell"));
  return table;
}

std::string labelOf(const OmDisplayLayerHeading::ConstNode* entry) {
  return std::string(*(*entry)->Text());
}

TEST(DisplayBoundary, ATableIsLaidOutAndItsCellFound) {
  const auto table = crossTable();
  OmDisplayLayerHeading layers(*table, true);
  ASSERT_TRUE(layers.NextLayer());
  EXPECT_EQ(labelOf(layers.Nodes(0).back()), "L1");
  const OmDisplayRowHeading rows(layers, true, true);
  const OmDisplayColumnHeading columns(layers, true);
  ASSERT_EQ(rows.NRows(), 1);
  ASSERT_EQ(columns.NColumns(), 1);
  EXPECT_EQ(labelOf(rows.Row(0)[0]), "R1");
  EXPECT_EQ(labelOf(columns.Row(1)[0]), "C0");
  EXPECT_EQ(std::string(*rows.CornerText()[0]), "R");

  std::vector<int> index;
  layers.Fill(index);
  rows.Fill(index, 0);
  columns.Fill(index, 0);
  EXPECT_EQ(index, (std::vector<int>{1, 0, 1}));
  EXPECT_EQ(std::string(*table->Cell(index)), "cell");
  EXPECT_FALSE(layers.NextLayer());
}

}  // namespace
