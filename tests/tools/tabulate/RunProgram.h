// Runs the program within the test, as it is called.

#ifndef OM_TESTS_TOOLS_TABULATE_RUNPROGRAM_H_
#define OM_TESTS_TOOLS_TABULATE_RUNPROGRAM_H_

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "tools/tabulate/Program.h"

namespace om::test {

using Arguments = std::vector<std::string>;

struct Ran {
  tabulate::ExitCode code;
  std::string out;
  std::string err;
};

inline Ran run(const Arguments& arguments, const std::string& input = "") {
  std::istringstream in(input);
  std::ostringstream out;
  std::ostringstream err;
  const tabulate::ExitCode code = tabulate::runProgram(arguments, {in, out, err});
  return {code, out.str(), err.str()};
}

// Works in a folder, so that relative names do, and goes back.
class WorkingFolder {
 public:
  explicit WorkingFolder(const std::string& path) : former_(std::filesystem::current_path()) {
    std::filesystem::current_path(path);
  }
  WorkingFolder(const WorkingFolder&) = delete;
  WorkingFolder& operator=(const WorkingFolder&) = delete;
  ~WorkingFolder() { std::filesystem::current_path(former_); }

 private:
  const std::filesystem::path former_;
};

}  // namespace om::test

#endif  // OM_TESTS_TOOLS_TABULATE_RUNPROGRAM_H_
