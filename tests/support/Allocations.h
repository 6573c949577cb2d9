// Counts every allocation of the process, those of operator new and those of memory regions, and
// makes one of them fail on demand.

#ifndef OM_TESTS_SUPPORT_ALLOCATIONS_H_
#define OM_TESTS_SUPPORT_ALLOCATIONS_H_

#include <cstddef>
#include <functional>
#include <new>

namespace om::test {

// Blocks of operator new that are not deleted yet.
std::size_t liveNewBlocks();

// Blocks of operator new that were made since the process started.
std::size_t totalNewBlocks();

// One chosen allocation that fails. While `during` runs an operation, the chosen allocation throws
// std::bad_alloc; all others succeed.
class FailurePoint {
 public:
  explicit FailurePoint(std::size_t failAt) : failAt_(failAt) {}

  // True when the operation completed, false when it passed a std::bad_alloc on. May be called
  // several times in one scenario; the allocations are counted on.
  bool during(const std::function<void()>& operation);

  // Whether the chosen allocation was reached.
  bool failed() const { return failed_; }

 private:
  std::size_t failAt_;
  std::size_t seen_ = 0;
  bool failed_ = false;
};

// Runs the scenario with its 1st, 2nd, 3rd ... allocation failing, until it runs through without a
// failure, and fails the test when a run leaves a block behind. Gives the number of runs that met a
// failure; a test expects at least one, so that it cannot pass without having tried anything.
std::size_t failEveryAllocation(const std::function<void(FailurePoint&)>& scenario);

}  // namespace om::test

#endif  // OM_TESTS_SUPPORT_ALLOCATIONS_H_
