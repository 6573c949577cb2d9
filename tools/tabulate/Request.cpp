#include "tools/tabulate/Request.h"

#include <algorithm>
#include <set>

#include "tools/tabulate/Failure.h"
#include "tools/tabulate/Statistics.h"

namespace om::tabulate {

std::vector<Statistic> TableRequest::effectiveStatistics() const {
  if (!statistics.empty()) return statistics;
  if (measures.empty()) return {Statistic::COUNT};
  return {Statistic::N, Statistic::MEAN, Statistic::SD};
}

void TableRequest::check() const {
  std::set<std::string> used;
  const auto use = [&used](const std::string& column) {
    if (!used.insert(column).second) {
      throw usageFailure("the variable " + inQuotes(column) + " is given twice");
    }
  };
  for (const Axis axis : kAxes) {
    for (const DimensionRequest& dimension : dimensions[axis]) {
      for (const std::string& column : dimension) use(column);
    }
  }
  if (used.empty()) throw usageFailure("there is no variable on rows, columns or layers");
  if (!weight.empty()) use(weight);

  used.clear();
  for (const std::string& column : measures) use(column);

  std::set<Statistic> given;
  for (const Statistic statistic : statistics) {
    if (!given.insert(statistic).second) {
      throw usageFailure("the statistic " + inQuotes(nameOf(statistic)) + " is given twice");
    }
  }
  const auto ofMeasure = [](Statistic statistic) { return isOfMeasure(statistic); };
  const auto needsMeasure = [](Statistic statistic) { return statistic > Statistic::N; };
  const auto alone = std::find_if(statistics.begin(), statistics.end(), needsMeasure);
  if (measures.empty() && alone != statistics.end()) {
    throw usageFailure("there is no measure to take the " + inQuotes(nameOf(*alone)) + " of");
  }
  if (!measures.empty() && !statistics.empty() &&
      std::none_of(statistics.begin(), statistics.end(), ofMeasure)) {
    throw usageFailure("there is a measure, but no statistic of it");
  }
}

}  // namespace om::tabulate
