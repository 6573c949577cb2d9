// CsvReader: reads comma-separated records as RFC 4180 has them: a header record, then records with
// as many fields; quotes around a field that holds a comma, a quote or a line break. Records end in
// LF, CRLF or CR; an empty line holds no record. Blanks around a field belong to it.
//
//   CsvReader reader(stream, "people.csv", "UTF-8");
//   reader.select({2, 0});                      // columns of reader.header(), in any order
//   RecordBatch batch;
//   while (reader.next(batch)) {
//     for (std::size_t i = 0; i < batch.size(); ++i) use(batch.field(i, 0), batch.field(i, 1));
//   }
//
// Memory: a block of the file and the longest field, not the file.
// Errors: Failure (data) that names file, record, line and field, for malformed quoting, ragged
//   records, wrong bytes, a field beyond kLongestField and a stream that cannot be read. Records
//   are numbered from 1 behind the header. The records in front of the fault are given first.
// Threads: a reader belongs to one thread at a time, and so does a batch.

#ifndef OM_TOOLS_TABULATE_CSVREADER_H_
#define OM_TOOLS_TABULATE_CSVREADER_H_

#include <cstddef>
#include <cstdint>
#include <istream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tools/tabulate/Failure.h"
#include "tools/tabulate/LineScan.h"

namespace om::tabulate {

// The selected fields of some records in a row.
class RecordBatch {
 public:
  // The number of records.
  std::size_t size() const { return records_; }
  // A field in UTF-8, valid until the batch is filled again.
  // REQUIRES: record < size(), field < the number of fields selected.
  std::string_view field(std::size_t record, std::size_t field) const {
    const std::size_t at = record * width_ + positions_[field];
    return {characters_.data() + ends_[at], ends_[at + 1] - ends_[at]};
  }
  // The number of a record in the file, from 1.
  std::uint64_t recordNumber(std::size_t record) const { return start_.records + record; }
  // The line that a record starts in, from 1. Linear in the block that it was read from.
  std::uint64_t lineNumber(std::size_t record) const;
  // Bytes of the file that were read up to the end of the batch.
  std::uint64_t bytesRead() const { return bytesRead_; }

 private:
  friend class CsvReader;

  std::string characters_;
  std::vector<std::uint32_t> ends_{0};  // where each field ends in characters_, behind a 0
  std::vector<std::size_t> positions_;  // of the fields among the width_ ones of a record
  std::size_t width_ = 0;
  std::size_t records_ = 0;
  std::string block_;  // what the records were read from
  LineScan start_;     // the state in front of it
  std::uint64_t bytesRead_ = 0;
};

class CsvReader {
 public:
  static constexpr std::size_t kLongestField = std::size_t{16} << 20;

  // Reads the header. `file` is the name for messages. Throws also Failure (usage) for an unknown
  // encoding. REQUIRES: the stream outlives the reader.
  CsvReader(std::istream& stream, std::string file, const std::string& encoding);
  CsvReader(const CsvReader&) = delete;
  CsvReader& operator=(const CsvReader&) = delete;
  ~CsvReader();

  const std::string& file() const;
  const std::vector<std::string>& header() const;
  // The line that the header starts in, from 1.
  std::uint64_t headerLine() const;

  // The columns whose fields the batches hold. REQUIRES: next was not called yet.
  void select(const std::vector<std::size_t>& columns);

  // The records that follow. False behind the last one.
  bool next(RecordBatch& batch);

  // "FILE: record N (line L), field "NAME": REASON"
  static Failure fault(const std::string& file, std::uint64_t record, std::uint64_t line,
                       std::string_view field, std::string_view reason);

 private:
  struct State;
  const std::unique_ptr<State> my_;
};

}  // namespace om::tabulate

#endif  // OM_TOOLS_TABULATE_CSVREADER_H_
