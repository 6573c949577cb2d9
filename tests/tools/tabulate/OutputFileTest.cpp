// Files that are there whole or not at all.

#include "tools/tabulate/OutputFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "tests/support/Leaks.h"
#include "tests/tools/tabulate/TemporaryFolder.h"
#include "tests/tools/tabulate/TestData.h"
#include "tools/tabulate/Failure.h"

namespace om::test {
namespace {

using tabulate::OutputFile;
using Names = std::vector<std::string>;

std::string refusal(const std::string& name) {
  try {
    OutputFile file(name);
    file.stream() << std::string(1 << 20, 'x');
    file.commit();
  } catch (const tabulate::Failure& failure) {
    EXPECT_EQ(tabulate::ExitCode::DATA, failure.code());
    return failure.what();
  }
  return "";
}

TEST(OutputFile, IsInItsPlaceOnceItIsCommitted) {
  const TemporaryFolder folder;
  OutputFile file(folder.file("a.txt"));
  file.stream() << "text";
  EXPECT_FALSE(std::filesystem::exists(folder.file("a.txt")));
  file.commit();
  EXPECT_EQ((Names{"a.txt"}), folder.names());
  EXPECT_EQ("text", contentOf(folder.file("a.txt")));
}

TEST(OutputFile, IsNotThereWithoutACommit) {
  const TemporaryFolder folder;
  {
    OutputFile file(folder.file("a.txt"));
    file.stream() << "text";
  }
  EXPECT_TRUE(folder.names().empty());
}

TEST(OutputFile, LeavesTheFormerFileAsItIsUntilThen) {
  const TemporaryFolder folder;
  folder.write("a.txt", "former");
  {
    OutputFile file(folder.file("a.txt"));
    file.stream() << "text" << std::flush;
    EXPECT_EQ("former", contentOf(folder.file("a.txt")));
  }
  EXPECT_EQ("former", contentOf(folder.file("a.txt")));
  OutputFile file(folder.file("a.txt"));
  file.stream() << "text";
  file.commit();
  EXPECT_EQ("text", contentOf(folder.file("a.txt")));
}

mode_t modeOf(const std::string& name) {
  struct stat status {};
  stat(name.c_str(), &status);
  return status.st_mode & 07777;
}

TEST(OutputFile, HasTheRightsOfANewFileOrOfTheFormerOne) {
  const TemporaryFolder folder;
  const mode_t mask = umask(027);
  OutputFile fresh(folder.file("fresh"));
  fresh.commit();
  umask(mask);
  EXPECT_EQ(0640U, modeOf(folder.file("fresh")));
  folder.write("former", "");
  chmod(folder.file("former").c_str(), 0604);
  OutputFile file(folder.file("former"));
  file.commit();
  EXPECT_EQ(0604U, modeOf(folder.file("former")));
}

TEST(OutputFile, GoesWhereASymbolicLinkLeads) {
  const TemporaryFolder folder;
  folder.write("real", "former");
  std::filesystem::create_symlink("real", folder.file("link"));
  OutputFile file(folder.file("link"));
  file.stream() << "text";
  file.commit();
  EXPECT_TRUE(std::filesystem::is_symlink(folder.file("link")));
  EXPECT_EQ("text", contentOf(folder.file("real")));
}

TEST(OutputFile, WhatIsNoPlainFileIsWrittenDirectly) {
  OutputFile file("/dev/null");
  file.stream() << "text";
  file.commit();
  EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
}

TEST(OutputFile, SaysWhyItCannotBeWritten) {
  const TemporaryFolder folder;
  EXPECT_EQ(folder.file("no/a.txt") + ": cannot be written: No such file or directory",
            refusal(folder.file("no/a.txt")));
  EXPECT_EQ(folder.path() + ": cannot be written: Is a directory", refusal(folder.path()));
  EXPECT_EQ("/dev/full: cannot be written: No space left on device", refusal("/dev/full"));
  EXPECT_TRUE(folder.names().empty());
}

TEST(OutputFile, ASignalRemovesWhatIsUnfinished) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    const TemporaryFolder folder;
    folder.write("a.txt", "former");
    const pid_t child = fork();
    if (child == 0) {
      OutputFile::removeOnSignals();
      OutputFile file(folder.file("a.txt"));
      file.stream() << "text" << std::flush;
      raise(signal);
      _exit(0);
    }
    int status = 0;
    ASSERT_EQ(child, waitpid(child, &status, 0));
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == signal);
    EXPECT_EQ((Names{"a.txt"}), folder.names());
    EXPECT_EQ("former", contentOf(folder.file("a.txt")));
  }
}

}  // namespace
}  // namespace om::test
