// Value cells: two texts, of which the label is shown.

#include "external/cells/OmValueCell.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "external/cells/OmMemoryRegion.h"

namespace om::test {
namespace {

TEST(OmValueCell, ShowsItsLabel) {
  EXPECT_EQ(std::string(OmValueCell("1", "employed")), "employed");
}

TEST(OmValueCell, ShowsTheValueWhereThereIsNoLabel) {
  EXPECT_EQ(std::string(OmValueCell("1", "")), "1");
}

TEST(OmValueCell, IsEmptyWithoutBoth) { EXPECT_EQ(OmValueCell("", "").Size(), 0U); }

TEST(OmValueCell, ALabelOfOneZeroByteIsALabel) {
  EXPECT_EQ(std::string(OmValueCell("1", std::string(1, '\0'))), std::string(1, '\0'));
}

TEST(OmValueCell, GivesBothTextsBack) {
  const OmValueCell cell("1", "employed");
  EXPECT_EQ(cell.Value(), "1");
  EXPECT_EQ(cell.Label(), "employed");
}

TEST(OmValueCell, ACloneHasBothTexts) {
  OmMemoryRegion region(false);
  auto cell = std::make_unique<OmValueCell>("1", "");
  const std::unique_ptr<OmValueCell> clone(cell->Clone(&region));
  cell.reset();
  EXPECT_EQ(clone->Value(), "1");
  EXPECT_EQ(clone->Label(), "");
}

}  // namespace
}  // namespace om::test
