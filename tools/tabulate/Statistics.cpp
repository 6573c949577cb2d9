#include "tools/tabulate/Statistics.h"

#include <algorithm>
#include <array>

namespace om::tabulate {

namespace {

struct Names {
  Statistic statistic;
  const char* name;
  const char* label;
};

constexpr std::array<Names, 11> kNames{{{Statistic::COUNT, "count", "Count"},
                                        {Statistic::ROW_PERCENT, "row%", "Row %"},
                                        {Statistic::COLUMN_PERCENT, "column%", "Column %"},
                                        {Statistic::TOTAL_PERCENT, "total%", "Total %"},
                                        {Statistic::N, "n", "N"},
                                        {Statistic::SUM, "sum", "Sum"},
                                        {Statistic::MEAN, "mean", "Mean"},
                                        {Statistic::SD, "sd", "Standard deviation"},
                                        {Statistic::MIN, "min", "Minimum"},
                                        {Statistic::MAX, "max", "Maximum"},
                                        {Statistic::MEDIAN, "median", "Median"}}};

// Means and deviations get two digits more than the numbers have, medians one, which may be the
// middle of two numbers.
OmNumber::Format formatOf(Statistic statistic, int decimals, int weightDecimals) {
  constexpr int kMost = 10;
  const int ofWeights = std::min(weightDecimals, 2);
  const auto number = [](int digits, bool grouping) {
    return OmNumber::Format{digits < kMost ? digits : kMost, false, grouping};
  };
  switch (statistic) {
    case Statistic::COUNT:
      return number(ofWeights, true);
    case Statistic::ROW_PERCENT:
    case Statistic::COLUMN_PERCENT:
    case Statistic::TOTAL_PERCENT:
      return {1, true, false};
    case Statistic::N:
      return number(0, true);
    case Statistic::SUM:
      return number(decimals + ofWeights, true);
    case Statistic::MEAN:
    case Statistic::SD:
      return number(decimals + 2, false);
    case Statistic::MEDIAN:
      return number(decimals + 1, false);
    case Statistic::MIN:
    case Statistic::MAX:
      break;
  }
  return number(decimals, false);
}

}  // namespace

std::string labelOf(Statistic statistic) {
  return kNames[static_cast<std::size_t>(statistic)].label;
}

std::string nameOf(Statistic statistic) { return kNames[static_cast<std::size_t>(statistic)].name; }

bool statisticNamed(const std::string& name, Statistic& statistic) {
  for (const Names& names : kNames) {
    if (name == names.name) {
      statistic = names.statistic;
      return true;
    }
  }
  return false;
}

std::string statisticNames() {
  std::string list;
  for (const Names& names : kNames) list += (list.empty() ? "" : ", ") + std::string(names.name);
  return list;
}

std::vector<StatisticEntry> statisticsOf(const TableRequest& request, const Counted& counted) {
  const std::vector<Statistic> statistics = request.effectiveStatistics();
  std::vector<StatisticEntry> entries;
  const auto add = [&](Statistic statistic, std::size_t measure, int decimals) {
    entries.push_back({statistic, measure, formatOf(statistic, decimals, counted.weightDecimals)});
  };
  for (const Statistic statistic : statistics) {
    if (!isOfMeasure(statistic) || counted.measures.empty()) {
      add(statistic, StatisticEntry::kNoMeasure, 0);
    }
  }
  for (std::size_t measure = 0; measure < counted.measures.size(); ++measure) {
    for (const Statistic statistic : statistics) {
      if (isOfMeasure(statistic)) add(statistic, measure, counted.measures[measure].decimals);
    }
  }
  return entries;
}

}  // namespace om::tabulate
