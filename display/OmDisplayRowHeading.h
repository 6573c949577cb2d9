// OmDisplayRowHeading: the rows of a pivot table, in the layer that is current when the heading is
// built, with the grid of labels beside them and what stands in the table's corner.
//
// It is a column heading turned on its side: the block of label columns of the outermost dimension,
// at heading position 0, is the leftmost, and the category of the first entry of Rows() changes
// fastest along the rows. The corner is over the label columns. The names of the dimensions can
// stand there, instead of beside every row:
//
//   names in the corner              otherwise
//   | Sex    | Class  |              | text   |        |       |        |
//   | Female | First  |              | Sex    | Female | Class | First  |
//   | Female | Second |              | Sex    | Female | Class | Second |
//
// Ownership, lifetime, threads, errors, limits: as for OmDisplayColumnHeading.

#ifndef OM_DISPLAY_OMDISPLAYROWHEADING_H_
#define OM_DISPLAY_OMDISPLAYROWHEADING_H_

#include <deque>
#include <vector>

#include "backend/Export.h"
#include "display/OmDisplayLayerHeading.h"
#include "external/cells/OmCellText.h"

namespace om::internal {
class OmDisplayAxisData;
}  // namespace om::internal

class OM_EXPORT OmDisplayRowHeading {
 public:
  using ConstNode = OmDisplayLayerHeading::ConstNode;

  // With `skipEmpty`, empty rows are left out, by the rule and at the cost of the column heading.
  // With `dimNamesInCorner`, labels leave out the roots of the dimensions.
  OmDisplayRowHeading(OmDisplayLayerHeading& layers, bool skipEmpty, bool dimNamesInCorner);
  OmDisplayRowHeading(const OmDisplayRowHeading&) = delete;
  OmDisplayRowHeading& operator=(const OmDisplayRowHeading&) = delete;
  ~OmDisplayRowHeading();

  OmPivotTable& Table() const;
  bool SkipEmpty() const;
  bool DimNamesInCorner() const;

  // The number of row dimensions.
  int NDimensions() const;
  // The table's number of the dimension at a heading position; beyond the end as in the layer
  // heading.
  int getDimensionIndex(int position) const;

  // The number of rows. A table without row dimensions has one.
  int NRows() const;
  // The number of label columns.
  int NColumns() const;
  // The number of label columns of the dimension at a heading position; 0 beyond the end.
  int VisibleWidth(int position) const;

  // The labels of one row from left to right: NColumns() entries. All of them are null when there
  // is no such row.
  std::deque<ConstNode*> Row(int row) const;
  // The label in one label column of every row from top to bottom: NRows() entries, all of them
  // null when there is no such label column. Constant time for each.
  std::deque<ConstNode*> Column(int level) const;
  // The category of each dimension, hidden or not, in heading order; null where there is none.
  std::deque<ConstNode*> RowCategories(int row) const;

  // Writes the subscripts of the row's categories into a cell index, as a column heading does.
  void Fill(std::vector<int>& index, int row) const;

  // Append the paths of the row's categories, or their ends, as a column heading does.
  void DimAllNodes(int row, std::vector<ConstNode*>& out) const;
  void DimCatNodes(int row, std::vector<ConstNode*>& dimensions,
                   std::vector<ConstNode*>& categories) const;

  // The positions of the rows shown among all rows, ascending. Made at the first call when empty
  // rows are not skipped.
  const std::vector<unsigned long long>& getNonEmptyRows() const;

  // The texts in the corner, one for each label column, null for an empty place. With names in the
  // corner: the name of each dimension over the first label column of its block. When that places
  // no name, and without names: the table's corner text over the first label column; but nothing
  // when there are no rows. The texts are the table's.
  std::vector<const OmCellText*> CornerText() const;

 private:
  friend struct om::internal::DisplayInternals;

  om::internal::OmDisplayAxisData* const _my;
};

#endif  // OM_DISPLAY_OMDISPLAYROWHEADING_H_
