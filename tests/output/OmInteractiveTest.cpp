// Interactive outputs: what they are made with and the fields that are replaced.

#include "output/OmInteractive.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "external/cells/OmStringCell.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

struct ReplacedField {
  const char* name;
  void (OmInteractive::*set)(const std::string&);
  const std::string& (OmInteractive::*get)() const;
};

constexpr ReplacedField kReplacedFields[] = {
    {"procedure name", &OmInteractive::setProcedureName, &OmInteractive::getProcedureName},
    {"JSON path", &OmInteractive::setJSONPath, &OmInteractive::getJSONPath},
    {"options", &OmInteractive::setOptions, &OmInteractive::getOptions}};

TEST(OmInteractive, HasItsCodePageAndItsId) {
  const OmInteractive interactive(OmStringCell("label"), "KOI8-R", -7);
  EXPECT_EQ(interactive.LocaleCodePage(), "KOI8-R");
  EXPECT_EQ(interactive.getInteractiveId(), -7);
}

TEST(OmInteractive, KeepsIdsOf64Bits) {
  EXPECT_EQ(OmInteractive(OmStringCell("label"), "", std::numeric_limits<long long>::max())
                .getInteractiveId(),
            std::numeric_limits<long long>::max());
}

TEST(OmInteractive, ReplacesProcedureNamePathAndOptions) {
  for (const ReplacedField& field : kReplacedFields) {
    OmInteractive interactive(OmStringCell("label"), "", 1);
    EXPECT_EQ((interactive.*field.get)(), "") << field.name;
    (interactive.*field.set)("a first text");
    (interactive.*field.set)("second");
    EXPECT_EQ((interactive.*field.get)(), "second") << field.name;
  }
}

TEST(OmInteractive, KeepsEachFieldApart) {
  OmInteractive interactive(OmStringCell("label"), "", 1);
  interactive.setProcedureName("name");
  interactive.setJSONPath("path");
  interactive.setOptions("options");
  interactive.setInteractiveJSON("json", 4);
  EXPECT_EQ(interactive.getProcedureName(), "name");
  EXPECT_EQ(interactive.getJSONPath(), "path");
  EXPECT_EQ(interactive.getOptions(), "options");
  EXPECT_EQ(interactive.getInteractiveJSON(), "json");
}

TEST(OmInteractive, KeepsATextThatCannotBeReplaced) {
  const std::string other(100, 'x');
  for (const ReplacedField& field : kReplacedFields) {
    const std::size_t failures = failEveryAllocation([&](FailurePoint& point) {
      OmInteractive interactive(OmStringCell("label"), "", 1);
      (interactive.*field.set)("former");
      const bool completed = point.during([&] { (interactive.*field.set)(other); });
      EXPECT_EQ(completed, !point.failed());
      EXPECT_EQ((interactive.*field.get)(), completed ? other : "former") << field.name;
    });
    EXPECT_EQ(failures, 1U) << field.name;
  }
}

TEST(OmInteractive, SharesEverythingWithItsCopy) {
  OmInteractive source(OmStringCell("label"), "KOI8-R", 7);
  const OmInteractive copy(source);
  for (const ReplacedField& field : kReplacedFields) {
    (source.*field.set)("text");
    EXPECT_EQ((copy.*field.get)(), "text") << field.name;
  }
  source.addGeoJSONFileName("a", 1);
  EXPECT_TRUE(copy.hasGeoJSONFile());
  EXPECT_EQ(copy.LocaleCodePage(), "KOI8-R");
  EXPECT_EQ(copy.getInteractiveId(), 7);
}

}  // namespace
}  // namespace om::test
