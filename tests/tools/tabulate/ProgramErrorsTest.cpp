// Every message of the program, compared with golden/tabulate/errors.txt. Each is one line, has its
// exit code, and leaves a file that the output would replace as it was. Those about workbooks
// depend on the build and stand in ProgramXlsxTest.cpp.

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

#include <cctype>

#include "tests/support/Allocations.h"
#include "tests/support/Golden.h"
#include "tests/tools/tabulate/RunProgram.h"
#include "tests/tools/tabulate/TemporaryFolder.h"
#include "tests/tools/tabulate/TestData.h"
#include "tools/tabulate/DescriptorBuffer.h"
#include "tools/tabulate/Options.h"

namespace om::test {
namespace {

using tabulate::ExitCode;

// On one line, and not a long one.
std::string shown(const std::string& text) {
  static constexpr char kDigits[] = "0123456789abcdef";
  std::string result;
  for (const char c : text.substr(0, 200)) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '\n') {
      result += "\\n";
    } else if (byte < 0x20 || byte >= 0x7f) {
      result += std::string("\\x") + kDigits[byte >> 4] + kDigits[byte & 15];
    } else {
      result += c;
    }
  }
  return result + (text.size() > 200 ? "... (" + std::to_string(text.size()) + " bytes)" : "");
}

// Collects what the program says, in a folder with a data file and a file that is to stay.
class Errors {
 public:
  Errors() : inFolder_(folder_.path()) {
    folder_.write("d.csv", "a,b,w\nx,1,2\ny,2,1\n");
    folder_.write("out.txt", "former");
    std::filesystem::create_directory("folder");
  }

  void section(const std::string& title) { said_ += "# " + title + "\n\n"; }

  // A command that goes wrong in the same way with an output file, which stays as it was.
  void refused(const Arguments& arguments, const std::string& input = "") {
    const Ran ran = say(arguments, input);
    Arguments withOutput = arguments;
    withOutput.insert(withOutput.end(), {"-o", "out.txt"});
    expectSame(ran, run(withOutput, input), arguments);
  }

  // The same, where another output would be another command.
  void refusedAlone(const Arguments& arguments, const std::string& input = "") {
    expectSame(say(arguments, input), run(arguments, input), arguments);
  }

  void refusedData(const std::string& data, const Arguments& more = {"--rows", "a"}) {
    Arguments arguments{"-"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    refused(arguments, data);
  }

  void refusedJob(const std::string& job) {
    folder_.write("job.json", job);
    said_ += "job.json: " + shown(job) + "\n";
    refused({"run", "job.json"});
    std::filesystem::remove("job.json");
  }

  // The same for one table of a job.
  void refusedTable(const std::string& table) { refusedJob("{\"tables\": [{" + table + "}]}"); }

  const std::string& said() const { return said_; }

 private:
  Ran say(const Arguments& arguments, const std::string& input) {
    if (!input.empty()) said_ += "input: " + shown(input) + "\n";
    const Ran ran = run(arguments, input);
    said_ += "$ " + shown(tabulate::commandLine(arguments)) + "\n" + ran.err + "exit code " +
             std::to_string(static_cast<int>(ran.code)) + "\n\n";
    return ran;
  }

  void expectSame(const Ran& first, const Ran& second, const Arguments& arguments) const {
    const std::string command = tabulate::commandLine(arguments);
    EXPECT_TRUE(first.code == ExitCode::DATA || first.code == ExitCode::USAGE) << command;
    EXPECT_EQ("", first.out) << command;
    EXPECT_EQ(first.code, second.code) << command;
    EXPECT_EQ(first.err, second.err) << command;
    EXPECT_EQ("", second.out) << command;
    EXPECT_EQ(0U, first.err.rfind("tabulate: ", 0)) << command;
    EXPECT_EQ(first.err.size() - 1, first.err.find('\n')) << command;
    for (const char c : first.err.substr(0, first.err.size() - 1)) {
      EXPECT_FALSE(std::iscntrl(static_cast<unsigned char>(c))) << command;
    }
    EXPECT_EQ("former", contentOf("out.txt")) << command;
    for (const std::string& name : folder_.names()) {
      EXPECT_TRUE(name == "d.csv" || name == "out.txt" || name == "folder" || name == "job.json")
          << command << ": " << name;
    }
    EXPECT_TRUE(std::filesystem::is_empty("folder")) << command;
  }

  const TemporaryFolder folder_;
  const WorkingFolder inFolder_;
  std::string said_;
};

void theCommand(Errors& errors) {
  errors.section("The command");
  errors.refused({});
  errors.refused({""});
  errors.refused({"run"});
  errors.refused({"run", ""});
  errors.refused({"d.csv", "--row", "a"});
  errors.refused({"d.csv", "-x"});
  errors.refusedAlone({"d.csv", "--rows", "a", "--", "-x"});
  errors.refusedAlone({"d.csv", "--rows", "a", "--", "--"});
  errors.refused({"d.csv", "more.csv", "--rows", "a"});
  errors.refused({"run", "job.json", "d.csv"});
  errors.refused({"run", "job.json", "--rows", "a"});
  errors.refused({"d.csv", "\x1b[31m\n"});
  errors.refusedAlone({"d.csv", "--rows"});
  errors.refusedAlone({"d.csv", "--rows", "a", "-o"});
  errors.refused({"d.csv", "--rows", "a", "--ascii=no"});
  errors.refused({"d.csv", "--rows", "a", "--names-in-corner=no"});
  errors.refused({"d.csv", "--rows", "a", "--rows", "b"});
  errors.refused({"d.csv", "--rows", "a,"});
  errors.refused({"d.csv", "--columns", "a//b"});
  errors.refused({"d.csv", "--layers", "a\\"});
  errors.refused({"d.csv", "--rows", "a", "--weight", ""});
  errors.refused({"d.csv", "--rows", "a", "--measure", ""});
  errors.refused({"d.csv", "--rows", "a", "--statistics", "count,mode"});
  errors.refused({"d.csv", "--rows", "a", "--statistics-on", "table"});
  errors.refused({"d.csv", "--rows", "a", "--totals", "rows,rows"});
  errors.refused({"d.csv", "--rows", "a", "--totals", "all"});
  errors.refused({"d.csv", "--rows", "a", "--missing", "drop"});
  errors.refused({"d.csv", "--rows", "a", "--order", "up"});
  errors.refused({"d.csv", "--rows", "a", "--skip-empty", "rows,none"});
  errors.refused({"d.csv", "--rows", "a", "--layer", "0"});
  errors.refused({"d.csv", "--rows", "a", "--layer", "-1"});
  errors.refused({"d.csv", "--rows", "a", "--max-cells", "0"});
  errors.refused({"d.csv", "--rows", "a", "--max-cells", "1e6"});
  errors.refused({"d.csv", "--rows", "a", "--max-cells", "99999999999999999999"});
  errors.refused({"d.csv", "--rows", "a", "--format", "pdf"});
  errors.refused({"d.csv", "--rows", "a", "--width", "wide"});
  errors.refused({"d.csv", "--rows", "a", "--width", "-1"});
  errors.refused({"d.csv", "--rows", "a", "--progress", "yes"});
  errors.refusedAlone({"d.csv", "--rows", "a", "-o", ""});
}

void theRequest(Errors& errors) {
  errors.section("What it asks for");
  errors.refused({"d.csv"});
  errors.refused({"d.csv", "--rows", "a", "--columns", "b/a"});
  errors.refused({"d.csv", "--rows", "a", "--weight", "a"});
  errors.refused({"d.csv", "--rows", "a", "--measure", "w,w"});
  errors.refused({"d.csv", "--rows", "a", "--statistics", "n,n"});
  errors.refused({"d.csv", "--rows", "a", "--statistics", "mean"});
  errors.refused({"d.csv", "--rows", "a", "--measure", "w", "--statistics", "count"});
  errors.refused({"d.csv", "--rows", "A"});
  errors.refused({"d.csv", "--rows", "a", "--weight", "weight"});
  errors.refused({"d.csv", "--rows", "a", "--measure", "\x1b[31m" + std::string(100, 'x')});
  errors.refused({"d.csv", "--rows", "a", "--encoding", "klingon"});
  errors.refused({"d.csv", "--rows", "a", "--encoding", "UTF-8//IGNORE"});
  errors.refused({"d.csv", "--rows", "a", "--layer", "2"});
  errors.refused({"d.csv", "--rows", "a", "--layers", "b", "--layer", "3"});
}

void theData(Errors& errors) {
  errors.section("The data");
  errors.refused({"no.csv", "--rows", "a"});
  errors.refused({"folder", "--rows", "a"});
  errors.refused({"d.csv/d.csv", "--rows", "a"});
  errors.refused({"no\nsuch\x1b[31mfile", "--rows", "a"});
  errors.refusedData("");
  errors.refusedData("\n\n");
  errors.refusedData("a,b,a\nx,1,y\n");
  errors.refusedData("\n\"a\n\",b,b\nx,1,y\n", {"--rows", "b"});
  errors.refusedData("a,b\xff\nx,1\n");
  errors.refusedData("a,b\"\nx,1\n");
  errors.refusedData("a,\"b\nx,1\n");
  errors.refusedData("a,b\nx,1\ny\n");
  errors.refusedData("a,b\n\nx,1,2\n");
  errors.refusedData("a\nx,1\n");
  errors.refusedData("a,b\n\"x\n\",1\ny,\"2\" 3\n");
  errors.refusedData("a,b\nx,1\"\n");
  errors.refusedData("a,b\nx,\"1\ny,2\n");
  errors.refusedData("a,b\n\"" + std::string(std::size_t{17} << 20, 'x'));
  errors.refusedData("a,b\nx,1\ny\xc3,2\n");
  errors.refusedData("a,b\nx,1\ny,\xe2\x82");
  errors.refusedData("a,b\nx,\xff\n", {"--rows", "a", "--encoding", "ASCII"});
  errors.refusedData(
      std::string("\xff\xfe"
                  "a\0,\0b",
                  7));
  errors.refusedData("a,w\nx,1\ny,two\n", {"--rows", "a", "--weight", "w"});
  errors.refusedData("a,w\nx,1\ny,-1\n", {"--rows", "a", "--weight", "w"});
  errors.refusedData("a,w\nx,1e999\n", {"--rows", "a", "--weight", "w"});
  errors.refusedData("a,w\n,nan\n", {"--rows", "a", "--weight", "w"});
  errors.refusedData("a,m\nx,1\n\n\ny,\"1,5\"\n", {"--rows", "a", "--measure", "m"});
  errors.refusedData("a,m\nx,\x1b[31m" + std::string(100, '1') + "\n",
                     {"--rows", "a", "--measure", "m"});
}

void theJob(Errors& errors) {
  errors.section("The job");
  errors.refused({"run", "no.json"});
  errors.refused({"run", "folder"});
  errors.refusedJob("");
  errors.refusedJob("{\"tables\": [\n {\"data\": }]}");
  errors.refusedJob("{\"tables\": [{\"data\": \"d.csv\", \"title\": \"\xff\"}]}");
  errors.refusedJob("{\"tables\": [{\"data\": \"d.csv\", \"max-cells\": 1e999}]}");
  errors.refusedJob("[[[[[[[[[[]]]]]]]]]]");
  errors.refusedJob("[]");
  errors.refusedJob("{\"table\": []}");
  errors.refusedJob("{\"tables\": {}}");
  errors.refusedJob("{\"tables\": []}");
  errors.refusedJob("{\"tables\": [{\"data\": \"d.csv\", \"rows\": [\"a\"]}], \"output\": \"x\"}");
  errors.refusedJob("{\"tables\": [], \"tables\": []}");
  errors.refusedJob(R"({"tables": [{"data": "-", "rows": ["a"]}, {"data": "-", "rows": ["a"]}]})");
}

void theTableOfAJob(Errors& errors) {
  errors.section("A table of a job");
  const std::string table = R"("data": "d.csv", "rows": ["a"], )";
  errors.refusedJob("{\"tables\": [\"d.csv\"]}");
  errors.refusedJob("{\"tables\": [{" + table + "\"title\": \"T\"}, {\"rows\": [\"a\"]}]}");
  errors.refusedTable(table + "\"wieght\": \"w\"");
  errors.refusedTable(table + "\"order\": \"data\", \"order\": \"data\"");
  errors.refusedTable(R"("data": "/etc/passwd", "rows": ["a"])");
  errors.refusedTable(R"("data": "folder/../../d.csv", "rows": ["a"])");
  errors.refusedTable(R"("data": "d.csv\u0000x", "rows": ["a"])");
  errors.refusedTable(R"("data": "", "rows": ["a"])");
  errors.refusedTable(R"("data": 1, "rows": ["a"])");
  errors.refusedTable(R"("data": "d.csv", "rows": "a")");
  errors.refusedTable(R"("data": "d.csv", "rows": [["a", ""]])");
  errors.refusedTable(R"("data": "d.csv", "columns": [[]])");
  errors.refusedTable(R"("data": "d.csv", "layers": [7])");
  errors.refusedTable(R"("data": "d.csv")");
  errors.refusedTable(table + "\"columns\": [\"a\"]");
  errors.refusedTable(table + "\"weight\": \"\"");
  errors.refusedTable(table + "\"measure\": \"w\"");
  errors.refusedTable(table + "\"measure\": [7]");
  errors.refusedTable(table + "\"statistics\": [\"mode\"]");
  errors.refusedTable(table + "\"statistics-on\": \"table\"");
  errors.refusedTable(table + "\"totals\": [\"rows\", \"rows\"]");
  errors.refusedTable(table + "\"missing\": \"drop\"");
  errors.refusedTable(table + "\"order\": \"up\"");
  errors.refusedTable(table + "\"notes\": \"one\"");
  errors.refusedTable(table + "\"max-cells\": 0");
  errors.refusedTable(table + "\"max-cells\": \"7\"");
  errors.refusedTable(table + "\"max-cells\": 9223372036854775808");
  errors.refusedTable(table + "\"skip-empty\": [\"rows\", \"none\"]");
  errors.refusedTable(table + "\"names-in-corner\": \"yes\"");
  errors.refusedTable(table + "\"layer\": 0");
  errors.refusedTable(table + "\"layer\": true");
  errors.refusedTable(table + "\"layer\": 2");
  errors.refusedTable(table + "\"encoding\": \"klingon\"");
  errors.refusedTable(R"("data": "d.csv", "rows": ["A"])");
  errors.refusedTable(R"("data": "no.csv", "rows": ["a"])");
  errors.refusedTable(table + "\"measure\": [\"a\"]");
}

void theOutput(Errors& errors) {
  errors.section("The output");
  errors.refusedAlone({"d.csv", "--rows", "a", "-o", "no/out.txt"});
  errors.refusedAlone({"d.csv", "--rows", "a", "-o", "folder"});
  errors.refusedAlone({"d.csv", "--rows", "a", "-o", "d.csv/out.txt"});
  errors.refusedAlone({"d.csv", "--rows", "a", "-o", "/dev/full"});
  errors.refusedAlone({"d.csv", "--rows", "a", "-o", "./d.csv"});
}

TEST(ProgramErrors, AreOneLineEachAndTouchNoFile) {
  Errors errors;
  theCommand(errors);
  theRequest(errors);
  theData(errors);
  theJob(errors);
  theTableOfAJob(errors);
  theOutput(errors);
  expectGolden("errors.txt", errors.said());
}

TEST(ProgramErrors, WithoutMemoryTheFormerFileStays) {
  const TemporaryFolder folder;
  const WorkingFolder inFolder(folder.path());
  const Arguments arguments{"-",       "--rows",    "a/b",      "--columns", "c",       "--totals",
                            "columns", "--missing", "category", "-o",        "out.html"};
  std::size_t silent = 0;
  const std::size_t failures = failEveryAllocation([&](FailurePoint& failure) {
    folder.write("out.html", "former");
    std::istringstream in("a,b,c\nx,1,p\n,2,q\n");
    std::ostringstream out;
    std::ostringstream err;
    ExitCode code{};
    failure.during([&] { code = tabulate::runProgram(arguments, {in, out, err}); });
    EXPECT_EQ(std::vector<std::string>{"out.html"}, folder.names());
    if (code == ExitCode::DONE) {
      silent += failure.failed() ? 1 : 0;
      EXPECT_NE(std::string::npos, contentOf("out.html").find("</html>"));
      return;
    }
    EXPECT_EQ("tabulate: there is not enough memory\n", err.str());
    EXPECT_EQ(ExitCode::DATA, code);
    EXPECT_EQ("former", contentOf("out.html"));
  });
  EXPECT_GT(failures, 500U);
  EXPECT_EQ(0U, silent);
}

// Standard input that cannot be read and standard output that cannot be written.

TEST(ProgramStreams, ABrokenStandardInputIsAFailure) {
  std::istream broken(nullptr);
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(ExitCode::DATA, tabulate::runProgram({"-", "--rows", "a"}, {broken, out, err}));
  EXPECT_EQ("tabulate: standard input: cannot be read: the stream is broken\n", err.str());
  EXPECT_EQ("", out.str());
}

TEST(ProgramStreams, AFullDeviceAsStandardOutputIsAFailure) {
  for (const Arguments& arguments : {Arguments{"-", "--rows", "a"}, Arguments{"--help"}}) {
    const int device = open("/dev/full", O_WRONLY);
    ASSERT_GE(device, 0);
    std::istringstream in("a\nx\n");
    std::ostringstream err;
    {
      tabulate::DescriptorBuffer buffer(device);
      std::ostream out(&buffer);
      EXPECT_EQ(ExitCode::DATA, tabulate::runProgram(arguments, {in, out, err}));
    }
    close(device);
    EXPECT_EQ("tabulate: standard output: cannot be written: No space left on device\n", err.str());
  }
}

}  // namespace
}  // namespace om::test
