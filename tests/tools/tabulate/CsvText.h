// Reads CSV text through a reader into plain lists.

#ifndef OM_TESTS_TOOLS_TABULATE_CSVTEXT_H_
#define OM_TESTS_TOOLS_TABULATE_CSVTEXT_H_

#include <numeric>
#include <sstream>
#include <string>
#include <vector>

#include "tools/tabulate/CsvReader.h"

namespace om::test {

using Fields = std::vector<std::string>;

struct CsvRead {
  Fields header;
  std::vector<Fields> records;
  std::vector<std::uint64_t> numbers;
  std::vector<std::uint64_t> lines;
  std::string failure;  // empty, or the message
};

// All columns, in the order of the header.
inline CsvRead readCsv(const std::string& text, const std::string& encoding = "UTF-8",
                       bool withLines = true) {
  CsvRead result;
  std::istringstream stream(text);
  try {
    tabulate::CsvReader reader(stream, "t.csv", encoding);
    result.header = reader.header();
    std::vector<std::size_t> columns(result.header.size());
    std::iota(columns.begin(), columns.end(), 0U);
    reader.select(columns);
    tabulate::RecordBatch batch;
    while (reader.next(batch)) {
      for (std::size_t i = 0; i < batch.size(); ++i) {
        Fields& record = result.records.emplace_back();
        for (std::size_t k = 0; k < columns.size(); ++k) record.emplace_back(batch.field(i, k));
        result.numbers.push_back(batch.recordNumber(i));
        if (withLines) result.lines.push_back(batch.lineNumber(i));
      }
    }
  } catch (const tabulate::Failure& failure) {
    result.failure = failure.what();
  }
  return result;
}

}  // namespace om::test

#endif  // OM_TESTS_TOOLS_TABULATE_CSVTEXT_H_
