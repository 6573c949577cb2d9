// The assertions that the library reports. One that no collector is there for fails the test.

#ifndef OM_TESTS_SUPPORT_ASSERTS_H_
#define OM_TESTS_SUPPORT_ASSERTS_H_

#include <string>
#include <vector>

#include "backend/Assert.h"

namespace om::test {

struct Report {
  std::wstring message;
  std::wstring source;
  unsigned line;

  bool operator==(const Report&) const = default;
};

// Collects the reports that come while it lives. Collectors nest.
class AssertCollector {
 public:
  AssertCollector();
  ~AssertCollector();
  AssertCollector(const AssertCollector&) = delete;
  AssertCollector& operator=(const AssertCollector&) = delete;

  const std::vector<Report>& reports() const { return reports_; }

 private:
  friend void installAssertCheck();
  static void collect(const wchar_t* message, const wchar_t* source, unsigned line);

  std::vector<Report> reports_;
  AssertCollector* outer_;
};

// Lets every report that no collector takes fail the running test.
void installAssertCheck();

}  // namespace om::test

#endif  // OM_TESTS_SUPPORT_ASSERTS_H_
