// Random operations on a thing and on a naive model of it. Every run is repeatable: its seed is
// fixed, or taken from the environment variable OM_TEST_SEED.

#ifndef OM_TESTS_SUPPORT_ORACLE_H_
#define OM_TESTS_SUPPORT_ORACLE_H_

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <random>

namespace om::test {

class Random {
 public:
  explicit Random(std::uint64_t seed) : engine_(seed) {}

  // A number from 0 to bound - 1. REQUIRES: bound > 0.
  std::size_t below(std::size_t bound) { return static_cast<std::size_t>(engine_() % bound); }
  bool oneIn(std::size_t n) { return below(n) == 0; }

 private:
  std::mt19937_64 engine_;
};

inline std::uint64_t seedOr(std::uint64_t fixed) {
  const char* const given = std::getenv("OM_TEST_SEED");
  return given != nullptr ? std::strtoull(given, nullptr, 10) : fixed;
}

// Calls `step(random)` as often as told. The step does one operation on both sides and compares
// them by expectations; the first step that fails ends the run and is named with the seed.
template <class Step>
void runRandomOperations(std::uint64_t fixedSeed, std::size_t steps, Step step) {
  const std::uint64_t seed = seedOr(fixedSeed);
  Random random(seed);
  for (std::size_t i = 0; i < steps; ++i) {
    step(random);
    if (testing::Test::HasFailure()) {
      ADD_FAILURE() << "at step " << i << " of the run with OM_TEST_SEED=" << seed;
      return;
    }
  }
}

}  // namespace om::test

#endif  // OM_TESTS_SUPPORT_ORACLE_H_
