// Compares what is written with a golden file below the folder OM_GOLDEN_DIR, which the test
// program defines. With OM_REBASELINE set in the environment, the file becomes what is written;
// look at the difference before committing it.

#ifndef OM_TESTS_SUPPORT_GOLDEN_H_
#define OM_TESTS_SUPPORT_GOLDEN_H_

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

namespace om::test {

// The first line in which two texts differ, with its number.
inline std::string firstDifference(const std::string& expected, const std::string& actual) {
  std::istringstream expectedLines(expected);
  std::istringstream actualLines(actual);
  std::string expectedLine;
  std::string actualLine;
  for (std::size_t number = 1;; ++number) {
    const bool isExpected = static_cast<bool>(std::getline(expectedLines, expectedLine));
    const bool isActual = static_cast<bool>(std::getline(actualLines, actualLine));
    if (!isExpected && !isActual) return "they differ in the end of the last line";
    if (isExpected && isActual && expectedLine == actualLine) continue;
    return "line " + std::to_string(number) +
           "\n  expected: " + (isExpected ? expectedLine : "(none)") +
           "\n  actual:   " + (isActual ? actualLine : "(none)");
  }
}

// `name` is the file's, as in "text/flat.txt".
inline void expectGolden(const std::string& name, const std::string& actual) {
  const std::filesystem::path path = std::filesystem::path(OM_GOLDEN_DIR) / name;
  if (std::getenv("OM_REBASELINE") != nullptr) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << actual;
    return;
  }
  std::ifstream file(path, std::ios::binary);
  ASSERT_TRUE(file) << path << " cannot be read";
  const std::string expected{std::istreambuf_iterator<char>(file), {}};
  EXPECT_TRUE(expected == actual) << name << ": " << firstDifference(expected, actual);
}

}  // namespace om::test

#endif  // OM_TESTS_SUPPORT_GOLDEN_H_
