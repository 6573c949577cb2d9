// OmTableFinding: one thing that is wrong with a pivot table, as OmPivotTable::validate finds it.

#ifndef OM_PIVOT_OMTABLEFINDING_H_
#define OM_PIVOT_OMTABLEFINDING_H_

#include <cstdint>
#include <string>

#include "backend/Export.h"

struct OM_EXPORT OmTableFinding {
  enum Kind : std::int32_t {
    AXIS_ENTRY_WITHOUT_DIMENSION = 0,  // an axis names a dimension that the table does not have
    DIMENSION_ON_NO_AXIS = 1,
    DIMENSION_ON_AXES_TWICE = 2,  // once for each entry of the axes beyond the first
    DUPLICATE_SUBSCRIPT = 3,      // an earlier category of the dimension has the same subscript
    MISSING_SUBSCRIPT = 4,        // the first of a run of subscripts that no category has
    SUBSCRIPT_BEYOND_SIZE = 5,    // a category outside of the dimension's size
    STALE_PARENT_LINK = 6,        // a node that refers to another parent than the one it is under
    UNREACHABLE_CELL = 7,         // a stored cell at a subscript that no category has
    FOOTNOTE_BEYOND_LIST = 8      // a text with a footnote that the table does not have
  };

  Kind kind;
  // "rows[1]", "columns[0]" or "layers[2]"; "dimension 2"; "dimension 2, node 0/3", by the
  // positions of the node and its ancestors below the root; "cell (2, 0, 1)"; "label", "table
  // title", "caption", "corner text".
  std::string place;
  // The axis entry, the subscript, the position of the footnote, or the dimension along which no
  // category leads to the cell; 0 where the place says it all. A subscript is taken as signed.
  long long value;

  // Place and finding as a sentence: "<place>: " and
  //   "there is no dimension 7", "it stands on no axis", "dimension 7 stands on the axes already",
  //   "an earlier category has the subscript 7", "no category has the subscript 7",
  //   "the subscript 7 is beyond the size of the dimension", "the link to the parent is stale",
  //   "no category leads to it along dimension 7" or "there is no footnote 7".
  std::string Message() const;

  bool operator==(const OmTableFinding&) const = default;
};

#endif  // OM_PIVOT_OMTABLEFINDING_H_
