// What the writers of records do when the stream fails, or memory ends.

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <ostream>
#include <sstream>
#include <streambuf>
#include <string>

#include "render/CsvWriter.h"
#include "render/JsonStatWriter.h"
#include "render/JsonWriter.h"
#include "tests/render/SampleDocuments.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

// Takes so many bytes, and then no more.
class ShortBuffer : public std::streambuf {
 public:
  explicit ShortBuffer(std::size_t room) : room_(room) {}
  const std::string& taken() const { return taken_; }
  int calls() const { return calls_; }

 protected:
  std::streamsize xsputn(const char* bytes, std::streamsize count) override {
    ++calls_;
    const std::size_t fits = std::min(static_cast<std::size_t>(count), room_ - taken_.size());
    taken_.append(bytes, fits);
    return static_cast<std::streamsize>(fits);
  }
  int_type overflow(int_type) override { return traits_type::eof(); }

 private:
  std::size_t room_;
  std::string taken_;
  int calls_ = 0;
};

// Takes everything and keeps nothing.
class NullBuffer : public std::streambuf {
 protected:
  std::streamsize xsputn(const char*, std::streamsize count) override { return count; }
};

using Write = std::function<void(const OmOutputTree&, std::ostream&)>;

class RecordWriters : public testing::TestWithParam<std::pair<const char*, Write>> {
 protected:
  static void write(const OmOutputTree& document, std::ostream& out) {
    GetParam().second(document, out);
  }
};

INSTANTIATE_TEST_SUITE_P(
    Each, RecordWriters,
    testing::Values(std::pair<const char*, Write>("Csv",
                                                  [](const auto& document, auto& out) {
                                                    render::writeCsv(document, out);
                                                  }),
                    std::pair<const char*, Write>("Json",
                                                  [](const auto& document, auto& out) {
                                                    render::writeJson(document, out,
                                                                      {.grid = true});
                                                  }),
                    std::pair<const char*, Write>("JsonStat",
                                                  [](const auto& document, auto& out) {
                                                    render::writeJsonStat(document, out);
                                                  })),
    [](const auto& test) { return test.param.first; });

OmOutputTree largeDocument() {
  OmOutputTree document;
  for (int i = 0; i < 40; ++i) document.AppendLast(nestedTable(), 1);
  return document;
}

TEST_P(RecordWriters, WriteWhatFitsAndLeaveTheStreamFailed) {
  const OmOutputTree document = largeDocument();
  std::ostringstream whole;
  write(document, whole);
  for (const std::size_t room : {std::size_t{0}, std::size_t{1}, std::size_t{20'000}}) {
    ShortBuffer buffer(room);
    std::ostream out(&buffer);
    write(document, out);
    EXPECT_FALSE(out);
    EXPECT_EQ(buffer.taken(), whole.str().substr(0, room));
  }
}

TEST_P(RecordWriters, CallAStreamThatFailedNoMore) {
  ShortBuffer buffer(0);
  std::ostream out(&buffer);
  write(largeDocument(), out);
  EXPECT_EQ(buffer.calls(), 1);
}

TEST_P(RecordWriters, PassOnWhatTheStreamThrows) {
  ShortBuffer buffer(10);
  std::ostream out(&buffer);
  out.exceptions(std::ios::badbit);
  EXPECT_THROW(write(largeDocument(), out), std::ios::failure);
}

TEST_P(RecordWriters, LeaveNothingBehindWhenMemoryEnds) {
  OmOutputTree document;
  document.AppendLast(sampleProcedure("Procedure"), 1);
  document.AppendLast(sampleBlock("Log", {"a line that is too long for a small string"}), 2);
  document.AppendLast(footnoteTable(), 2);
  document.AppendLast(nestedTable(), 2);
  NullBuffer buffer;
  std::ostream out(&buffer);
  EXPECT_GT(failEveryAllocation(
                [&](FailurePoint& failure) { failure.during([&] { write(document, out); }); }),
            50U);
}

}  // namespace
}  // namespace om::test
