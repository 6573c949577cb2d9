// What is alive now, so that a test can tell that it left nothing behind.

#ifndef OM_TESTS_SUPPORT_LEAKS_H_
#define OM_TESTS_SUPPORT_LEAKS_H_

#include <cstddef>
#include <string>

namespace om::test {

// Remembers what is alive when it is made.
class LeakCheck {
 public:
  LeakCheck();

  // Empty, or what is alive beyond that, or less than that, as a sentence.
  std::string findings() const;

 private:
  std::size_t newBlocks_;
  std::size_t heapBlocks_;
  long countedTexts_;
  long countedParts_;
};

// Leaves blocks of operator new out of the findings until the end of the test, for a test that
// makes the test framework keep some: by a death test, or by expecting a failure.
void ignoreNewBlocks(bool ignore = true);

}  // namespace om::test

#endif  // OM_TESTS_SUPPORT_LEAKS_H_
