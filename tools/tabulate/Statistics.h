// The statistics of a table: their labels, how their numbers are shown, and the list of those that
// a request makes: the ones of the records first, then those of each measure.

#ifndef OM_TOOLS_TABULATE_STATISTICS_H_
#define OM_TOOLS_TABULATE_STATISTICS_H_

#include <cstddef>
#include <string>
#include <vector>

#include "external/cells/OmNumber.h"
#include "tools/tabulate/Counting.h"
#include "tools/tabulate/Request.h"

namespace om::tabulate {

struct StatisticEntry {
  static constexpr std::size_t kNoMeasure = static_cast<std::size_t>(-1);

  Statistic statistic;
  std::size_t measure;  // its number, or kNoMeasure
  OmNumber::Format format;
};

// The entries in the order in which they stand.
std::vector<StatisticEntry> statisticsOf(const TableRequest& request, const Counted& counted);

// "Count", "Row %" ...
std::string labelOf(Statistic statistic);
// Its word in options.
std::string nameOf(Statistic statistic);

// The statistic's name on the command line; false, or null, where there is none.
bool statisticNamed(const std::string& name, Statistic& statistic);
std::string statisticNames();

}  // namespace om::tabulate

#endif  // OM_TOOLS_TABULATE_STATISTICS_H_
