// The axes and the plain properties of a table: their defaults, and that each is kept for itself.

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "tests/pivot/TableText.h"

namespace om::test {
namespace {

struct Table : OmPivotTable {
  explicit Table(bool hasSplits = false)
      : OmPivotTable(OmStringCell("title"), OmStringCell("template"), hasSplits) {}
};

template <class Value, class Argument = Value>
struct Property {
  const char* name;
  Value (OmPivotTable::*get)() const;
  void (OmPivotTable::*set)(Argument);
  std::remove_cvref_t<Value> fromTheStart;
};

using Number = Property<int>;
using Flag = Property<bool>;
using Colour = Property<long>;
using String = Property<const std::string&>;
using Widths = Property<const std::vector<unsigned int>&>;

const std::vector<Number>& numbers() {
  static const std::vector<Number> all{
      {"MinColumnWidth", &OmPivotTable::MinColumnWidth, &OmPivotTable::MinColumnWidth, -1},
      {"MaxColumnWidth", &OmPivotTable::MaxColumnWidth, &OmPivotTable::MaxColumnWidth, -1},
      {"MinRowWidth", &OmPivotTable::MinRowWidth, &OmPivotTable::MinRowWidth, -1},
      {"MaxRowWidth", &OmPivotTable::MaxRowWidth, &OmPivotTable::MaxRowWidth, -1},
      {"OptionNumber", &OmPivotTable::OptionNumber, &OmPivotTable::OptionNumber, -1},
      {"LayerLoc", &OmPivotTable::getLayerLoc, &OmPivotTable::setLayerLoc, -1},
      {"Lang", &OmPivotTable::getLang, &OmPivotTable::setLang, 0},
      {"ValueMode", &OmPivotTable::getValueMode, &OmPivotTable::setValueMode, 0},
      {"VariableMode", &OmPivotTable::getVariableMode, &OmPivotTable::setVariableMode, 0},
  };
  return all;
}

const std::vector<Flag>& flags() {
  static const std::vector<Flag> all{
      {"Show", &OmPivotTable::Show, &OmPivotTable::Show, true},
      {"showCaption", &OmPivotTable::showCaption, &OmPivotTable::showCaption, true},
      {"backendOwns", &OmPivotTable::backendOwns, &OmPivotTable::setBackendOwns, true},
      {"fastTable", &OmPivotTable::fastTable, &OmPivotTable::setFastTable, true},
      {"RotateColumnLabels", &OmPivotTable::RotateColumnLabels, &OmPivotTable::RotateColumnLabels,
       false},
      {"RotateRowLabels", &OmPivotTable::RotateRowLabels, &OmPivotTable::RotateRowLabels, false},
      {"LabelsOnly", &OmPivotTable::getLabelsOnly, &OmPivotTable::setLabelsOnly, false},
      {"Imputed", &OmPivotTable::getImputed, &OmPivotTable::setImputed, false},
      {"RemovedFootnotes", &OmPivotTable::HasRemovedFootnotes, &OmPivotTable::RemovedFootnotes,
       false},
      {"Scratched", &OmPivotTable::IsScratched, &OmPivotTable::Scratch, false},
  };
  return all;
}

const std::vector<Colour>& colours() {
  static const std::vector<Colour> all{
      {"StartColor", &OmPivotTable::getStartColor, &OmPivotTable::setStartColor, -1},
      {"EndColor", &OmPivotTable::getEndColor, &OmPivotTable::setEndColor, -1},
  };
  return all;
}

const std::vector<String>& strings() {
  static const std::vector<String> all{
      {"TableLocale", &OmPivotTable::TableLocale, &OmPivotTable::TableLocale, ""},
      {"BorderInfo", &OmPivotTable::getBorderInfo, &OmPivotTable::setBorderInfo, ""},
      {"TableLookInfo", &OmPivotTable::getTableLookInfo, &OmPivotTable::setTableLookInfo, ""},
      {"TablePropertiesInfo", &OmPivotTable::getTablePropertiesInfo,
       &OmPivotTable::setTablePropertiesInfo, ""},
  };
  return all;
}

const std::vector<Widths>& widths() {
  static const std::vector<Widths> all{
      {"TableCustomWidths",
       &OmPivotTable::getTableCustomWidths,
       &OmPivotTable::setTableCustomWidths,
       {}},
      {"TableCustomHeights",
       &OmPivotTable::getTableCustomHeights,
       &OmPivotTable::setTableCustomHeights,
       {}},
  };
  return all;
}

template <class Properties>
void addUnlessDefault(const OmPivotTable& table, const Properties& properties, std::string& names) {
  for (const auto& property : properties) {
    if ((table.*property.get)() != property.fromTheStart) names += std::string(property.name) + ' ';
  }
}

// The names of all properties that have another value than a new table's, each with a blank.
std::string changed(const OmPivotTable& table) {
  std::string names;
  addUnlessDefault(table, numbers(), names);
  addUnlessDefault(table, flags(), names);
  addUnlessDefault(table, colours(), names);
  addUnlessDefault(table, strings(), names);
  addUnlessDefault(table, widths(), names);
  if (table.TableId() != -1) names += "TableId ";
  if (table.hasMarkers()) names += "Markers ";
  if (!table.getMiscProperties().empty()) names += "MiscProperties ";
  return names;
}

// Sets each of the properties in a new table and looks that it alone has changed.
template <class Properties, class Value>
void expectEachKeeps(const Properties& properties, const std::vector<Value>& values) {
  for (const auto& property : properties) {
    Table table;
    for (const Value& value : values) {
      (table.*property.set)(value);
      EXPECT_EQ((table.*property.get)(), value) << property.name;
    }
    EXPECT_EQ(changed(table), std::string(property.name) + ' ');
    (table.*property.set)(property.fromTheStart);
    EXPECT_EQ(changed(table), "") << property.name;
  }
}

// The lists above are made once, before anything is counted.
class OmPivotTableProperties : public testing::Test {
 public:
  static void SetUpTestSuite() { (void)changed(Table()); }
};

TEST_F(OmPivotTableProperties, OfANewTableHaveTheirDefaults) { EXPECT_EQ(changed(Table()), ""); }

TEST_F(OmPivotTableProperties, NumbersAreKeptEachForItself) {
  expectEachKeeps(numbers(), std::vector<int>{INT_MIN, -1, 0, 1, INT_MAX});
}

TEST_F(OmPivotTableProperties, FlagsThatAreOnFromTheStartCanBeTurnedOffAndOn) {
  Table table;
  for (const Flag& flag : flags()) {
    (table.*flag.set)(false);
    EXPECT_FALSE((table.*flag.get)()) << flag.name;
    (table.*flag.set)(true);
    EXPECT_TRUE((table.*flag.get)()) << flag.name;
  }
}

TEST_F(OmPivotTableProperties, FlagsAreKeptEachForItself) {
  for (const Flag& flag : flags()) {
    Table table;
    (table.*flag.set)(!flag.fromTheStart);
    EXPECT_EQ(changed(table), std::string(flag.name) + ' ');
  }
}

TEST_F(OmPivotTableProperties, ColoursAreKeptIn32Bits) {
  expectEachKeeps(colours(), std::vector<long>{INT32_MIN, -1, 0, 0xFFFFFF, INT32_MAX});
}

TEST_F(OmPivotTableProperties, TheTableIdHas64Bits) {
  Table table;
  for (const long long id : {LLONG_MIN, 0LL, 0x100000000LL, LLONG_MAX}) {
    table.TableId(id);
    EXPECT_EQ(table.TableId(), id);
  }
  EXPECT_EQ(changed(table), "TableId ");
}

TEST_F(OmPivotTableProperties, StringsAreKeptEachForItself) {
  expectEachKeeps(strings(),
                  std::vector<std::string>{"a", "", std::string("with\0null", 9),
                                           "one that is too long to be kept within the string"});
}

TEST_F(OmPivotTableProperties, AStringCanBeSetToItself) {
  for (const String& string : strings()) {
    Table table;
    (table.*string.set)("one that is too long to be kept within the string");
    (table.*string.set)((table.*string.get)());
    EXPECT_EQ((table.*string.get)(), "one that is too long to be kept within the string");
  }
}

TEST_F(OmPivotTableProperties, CustomWidthsAndHeightsAreKeptEachForItself) {
  expectEachKeeps(widths(), std::vector<std::vector<unsigned int>>{{1}, {}, {3, 0, UINT_MAX, 3}});
}

TEST_F(OmPivotTableProperties, CustomWidthsAreCopied) {
  Table table;
  std::vector<unsigned int> given{10, 20};
  table.setTableCustomWidths(given);
  table.setTableCustomHeights(given);
  given[0] = 99;
  EXPECT_EQ(table.getTableCustomWidths(), (std::vector<unsigned int>{10, 20}));
  EXPECT_EQ(table.getTableCustomHeights(), (std::vector<unsigned int>{10, 20}));
}

TEST_F(OmPivotTableProperties, HasMarkersHasNoWayBack) {
  Table table;
  EXPECT_FALSE(table.hasMarkers());
  table.setHasMarkers();
  EXPECT_TRUE(table.hasMarkers());
  table.setHasMarkers();
  EXPECT_TRUE(table.hasMarkers());
  EXPECT_EQ(changed(table), "Markers ");
}

TEST_F(OmPivotTableProperties, HasSplitsIsAsConstructed) {
  EXPECT_TRUE(Table(true).HasSplits());
  EXPECT_FALSE(Table(false).HasSplits());
}

TEST_F(OmPivotTableProperties, MiscPropertiesAreListedInTheOrderOfAddition) {
  Table table;
  table.addMiscProperty("a");
  EXPECT_EQ(table.getMiscProperties(), "a");
  table.addMiscProperty("b");
  EXPECT_EQ(table.getMiscProperties(), "a,b");
  EXPECT_EQ(changed(table), "MiscProperties ");
}

TEST_F(OmPivotTableProperties, AnEmptyMiscPropertyBehindOthersLeavesItsComma) {
  Table table;
  table.addMiscProperty("a");
  table.addMiscProperty("");
  EXPECT_EQ(table.getMiscProperties(), "a,");
  table.addMiscProperty("b");
  EXPECT_EQ(table.getMiscProperties(), "a,,b");
}

TEST_F(OmPivotTableProperties, AnEmptyMiscPropertyInFrontLeavesNothing) {
  Table table;
  table.addMiscProperty("");
  EXPECT_EQ(table.getMiscProperties(), "");
  table.addMiscProperty("a");
  EXPECT_EQ(table.getMiscProperties(), "a");
}

TEST_F(OmPivotTableProperties, MiscPropertiesAreNeitherEscapedNorMadeUnique) {
  Table table;
  table.addMiscProperty("a,b");
  table.addMiscProperty("a,b");
  table.addMiscProperty("\"\\");
  EXPECT_EQ(table.getMiscProperties(), "a,b,a,b,\"\\");
}

TEST_F(OmPivotTableProperties, TheMiscPropertiesCanBeAddedToThemselves) {
  Table table;
  table.addMiscProperty("a property that is too long for the string itself");
  table.addMiscProperty(table.getMiscProperties());
  EXPECT_EQ(table.getMiscProperties(),
            "a property that is too long for the string itself,"
            "a property that is too long for the string itself");
}

TEST_F(OmPivotTableProperties, TheAxesAreEmptyFromTheStart) {
  Table table;
  EXPECT_EQ(table.Rows().size(), 0U);
  EXPECT_EQ(table.Columns().size(), 0U);
  EXPECT_EQ(table.Layers().size(), 0U);
}

TEST_F(OmPivotTableProperties, TheAxesAreThreeListsOfTheirOwn) {
  Table table;
  table.Rows().push_back(0);
  table.Columns().push_back(2);
  table.Columns().push_back(1);
  table.Layers().push_back(-1);
  const auto list = [](const PuppetVector<short>& axis) {
    return std::vector<short>(axis.begin(), axis.end());
  };
  EXPECT_EQ(list(table.Rows()), (std::vector<short>{0}));
  EXPECT_EQ(list(table.Columns()), (std::vector<short>{2, 1}));
  EXPECT_EQ(list(table.Layers()), (std::vector<short>{-1}));
}

TEST_F(OmPivotTableProperties, AConstTableGivesTheSameAxes) {
  Table table;
  const OmPivotTable& constTable = table;
  EXPECT_EQ(&constTable.Rows(), &table.Rows());
  EXPECT_EQ(&constTable.Columns(), &table.Columns());
  EXPECT_EQ(&constTable.Layers(), &table.Layers());
}

TEST_F(OmPivotTableProperties, AnAxisIsLengthenedWithEntriesWithoutADimension) {
  Table table;
  table.Rows()[1] = 4;
  EXPECT_EQ(table.Rows().size(), 2U);
  EXPECT_EQ(table.Rows()[0], -1);
}

}  // namespace
}  // namespace om::test
