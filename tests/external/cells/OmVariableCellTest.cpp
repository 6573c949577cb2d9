// Variable cells: two texts, of which the label is shown.

#include "external/cells/OmVariableCell.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "external/cells/OmMemoryRegion.h"

namespace om::test {
namespace {

TEST(OmVariableCell, ShowsItsLabel) {
  EXPECT_EQ(std::string(OmVariableCell("age", "Age in years")), "Age in years");
}

TEST(OmVariableCell, ShowsTheNameWhereThereIsNoLabel) {
  EXPECT_EQ(std::string(OmVariableCell("age", "")), "age");
}

TEST(OmVariableCell, IsEmptyWithoutBoth) { EXPECT_EQ(OmVariableCell("", "").Size(), 0U); }

TEST(OmVariableCell, ALabelOfOneZeroByteIsALabel) {
  EXPECT_EQ(std::string(OmVariableCell("age", std::string(1, '\0'))), std::string(1, '\0'));
}

TEST(OmVariableCell, GivesBothTextsBack) {
  const OmVariableCell cell("age", "Age in years");
  EXPECT_EQ(cell.Name(), "age");
  EXPECT_EQ(cell.Label(), "Age in years");
}

TEST(OmVariableCell, ACloneHasBothTexts) {
  OmMemoryRegion region(false);
  auto cell = std::make_unique<OmVariableCell>("age", "");
  const std::unique_ptr<OmVariableCell> clone(cell->Clone(&region));
  cell.reset();
  EXPECT_EQ(clone->Name(), "age");
  EXPECT_EQ(clone->Label(), "");
}

}  // namespace
}  // namespace om::test
