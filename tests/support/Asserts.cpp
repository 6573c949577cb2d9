#include "tests/support/Asserts.h"

#include <gtest/gtest.h>

namespace om::test {
namespace {

AssertCollector* innermost = nullptr;

}  // namespace

AssertCollector::AssertCollector() : outer_(innermost) { innermost = this; }

AssertCollector::~AssertCollector() { innermost = outer_; }

void AssertCollector::collect(const wchar_t* message, const wchar_t* source, unsigned line) {
  if (innermost != nullptr) {
    innermost->reports_.push_back({message, source, line});
  } else {
    ADD_FAILURE() << "an assertion failed: " << testing::PrintToString(std::wstring(message));
  }
}

void installAssertCheck() { omSetAssertHandler(&AssertCollector::collect); }

}  // namespace om::test
