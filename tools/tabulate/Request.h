// What a user asks for: one table, with the names of columns as they stand in the header.

#ifndef OM_TOOLS_TABULATE_REQUEST_H_
#define OM_TOOLS_TABULATE_REQUEST_H_

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace om::tabulate {

enum class Axis : std::int32_t { ROWS, COLUMNS, LAYERS };
inline constexpr std::array<Axis, 3> kAxes{Axis::ROWS, Axis::COLUMNS, Axis::LAYERS};

enum class Statistic : std::int32_t {
  COUNT,
  ROW_PERCENT,
  COLUMN_PERCENT,
  TOTAL_PERCENT,
  N,
  SUM,
  MEAN,
  SD,
  MIN,
  MAX,
  MEDIAN
};
// Whether there is one for each measure.
inline bool isOfMeasure(Statistic statistic) { return statistic >= Statistic::N; }

enum class Missing : std::int32_t { EXCLUDE, CATEGORY };
enum class Order : std::int32_t { DATA, SORTED, TYPED };

// The columns of one dimension from the outermost in; more than one make a hierarchy, whose inner
// levels are groups.
using DimensionRequest = std::vector<std::string>;

template <class T>
class PerAxis {
 public:
  PerAxis() = default;
  PerAxis(T rows, T columns, T layers) : values_{rows, columns, layers} {}

  T& operator[](Axis axis) { return values_[static_cast<std::size_t>(axis)]; }
  const T& operator[](Axis axis) const { return values_[static_cast<std::size_t>(axis)]; }

 private:
  std::array<T, 3> values_{};
};

struct TableRequest {
  std::string data;  // a file name, or "-" for the standard input
  std::string encoding = "UTF-8";
  PerAxis<std::vector<DimensionRequest>> dimensions;  // the outermost first
  std::string weight;                                 // empty: every record counts 1
  std::vector<std::string> measures;
  std::vector<Statistic> statistics;  // empty: what suits the measures
  Axis statisticsOn = Axis::COLUMNS;
  PerAxis<bool> totals;  // a category for the total in each dimension of the axis
  Missing missing = Missing::EXCLUDE;
  Order order = Order::DATA;
  std::string title;  // empty: made up from the names
  std::string caption;
  std::vector<std::string> notes;
  std::int64_t maxCells = 10'000'000;  // 1 or more

  // The statistics asked for, or those that suit: the count, or n, mean and sd of each measure.
  std::vector<Statistic> effectiveStatistics() const;

  // Throws Failure (usage) where the parts do not go together: no dimension, the same variable
  // twice among dimensions and weight or among the measures, statistics of measures without a
  // measure and the other way round, a statistic twice.
  void check() const;
};

}  // namespace om::tabulate

#endif  // OM_TOOLS_TABULATE_REQUEST_H_
