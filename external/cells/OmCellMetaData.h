// OmCellMetaData: what a producer notes about where a cell came from. A text keeps at most one such
// record and copies it along with itself; nothing in the libraries interprets it.

#ifndef OM_EXTERNAL_CELLS_OMCELLMETADATA_H_
#define OM_EXTERNAL_CELLS_OMCELLMETADATA_H_

#include <string>
#include <vector>

struct OmCellMetaData {
  std::string statistic;               // the statistic that the cell shows, as "mean"
  std::vector<std::string> variables;  // the variables that it was computed from
  std::string details;                 // anything else, in the producer's own notation

  bool operator==(const OmCellMetaData&) const = default;
};

#endif  // OM_EXTERNAL_CELLS_OMCELLMETADATA_H_
