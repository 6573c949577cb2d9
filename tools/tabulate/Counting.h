// Counting: reads the records of a file once and tallies them as a request asks.

#ifndef OM_TOOLS_TABULATE_COUNTING_H_
#define OM_TOOLS_TABULATE_COUNTING_H_

#include <cstddef>
#include <cstdint>
#include <functional>
#include <istream>
#include <string>
#include <vector>

#include "tools/tabulate/Dictionary.h"
#include "tools/tabulate/Request.h"
#include "tools/tabulate/Tally.h"

namespace om::tabulate {

// What came of it.
struct Counted {
  struct Measure {
    std::string name;
    int decimals = 0;           // the most that a number of it has, in the records used
    std::uint64_t missing = 0;  // records used in which it is missing
  };

  std::vector<Dictionary> dictionaries;  // one for each level of each dimension, in axis order
  Tally tally;                           // over the codes of these
  std::vector<Measure> measures;
  int weightDecimals = 0;
  std::uint64_t read = 0;
  std::uint64_t used = 0;
  std::uint64_t missing = 0;        // left out for an empty field in a dimension
  std::uint64_t missingWeight = 0;  // left out for an empty weight, and for nothing else
  std::vector<std::uint64_t>
      missingIn;  // records read with an empty field in each dictionary's column
};

// `advanced` is told now and then how many bytes were read. Throws Failure: usage for a column that
// the header does not have, data for what CsvReader refuses, a name that the header has twice, and
// a weight or measure that is no number or a weight below 0.
Counted countRecords(std::istream& stream, const std::string& file, const TableRequest& request,
                     const std::function<void(std::uint64_t)>& advanced);

}  // namespace om::tabulate

#endif  // OM_TOOLS_TABULATE_COUNTING_H_
