// Workbooks by the program: how they are asked for, and what stands in the way.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "render/XlsxWriter.h"
#include "tests/tools/tabulate/RunProgram.h"
#include "tests/tools/tabulate/TemporaryFolder.h"
#include "tests/tools/tabulate/TestData.h"
#include "tools/tabulate/OutputFile.h"

namespace om::test {
namespace {

using tabulate::ExitCode;
using Names = std::vector<std::string>;

constexpr char kCannot[] = "tabulate: this build cannot write xlsx\n";

// Of a run that a build without workbooks refuses, and leaves no file of.
void expectRun(ExitCode code, const std::string& err, const Arguments& arguments,
               const std::string& input) {
  const Ran ran = run(arguments, input);
  EXPECT_EQ(render::canWriteXlsx() ? err : kCannot, ran.err);
  EXPECT_EQ(render::canWriteXlsx() ? code : ExitCode::USAGE, ran.code);
  EXPECT_EQ("", ran.out);
}

// A table with a column for each record.
std::string wideData() {
  std::string data = "a\n";
  for (int i = 0; i <= 16'384; ++i) data += std::to_string(i) + "\n";
  return data;
}

TEST(ProgramXlsx, IsChosenByTheEndingOfTheFile) {
  const TemporaryFolder folder;
  const std::string file = folder.file("t.xlsx");
  expectRun(ExitCode::DONE, "", {"-", "--rows", "a", "-o", file}, "a\nx\n");
  if (render::canWriteXlsx()) {
    EXPECT_EQ((Names{"t.xlsx"}), folder.names());
    EXPECT_EQ("PK\x03\x04", contentOf(file).substr(0, 4));
  } else {
    EXPECT_TRUE(folder.names().empty());
  }
}

TEST(ProgramXlsx, MayHaveAnyName) {
  const TemporaryFolder folder;
  folder.write("t", "former");
  expectRun(ExitCode::DONE, "", {"-", "--rows", "a", "--format", "xlsx", "-o", folder.file("t")},
            "a\nx\n");
  EXPECT_EQ((Names{"t"}), folder.names());
  EXPECT_EQ(render::canWriteXlsx() ? "PK\x03\x04" : "form",
            contentOf(folder.file("t")).substr(0, 4));
}

TEST(ProgramXlsx, NeedsAFile) {
  expectRun(ExitCode::USAGE, "tabulate: xlsx needs a file to go to; see -o\n",
            {"-", "--rows", "a", "--format", "xlsx"}, "a\nx\n");
}

TEST(ProgramXlsx, OfATableThatIsTooLargeLeavesNoFile) {
  const TemporaryFolder folder;
  const std::string file = folder.file("t.xlsx");
  const std::string line = "tabulate: " + file +
                           ": the table \"a\" has 1 rows and 16385 columns, which is too large "
                           "for a sheet\n";
  expectRun(ExitCode::DATA, line, {"-", "--columns", "a", "-o", file}, wideData());
  EXPECT_TRUE(folder.names().empty());
  folder.write("t.xlsx", "former");
  expectRun(ExitCode::DATA, line, {"-", "--columns", "a", "-o", file}, wideData());
  EXPECT_EQ((Names{"t.xlsx"}), folder.names());
  EXPECT_EQ("former", contentOf(file));
}

TEST(ProgramXlsx, NeedsAFolderToGoTo) {
  const TemporaryFolder folder;
  const std::string file = folder.file("no/t.xlsx");
  expectRun(ExitCode::DATA,
            "tabulate: " + file + ": cannot be written: No such file or directory\n",
            {"-", "--rows", "a", "-o", file}, "a\nx\n");
}

TEST(ProgramXlsx, TakesTablesOfTheSameTitle) {
  const TemporaryFolder folder;
  folder.write("d.csv", "a,b\nx,1\ny,2\n");
  folder.write("j.json", R"({"tables": [{"data": "d.csv", "rows": ["a"], "title": "T"},
                                        {"data": "d.csv", "rows": ["b"], "title": "T"}]})");
  expectRun(ExitCode::DONE, "", {"run", folder.file("j.json"), "-o", folder.file("t.xlsx")}, "");
  EXPECT_EQ(render::canWriteXlsx(), std::filesystem::exists(folder.file("t.xlsx")));
}

// Input that ends the process by a signal once the program asks for it, if the file beside the
// former one is there by then.
class SignalOnRead : public std::streambuf {
 public:
  explicit SignalOnRead(const TemporaryFolder& folder) : folder_(folder) {}

 protected:
  int_type underflow() override {
    if (folder_.names().size() == 2) raise(SIGTERM);
    return traits_type::eof();
  }

 private:
  const TemporaryFolder& folder_;
};

TEST(ProgramXlsx, ASignalRemovesTheFileBeside) {
  const TemporaryFolder folder;
  folder.write("t.xlsx", "former");
  const pid_t child = fork();
  if (child == 0) {
    tabulate::OutputFile::removeOnSignals();
    SignalOnRead signal(folder);
    std::istream in(&signal);
    std::ostringstream none;
    tabulate::runProgram({"-", "--rows", "a", "-o", folder.file("t.xlsx")}, {in, none, none});
    _exit(0);
  }
  int status = 0;
  ASSERT_EQ(child, waitpid(child, &status, 0));
  if (render::canWriteXlsx()) {
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM);
  } else {
    EXPECT_TRUE(WIFEXITED(status));
  }
  EXPECT_EQ((Names{"t.xlsx"}), folder.names());
  EXPECT_EQ("former", contentOf(folder.file("t.xlsx")));
}

}  // namespace
}  // namespace om::test
