// OmDisplayLayerHeading: the layers of a pivot table as a viewer sees them, and what the column and
// row headings of the same table share.
//
// A layer is one combination of categories of the table's layer dimensions. The heading numbers the
// layers, has a current one or none, and tells which category of each layer dimension it shows:
//
//   OmDisplayLayerHeading layers(table, skipEmpty);
//   while (layers.NextLayer()) {
//     OmDisplayColumnHeading columns(layers, skipEmpty);
//     OmDisplayRowHeading rows(layers, skipEmpty, namesInCorner);
//     std::vector<int> index;
//     for (int row = 0; row < rows.NRows(); ++row) {
//       for (int column = 0; column < columns.NColumns(); ++column) {
//         layers.Fill(index);
//         rows.Fill(index, row);
//         columns.Fill(index, column);
//         show(table.Cell(index));
//       }
//     }
//   }
//
// Heading order: position 0 is the last entry of the table's Layers(), whose category changes most
// slowly from layer to layer; the first entry of Layers() is last and changes fastest.
//
// An entry is a category node with its depth; entries point into the heading and must not be
// changed. A null one stands where a label is hidden.
//
// Ownership: the heading owns its layouts of all dimensions, in a memory region of its own, and
//   every entry that it and the headings built on it hand out.
// Lifetime: it must not outlive the table, nor the column and row headings outlive it. While it
//   lives, the table's dimensions, axes and cells must stay as they are: nothing is computed again.
// Threads: one at a time, also for operations that are const.
// Errors: std::bad_alloc, and std::length_error "vector<T> too long", as where a negative position
//   would lengthen a list; the heading is then as before. Other numbers out of range are no errors;
//   each operation says what it does with them.
// Limits: where an axis has 2^64 positions or more, their numbers are modulo 2^64.

#ifndef OM_DISPLAY_OMDISPLAYLAYERHEADING_H_
#define OM_DISPLAY_OMDISPLAYLAYERHEADING_H_

#include <deque>
#include <vector>

#include "backend/Export.h"
#include "dimensions/OmDimension.h"

class OmPivotTable;

namespace om::internal {
class OmDisplayLayerData;
struct DisplayInternals;
}  // namespace om::internal

class OM_EXPORT OmDisplayLayerHeading {
 public:
  using ConstNode = OmVectorTree<OmDimensionNode>::ConstNode;

  // Lays out all dimensions of the table. With `skipEmpty`, layers without any cell are left out.
  // No layer is current afterwards. Takes time in proportion to the categories; and, to skip empty
  // layers, to the stored cells at most when less than one per cent of the places hold one,
  // otherwise to what has to be looked at until each layer has shown a cell.
  OmDisplayLayerHeading(OmPivotTable& table, bool skipEmpty);
  OmDisplayLayerHeading(const OmDisplayLayerHeading&) = delete;
  OmDisplayLayerHeading& operator=(const OmDisplayLayerHeading&) = delete;
  ~OmDisplayLayerHeading();

  OmPivotTable& Table() const;
  bool SkipEmpty() const;

  // The number of layers that can be selected. It is 1 in a table without layer dimensions, unless
  // that one layer is empty and skipped.
  unsigned long long NLayers() const;

  // The number of layer dimensions.
  int NDimensions() const;
  // The table's number of the dimension at a heading position. Beyond the end, the list of
  // dimensions is lengthened to there with -1, as a PuppetVector is.
  int getDimensionIndex(int position) const;
  // The largest number of labels that a category of that dimension shows; 0 beyond the end, where
  // the list stays as it is.
  int VisibleWidth(int position) const;

  // The number of the current layer, or -1. (What restoreLayer took over may be any number.)
  int getLayer() const;
  // Makes a layer current and says whether there is such a layer. -1 makes none current; any other
  // number changes nothing.
  bool SwitchLayer(int layer);
  // The layer after the current one, or the first one. At the last layer it gives false, and the
  // layer stays: there is deliberately no wrap-around.
  bool NextLayer();
  // Makes the last layer current; none, when there are no layers.
  void LastLayer();
  // Makes the table's stored layer, OmPivotTable::getLayerLoc, the current one and gives its
  // number, which is deliberately not checked. The current cell index is deliberately not brought
  // up to date either: whoever builds column or row headings for the stored layer selects it with
  // SwitchLayer(heading.restoreLayer()).
  int restoreLayer() const;

  // Writes the subscripts of the current layer's categories into a cell index, after sizing it to
  // the table's number of dimensions; new entries are 0. Nothing when no layer is current, nor for
  // a restored number beyond the layers that are not skipped. (Where none are skipped, the number
  // of a layer that does not exist is taken apart all the same, and writes what it has categories
  // for.) Allocates nothing when the index has its size.
  void Fill(std::vector<int>& index) const;
  // A whole cell index with the subscripts of the layer that was selected last, and 0 elsewhere.
  std::vector<int> getCurrentCellIndex() const;

  // The labels of the current layer's category of one dimension: the path from the dimension's root
  // down, with a null in the place of each hidden node, which ends in front of the first group that
  // is not hidden but whose labels are. Empty when no layer is current, and beyond the end (where
  // the list is lengthened, as by getDimensionIndex).
  std::deque<ConstNode*> Nodes(int position) const;
  // Appends that path whole, whatever is hidden. Nothing when no layer is current, beyond the end,
  // and for a path of a root alone.
  void DimAllNodes(int position, std::vector<ConstNode*>& out) const;
  // Gives both ends of that path: the dimension's root and the category. Leaves them unchanged
  // where DimAllNodes does nothing.
  void DimCatNodes(int position, ConstNode*& dimension, ConstNode*& category) const;

 private:
  friend struct om::internal::DisplayInternals;

  om::internal::OmDisplayLayerData* const _my;
};

#endif  // OM_DISPLAY_OMDISPLAYLAYERHEADING_H_
