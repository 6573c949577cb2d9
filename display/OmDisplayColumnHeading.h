// OmDisplayColumnHeading: the columns of a pivot table, in the layer that is current when the
// heading is built, with the grid of labels over them.
//
// A column is one combination of categories of the column dimensions. Over each column stands a
// block of label rows for every dimension, the outermost dimension's on top:
//
//   label row 0   | Sex    | Sex    | Sex    | Sex    |     dimension 1 of Columns(): position 0
//             1   | Female | Female | Male   | Male   |
//             2   | Class  | Class  | Class  | Class  |     dimension 0 of Columns(): position 1
//             3   | First  | Second | First  | Second |
//
// The labels of a column are those of each category's path from the root down: without hidden
// nodes, ending in front of the first group with hidden labels, with nulls at the end of its block
// where other categories have more of them.
//
// Heading order: position 0 is the last entry of the table's Columns(), the outermost; the category
// of the first entry changes fastest along the columns.
//
// Ownership, threads, errors, limits: as for OmDisplayLayerHeading, to which all entries belong.
// Lifetime: it must not outlive its layer heading. A change of the current layer has no effect on
//   it: build it after a layer was selected and, when empty columns are skipped, once for each.

#ifndef OM_DISPLAY_OMDISPLAYCOLUMNHEADING_H_
#define OM_DISPLAY_OMDISPLAYCOLUMNHEADING_H_

#include <deque>
#include <vector>

#include "backend/Export.h"
#include "display/OmDisplayLayerHeading.h"

namespace om::internal {
class OmDisplayAxisData;
}  // namespace om::internal

class OM_EXPORT OmDisplayColumnHeading {
 public:
  using ConstNode = OmDisplayLayerHeading::ConstNode;

  // With `skipEmpty`, columns that hold no cell in the current layer are left out; but in a table
  // with cells in less than one per cent of its places (which is decided for the whole table), a
  // column deliberately stays when it holds a cell in any layer. The cost of skipping is that of
  // skipping layers; building is constant time otherwise.
  OmDisplayColumnHeading(OmDisplayLayerHeading& layers, bool skipEmpty);
  OmDisplayColumnHeading(const OmDisplayColumnHeading&) = delete;
  OmDisplayColumnHeading& operator=(const OmDisplayColumnHeading&) = delete;
  ~OmDisplayColumnHeading();

  OmPivotTable& Table() const;
  bool SkipEmpty() const;

  // The number of column dimensions.
  int NDimensions() const;
  // The table's number of the dimension at a heading position; beyond the end as in the layer
  // heading.
  int getDimensionIndex(int position) const;

  // The number of columns. A table without column dimensions has one.
  int NColumns() const;
  // The number of label rows.
  int NRows() const;
  // The number of label rows of the dimension at a heading position; 0 beyond the end.
  int VisibleHeight(int position) const;

  // The labels of one column from top to bottom: NRows() entries. All of them are null when there
  // is no such column.
  std::deque<ConstNode*> Column(int column) const;
  // The label in one label row of every column from left to right: NColumns() entries, all of them
  // null when there is no such label row. Constant time for each.
  std::deque<ConstNode*> Row(int level) const;
  // The category of each dimension, hidden or not, in heading order; null where there is none.
  std::deque<ConstNode*> ColumnCategories(int column) const;

  // Writes the subscripts of the column's categories into a cell index, after sizing it to the
  // table's number of dimensions; new entries are 0, and those of other dimensions are left alone.
  // Allocates nothing when the index has its size.
  void Fill(std::vector<int>& index, int column) const;

  // For each dimension in heading order, appends the category's path from the root down, whatever
  // is hidden; nothing for a path of a root alone. Beyond the end of the columns shown, the column
  // deliberately counts as a position among all columns, the empty ones too.
  void DimAllNodes(int column, std::vector<ConstNode*>& out) const;
  // The same, but appends both ends of each path: the dimension's root and the category.
  void DimCatNodes(int column, std::vector<ConstNode*>& dimensions,
                   std::vector<ConstNode*>& categories) const;

  // The positions of the columns shown among all columns, ascending. Made at the first call when
  // empty columns are not skipped.
  const std::vector<unsigned long long>& getNonEmptyColumns() const;

 private:
  friend struct om::internal::DisplayInternals;

  om::internal::OmDisplayAxisData* const _my;
};

#endif  // OM_DISPLAY_OMDISPLAYCOLUMNHEADING_H_
