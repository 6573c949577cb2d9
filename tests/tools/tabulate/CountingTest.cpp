// Which records are used and what they are refused for.

#include "tools/tabulate/Counting.h"

#include <gtest/gtest.h>

#include "tests/tools/tabulate/Tabulated.h"
#include "tools/tabulate/Failure.h"

namespace om::test {
namespace {

using tabulate::Counted;
using tabulate::ExitCode;
using tabulate::Failure;
using tabulate::Missing;
using tabulate::TableRequest;

const std::string kPeople = "sex,age,w\nf,30,1\nm,,2\n,40,4\nf,50,\n,,\n";

TEST(Counting, LeavesOutRecordsWithAMissingValueInADimension) {
  const Counted counted = countText(kPeople, ask({"sex"}, {"age"}));
  EXPECT_EQ(5U, counted.read);
  EXPECT_EQ(2U, counted.used);
  EXPECT_EQ(3U, counted.missing);
  EXPECT_EQ((std::vector<std::uint64_t>{2, 2}), counted.missingIn);
}

TEST(Counting, CountsMissingValuesAsACategoryWhenAsked) {
  TableRequest request = ask({"sex"}, {"age"});
  request.missing = Missing::CATEGORY;
  const Counted counted = countText(kPeople, request);
  EXPECT_EQ(5U, counted.used);
  EXPECT_EQ(0U, counted.missing);
  EXPECT_EQ(5U, counted.tally.size());
}

TEST(Counting, LeavesOutRecordsWithoutAWeight) {
  TableRequest request = ask({"sex"});
  request.weight = "w";
  const Counted counted = countText(kPeople, request);
  EXPECT_EQ(2U, counted.used);
  EXPECT_EQ(2U, counted.missing);
  EXPECT_EQ(1U, counted.missingWeight);
}

TEST(Counting, KnowsTheDecimalsOfNumbers) {
  TableRequest request = ask({"g"});
  request.weight = "w";
  request.measures = {"x"};
  const Counted counted = countText("g,w,x\na,1.25,3\na,2,4.125\nb,1,\n", request);
  EXPECT_EQ(2, counted.weightDecimals);
  EXPECT_EQ(3, counted.measures.at(0).decimals);
  EXPECT_EQ(1U, counted.measures.at(0).missing);
}

TEST(Counting, AVariableMayBeADimensionAndAMeasure) {
  TableRequest request = ask({"x"});
  request.measures = {"x"};
  const Counted counted = countText("x\n1\n1\n2\n", request);
  EXPECT_EQ(2U, counted.tally.size());
  EXPECT_EQ(1, counted.tally.moments(0, 0).mean());
}

TEST(Counting, TellsHowFarItIs) {
  std::uint64_t last = 0;
  std::istringstream stream(kPeople);
  tabulate::countRecords(stream, "t.csv", ask({"sex"}), [&](std::uint64_t done) { last = done; });
  EXPECT_EQ(kPeople.size(), last);
}

void expectFailure(ExitCode code, const std::string& text, const std::string& csv,
                   const TableRequest& request) {
  try {
    countText(csv, request);
    ADD_FAILURE() << "there is no failure: " << text;
  } catch (const Failure& failure) {
    EXPECT_EQ(text, failure.what());
    EXPECT_EQ(code, failure.code());
  }
}

TEST(Counting, RefusesColumnsThatTheHeaderDoesNotHave) {
  expectFailure(ExitCode::USAGE, "t.csv: there is no column \"Sex\"; the columns are sex, age, w",
                kPeople, ask({"Sex"}));
}

TEST(Counting, RefusesAColumnThatTheHeaderHasTwiceWhenItIsUsed) {
  expectFailure(ExitCode::DATA, "t.csv: header (line 1), field \"a\": the header has it twice",
                "a,a,b\n1,2,3\n", ask({"a"}));
  EXPECT_EQ(1U, countText("a,a,b\n1,2,3\n", ask({"b"})).used);
}

TEST(Counting, RefusesWeightsThatAreNoNumbersOrBelowZero) {
  TableRequest request = ask({"g"});
  request.weight = "w";
  expectFailure(ExitCode::DATA,
                "t.csv: record 2 (line 3), field \"w\": the weight \"x\" is no number",
                "g,w\na,1\nb,x\n", request);
  expectFailure(ExitCode::DATA,
                "t.csv: record 2 (line 4), field \"w\": the weight \"-0.5\" is below 0",
                "g,w\n\na,1\nb,-0.5\n", request);
  expectFailure(ExitCode::DATA,
                "t.csv: record 1 (line 2), field \"w\": the weight \"inf\" is no number",
                "g,w\na,inf\n", request);
}

TEST(Counting, RefusesMeasuresThatAreNoNumbers) {
  TableRequest request = ask({"g"});
  request.measures = {"x"};
  expectFailure(ExitCode::DATA,
                "t.csv: record 2 (line 4), field \"x\": the measure \"NA\" is no number",
                "g,x\n\"a\n\",1\nb,NA\n", request);
}

TEST(Counting, RefusesBadNumbersAlsoInRecordsThatAreLeftOut) {
  TableRequest request = ask({"g"});
  request.measures = {"x"};
  expectFailure(ExitCode::DATA,
                "t.csv: record 1 (line 2), field \"x\": the measure \"?\" is no number",
                "g,x\n,?\n", request);
}

}  // namespace
}  // namespace om::test
