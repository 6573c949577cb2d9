// The data sets and expected results of the tests, read by a parser of their own.

#ifndef OM_TESTS_TOOLS_TABULATE_TESTDATA_H_
#define OM_TESTS_TOOLS_TABULATE_TESTDATA_H_

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace om::test {

// The path of a data set, wherever it is kept.
inline std::string dataFile(const std::string& name) {
  const std::filesystem::path shipped = std::filesystem::path(OM_EXAMPLE_DATA) / name;
  return std::filesystem::exists(shipped) ? shipped : std::filesystem::path(OM_TEST_DATA) / name;
}

inline std::string contentOf(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error(path + " is missing");
  return {std::istreambuf_iterator<char>(in), {}};
}

// The records of a well-formed file, the header first.
inline std::vector<std::vector<std::string>> recordsOf(const std::string& path) {
  std::vector<std::vector<std::string>> records(1, {""});
  bool quoted = false;
  const std::string text = contentOf(path);
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    std::string& field = records.back().back();
    if (c == '"') {
      if (quoted && i + 1 < text.size() && text[i + 1] == '"') {
        field += text[++i];
      } else {
        quoted = !quoted;
      }
    } else if (c == ',' && !quoted) {
      records.back().emplace_back();
    } else if (c == '\n' && !quoted) {
      records.push_back({""});
    } else if (c != '\r' || quoted) {
      field += c;
    }
  }
  if (records.back() == std::vector<std::string>{""}) records.pop_back();
  return records;
}

// The fields of a record by the names in the header.
using Named = std::map<std::string, std::string>;

inline std::vector<Named> namedRecordsOf(const std::string& path) {
  const std::vector<std::vector<std::string>> records = recordsOf(path);
  std::vector<Named> result;
  for (std::size_t i = 1; i < records.size(); ++i) {
    Named& named = result.emplace_back();
    for (std::size_t k = 0; k < records[0].size(); ++k) named[records[0][k]] = records[i].at(k);
  }
  return result;
}

// "a|b|c" in parts; nothing for an empty text.
inline std::vector<std::string> partsOf(const std::string& text) {
  std::vector<std::string> parts;
  if (text.empty()) return parts;
  std::size_t begin = 0;
  for (std::size_t end; (end = text.find('|', begin)) != text.npos; begin = end + 1) {
    parts.push_back(text.substr(begin, end - begin));
  }
  parts.push_back(text.substr(begin));
  return parts;
}

}  // namespace om::test

#endif  // OM_TESTS_TOOLS_TABULATE_TESTDATA_H_
