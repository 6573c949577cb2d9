#include "tools/tabulate/Counting.h"

#include <algorithm>

#include "tools/tabulate/CsvReader.h"
#include "tools/tabulate/Failure.h"
#include "tools/tabulate/Number.h"
#include "tools/tabulate/ReadAhead.h"

namespace om::tabulate {

namespace {

std::string listOf(const std::vector<std::string>& header) {
  std::string list;
  for (const std::string& name : header) list += (list.empty() ? "" : ", ") + name;
  return printable(list);
}

std::size_t columnOf(const CsvReader& reader, const std::string& name) {
  const std::vector<std::string>& header = reader.header();
  const auto found = std::find(header.begin(), header.end(), name);
  if (found == header.end()) {
    throw usageFailure(printable(reader.file()) + ": there is no column " + inQuotes(name) +
                       "; the columns are " + listOf(header));
  }
  if (std::find(found + 1, header.end(), name) != header.end()) {
    throw CsvReader::fault(reader.file(), 0, reader.headerLine(), inQuotes(name),
                           "the header has it twice");
  }
  return static_cast<std::size_t>(found - header.begin());
}

// The names of the columns of all dimensions, in axis order.
std::vector<std::string> levelNames(const TableRequest& request) {
  std::vector<std::string> names;
  for (const Axis axis : kAxes) {
    for (const DimensionRequest& dimension : request.dimensions[axis]) {
      names.insert(names.end(), dimension.begin(), dimension.end());
    }
  }
  return names;
}

bool needsValues(const TableRequest& request) {
  const std::vector<Statistic> statistics = request.effectiveStatistics();
  return std::find(statistics.begin(), statistics.end(), Statistic::MEDIAN) != statistics.end();
}

class Counter {
 public:
  Counter(CsvReader& reader, const TableRequest& request)
      : reader_(reader),
        request_(request),
        levels_(levelNames(request)),
        counted_{std::vector<Dictionary>(levels_.size()),
                 Tally(levels_.size(),
                       {!request.weight.empty(), request.measures.size(), needsValues(request)}),
                 {},
                 0,
                 0,
                 0,
                 0,
                 0,
                 std::vector<std::uint64_t>(levels_.size())} {
    std::vector<std::size_t> columns;
    for (const std::string& name : levels_) columns.push_back(columnOf(reader, name));
    for (const std::string& name : request.measures) {
      columns.push_back(columnOf(reader, name));
      counted_.measures.push_back({name, 0, 0});
    }
    if (!request.weight.empty()) columns.push_back(columnOf(reader, request.weight));
    reader.select(columns);
  }

  void count(const RecordBatch& batch);
  Counted take() { return std::move(counted_); }

 private:
  void encode(const RecordBatch& batch);
  bool number(const RecordBatch& batch, std::size_t record, std::size_t field,
              const std::string& name, const char* kind, Number& number) const;

  CsvReader& reader_;
  const TableRequest& request_;
  const std::vector<std::string> levels_;
  Counted counted_;
  std::vector<Tally::Code> codes_;  // of the batch, levels_.size() for each record
  std::vector<Number> numbers_;     // of a record's measures
  std::vector<char> present_;       // which of these there are
};

// Column by column, so that one dictionary stays at hand at a time.
void Counter::encode(const RecordBatch& batch) {
  const std::size_t width = levels_.size();
  codes_.resize(batch.size() * width);
  for (std::size_t level = 0; level < width; ++level) {
    Dictionary& dictionary = counted_.dictionaries[level];
    std::uint64_t missing = 0;
    for (std::size_t record = 0; record < batch.size(); ++record) {
      const Tally::Code code = dictionary.intern(batch.field(record, level));
      missing += code == Dictionary::kMissing ? 1 : 0;
      codes_[record * width + level] = code;
    }
    counted_.missingIn[level] += missing;
  }
}

// False for an empty field.
bool Counter::number(const RecordBatch& batch, std::size_t record, std::size_t field,
                     const std::string& name, const char* kind, Number& number) const {
  const std::string_view text = batch.field(record, field);
  if (text.empty()) return false;
  if (parseNumber(text, number)) return true;
  throw CsvReader::fault(reader_.file(), batch.recordNumber(record), batch.lineNumber(record),
                         inQuotes(name),
                         std::string(kind) + " " + inQuotes(text) + " is no number");
}

void Counter::count(const RecordBatch& batch) {
  encode(batch);
  const std::size_t width = levels_.size();
  const std::size_t measures = counted_.measures.size();
  const bool weighted = !request_.weight.empty();
  numbers_.resize(measures);
  present_.resize(measures);
  for (std::size_t record = 0; record < batch.size(); ++record) {
    Number weight{1, 0};
    bool hasWeight = true;
    if (weighted) {
      hasWeight = number(batch, record, width + measures, request_.weight, "the weight", weight);
      if (weight.value < 0) {
        throw CsvReader::fault(
            reader_.file(), batch.recordNumber(record), batch.lineNumber(record),
            inQuotes(request_.weight),
            "the weight " + inQuotes(batch.field(record, width + measures)) + " is below 0");
      }
    }
    for (std::size_t i = 0; i < measures; ++i) {
      const bool present =
          number(batch, record, width + i, counted_.measures[i].name, "the measure", numbers_[i]);
      present_[i] = present ? 1 : 0;
    }

    const Tally::Code* const codes = codes_.data() + record * width;
    if (request_.missing == Missing::EXCLUDE &&
        std::find(codes, codes + width, Dictionary::kMissing) != codes + width) {
      ++counted_.missing;
      continue;
    }
    if (!hasWeight) {
      ++counted_.missingWeight;
      continue;
    }
    ++counted_.used;
    counted_.weightDecimals = std::max(counted_.weightDecimals, weight.decimals);
    const std::size_t cell = counted_.tally.cellOf(codes);
    counted_.tally.addRecord(cell, batch.recordNumber(record), weight.value);
    for (std::size_t i = 0; i < measures; ++i) {
      Counted::Measure& measure = counted_.measures[i];
      if (present_[i] == 0) {
        ++measure.missing;
        continue;
      }
      counted_.tally.addValue(cell, i, numbers_[i].value, weight.value);
      measure.decimals = std::max(measure.decimals, numbers_[i].decimals);
    }
  }
  counted_.read += batch.size();
}

}  // namespace

Counted countRecords(std::istream& stream, const std::string& file, const TableRequest& request,
                     const std::function<void(std::uint64_t)>& advanced) {
  CsvReader reader(stream, file, request.encoding);
  Counter counter(reader, request);
  ReadAhead batches(reader);
  while (const RecordBatch* const batch = batches.next()) {
    counter.count(*batch);
    advanced(batch->bytesRead());
  }
  return counter.take();
}

}  // namespace om::tabulate
