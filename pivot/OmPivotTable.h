// OmPivotTable: a statistical table: cells in any number of dimensions, each a tree of categories,
// and which of the dimensions stand on rows, columns and layers.
//
//   index (2, 0, 1)            one subscript for each dimension, in the order of their addition
//   Rows() {0}                 dimension 0 runs down the rows
//   Columns() {1, 2}           dimension 2 across the columns, dimension 1 within each of its
//                              categories: the last entry of an axis is the outermost one
//
// A producer constructs a table, hands it the process settings (setBackendSettings), adds the
// dimensions and their categories, fills the axes with dimension positions, stores the cells, adds
// footnotes, and calls EndTable. Nothing prevents later changes. A consumer iterates the cells that
// are stored, or lays the table out with the display headings.
//
// Ownership: the table owns a region in which every text that it takes in is cloned, and all its
//   dimensions; callers keep what they pass. Pointers and references that it gives stay valid until
//   what they refer to is replaced, deleted or ends with the table.
// Cells: a sparse store in which a lookup takes two loads for each dimension. Its memory grows with
//   the cells and with the largest subscripts on their paths, not with the product of the sizes.
// Threads: a table with everything in it belongs to one thread at a time. Two threads may each use
//   a table of their own.
// Errors: OMSException for the violations named at each operation; std::bad_alloc, and what cloning
//   a text throws. The table then reads as before, but for the count of stores (getNumCells).

#ifndef OM_PIVOT_OMPIVOTTABLE_H_
#define OM_PIVOT_OMPIVOTTABLE_H_

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "backend/Export.h"
#include "backend/tables/OmFootnote.h"
#include "backend/tables/OmVector.h"
#include "backend/tables/PuppetVector.h"
#include "dimensions/OmDimension.h"
#include "external/cells/OmCellProperties.h"
#include "external/settings/BackendSettings.h"
#include "output/OmOutputPart.h"
#include "pivot/FormatArea.h"
#include "pivot/OmTableFinding.h"

namespace om::internal {

class PointerVector;
struct PivotTableInternals;

// Where an iteration over cells stands: a leaf of the cell store, and an element of it.
struct CellPlace {
  void* const* leaf = nullptr;
  void* const* leafEnd = nullptr;
  void* const* at = nullptr;  // null at the end of the iteration

  // Goes one element on, and says whether a cell is there. REQUIRES: not at the end.
  bool Step() { return ++at != leafEnd && *at != nullptr; }
};

}  // namespace om::internal

class OM_EXPORT OmPivotTable : public OmOutputPart {
 public:
  using FormatArea = ::FormatArea;
  class ICUHelper;
  template <class Text>
  class CellIterator;
  using Iterator = CellIterator<OmCellText>;
  using ConstIterator = CellIterator<const OmCellText>;

  // The title becomes the part's label. A template name of exactly "Warnings" or "Notes" makes the
  // table one of warnings or notes, for good.
  OmPivotTable(const OmCellText& title, const OmCellText& templateName, bool hasSplits);
  OmPivotTable(const OmPivotTable&) = delete;
  OmPivotTable& operator=(const OmPivotTable&) = delete;
  ~OmPivotTable() override;

  void Accept(OmOutputPart::Visitor& visitor) override;

  // ---- Dimensions

  // Appends a copy of a dimension, or a new one with this label and no categories. The subscript of
  // the new root is the dimension's position. Cells that are stored already get subscript 0 along
  // the new dimension.
  OmDimension& AddDimension(const OmDimension& dimension);
  OmDimension& AddDimension(const OmCellText& label);

  // Appends copies of all dimensions of another table, whose root subscripts they keep. Throws
  // OMSException "OmPivotTable::CopyDimensions() -- _my->_dimensions.size() != 0" with
  // (NDimensions(), 0) unless this table has none.
  void CopyDimensions(const OmPivotTable& other);

  std::size_t NDimensions() const;
  // Throws OMSException "OmPivotTable::Dimension() -- which < 0" with (which, 0) or
  // "OmPivotTable::Dimension() -- which < NDimensions()" with (which, NDimensions()).
  OmDimension& Dimension(int which);
  const OmDimension& Dimension(int which) const;
  // The position of the first dimension with this label, or -1. Labels are equal when their kinds
  // are and they compare as equal.
  int FindDimension(const OmCellText& label) const;

  // OmDimension::NumCategories of one dimension, or of all. Size throws what Dimension throws, with
  // "OmPivotTable::Size() -- ".
  std::size_t Size(int which) const;
  std::vector<int> SizeVector() const;

  // ---- Axes: positions of dimensions, the innermost first. -1 is an entry without a dimension.

  PuppetVector<short>& Rows();
  const PuppetVector<short>& Rows() const;
  PuppetVector<short>& Columns();
  const PuppetVector<short>& Columns() const;
  PuppetVector<short>& Layers();
  const PuppetVector<short>& Layers() const;

  // Unless the axes have as many entries as the table has dimensions, drops every entry of -1 from
  // them. (Entries of -1 that make up the number stay.) Throws OMSException
  // "OmPivotTable::Data::ReindexAxis() -- ndim != nCount" with (NDimensions(), entries that would
  // be left) when the numbers still differ; the axes are then as before.
  void EndTable();

  // ---- Cells. An index has one subscript for each dimension, all of them 0 or more.
  // Finding and storing throw OMSException "OmPivotTable::Cell() -- nind !=
  // _my->_dimensions.size()" with (length of the index, NDimensions()) and
  // "OmPivotTable::Cell() -- subscript < 0" with (the first such subscript as an unsigned 64-bit
  // number, 0).

  // The text stored at the index, or null. Constant time for a given number of dimensions.
  OmCellText* Cell(const std::vector<int>& index);
  const OmCellText* Cell(const std::vector<int>& index) const;

  // Stores a clone of the text, or clears the place when it is null. A cell that stood there is
  // destroyed; its metadata goes over to the new one. Every call counts (getNumCells); once the
  // count before it exceeds the settings' getMaxCells, a call only marks the table as scratched and
  // gives false, whatever its index. The index of a table without dimensions is always refused.
  // Amortised constant time for subscripts in order; a subscript far beyond the former ones costs
  // one allocation. (Clearing leaves the way to the place in the store, and iteration ends early
  // when the first way leads to no cell; deleteCell removes it.)
  bool Cell(const std::vector<int>& index, const OmCellText* text);
  bool Cell(const std::vector<int>& index, const OmCellText& text);

  // Destroys the cell at the index and forgets the ways of the store that led only to it. The count
  // stays. Nothing where the store does not reach, and for an index of another length.
  void deleteCell(const std::vector<int>& index);

  // How many times a cell was to be stored, also when the call failed or cleared a place.
  long getNumCells() const;

  // An iterator on the first stored cell. Dimension 0 varies fastest. Its Cell() is null when there
  // is none.
  Iterator FirstCell();
  ConstIterator FirstCell() const;
  // The same order as a range of (index, text): for (auto [index, text] : table).
  Iterator begin();
  Iterator end();
  ConstIterator begin() const;
  ConstIterator end() const;

  // Whether the table has outgrown its limit, or was marked, and is meant to be dropped.
  bool IsScratched() const;
  void Scratch(bool scratched);

  // ---- Footnotes, in the order of their first addition; cells refer to them by position.

  // Adds a footnote and gives its position. Unless `append` is set, a footnote with an equal text
  // (as for FindDimension) is merged with instead: it takes the marker, or the lack of one, and its
  // count goes up by one. A new footnote has count 1, or the given count when that is negative.
  int Footnote(const OmFootnote& footnote, bool append);
  OmVector<OmFootnote>& Footnotes();
  const OmVector<OmFootnote>& Footnotes() const;

  // ---- Texts. The template name is that of the constructor; the others are null until they are
  // set. Setting clones, and null clears.

  OmCellText* TemplateName();
  const OmCellText* TemplateName() const;
  OmCellText* Caption();
  const OmCellText* Caption() const;
  void Caption(const OmCellText* text);
  OmCellText* CornerText();
  const OmCellText* CornerText() const;
  void CornerText(const OmCellText* text);
  // REQUIRES: a table title was set. (It is not the title given to the constructor.)
  OmCellText& TableTitle();
  const OmCellText* GetTableTitle() const;
  void SetTableTitle(const OmCellText& text);

  // ---- Properties: values that are kept for viewers and have no effect here.

  bool IsNotes() const;
  bool IsWarnings() const;
  bool HasSplits() const;

  // -1 from the start.
  int MinColumnWidth() const;
  void MinColumnWidth(int width);
  int MaxColumnWidth() const;
  void MaxColumnWidth(int width);
  int MinRowWidth() const;
  void MinRowWidth(int width);
  int MaxRowWidth() const;
  void MaxRowWidth(int width);
  int OptionNumber() const;
  void OptionNumber(int number);
  int getLayerLoc() const;
  void setLayerLoc(int layer);
  long long TableId() const;
  void TableId(long long id);
  // 32 bits.
  long getStartColor() const;
  void setStartColor(long color);
  long getEndColor() const;
  void setEndColor(long color);

  // 0 from the start.
  int getLang() const;
  void setLang(int lang);
  int getVariableMode() const;
  void setVariableMode(int mode);
  int getValueMode() const;
  void setValueMode(int mode);

  // True from the start.
  bool Show() const;
  void Show(bool show);
  bool showCaption() const;
  void showCaption(bool show);
  bool backendOwns() const;
  void setBackendOwns(bool owns);

  // False from the start.
  bool RotateRowLabels() const;
  void RotateRowLabels(bool rotate);
  bool RotateColumnLabels() const;
  void RotateColumnLabels(bool rotate);
  bool getLabelsOnly() const;
  void setLabelsOnly(bool labelsOnly);
  bool getImputed() const;
  void setImputed(bool imputed);
  bool HasRemovedFootnotes() const;
  void RemovedFootnotes(bool removed);
  // There is no way back to false.
  bool hasMarkers() const;
  void setHasMarkers();

  // Empty from the start.
  const std::string& TableLocale() const;
  void TableLocale(const std::string& locale);
  const std::string& getBorderInfo() const;
  void setBorderInfo(const std::string& info);
  const std::string& getTableLookInfo() const;
  void setTableLookInfo(const std::string& info);
  const std::string& getTablePropertiesInfo() const;
  void setTablePropertiesInfo(const std::string& info);
  const std::vector<unsigned int>& getTableCustomWidths() const;
  void setTableCustomWidths(const std::vector<unsigned int>& widths);
  const std::vector<unsigned int>& getTableCustomHeights() const;
  void setTableCustomHeights(const std::vector<unsigned int>& heights);
  // A list separated by ","; nothing is escaped.
  const std::string& getMiscProperties() const;
  void addMiscProperty(std::string property);

  // ---- Formats and styles

  // The format of an area, or null where none is set or the area is above 8. (An area that is asked
  // for is entered with null, also by a const table, so std::bad_alloc may be thrown.)
  FormatArea* getAreaFormat(FormatArea::Area area) const;
  // Takes the format over, also when it throws, and deletes the one that the area had; nothing for
  // null. One above 8 is kept as well, out of reach. REQUIRES: the format is not in a table yet.
  void setAreaFormat(FormatArea* format);

  // The styles that cells may refer to, and which empty place has which style, in the terms of the
  // producer and its viewers.
  std::vector<OmCellProperties>& cellStyles();
  std::vector<OmCellProperties>& getCellStyles() const;
  std::map<unsigned long long, unsigned short>& emptyCellStyles();
  std::map<unsigned long long, unsigned short>& getEmptyCellStyles() const;

  // ---- Settings and text encoding

  // Copies the settings. With fast tables on, the first call also makes the table's trackers and
  // gives the first one to the label, template name, title, category labels and footnotes that the
  // table has, and from then on to every text that it takes in. Cells, caption and corner text that
  // it has already are left without, on purpose.
  void setBackendSettings(const BackendSettings& settings);
  BackendSettings& getBackendSettings() const;
  bool fastTable() const;
  void setFastTable(bool fast);

  // Null until setBackendSettings makes them; the table owns them. In Unicode mode they are one.
  icuTracker* getICUTracker() const;
  icuTracker* getU8Tracker() const;

  // Gives the table's tracker, when there is one, to a text and to the texts inside it.
  void setHelper(OmCellText& text);

  // ---- For developers of producers

  // Writes a dump to standard output. REQUIRES: a table title was set.
  void Print() const;

  // What is wrong with the table as it stands: its axes, then its texts, dimensions and cells.
  // Empty for a sound table. Takes O(log n) for each category and for each subscript of a cell,
  // where n is the number of categories.
  std::vector<OmTableFinding> validate() const;

 private:
  using PointerVector = om::internal::PointerVector;
  struct Data;
  friend struct om::internal::PivotTableInternals;

  void PrintCells(PointerVector* node, std::size_t depth, std::size_t index) const;
  OmDimension& append(std::unique_ptr<OmDimension> dimension);

  Data* const _my;
};

// Gives a tracker to the texts that it visits. A text that contains texts passes the tracker that
// it then holds on to them, one level deep. Composites are left alone.
class OM_EXPORT OmPivotTable::ICUHelper : public OmCellText::Visitor {
 public:
  ICUHelper();
  ~ICUHelper() override;

  void Visit(OmMessageCell& text) override;
  void Visit(OmStringCell& text) override;
  void Visit(OmNumber& text) override;
  void Visit(OmVariableCell& text) override;
  void Visit(OmValueCell& text) override;
  void Visit(OmDateCell& text) override;
  void Visit(OmComposite& text) override;

  icuTracker* Tracker() const { return tracker_; }
  void Tracker(icuTracker* tracker) { tracker_ = tracker; }

 private:
  icuTracker* tracker_ = nullptr;
};

// A place among the stored cells of a table; also an input iterator over (index, text). Storing or
// deleting cells and adding dimensions invalidate it.
template <class Text>
class OM_EXPORT OmPivotTable::CellIterator {
 public:
  // What the iterator stands on. Both refer into the iterator and its table, until it moves.
  struct Entry {
    const std::vector<int>& index;
    Text& text;
  };
  using value_type = Entry;
  using reference = Entry;
  using difference_type = std::ptrdiff_t;
  using pointer = void;
  using iterator_category = std::input_iterator_tag;

  // At the end of every table.
  CellIterator() = default;
  CellIterator(const CellIterator& other);
  CellIterator(CellIterator&& other) noexcept;
  CellIterator& operator=(const CellIterator& other);
  CellIterator& operator=(CellIterator&& other) noexcept;
  ~CellIterator() { release(); }

  // The current cell, null at the end.
  Text* Cell() const {
    return data_ != nullptr && data_->at != nullptr ? static_cast<OmCellText*>(*data_->at)
                                                    : nullptr;
  }
  // The subscripts of the current cell, dimension 0 first, until the iterator moves.
  // REQUIRES: not at the end.
  const std::vector<int>& Index() const;

  // Goes to the next stored cell. At the end it stays there.
  CellIterator& operator++() {
    if (data_ != nullptr && data_->at != nullptr && !data_->Step()) findNext();
    return *this;
  }
  CellIterator operator++(int);
  Entry operator*() const { return {Index(), *Cell()}; }

  // The same cell, or both at the end.
  bool operator==(const CellIterator& other) const { return Cell() == other.Cell(); }

 private:
  using Data = om::internal::CellPlace;  // of a CellIteration
  friend class OmPivotTable;

  explicit CellIterator(Data* data) : data_(data) {}

  void findNext();
  void release();

  Data* data_ = nullptr;  // null in an iterator that was made without a table
};

extern template class OmPivotTable::CellIterator<OmCellText>;
extern template class OmPivotTable::CellIterator<const OmCellText>;

#endif  // OM_PIVOT_OMPIVOTTABLE_H_
