// The program as it is called: what it writes, its messages and its exit codes.

#include "tools/tabulate/Program.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "tests/tools/tabulate/RunProgram.h"
#include "tests/tools/tabulate/TemporaryFolder.h"
#include "tests/tools/tabulate/TestData.h"

namespace om::test {
namespace {

using tabulate::ExitCode;
using Names = std::vector<std::string>;

void expectRefused(ExitCode code, const std::string& line, const Arguments& arguments,
                   const std::string& input = "") {
  const Ran ran = run(arguments, input);
  EXPECT_EQ("tabulate: " + line + "\n", ran.err);
  EXPECT_EQ(code, ran.code);
  EXPECT_EQ("", ran.out);
}

TEST(Program, WritesADocument) {
  const Ran ran = run({"-", "--rows", "a", "--columns", "b", "--totals", "rows,columns"},
                      "a,b\nx,1\ny,1\nx,2\nx,1\n");
  EXPECT_EQ("", ran.err);
  EXPECT_EQ(ExitCode::DONE, ran.code);
  EXPECT_NE(std::string::npos, ran.out.find("tabulate - --rows a --columns b"));
}

TEST(ProgramUsage, IsRefusedWithOneLine) {
  const std::string titanic = dataFile("titanic.csv");
  const auto refused = [&](const std::string& line, Arguments more) {
    more.insert(more.begin(), titanic);
    expectRefused(ExitCode::USAGE, line, more);
  };
  expectRefused(ExitCode::USAGE, "there is no data file; see tabulate --help", {});
  expectRefused(ExitCode::USAGE, "there is no job file; see tabulate run --help", {"run"});
  refused("there is no variable on rows, columns or layers", {});
  refused("there is no option \"--row\"; see tabulate --help", {"--row"});
  refused("there is one argument too many: \"more.csv\"; see tabulate --help",
          {"more.csv", "--rows", "Sex"});
  refused("--rows needs a value", {"--rows"});
  refused("--rows is given twice", {"--rows", "Sex", "--rows", "Age"});
  refused("--rows: there is an empty name in \"Sex,\"", {"--rows", "Sex,"});
  refused("--order: \"up\" is none of data, sorted, typed", {"--rows", "Sex", "--order", "up"});
  refused("--max-cells: \"x\" is no whole number from 1 up", {"--rows", "Sex", "--max-cells", "x"});
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
                "standard input: record 1 (line 2), field 2: the header has only 1 field",
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

// The longest line, in characters.
std::size_t widthOf(const std::string& text) {
  std::size_t widest = 0;
  std::size_t width = 0;
  for (const char c : text) {
    if (c == '\n') width = 0;
    // Bytes that continue a character do not count.
    if (c != '\n' && (static_cast<unsigned char>(c) & 0xc0) != 0x80)
      widest = std::max(widest, ++width);
  }
  return widest;
}

// A table of 26 columns in a terminal.
Ran runInTerminal(int columns, const Arguments& more) {
  std::string data = "letter\n";
  for (char letter = 'a'; letter <= 'z'; ++letter) data += std::string(8, letter) + "\n";
  Arguments arguments{"-", "--columns", "letter"};
  arguments.insert(arguments.end(), more.begin(), more.end());
  std::istringstream in(data);
  std::ostringstream out;
  std::ostringstream err;
  const ExitCode code = tabulate::runProgram(arguments, {in, out, err, false, columns});
  EXPECT_EQ(ExitCode::DONE, code) << err.str();
  return {code, out.str(), err.str()};
}

TEST(ProgramTerminal, IsAsWideAsTheTextMayBe) {
  const std::string text = runInTerminal(70, {}).out;
  EXPECT_LE(widthOf(text), 70U);
  EXPECT_GT(widthOf(text), 60U);
  EXPECT_NE(std::string::npos, text.find("of 26)"));
}

TEST(ProgramTerminal, IsNotAskedWhenAWidthIsGiven) {
  EXPECT_LE(widthOf(runInTerminal(70, {"--width", "40"}).out), 40U);
  EXPECT_GT(widthOf(runInTerminal(40, {"--width", "100"}).out), 90U);
  EXPECT_GT(widthOf(runInTerminal(40, {"--width", "0"}).out), 26 * 9U);
}

TEST(ProgramTerminal, DoesNotBoundAFile) {
  const TemporaryFolder folder;
  const std::string file = folder.file("t.txt");
  runInTerminal(40, {"-o", file});
  EXPECT_GT(widthOf(contentOf(file)), 26 * 9U);
  runInTerminal(0, {"-o", file, "--width", "50"});
  EXPECT_LE(widthOf(contentOf(file)), 50U);
}

TEST(ProgramText, IsAsciiWhenToldSo) {
  const auto isAscii = [](const std::string& text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  };
  EXPECT_TRUE(isAscii(runInTerminal(0, {"--ascii"}).out));
  EXPECT_FALSE(isAscii(runInTerminal(0, {}).out));
}

TEST(ProgramHtml, HasTheTitleOfItsOneTable) {
  const Arguments arguments{"-", "--rows", "a", "--columns", "b", "--format", "html"};
  EXPECT_NE(std::string::npos, run(arguments, "a,b\nx,1\n").out.find("<title>a by b</title>"));
  const Ran ran = run({"-", "--rows", "a", "--title", "A < B", "--format", "html"}, "a\nx\n");
  EXPECT_NE(std::string::npos, ran.out.find("<title>A &lt; B</title>"));
}

TEST(ProgramHtml, IsCalledOutputForSeveralTables) {
  const TemporaryFolder folder;
  folder.write("d.csv", "a\nx\n");
  const std::string table = R"({"data": "d.csv", "rows": ["a"], "title": "T"})";
  folder.write("one.json", "{\"tables\": [" + table + "]}");
  folder.write("two.json", "{\"tables\": [" + table + ", " + table + "]}");
  const auto pageOf = [&](const std::string& job) {
    return run({"run", folder.file(job), "--format", "html"}).out;
  };
  EXPECT_NE(std::string::npos, pageOf("one.json").find("<title>T</title>"));
  EXPECT_NE(std::string::npos, pageOf("two.json").find("<title>Output</title>"));
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
