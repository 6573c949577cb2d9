#include "tools/tabulate/Accumulator.h"

#include <algorithm>

namespace om::tabulate {

void Moments::add(double x, double weight) {
  ++n_;
  if (weight == 0) return;
  weight_.add(weight);
  sum_.addProduct(weight, x);
  const double deviation = x - mean_;
  mean_ += deviation * (weight / weight_.value());
  squares_ += weight * deviation * (x - mean_);
  least_ = std::min(least_, x);
  greatest_ = std::max(greatest_, x);
}

void Moments::merge(const Moments& other) {
  n_ += other.n_;
  const double before = weight();
  const double added = other.weight();
  if (added == 0) return;
  weight_.merge(other.weight_);
  sum_.merge(other.sum_);
  const double deviation = other.mean_ - mean_;
  const double share = added / weight();
  mean_ += deviation * share;
  squares_ += other.squares_ + deviation * deviation * before * share;
  least_ = std::min(least_, other.least_);
  greatest_ = std::max(greatest_, other.greatest_);
}

double Moments::mean() const { return weight() > 0 ? sum() / weight() : kNone; }

double Moments::sd() const { return weight() > 1 ? std::sqrt(squares_ / (weight() - 1)) : kNone; }

void ValueWeights::add(double x, double weight) {
  if (weight != 0) addEntry({x, weight});
}

void ValueWeights::merge(const ValueWeights& other) {
  for (const Entry& entry : other.entries_) addEntry(entry);
}

void ValueWeights::addEntry(Entry entry) {
  if (entries_.size() >= compactAt_) {
    compact(entries_);
    compactAt_ = std::max(compactAt_, 2 * entries_.size());
  }
  entries_.push_back(entry);
}

void ValueWeights::compact(std::vector<Entry>& entries) {
  // By weight as well, so that sums do not hang on the order in which the numbers came.
  std::sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
    return a.value != b.value ? a.value < b.value : a.weight < b.weight;
  });
  std::size_t kept = 0;
  for (std::size_t i = 0; i < entries.size();) {
    CompensatedSum weight;
    const double value = entries[i].value;
    for (; i < entries.size() && entries[i].value == value; ++i) weight.add(entries[i].weight);
    entries[kept++] = {value, weight.value()};
  }
  entries.resize(kept);
}

double ValueWeights::median() const {
  std::vector<Entry> sorted = entries_;
  compact(sorted);
  CompensatedSum whole;
  for (const Entry& entry : sorted) whole.add(entry.weight);
  CompensatedSum below;
  for (std::size_t i = 0; i < sorted.size(); ++i) {
    below.add(sorted[i].weight);
    const double twice = 2 * below.value();
    if (twice > whole.value()) return sorted[i].value;
    if (twice == whole.value() && i + 1 < sorted.size()) {
      return sorted[i].value + (sorted[i + 1].value - sorted[i].value) / 2;
    }
  }
  return sorted.empty() ? Moments::kNone : sorted.back().value;
}

}  // namespace om::tabulate
