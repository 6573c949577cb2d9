// Models: their type and their four payloads.

#include "output/OmModel.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>

#include "external/cells/OmNumber.h"
#include "external/cells/OmStringCell.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

TEST(OmModel, IsOfTypeZeroAtFirst) { EXPECT_EQ(OmModel(OmStringCell("label")).GetModelType(), 0); }

TEST(OmModel, KeepsTheTypeThatWasSetLast) {
  OmModel model(OmStringCell("label"));
  model.SetModelType(static_cast<OmModel::MODEL_TYPE>(5));
  EXPECT_EQ(model.GetModelType(), 5);
  model.SetModelType(static_cast<OmModel::MODEL_TYPE>(-2));
  EXPECT_EQ(model.GetModelType(), -2);
}

TEST(OmModel, HasTypesOf32Bits) {
  EXPECT_TRUE((std::is_same_v<std::underlying_type_t<OmModel::MODEL_TYPE>, std::int32_t>));
}

TEST(OmModel, ConcatenatesThePiecesOfEachField) {
  OmModel model(OmStringCell("label"));
  model.SetPMML("<PM", 3);
  model.SetPMML("ML/>", 4);
  model.SetBinaryDataStream("\0\1", 2);
  model.SetBinaryDataStream("\2", 1);
  model.SetPMMLContainer("PK", 2);
  model.SetPMMLContainer("\0", 1);
  model.SetStatXMLContainer("PK\3", 3);
  model.SetStatXMLContainer("x", 1);
  EXPECT_EQ(model.GetPMML(), "<PMML/>");
  EXPECT_EQ(model.GetBinaryDataStream(), std::string("\0\1\2", 3));
  EXPECT_EQ(model.GetPMMLContainer(), std::string("PK\0", 3));
  EXPECT_EQ(model.GetStatXMLContainer(), "PK\3x");
}

TEST(OmModel, SharesItsTypeWithItsCopy) {
  OmModel model(OmStringCell("label"));
  const OmModel copy(model);
  model.SetModelType(static_cast<OmModel::MODEL_TYPE>(5));
  EXPECT_EQ(copy.GetModelType(), 5);
}

TEST(OmModel, KeepsACloneOfItsLabel) {
  const OmNumber label(42);
  const OmModel model(label);
  EXPECT_NE(&model.Label(), &label);
  EXPECT_EQ(model.Label().Kind(), OmCellText::NUMBER);
}

TEST(OmModel, IsMadeWholeOrNotAtAllWhenMemoryRunsOut) {
  const OmStringCell label("a label of more than eight characters");
  const std::size_t failures = failEveryAllocation([&](FailurePoint& point) {
    std::unique_ptr<OmModel> model;
    const bool completed = point.during([&] { model = std::make_unique<OmModel>(label); });
    EXPECT_EQ(completed, !point.failed());
    EXPECT_EQ(model != nullptr, completed);
  });
  EXPECT_EQ(failures, 3U);  // the part, its label, its record
}

}  // namespace
}  // namespace om::test
