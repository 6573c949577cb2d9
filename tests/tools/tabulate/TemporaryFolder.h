// A folder of its own for a test, removed with what is in it.

#ifndef OM_TESTS_TOOLS_TABULATE_TEMPORARYFOLDER_H_
#define OM_TESTS_TOOLS_TABULATE_TEMPORARYFOLDER_H_

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace om::test {

class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "tabulate-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = pattern;
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  std::string file(const std::string& name) const { return path_ + "/" + name; }
  const std::string& path() const { return path_; }

  void write(const std::string& name, const std::string& text) const {
    std::ofstream(file(name), std::ios::binary) << text;
  }

  // The names of what is in it, sorted.
  std::vector<std::string> names() const {
    std::vector<std::string> result;
    for (const auto& entry : std::filesystem::directory_iterator(path_)) {
      result.push_back(entry.path().filename().string());
    }
    std::sort(result.begin(), result.end());
    return result;
  }

 private:
  std::string path_;
};

}  // namespace om::test

#endif  // OM_TESTS_TOOLS_TABULATE_TEMPORARYFOLDER_H_
