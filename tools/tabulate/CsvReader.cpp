#include "tools/tabulate/CsvReader.h"

#include <csv.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <exception>
#include <new>
#include <optional>
#include <utility>

#include "tools/tabulate/Encoding.h"
#include "tools/tabulate/Failure.h"

namespace om::tabulate {

namespace {

constexpr std::size_t kBlock = std::size_t{256} << 10;

int noSpace(unsigned char) { return 0; }

// The parser drops blanks at either end of a field unless it is told that there are no blanks, and
// then it asks about every character. So it is told only where a blank stands at such a place.
bool hasEdgeBlanks(std::string_view text) {
  // In bytes and without jumps, so that the compiler looks at many characters at once: `|` of two
  // differences is 0 where both are, and the lesser one is 0 where one is.
  using Byte = unsigned char;
  const auto lesser = [](Byte a, Byte b) { return a < b ? a : b; };
  const auto offBlank = [lesser](Byte c) {
    return lesser(static_cast<Byte>(c ^ ' '), static_cast<Byte>(c ^ '\t'));
  };
  const auto offEdge = [lesser](Byte c) {
    return lesser(static_cast<Byte>(c ^ ','),
                  lesser(static_cast<Byte>(c ^ '\n'), static_cast<Byte>(c ^ '\r')));
  };
  if (text.empty()) return false;
  const auto* const at = reinterpret_cast<const Byte*>(text.data());
  const std::size_t pairs = text.size() - 1;
  Byte found = offBlank(at[0]) == 0 || offBlank(at[pairs]) == 0;
  for (std::size_t i = 0; i < pairs; ++i) {
    const auto blankThenEdge = static_cast<Byte>(offBlank(at[i]) | offEdge(at[i + 1]));
    const auto edgeThenBlank = static_cast<Byte>(offEdge(at[i]) | offBlank(at[i + 1]));
    found = static_cast<Byte>(found | (lesser(blankThenEdge, edgeThenBlank) == 0));
  }
  return found != 0;
}

}  // namespace

std::uint64_t RecordBatch::lineNumber(std::size_t record) const {
  LineScan scan = start_;
  scan.scan(block_, recordNumber(record));
  return scan.recordLine;
}

struct CsvReader::State {
  State(std::istream& from, std::string name, const std::string& encoding);
  ~State() { csv_free(&parser); }
  State(const State&) = delete;
  State& operator=(const State&) = delete;

  void readHeader();
  bool fillText();
  void fillBatch(RecordBatch& batch);
  void parse(std::string_view part);
  void finishParse();
  void onField(std::string_view field);
  void onRecord();
  void failInPresentRecord(std::string_view reason);
  std::string columnName(std::size_t column) const;

  static void fieldEnded(void* characters, std::size_t size, void* state) noexcept;
  static void recordEnded(int, void* state) noexcept;

  std::istream& stream;
  const std::string file;
  Decoder decoder;
  csv_parser parser;

  std::string bytes;
  std::string text;  // decoded and not parsed yet
  std::uint64_t bytesRead = 0;
  bool streamEnded = false;
  bool wrongBytes = false;  // stand behind the text
  bool finished = false;
  std::optional<Failure> failure;
  std::exception_ptr thrown;  // within the parser, which knows no exceptions

  std::vector<std::string> header;
  std::vector<char> wanted;            // by column
  std::vector<std::size_t> positions;  // of the selected columns among those that are wanted
  std::size_t width = 0;
  bool inHeader = true;
  std::uint64_t headerLine = 1;

  std::uint64_t records = 0;  // that have ended, the header included
  std::size_t column = 0;     // of the field in progress
  LineScan scan;              // in front of the text that is being parsed, which is:
  std::string_view unscanned;
  RecordBatch* target = nullptr;
  std::string openCharacters;  // selected fields of a record that the block before left unfinished
  std::vector<std::uint32_t> openEnds;
};

CsvReader::State::State(std::istream& from, std::string name, const std::string& encoding)
    : stream(from), file(std::move(name)), decoder(encoding) {
  if (csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI) != 0) throw std::bad_alloc();
  csv_set_blk_size(&parser, std::size_t{64} << 10);
}

void CsvReader::State::fieldEnded(void* characters, std::size_t size, void* state) noexcept {
  auto* const my = static_cast<State*>(state);
  try {
    my->onField({static_cast<const char*>(characters), size});
  } catch (...) {
    my->thrown = std::current_exception();
  }
}

void CsvReader::State::recordEnded(int, void* state) noexcept {
  auto* const my = static_cast<State*>(state);
  try {
    my->onRecord();
  } catch (...) {
    my->thrown = std::current_exception();
  }
}

inline void CsvReader::State::onField(std::string_view field) {
  if (failure) return;
  if (inHeader) {
    header.emplace_back(field);
  } else if (column < wanted.size() && wanted[column] != 0) {
    target->characters_.append(field);
    target->ends_.push_back(static_cast<std::uint32_t>(target->characters_.size()));
  }
  ++column;
}

inline void CsvReader::State::onRecord() {
  if (failure) return;
  if (inHeader) {
    inHeader = false;
    headerLine = scan.begun ? scan.recordLine : scan.line;
    wanted.assign(header.size(), 0);
  } else if (column != header.size()) {
    const bool few = column < header.size();
    scan.scan(unscanned, records);
    column = few ? column : header.size();
    failInPresentRecord(few ? "the record ends in front of it"
                            : "the header has only " + std::to_string(header.size()) +
                                  (header.size() == 1 ? " field" : " fields"));
    return;
  } else {
    ++target->records_;
  }
  column = 0;
  ++records;
}

std::string CsvReader::State::columnName(std::size_t at) const {
  return !inHeader && at < header.size() ? inQuotes(header[at]) : std::to_string(at + 1);
}

void CsvReader::State::failInPresentRecord(std::string_view reason) {
  failure = CsvReader::fault(file, records, scan.begun ? scan.recordLine : scan.line,
                             columnName(column), reason);
}

void CsvReader::State::parse(std::string_view part) {
  if (failure || part.empty()) return;
  unscanned = part;
  csv_set_space_func(&parser, hasEdgeBlanks(part) ? noSpace : nullptr);
  const std::size_t parsed =
      csv_parse(&parser, part.data(), part.size(), fieldEnded, recordEnded, this);
  if (thrown) std::rethrow_exception(std::exchange(thrown, nullptr));
  unscanned = {};
  if (failure) return;
  if (parsed != part.size()) {
    if (csv_error(&parser) != CSV_EPARSE) throw std::bad_alloc();
    scan.scan(part.substr(0, parsed));
    failInPresentRecord(parser.quoted != 0 ? "a quote within quotes is not doubled"
                                           : "a quote stands within a field without quotes");
    return;
  }
  const bool between = (part.back() == '\n' || part.back() == '\r') && parser.quoted == 0;
  if (between) {
    scan.skip(part, records);
  } else {
    scan.scan(part);
  }
  if (parser.entry_pos > kLongestField) {
    failInPresentRecord("the field is longer than 16 MiB; is a quote not closed?");
  }
}

void CsvReader::State::finishParse() {
  finished = true;
  if (failure) return;
  if (wrongBytes) {
    failInPresentRecord("its bytes are not in the encoding " + printable(decoder.name(), 60));
    return;
  }
  const int result = csv_fini(&parser, fieldEnded, recordEnded, this);
  if (thrown) std::rethrow_exception(std::exchange(thrown, nullptr));
  if (result == 0) return;
  if (csv_error(&parser) != CSV_EPARSE) throw std::bad_alloc();
  failInPresentRecord("the quotes around it are not closed");
}

// Reads and decodes a block. False when there is nothing more, at the end of the stream or at wrong
// bytes.
bool CsvReader::State::fillText() {
  if (streamEnded) return false;
  bytes.resize(kBlock);
  errno = 0;
  stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  const int reason = errno;
  if (stream.bad()) {
    throw dataFailure(printable(file) + ": cannot be read: " +
                      (reason != 0 ? std::strerror(reason) : "the stream is broken"));
  }
  const auto got = static_cast<std::size_t>(stream.gcount());
  bytesRead += got;
  wrongBytes = !decoder.decode(std::string_view(bytes).substr(0, got), text);
  if (!wrongBytes && !stream.good()) wrongBytes = !decoder.finish(text);
  streamEnded = wrongBytes || !stream.good();
  return !streamEnded;
}

void CsvReader::State::readHeader() {
  bool more = true;
  while (records == 0 && !finished) {
    const std::size_t end = text.find_first_of("\r\n");
    const bool part = end == text.npos && more;
    if (part) more = fillText();
    if (part && text.size() < kLongestField) continue;
    // One line at a time, so that what follows the header is not parsed before it is known.
    const std::size_t size = end == text.npos ? text.size() : end + 1;
    parse(std::string_view(text).substr(0, size));
    text.erase(0, size);
    if (!more && text.empty() && records == 0) finishParse();
    if (failure) throw Failure(*failure);
  }
  if (records == 0) throw dataFailure(printable(file) + ": there is no header record");
}

void CsvReader::State::fillBatch(RecordBatch& batch) {
  target = &batch;
  batch.characters_ = std::exchange(openCharacters, {});
  batch.ends_.assign(1, 0);
  batch.ends_.insert(batch.ends_.end(), openEnds.begin(), openEnds.end());
  openEnds.clear();
  batch.width_ = width;
  batch.positions_ = positions;
  batch.start_ = scan;
  batch.records_ = 0;

  const bool more = fillText();
  const std::size_t lineEnd = more ? text.rfind('\n') : text.npos;
  const std::size_t size = lineEnd != text.npos ? lineEnd + 1 : text.size();
  batch.block_.swap(text);
  text.assign(batch.block_, size);
  batch.block_.resize(size);
  parse(batch.block_);
  if (!more) finishParse();
  batch.bytesRead_ = bytesRead;

  const std::size_t whole = batch.records_ * width + 1;
  const std::uint32_t characters = batch.ends_[whole - 1];
  for (std::size_t i = whole; i < batch.ends_.size(); ++i) {
    openEnds.push_back(batch.ends_[i] - characters);
  }
  openCharacters.assign(batch.characters_, characters);
  batch.ends_.resize(whole);
}

CsvReader::CsvReader(std::istream& stream, std::string file, const std::string& encoding)
    : my_(std::make_unique<State>(stream, std::move(file), encoding)) {
  my_->readHeader();
}

CsvReader::~CsvReader() = default;

const std::string& CsvReader::file() const { return my_->file; }
const std::vector<std::string>& CsvReader::header() const { return my_->header; }
std::uint64_t CsvReader::headerLine() const { return my_->headerLine; }

void CsvReader::select(const std::vector<std::size_t>& columns) {
  std::fill(my_->wanted.begin(), my_->wanted.end(), char{0});
  for (const std::size_t column : columns) my_->wanted.at(column) = 1;
  my_->width = static_cast<std::size_t>(std::count(my_->wanted.begin(), my_->wanted.end(), 1));
  my_->positions.clear();
  for (const std::size_t column : columns) {
    const auto end = my_->wanted.begin() + static_cast<std::ptrdiff_t>(column);
    my_->positions.push_back(static_cast<std::size_t>(std::count(my_->wanted.begin(), end, 1)));
  }
}

bool CsvReader::next(RecordBatch& batch) {
  do {
    if (my_->failure) throw Failure(*my_->failure);
    if (my_->finished) return false;
    my_->fillBatch(batch);
  } while (batch.size() == 0);
  return true;
}

Failure CsvReader::fault(const std::string& file, std::uint64_t record, std::uint64_t line,
                         std::string_view field, std::string_view reason) {
  const std::string where = record == 0 ? "header" : "record " + std::to_string(record);
  return dataFailure(printable(file) + ": " + where + " (line " + std::to_string(line) +
                     "), field " + std::string(field) + ": " + std::string(reason));
}

}  // namespace om::tabulate
