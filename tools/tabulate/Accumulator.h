// What is kept of the numbers that fall into one cell. Every accumulator can also take over another
// one's content, as if it had been given the other one's numbers.
//
// A weight of w counts as w records with the same number would; w may be a fraction, or 0.

#ifndef OM_TOOLS_TABULATE_ACCUMULATOR_H_
#define OM_TOOLS_TABULATE_ACCUMULATOR_H_

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace om::tabulate {

// A sum whose rounding errors are summed as well: the improved Kahan-Babuska summation of
// A. Neumaier, Rundungsfehleranalyse einiger Verfahren zur Summation endlicher Summen, Zeitschrift
// fuer Angewandte Mathematik und Mechanik 54 (1974). Sums of integers below 2^53 are exact.
class CompensatedSum {
 public:
  void add(double x) {
    const double sum = sum_ + x;
    errors_ += std::abs(sum_) >= std::abs(x) ? (sum_ - sum) + x : (x - sum) + sum_;
    sum_ = sum;
  }
  // Adds a * b, of which no digit is lost in between.
  void addProduct(double a, double b) {
    const double product = a * b;
    add(product);
    errors_ += std::fma(a, b, -product);
  }
  void merge(const CompensatedSum& other) {
    add(other.sum_);
    errors_ += other.errors_;
  }
  double value() const { return std::isfinite(sum_) ? sum_ + errors_ : sum_; }

 private:
  double sum_ = 0;
  double errors_ = 0;
};

// Count, sum, mean, variance, least and greatest of the numbers of one measure.
//
// The variance is updated number by number as D. H. D. West does in Updating mean and variance
// estimates: an improved method, Communications of the ACM 22 (1979), which is B. P. Welford's
// method (Technometrics 4, 1962) with weights. Two of them are merged as T. F. Chan, G. H. Golub
// and R. J. LeVeque do in Updating formulae and a pairwise algorithm for computing sample variances
// (1979).
class Moments {
 public:
  void add(double x, double weight);
  void merge(const Moments& other);

  // How many numbers were added, whatever their weights.
  std::uint64_t n() const { return n_; }
  double weight() const { return weight_.value(); }
  double sum() const { return sum_.value(); }
  // Not a number where there is none: without weight for all, and for the standard deviation with
  // a weight of at most 1 (its divisor is one less than the weight).
  double mean() const;
  double sd() const;
  double least() const { return least_ <= greatest_ ? least_ : kNone; }
  double greatest() const { return least_ <= greatest_ ? greatest_ : kNone; }

  static constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

 private:
  std::uint64_t n_ = 0;
  CompensatedSum weight_;
  CompensatedSum sum_;
  double mean_ = 0;
  double squares_ = 0;  // the weighted sum of squared deviations from the mean
  double least_ = std::numeric_limits<double>::infinity();
  double greatest_ = -std::numeric_limits<double>::infinity();
};

// The distinct numbers of one measure with their weights, for the median. Memory follows the
// distinct numbers.
class ValueWeights {
 public:
  void add(double x, double weight);
  void merge(const ValueWeights& other);

  // The number that halves the weight: the least one up to which there is more than half of it, or
  // the middle between two when exactly half of it is up to the lower. Not a number without weight.
  double median() const;

 private:
  struct Entry {
    double value;
    double weight;
  };
  void addEntry(Entry entry);
  static void compact(std::vector<Entry>& entries);

  std::vector<Entry> entries_;
  std::size_t compactAt_ = 64;
};

}  // namespace om::tabulate

#endif  // OM_TOOLS_TABULATE_ACCUMULATOR_H_
