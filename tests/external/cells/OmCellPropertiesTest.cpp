// The plain values that stand beside a text: a style and the record of where a cell came from.

#include "external/cells/OmCellProperties.h"

#include <gtest/gtest.h>

#include "external/cells/OmCellMetaData.h"

namespace om::test {
namespace {

TEST(OmCellProperties, NothingIsSetAtFirst) {
  const OmCellProperties properties;
  EXPECT_EQ(properties.fontName, "");
  EXPECT_EQ(properties.fontSize, 0.0F);
  EXPECT_EQ(properties.fontStyle, -1);
  EXPECT_EQ(properties.horizontalAlignment, -1);
  EXPECT_EQ(properties.verticalAlignment, -1);
  EXPECT_EQ(properties.textColor, "");
  EXPECT_EQ(properties.backgroundColor, "");
  EXPECT_FALSE(properties.underline);
}

template <class Value>
void expectToCount(Value OmCellProperties::*member, const Value& value) {
  const OmCellProperties plain;
  OmCellProperties changed;
  EXPECT_EQ(plain, changed);
  changed.*member = value;
  EXPECT_NE(plain, changed);
}

TEST(OmCellProperties, EveryMemberCountsForEquality) {
  expectToCount<std::string>(&OmCellProperties::fontName, "Serif");
  expectToCount(&OmCellProperties::fontSize, 10.5F);
  expectToCount(&OmCellProperties::fontStyle, 0);
  expectToCount(&OmCellProperties::horizontalAlignment, 2);
  expectToCount(&OmCellProperties::verticalAlignment, 1);
  expectToCount<std::string>(&OmCellProperties::textColor, "#FF0000");
  expectToCount<std::string>(&OmCellProperties::backgroundColor, "#00FF00");
  expectToCount(&OmCellProperties::underline, true);
}

TEST(OmCellMetaData, IsEmptyAtFirst) {
  const OmCellMetaData meta;
  EXPECT_EQ(meta.statistic, "");
  EXPECT_TRUE(meta.variables.empty());
  EXPECT_EQ(meta.details, "");
}

TEST(OmCellMetaData, EveryMemberCountsForEquality) {
  const OmCellMetaData meta{"mean", {"age"}, "d"};
  EXPECT_EQ(meta, (OmCellMetaData{"mean", {"age"}, "d"}));
  EXPECT_NE(meta, (OmCellMetaData{"sum", {"age"}, "d"}));
  EXPECT_NE(meta, (OmCellMetaData{"mean", {}, "d"}));
  EXPECT_NE(meta, (OmCellMetaData{"mean", {"age"}, ""}));
}

}  // namespace
}  // namespace om::test
