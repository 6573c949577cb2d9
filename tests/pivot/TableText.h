// What the tests of a table's properties share: texts as strings, small dimensions, footnotes,
// settings, and the whole of a table as it prints itself.

#ifndef OM_TESTS_PIVOT_TABLETEXT_H_
#define OM_TESTS_PIVOT_TABLETEXT_H_

#include <initializer_list>
#include <string>

#include "external/cells/OmStringCell.h"
#include "pivot/OmPivotTable.h"
#include "pivot/internal/PivotTableData.h"
#include "tests/support/StandardOutput.h"

namespace om::test {

inline std::string stringOf(const OmCellText* text) {
  return text != nullptr ? std::string(*text) : "(none)";
}

// Adds a dimension whose categories have the subscripts 0, 1, 2, ...
inline OmDimension& addDimension(OmPivotTable& table, const std::string& name,
                                 std::initializer_list<const char*> categories) {
  OmDimension& dimension = table.AddDimension(OmStringCell(name));
  unsigned long long subscript = 0;
  for (const char* const label : categories) {
    dimension.AddNewChild(dimension.Root(), OmStringCell(label), subscript++, false);
  }
  return dimension;
}

inline OmFootnote noteOf(const std::string& text) {
  const OmStringCell cell(text);
  return OmFootnote(&cell, nullptr, nullptr);
}

inline OmFootnote noteOf(const std::string& text, const std::string& marker) {
  const OmStringCell cell(text);
  const OmStringCell markerCell(marker);
  return OmFootnote(&cell, &markerCell, nullptr);
}

inline BackendSettings settingsOf(bool fastTables, bool unicode, const std::string& locale) {
  BackendSettings settings;
  settings.setFastTables(fastTables);
  settings.setUnicode(unicode);
  settings.setLocale(locale);
  return settings;
}

// REQUIRES: the table has a table title.
inline std::string printed(const OmPivotTable& table) {
  const StandardOutput output;
  table.Print();
  return output.text();
}

inline auto& dataOf(const OmPivotTable& table) {
  return om::internal::PivotTableInternals::dataOf(table);
}

}  // namespace om::test

#endif  // OM_TESTS_PIVOT_TABLETEXT_H_
