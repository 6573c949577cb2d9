// Workbooks: that they are written, and what stands in the way. Their content is read back by
// scripts/check-xlsx.

#include "render/XlsxWriter.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

#include "tests/render/SampleDocuments.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

class XlsxWriter : public testing::Test {
 protected:
  XlsxWriter()
      : path_(std::filesystem::temp_directory_path() /
              ("om-" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()) +
               ".xlsx")) {}
  ~XlsxWriter() override { std::filesystem::remove(path_); }

  std::string firstBytes() const {
    std::string bytes(4, '\0');
    std::ifstream(path_, std::ios::binary).read(bytes.data(), 4);
    return bytes;
  }

  static std::string failureOf(const OmOutputTree& document, const std::string& path) {
    try {
      render::writeXlsx(document, path);
    } catch (const std::runtime_error& error) {
      return error.what();
    }
    return "";
  }

  const std::filesystem::path path_;
};

TEST_F(XlsxWriter, CanWriteInThisBuild) { EXPECT_TRUE(render::canWriteXlsx()); }

TEST_F(XlsxWriter, WritesAnArchive) {
  render::writeXlsx(sampleDocument(), path_.string());
  EXPECT_EQ(firstBytes(), "PK\x03\x04");
}

TEST_F(XlsxWriter, ReplacesAFile) {
  std::ofstream(path_) << std::string(1'000'000, 'x');
  render::writeXlsx(OmOutputTree(), path_.string());
  EXPECT_EQ(firstBytes(), "PK\x03\x04");
  EXPECT_LT(std::filesystem::file_size(path_), 100'000U);
}

TEST_F(XlsxWriter, TellsWhyTheFileCannotBeWritten) {
  EXPECT_EQ(failureOf(OmOutputTree(), "/no-such-folder/x.xlsx"),
            "cannot be written: No such file or directory");
}

TEST_F(XlsxWriter, RefusesATableThatIsTooWideForASheet) {
  SampleTable table = sampleTable("Wide");
  addSampleDimension(*table, "C", std::vector<std::string>(16'385, "c"));
  table->Columns().push_back(0);
  for (int i = 0; i < 16'385; ++i) table->Cell({i}, OmNumber(i));
  OmOutputTree document;
  document.AppendLast(flatTable(), 1);
  document.AppendLast(std::move(table), 1);
  EXPECT_EQ(failureOf(document, path_.string()),
            "the table \"Wide\" has 1 rows and 16385 columns, which is too large for a sheet");
}

TEST_F(XlsxWriter, TakesATableThatIsAsWideAsASheet) {
  SampleTable table = sampleTable("Wide");
  addSampleDimension(*table, "C", std::vector<std::string>(16'384, "c"));
  table->Columns().push_back(0);
  for (int i = 0; i < 16'384; ++i) table->Cell({i}, OmNumber(i));
  OmOutputTree document;
  document.AppendLast(std::move(table), 1);
  EXPECT_EQ(failureOf(document, path_.string()), "");
}

TEST_F(XlsxWriter, LeavesNothingBehindWhenMemoryEnds) {
  OmOutputTree document;
  document.AppendLast(footnoteTable(), 1);
  EXPECT_GT(failEveryAllocation([&](FailurePoint& failure) {
              failure.during([&] { render::writeXlsx(document, path_.string()); });
            }),
            50U);
}

}  // namespace
}  // namespace om::test
