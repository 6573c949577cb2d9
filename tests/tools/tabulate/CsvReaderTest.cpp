// CSV text as records, whatever its line breaks, quotes and blanks.

#include "tools/tabulate/CsvReader.h"

#include <gtest/gtest.h>

#include "tests/support/Oracle.h"
#include "tests/tools/tabulate/CsvText.h"

namespace om::test {
namespace {

using Records = std::vector<Fields>;
using Numbers = std::vector<std::uint64_t>;

TEST(CsvReader, ReadsHeaderAndRecords) {
  const CsvRead read = readCsv("a,b\n1,2\n3,4\n");
  EXPECT_EQ((Fields{"a", "b"}), read.header);
  EXPECT_EQ((Records{{"1", "2"}, {"3", "4"}}), read.records);
  EXPECT_EQ((Numbers{1, 2}), read.numbers);
  EXPECT_EQ((Numbers{2, 3}), read.lines);
  EXPECT_EQ("", read.failure);
}

TEST(CsvReader, RecordsEndInAnyLineBreakAndTheLastOneInNone) {
  const Records expected{{"1", "2"}, {"3", "4"}};
  for (const std::string text :
       {"a,b\r\n1,2\r\n3,4\r\n", "a,b\r1,2\r3,4", "a,b\n1,2\r\n3,4", "a,b\r\n1,2\n3,4\r"}) {
    const CsvRead read = readCsv(text);
    EXPECT_EQ(expected, read.records);
    EXPECT_EQ((Numbers{2, 3}), read.lines);
  }
}

TEST(CsvReader, EmptyLinesHoldNoRecord) {
  const CsvRead read = readCsv("\n\r\na\n\n1\n\n\n2\n\n");
  EXPECT_EQ((Fields{"a"}), read.header);
  EXPECT_EQ((Records{{"1"}, {"2"}}), read.records);
  EXPECT_EQ((Numbers{5, 8}), read.lines);
}

TEST(CsvReader, EmptyFieldsAreFields) {
  EXPECT_EQ((Records{{"", "", ""}, {"", "x", ""}}), readCsv("a,b,c\n,,\n,x,\n").records);
  EXPECT_EQ((Records{{""}}), readCsv("a\n\"\"\n").records);
}

TEST(CsvReader, QuotesHoldCommasQuotesAndLineBreaks) {
  const CsvRead read =
      readCsv("\"a,1\",b\n\"x,y\",\"say \"\"no\"\"\"\n\"1\r\n2\n3\",\"\"\"\"\nz,w\n");
  EXPECT_EQ((Fields{"a,1", "b"}), read.header);
  EXPECT_EQ((Records{{"x,y", "say \"no\""}, {"1\r\n2\n3", "\""}, {"z", "w"}}), read.records);
  EXPECT_EQ((Numbers{2, 3, 6}), read.lines);
}

TEST(CsvReader, BlanksBelongToTheirFields) {
  EXPECT_EQ((Fields{" a", "b\t"}), readCsv(" a,b\t\n1,2\n").header);
  EXPECT_EQ((Records{{" 1", "2 "}, {"\t", " "}, {"x y", "z"}}),
            readCsv("a,b\n 1,2 \n\t, \nx y,z\n").records);
  EXPECT_EQ((Records{{"1 "}}), readCsv("a\n1 ").records);
  EXPECT_EQ((Records{{" q "}}), readCsv("a\n\" q \"\n").records);
}

TEST(CsvReader, TheTextNaIsAField) { EXPECT_EQ((Records{{"NA"}}), readCsv("a\nNA\n").records); }

TEST(CsvReader, BytesOfValueZeroAreCharacters) {
  using namespace std::string_literals;
  EXPECT_EQ((Records{{"x\0y"s}}), readCsv("a\nx\0y\n"s).records);
}

TEST(CsvReader, ByteOrderMarkIsNoPartOfTheFirstName) {
  EXPECT_EQ((Fields{"a"}), readCsv("\xef\xbb\xbf"
                                   "a\n1\n")
                               .header);
}

TEST(CsvReader, DecodesNamesAndFields) {
  const CsvRead read = readCsv(
      "Gr\xf6\xdf"
      "e\nf\xfcnf\n",
      "ISO-8859-1");
  EXPECT_EQ((Fields{"Gr\u00f6\u00dfe"}), read.header);
  EXPECT_EQ((Records{{"f\u00fcnf"}}), read.records);
}

TEST(CsvReader, SelectsColumnsInAnyOrderAndMoreThanOnce) {
  std::istringstream stream("a,b,c\n1,2,3\n4,5,6\n");
  tabulate::CsvReader reader(stream, "t.csv", "UTF-8");
  reader.select({2, 0, 2});
  tabulate::RecordBatch batch;
  ASSERT_TRUE(reader.next(batch));
  ASSERT_EQ(2U, batch.size());
  EXPECT_EQ("3", batch.field(0, 0));
  EXPECT_EQ("1", batch.field(0, 1));
  EXPECT_EQ("6", batch.field(1, 2));
  EXPECT_FALSE(reader.next(batch));
  EXPECT_FALSE(reader.next(batch));
}

TEST(CsvReader, AHeaderAloneHasNoRecords) {
  EXPECT_EQ((Fields{"a", "b"}), readCsv("a,b").header);
  EXPECT_TRUE(readCsv("a,b\n").records.empty());
  EXPECT_EQ("", readCsv("a,b").failure);
}

TEST(CsvReader, FieldsAndRecordsMayBeLongerThanABlock) {
  const std::string longField(700'000, 'x');
  const std::string longQuoted = std::string(400'000, '\n') + "\"" + std::string(300'000, ',');
  const CsvRead read = readCsv("a,b,c\n1," + longField + ",3\n4,\"" + std::string(400'000, '\n') +
                               "\"\"" + std::string(300'000, ',') + "\",6\n7,8,9\n");
  EXPECT_EQ((Records{{"1", longField, "3"}, {"4", longQuoted, "6"}, {"7", "8", "9"}}),
            read.records);
  EXPECT_EQ((Numbers{2, 3, 400'004}), read.lines);
}

TEST(CsvReader, AHeaderMayBeLongerThanABlock) {
  const std::string name(600'000, 'n');
  const CsvRead read = readCsv("\"" + name + "\n\",b\n1,2\n");
  EXPECT_EQ((Fields{name + "\n", "b"}), read.header);
  EXPECT_EQ((Records{{"1", "2"}}), read.records);
  EXPECT_EQ((Numbers{3}), read.lines);
}

// Fields of all kinds in files of several blocks, so that blocks end at every kind of place.
TEST(CsvReader, ReadsWhatWasWritten) {
  runRandomOperations(5, 25, [](Random& random) {
    static constexpr char kCharacters[] = "ab ,\"\n\r\t";
    const std::size_t columns = 1 + random.below(4);
    const std::size_t kinds = random.oneIn(3) ? 2 : sizeof(kCharacters) - 1;
    const char* const lineBreak = random.oneIn(2) ? "\n" : "\r\n";
    std::string text;
    Records expected;
    while (text.size() < (random.oneIn(4) ? 1'000U : 600'000U)) {
      Fields& record = expected.emplace_back();
      for (std::size_t i = 0; i < columns; ++i) {
        std::string& field = record.emplace_back(random.below(random.oneIn(50) ? 2'000 : 9), 'x');
        for (char& c : field) c = kCharacters[random.below(kinds)];
        const bool needsQuotes =
            field.find_first_of(",\"\r\n") != field.npos || (columns == 1 && field.empty());
        if (needsQuotes || random.oneIn(5)) {
          text += '"';
          for (const char c : field) text += c == '"' ? std::string("\"\"") : std::string(1, c);
          text += '"';
        } else {
          text += field;
        }
        text += i + 1 < columns ? "," : lineBreak;
      }
    }
    const Fields header = expected.front();
    expected.erase(expected.begin());
    const CsvRead read = readCsv(text, "UTF-8", false);
    EXPECT_EQ("", read.failure);
    EXPECT_EQ(header, read.header);
    EXPECT_TRUE(expected == read.records);
  });
}

}  // namespace
}  // namespace om::test
