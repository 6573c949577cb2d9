// Reading ahead in a thread changes nothing of what is read. (Named for the thread sanitizer's
// run.)

#include "tools/tabulate/ReadAhead.h"

#include <gtest/gtest.h>

#include <sstream>

namespace om::test {
namespace {

using tabulate::CsvReader;
using tabulate::Failure;
using tabulate::ReadAhead;
using tabulate::RecordBatch;

std::string manyRecords(int count) {
  std::string text = "a,b\n";
  for (int i = 0; i < count; ++i) text += std::to_string(i) + ",the same text in each record\n";
  return text;
}

struct Read {
  std::uint64_t records = 0;
  std::uint64_t next = 0;  // what the first field of the next record should be
  std::string failure;
};

Read readAll(const std::string& text, bool mayUseThread) {
  std::istringstream stream(text);
  CsvReader reader(stream, "t.csv", "UTF-8");
  reader.select({0});
  Read result;
  ReadAhead batches(reader, mayUseThread);
  try {
    while (const RecordBatch* const batch = batches.next()) {
      for (std::size_t i = 0; i < batch->size(); ++i) {
        if (batch->field(i, 0) == std::to_string(result.next)) ++result.next;
        ++result.records;
      }
    }
  } catch (const Failure& failure) {
    result.failure = failure.what();
  }
  return result;
}

TEST(ReadAheadThread, GivesTheRecordsInOrder) {
  const std::string text = manyRecords(150'000);
  for (const bool mayUseThread : {false, true}) {
    const Read read = readAll(text, mayUseThread);
    EXPECT_EQ(150'000U, read.records);
    EXPECT_EQ(150'000U, read.next);
    EXPECT_EQ("", read.failure);
  }
}

TEST(ReadAheadThread, PassesAFailureOnBehindTheRecordsInFrontOfIt) {
  const std::string text = manyRecords(150'000) + "x\n" + manyRecords(10);
  for (const bool mayUseThread : {false, true}) {
    const Read read = readAll(text, mayUseThread);
    EXPECT_EQ(150'000U, read.next);
    EXPECT_EQ("t.csv: record 150001 (line 150002), field \"b\": the record ends in front of it",
              read.failure);
  }
}

TEST(ReadAheadThread, MayBeLeftInTheMiddle) {
  const std::string text = manyRecords(150'000);
  for (std::size_t taken = 0; taken < ReadAhead::kBatchesWithoutThread + 4; ++taken) {
    std::istringstream stream(text);
    CsvReader reader(stream, "t.csv", "UTF-8");
    reader.select({0});
    ReadAhead batches(reader, true);
    for (std::size_t i = 0; i < taken; ++i) EXPECT_NE(nullptr, batches.next());
  }
}

TEST(ReadAheadThread, AShortFileEndsAtOnce) {
  const Read read = readAll(manyRecords(3), true);
  EXPECT_EQ(3U, read.next);
}

}  // namespace
}  // namespace om::test
