// What a pivot table consists of. The region stands first, so that it ends last.

#ifndef OM_PIVOT_INTERNAL_PIVOTTABLEDATA_H_
#define OM_PIVOT_INTERNAL_PIVOTTABLEDATA_H_

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "external/cells/OmMemoryRegion.h"
#include "external/platform/icuTracker.h"
#include "pivot/OmPivotTable.h"
#include "pivot/internal/CellStore.h"

struct OmPivotTable::Data {
  Data(const OmCellText& templateText, bool splits);
  // Destroys the texts, the cells, the dimensions and the formats, in this order, and leaves the
  // trackers, which texts elsewhere may refer to.
  ~Data();
  Data(const Data&) = delete;
  Data& operator=(const Data&) = delete;

  OmMemoryRegion region{false};
  std::unique_ptr<OmCellText> templateName;
  std::unique_ptr<OmCellText> cornerText;
  std::unique_ptr<OmCellText> caption;
  std::unique_ptr<OmCellText> tableTitle;
  OmVector<OmFootnote> footnotes{&region};
  bool removedFootnotes = false;
  bool hasSplits;
  om::internal::CellStore cells{region};
  OmVector<OmDimension*> dimensions{&region};
  PuppetVector<short> rows;
  PuppetVector<short> columns;
  PuppetVector<short> layers;
  int optionNumber = -1;
  int minColumnWidth = -1;
  int maxColumnWidth = -1;
  int minRowWidth = -1;
  int maxRowWidth = -1;
  int layerLoc = -1;
  long long tableId = -1;
  std::string tableLocale;
  bool show = true;
  bool rotateRowLabels = false;
  bool rotateColumnLabels = false;
  bool scratched = false;
  bool isWarnings;
  bool isNotes;
  bool hasMarkers = false;
  bool backendOwns = true;
  bool fastTable = true;
  bool showCaption = true;
  bool labelsOnly = false;
  bool imputed = false;
  BackendSettings settings;
  icuTracker* tracker = nullptr;
  icuTracker* utf8Tracker = nullptr;  // may be the same one
  ICUHelper helper;
  int lang = 0;
  int variableMode = 0;
  int valueMode = 0;
  std::int32_t numCells = 0;
  std::int32_t startColor = -1;
  std::int32_t endColor = -1;
  std::map<FormatArea::Area, FormatArea*> areaFormats;
  std::string borderInfo;
  std::string tableLookInfo;
  std::string tablePropertiesInfo;
  std::vector<unsigned int> customWidths;
  std::vector<unsigned int> customHeights;
  std::map<unsigned long long, unsigned short> emptyCellStyles;
  std::vector<OmCellProperties> cellStyles;
  std::string miscProperties;
};

namespace om::internal {

// The way for the headings of a table, and for tests, into what it does not show.
struct PivotTableInternals {
  using Data = OmPivotTable::Data;

  static Data& dataOf(const OmPivotTable& table) { return *table._my; }
  static void printCells(const OmPivotTable& table, PointerVector* node, std::size_t depth,
                         std::size_t index) {
    table.PrintCells(node, depth, index);
  }
};

}  // namespace om::internal

#endif  // OM_PIVOT_INTERNAL_PIVOTTABLEDATA_H_
