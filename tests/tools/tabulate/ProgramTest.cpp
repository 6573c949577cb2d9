// The program as it is called: what it writes, its messages and its exit codes.

#include "tools/tabulate/Program.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>

#include "tests/tools/tabulate/TemporaryFolder.h"
#include "tests/tools/tabulate/TestData.h"

namespace om::test {
namespace {

using tabulate::ExitCode;
using Arguments = std::vector<std::string>;
using Names = std::vector<std::string>;

struct Ran {
  ExitCode code;
  std::string out;
  std::string err;
};

Ran run(const Arguments& arguments, const std::string& input = "") {
  std::istringstream in(input);
  std::ostringstream out;
  std::ostringstream err;
  const ExitCode code = tabulate::runProgram(arguments, {in, out, err});
  return {code, out.str(), err.str()};
}

void expectRefused(ExitCode code, const std::string& line, const Arguments& arguments,
                   const std::string& input = "") {
  const Ran ran = run(arguments, input);
  EXPECT_EQ("tabulate: " + line + "\n", ran.err);
  EXPECT_EQ(code, ran.code);
  EXPECT_EQ("", ran.out);
}

// With OM_REBASELINE set in the environment, the golden file becomes the text.
void expectGolden(const std::string& name, const std::string& text) {
  const std::string path = std::string(OM_GOLDEN) + "/" + name;
  if (std::getenv("OM_REBASELINE") != nullptr) std::ofstream(path, std::ios::binary) << text;
  EXPECT_EQ(contentOf(path), text);
}

TEST(Program, WritesADocument) {
  const Ran ran = run({"-", "--rows", "a", "--columns", "b", "--totals", "rows,columns"},
                      "a,b\nx,1\ny,1\nx,2\nx,1\n");
  EXPECT_EQ("", ran.err);
  EXPECT_EQ(ExitCode::DONE, ran.code);
  EXPECT_NE(std::string::npos, ran.out.find("tabulate - --rows a --columns b"));
}

TEST(Program, HelpsAsTheDocumentsSay) {
  expectGolden("tabulate_help.txt", run({"--help"}).out);
  expectGolden("tabulate_run_help.txt", run({"run", "--help"}).out);
}

TEST(ProgramUsage, IsRefusedWithOneLine) {
  const std::string titanic = dataFile("titanic.csv");
  const auto refused = [&](const std::string& line, Arguments more) {
    more.insert(more.begin(), titanic);
    expectRefused(ExitCode::USAGE, line, more);
  };
  expectRefused(ExitCode::USAGE, "there is no data file; see tabulate --help", {});
  expectRefused(ExitCode::USAGE, "JOB is required", {"run"});
  refused("there is no variable on rows, columns or layers", {});
  refused("The following argument was not expected: --row", {"--row"});
  refused("The following argument was not expected: more.csv", {"more.csv", "--rows", "Sex"});
  refused("--rows: 1 required DIMS missing", {"--rows"});
  refused("--rows is given twice", {"--rows", "Sex", "--rows", "Age"});
  refused("--rows: there is an empty name in \"Sex,\"", {"--rows", "Sex,"});
  refused("--order: \"up\" is none of data, sorted, typed", {"--rows", "Sex", "--order", "up"});
  refused("--max-cells: \"x\" is no number from 1", {"--rows", "Sex", "--max-cells", "x"});
  refused("the variable \"Sex\" is given twice", {"--rows", "Sex", "--columns", "Age/Sex"});
  refused("there is no encoding \"klingon\"", {"--rows", "Sex", "--encoding", "klingon"});
  refused("there is no layer 3; the table has 2",
          {"--rows", "Age", "--layers", "Sex", "--layer", "3"});
  refused(titanic + ": there is no column \"sex\"; the columns are Class, Sex, Age, Survived",
          {"--rows", "sex"});
}

TEST(ProgramData, IsRefusedWithOneLine) {
  const TemporaryFolder folder;
  expectRefused(ExitCode::DATA,
                folder.file("no.csv") + ": cannot be read: No such file or directory",
                {folder.file("no.csv"), "--rows", "a"});
  expectRefused(ExitCode::DATA, folder.path() + ": cannot be read: Is a directory",
                {folder.path(), "--rows", "a"});
  expectRefused(ExitCode::DATA,
                folder.file("no.json") + ": cannot be read: No such file or directory",
                {"run", folder.file("no.json")});
  expectRefused(ExitCode::DATA, "standard input: there is no header record", {"-", "--rows", "a"});
  expectRefused(ExitCode::DATA,
                "standard input: record 2 (line 4), field \"b\": the record ends in front of it",
                {"-", "--rows", "a"}, "a,b\n\"1\n\",2\n3\n");
  expectRefused(ExitCode::DATA,
                "standard input: record 1 (line 2), field \"b\": the weight \"two\" is no number",
                {"-", "--rows", "a", "--weight", "b"}, "a,b\n1,two\n");
  expectRefused(
      ExitCode::DATA,
      "standard input: record 1 (line 2), field \"a\": its bytes are not in the encoding UTF-8",
      {"-", "--rows", "a"}, "a,b\n\xff,2\n");
}

TEST(ProgramOutput, IsAFileThatIsThereWhole) {
  const TemporaryFolder folder;
  const std::string file = folder.file("t.txt");
  const Ran ran = run({"-", "--rows", "a", "-o", file}, "a\nx\n");
  EXPECT_EQ(ExitCode::DONE, ran.code);
  EXPECT_EQ("", ran.out);
  EXPECT_EQ((Names{"t.txt"}), folder.names());
  EXPECT_NE(std::string::npos, contentOf(file).find("Data summary"));
}

TEST(ProgramOutput, IsNotTouchedByWhatGoesWrong) {
  const TemporaryFolder folder;
  const std::string file = folder.file("t.txt");
  folder.write("t.txt", "former");
  expectRefused(ExitCode::DATA,
                "standard input: record 1 (line 2), field 2: the header has only 1 fields",
                {"-", "--rows", "a", "-o", file}, "a\nx,y\n");
  expectRefused(ExitCode::USAGE, "there is no layer 2; the table has 1",
                {"-", "--rows", "a", "--layer", "2", "-o", file}, "a\nx\n");
  EXPECT_EQ("former", contentOf(file));
  EXPECT_EQ((Names{"t.txt"}), folder.names());
}

TEST(ProgramOutput, ThatCannotBeWrittenIsSaidBeforeTheWork) {
  const TemporaryFolder folder;
  expectRefused(ExitCode::DATA,
                folder.file("no/t.txt") + ": cannot be written: No such file or directory",
                {"-", "--rows", "nothing of the kind", "-o", folder.file("no/t.txt")}, "a\nx\n");
}

TEST(ProgramOutput, ABrokenStandardOutputIsAFailure) {
  std::istringstream in("a\nx\n");
  std::ostringstream err;
  std::ostream broken(nullptr);
  EXPECT_EQ(ExitCode::DATA, tabulate::runProgram({"-", "--rows", "a"}, {in, broken, err}));
  EXPECT_EQ("tabulate: standard output: cannot be written: unknown reason\n", err.str());
}

TEST(ProgramLimit, DropsTheTableAndSaysSo) {
  const Ran ran = run({"-", "--rows", "a", "--max-cells", "2"}, "a\nx\ny\nz\n");
  EXPECT_EQ(ExitCode::DROPPED, ran.code);
  EXPECT_EQ("tabulate: dropped for having more cells than --max-cells: \"a\"\n", ran.err);
  EXPECT_NE(std::string::npos,
            ran.out.find("The table was dropped: it has more than 2 cells, which is the limit."));
}

TEST(ProgramJob, MakesOneDocumentOfSeveralTables) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.file("data"));
  folder.write("data/d.csv", "a,b\nx,1\ny,2\n");
  folder.write("j.json", R"({"tables": [{"data": "data/d.csv", "rows": ["a"], "title": "First"},
                                       {"data": "data/d.csv", "rows": ["b"], "title": "Second"}]})");
  const Ran ran = run({"run", folder.file("j.json")});
  EXPECT_EQ("", ran.err);
  EXPECT_EQ(ExitCode::DONE, ran.code);
  EXPECT_NE(std::string::npos, ran.out.find("First"));
  EXPECT_NE(std::string::npos, ran.out.find("Second"));
  EXPECT_NE(std::string::npos, ran.out.find("Table 2 of 2"));
}

TEST(ProgramJob, IsRefusedWithOneLineThatNamesTheTable) {
  const TemporaryFolder folder;
  folder.write("j.json", R"({"tables": [{"data": "d.csv", "rows": ["a"], "wieght": "w"}]})");
  expectRefused(ExitCode::USAGE, folder.file("j.json") + ": table 1: there is no key \"wieght\"",
                {"run", folder.file("j.json")});
  folder.write("k.json", R"({"tables": [{"data": "d.csv", "rows": ["a"]}]})");
  expectRefused(ExitCode::DATA,
                folder.file("d.csv") + ": cannot be read: No such file or directory",
                {"run", folder.file("k.json")});
}

TEST(ProgramTerminal, SeesTheBarWhenToldSo) {
  std::istringstream in("a\nx\n");
  std::ostringstream out;
  std::ostringstream err;
  tabulate::runProgram({"-", "--rows", "a", "--progress", "always"}, {in, out, err});
  EXPECT_EQ("\rstandard input 0 MiB\r                    \r", err.str());
}

}  // namespace
}  // namespace om::test
