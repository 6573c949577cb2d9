// Any bytes as a CSV file: they are refused with a failure, or read as records that are read alike
// when they are written again, and tabulated to a sound table of as many records. The first byte
// chooses the encoding and whether the others stand for themselves or for characters that CSV is
// made of.

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <numeric>
#include <sstream>
#include <string>
#include <vector>

#include "tools/tabulate/Counting.h"
#include "tools/tabulate/CsvReader.h"
#include "tools/tabulate/Failure.h"
#include "tools/tabulate/Rendering.h"
#include "tools/tabulate/Report.h"

namespace {

using namespace om::tabulate;
using Records = std::vector<std::vector<std::string>>;

constexpr std::array kEncodings{"UTF-8", "UTF-8", "UTF-8", "ISO-8859-1", "UTF-16", "Shift_JIS"};
constexpr std::array kPieces{"a",  "b",  "7",    ",",      ",",    ",",   "\n",  "\n",
                             "\"", "\"", "\"\"", "\r\n",   "\r",   " ",   "\t",  "-1.5",
                             "",   "x",  "NA",   "\u00e9", "\xff", "1e3", "<b>", "\n\n"};

void require(bool condition) {
  if (!condition) std::abort();
}

// The header and the records.
Records read(const std::string& text, const std::string& encoding) {
  std::istringstream stream(text);
  CsvReader reader(stream, "fuzz.csv", encoding);
  std::vector<std::size_t> columns(reader.header().size());
  std::iota(columns.begin(), columns.end(), std::size_t{0});
  reader.select(columns);
  Records records{reader.header()};
  RecordBatch batch;
  std::uint64_t line = 0;
  while (reader.next(batch)) {
    for (std::size_t i = 0; i < batch.size(); ++i) {
      require(batch.recordNumber(i) == records.size());
      require(batch.lineNumber(i) > line);
      line = batch.lineNumber(i);
      std::vector<std::string>& record = records.emplace_back();
      for (std::size_t k = 0; k < columns.size(); ++k) record.emplace_back(batch.field(i, k));
    }
  }
  return records;
}

std::string write(const Records& records) {
  std::string text;
  for (const auto& record : records) {
    for (std::size_t i = 0; i < record.size(); ++i) {
      text += i == 0 ? "\"" : ",\"";
      for (const char c : record[i]) text += c == '"' ? std::string("\"\"") : std::string(1, c);
      text += '"';
    }
    text += '\n';
  }
  return text;
}

void tabulate(const std::string& text, const std::string& encoding,
              const std::vector<std::string>& header, std::uint8_t choice) {
  TableRequest request;
  request.data = "fuzz.csv";
  request.encoding = encoding;
  request.dimensions[Axis::ROWS] = {{header[0]}};
  if (header.size() > 1) request.dimensions[Axis::COLUMNS] = {{header[1]}};
  if (header.size() > 2) request.weight = header[2];
  if (header.size() > 3) {
    request.measures = {header[3]};
    request.statistics = {Statistic::COUNT, Statistic::ROW_PERCENT, Statistic::SD,
                          Statistic::MEDIAN};
  }
  request.missing = (choice & 1) != 0 ? Missing::CATEGORY : Missing::EXCLUDE;
  request.order = static_cast<Order>((choice >> 1) % 3);
  request.totals = {(choice & 8) != 0, (choice & 16) != 0, false};
  request.maxCells = (choice & 32) != 0 ? 3 : 1000;
  request.check();
  std::istringstream stream(text);
  const Counted counted = countRecords(stream, "fuzz.csv", request, [](std::uint64_t) {});
  require(counted.read == counted.used + counted.missing + counted.missingWeight);
  std::uint64_t records = 0;
  for (std::size_t i = 0; i < counted.tally.size(); ++i) records += counted.tally.records(i);
  require(records == counted.used);

  Report report;
  const OmPivotTable* const table = report.add(request, counted, {"tabulate fuzz.csv"});
  if (table != nullptr) require(table->validate().empty());
  std::ostringstream out;
  const auto format = static_cast<OutputFormat>(choice % 5);
  writeDocument(report.document(), format, {}, out);
  require(!out.str().empty());
  // No text gets at a terminal, or into the markup.
  require(out.str().find('\0') == std::string::npos);
  require(format == OutputFormat::CSV || out.str().find('\x1b') == std::string::npos);
  require(format != OutputFormat::HTML || out.str().find("<b>") == std::string::npos);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return 0;
  const std::string encoding = kEncodings[data[0] % kEncodings.size()];
  std::string text;
  for (std::size_t i = 2; i < size; ++i) {
    if (data[0] >= 64) {
      text += kPieces[data[i] % kPieces.size()];
    } else {
      text += static_cast<char>(data[i]);
    }
  }
  try {
    const Records records = read(text, encoding);
    require(read(write(records), "UTF-8") == records);
    tabulate(text, encoding, records[0], data[1]);
  } catch (const Failure& failure) {
    require(std::string(failure.what()).find_first_of("\n\r\x1b") == std::string::npos);
  }
  return 0;
}
