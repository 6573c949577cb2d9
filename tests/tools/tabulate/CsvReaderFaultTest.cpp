// What a file is refused for, and the place that the message names.

#include <gtest/gtest.h>

#include "tests/support/Allocations.h"
#include "tests/tools/tabulate/CsvText.h"

namespace om::test {
namespace {

TEST(CsvFault, AFieldIsMissingOrTooMany) {
  EXPECT_EQ("t.csv: record 2 (line 3), field \"b\": the record ends in front of it",
            readCsv("a,b\n1,2\n3\n4,5\n").failure);
  EXPECT_EQ("t.csv: record 1 (line 2), field 3: the header has only 2 fields",
            readCsv("a,b\n1,2,3\n").failure);
  EXPECT_EQ("t.csv: record 1 (line 2), field \"c\": the record ends in front of it",
            readCsv("a,b,c\n1,2").failure);
}

TEST(CsvFault, RecordsInFrontOfItAreGivenFirst) {
  const CsvRead read = readCsv("a,b\n1,2\n3,4\n5\n");
  EXPECT_EQ((std::vector<Fields>{{"1", "2"}, {"3", "4"}}), read.records);
  EXPECT_EQ("t.csv: record 3 (line 4), field \"b\": the record ends in front of it", read.failure);
}

TEST(CsvFault, LinesAreCountedBehindBreaksWithinQuotesAndEmptyLines) {
  EXPECT_EQ("t.csv: record 2 (line 7), field \"b\": the record ends in front of it",
            readCsv("a,b\r\n1,\"x\r\ny\n\"\r\n\r\n\r\n3\r\n").failure);
}

TEST(CsvFault, QuotesStandWhereTheyMustNot) {
  EXPECT_EQ("t.csv: record 1 (line 2), field \"b\": a quote stands within a field without quotes",
            readCsv("a,b\n1,x\"y\n").failure);
  EXPECT_EQ("t.csv: record 1 (line 2), field \"a\": a quote within quotes is not doubled",
            readCsv("a,b\n\"1\"x,2\n").failure);
  EXPECT_EQ("t.csv: record 1 (line 2), field \"a\": a quote within quotes is not doubled",
            readCsv("a,b\n\"1\" ,2\n").failure);
  EXPECT_EQ("t.csv: record 1 (line 2), field \"b\": a quote stands within a field without quotes",
            readCsv("a,b\n1, \"2\"\n").failure);
}

TEST(CsvFault, QuotesAreNotClosedByTheEndOfTheFile) {
  EXPECT_EQ("t.csv: record 2 (line 3), field \"b\": the quotes around it are not closed",
            readCsv("a,b\n1,2\n3,\"x\ny\nz\n").failure);
}

TEST(CsvFault, QuotesThatAreNeverClosedEndTheReadingEarly) {
  const std::string text = "a,b\n1,\"" + std::string((std::size_t{17} << 20), 'x');
  EXPECT_EQ(
      "t.csv: record 1 (line 2), field \"b\": the field is longer than 16 MiB; is a quote not "
      "closed?",
      readCsv(text).failure);
}

TEST(CsvFault, BytesAreWrong) {
  EXPECT_EQ("t.csv: record 2 (line 4), field \"b\": its bytes are not in the encoding UTF-8",
            readCsv("a,b\n1,\"2\n2\"\n3,x\xff\n4,5\n").failure);
  EXPECT_EQ("t.csv: record 1 (line 2), field \"a\": its bytes are not in the encoding ASCII",
            readCsv("a,b\n\xc3\xa9,2\n", "ASCII").failure);
  EXPECT_EQ("t.csv: record 1 (line 2), field \"b\": its bytes are not in the encoding UTF-8",
            readCsv("a,b\n1,\xe2\x82").failure);
}

TEST(CsvFault, WhatComesFirstIsReported) {
  EXPECT_EQ("t.csv: record 1 (line 2), field \"b\": the record ends in front of it",
            readCsv("a,b\n1\n\xff,2\n").failure);
}

TEST(CsvFault, TheHeaderIsWrong) {
  EXPECT_EQ("t.csv: header (line 1), field 2: a quote stands within a field without quotes",
            readCsv("a,b\"\n1,2\n").failure);
  EXPECT_EQ("t.csv: header (line 2), field 1: its bytes are not in the encoding UTF-8",
            readCsv("\n\xff\n").failure);
  EXPECT_EQ("t.csv: header (line 1), field 1: the quotes around it are not closed",
            readCsv("\"a").failure);
}

TEST(CsvFault, ThereIsNoHeader) {
  EXPECT_EQ("t.csv: there is no header record", readCsv("").failure);
  EXPECT_EQ("t.csv: there is no header record", readCsv("\n\r\n").failure);
  EXPECT_EQ("t.csv: there is no header record", readCsv("\xef\xbb\xbf").failure);
}

TEST(CsvFault, NamesAndFileNamesAreMadePrintable) {
  std::istringstream stream("a\x1b,b\n1\n");
  try {
    tabulate::CsvReader reader(stream, "bad\nname.csv", "UTF-8");
    reader.select({0});
    tabulate::RecordBatch batch;
    while (reader.next(batch)) {
    }
    FAIL();
  } catch (const tabulate::Failure& failure) {
    EXPECT_STREQ("bad\\x0aname.csv: record 1 (line 2), field \"b\": the record ends in front of it",
                 failure.what());
    EXPECT_EQ(tabulate::ExitCode::DATA, failure.code());
  }
}

TEST(CsvFault, FarIntoTheFileThePlaceIsStillRight) {
  std::string text = "a,b\n";
  for (int i = 0; i < 100'000; ++i) text += i % 10 == 0 ? "\"x\ny\",2\n" : "some text,2\n";
  text += "1,2,3\n";
  EXPECT_EQ("t.csv: record 100001 (line 110002), field 3: the header has only 2 fields",
            readCsv(text, "UTF-8", false).failure);
}

TEST(CsvFault, AStreamThatBreaksIsToldApartFromItsEnd) {
  class Broken : public std::streambuf {
   protected:
    int_type underflow() override { throw std::runtime_error("broken"); }
  };
  Broken buffer;
  std::istream stream(&buffer);
  try {
    const tabulate::CsvReader reader(stream, "t.csv", "UTF-8");
    FAIL();
  } catch (const tabulate::Failure& failure) {
    EXPECT_STREQ("t.csv: cannot be read: the stream is broken", failure.what());
  }
}

TEST(CsvFault, RunningOutOfMemoryLeavesNothingBehind) {
  const std::size_t failures = failEveryAllocation([](FailurePoint& failure) {
    failure.during([] {
      std::istringstream stream("a,b\n1,\"22222222222222222222222\"\n3,\n");
      tabulate::CsvReader reader(stream, "t.csv", "UTF-8");
      reader.select({1, 0});
      tabulate::RecordBatch batch;
      while (reader.next(batch)) {
      }
    });
  });
  EXPECT_GT(failures, 10U);
}

}  // namespace
}  // namespace om::test
