// The lists of files that come with charts and interactive outputs, and which content a piece
// continues.

#include <gtest/gtest.h>

#include <span>
#include <string>
#include <vector>

#include "external/cells/OmStringCell.h"
#include "output/OmChart.h"
#include "output/OmInteractive.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

using Texts = std::vector<std::string>;
using Views = std::span<const std::string>;

// The three pairs of lists under one set of names.
class ChartWithCSV : public OmChart {
 public:
  ChartWithCSV() : OmChart(OmStringCell("label"), "", 1) {}
  void name(const char* data, unsigned length) { addCSVFileName(data, length); }
  void content(const char* data, unsigned length) { addCSVFileContent(data, length); }
  const Texts& names() const { return getCSVFileNames(); }
  const Texts& contents() const { return getCSVFiles(); }
  Views namesView() const { return viewCSVFileNames(); }
  Views contentsView() const { return viewCSVFiles(); }
  bool hasFile() const { return hasCSVFile(); }
};

class ChartWithGeoJSON : public OmChart {
 public:
  ChartWithGeoJSON() : OmChart(OmStringCell("label"), "", 1) {}
  void name(const char* data, unsigned length) { addGeoJSONFileName(data, length); }
  void content(const char* data, unsigned length) { addGeoJSONFileContent(data, length); }
  const Texts& names() const { return getGeoJSONFileNames(); }
  const Texts& contents() const { return getGeoJSONContent(); }
  Views namesView() const { return viewGeoJSONFileNames(); }
  Views contentsView() const { return viewGeoJSONContent(); }
  bool hasFile() const { return hasGeoJSONFile(); }
};

class InteractiveWithGeoJSON : public OmInteractive {
 public:
  InteractiveWithGeoJSON() : OmInteractive(OmStringCell("label"), "", 1) {}
  void name(const char* data, unsigned length) { addGeoJSONFileName(data, length); }
  void content(const char* data, unsigned length) { addGeoJSONFileContent(data, length); }
  const Texts& names() const { return getGeoJSONFileNames(); }
  const Texts& contents() const { return getGeoJSONContent(); }
  Views namesView() const { return viewGeoJSONFileNames(); }
  Views contentsView() const { return viewGeoJSONContent(); }
  bool hasFile() const { return hasGeoJSONFile(); }
};

template <class Part>
class EveryFileList : public testing::Test {
 protected:
  Part files;
};

using FileLists = testing::Types<ChartWithCSV, ChartWithGeoJSON, InteractiveWithGeoJSON>;
TYPED_TEST_SUITE(EveryFileList, FileLists, );

TYPED_TEST(EveryFileList, IsEmptyAtFirst) {
  EXPECT_EQ(this->files.names(), Texts());
  EXPECT_EQ(this->files.contents(), Texts());
  EXPECT_FALSE(this->files.hasFile());
}

TYPED_TEST(EveryFileList, TakesNamesEachWithItsContentInPieces) {
  this->files.name("a", 1);
  this->files.content("x", 1);
  this->files.content("y", 1);
  this->files.name("b", 1);
  this->files.content("z", 1);
  EXPECT_EQ(this->files.names(), (Texts{"a", "b"}));
  EXPECT_EQ(this->files.contents(), (Texts{"xy", "z"}));
  EXPECT_TRUE(this->files.hasFile());
}

TYPED_TEST(EveryFileList, HasAFileOnceThereIsAName) {
  this->files.name("a", 1);
  EXPECT_TRUE(this->files.hasFile());
  EXPECT_EQ(this->files.contents(), Texts());
}

TYPED_TEST(EveryFileList, MakesAContentOfEachPieceThatComesBeforeAnyName) {
  this->files.content("x", 1);
  this->files.content("y", 1);
  EXPECT_EQ(this->files.contents(), (Texts{"x", "y"}));
  EXPECT_EQ(this->files.names(), Texts());
  EXPECT_FALSE(this->files.hasFile());
}

TYPED_TEST(EveryFileList, ContinuesAContentThatCameBeforeAnyNameOnceThereIsOneName) {
  this->files.content("x", 1);
  this->files.name("a", 1);
  this->files.content("y", 1);
  EXPECT_EQ(this->files.contents(), (Texts{"xy"}));
}

TYPED_TEST(EveryFileList, BeginsAContentWhenMoreContentsThanNamesCameFirst) {
  this->files.content("x", 1);
  this->files.content("y", 1);
  this->files.name("a", 1);
  this->files.content("z", 1);
  EXPECT_EQ(this->files.contents(), (Texts{"x", "y", "z"}));
}

TYPED_TEST(EveryFileList, BeginsContentsUntilThereAreAsManyAsNames) {
  this->files.name("a", 1);
  this->files.name("b", 1);
  this->files.content("x", 1);
  this->files.content("y", 1);
  this->files.content("z", 1);
  EXPECT_EQ(this->files.contents(), (Texts{"x", "yz"}));
}

TYPED_TEST(EveryFileList, TakesExactlyTheBytesThatItIsTold) {
  this->files.name("a\0bc", 3);
  this->files.content("x\0yz", 3);
  this->files.content("\0w", 1);
  EXPECT_EQ(this->files.names(), Texts{std::string("a\0b", 3)});
  EXPECT_EQ(this->files.contents(), Texts{std::string("x\0y\0", 4)});
}

TYPED_TEST(EveryFileList, KeepsEmptyNamesAndContentsAsEntries) {
  this->files.name(nullptr, 0);
  this->files.content(nullptr, 0);
  this->files.name("b", 1);
  this->files.content("z", 1);
  this->files.content(nullptr, 0);
  EXPECT_EQ(this->files.names(), (Texts{"", "b"}));
  EXPECT_EQ(this->files.contents(), (Texts{"", "z"}));
  EXPECT_TRUE(this->files.hasFile());
}

TYPED_TEST(EveryFileList, KeepsNamesThatAreTheSame) {
  this->files.name("a", 1);
  this->files.content("x", 1);
  this->files.name("a", 1);
  this->files.content("y", 1);
  EXPECT_EQ(this->files.names(), (Texts{"a", "a"}));
  EXPECT_EQ(this->files.contents(), (Texts{"x", "y"}));
}

TYPED_TEST(EveryFileList, IsGivenWithoutACopy) {
  this->files.name("a", 1);
  this->files.content("x", 1);
  const TypeParam& list = this->files;
  EXPECT_EQ(list.namesView().data(), list.names().data());
  EXPECT_EQ(list.namesView().size(), 1U);
  EXPECT_EQ(list.contentsView().data(), list.contents().data());
  EXPECT_EQ(list.contentsView().size(), 1U);
  EXPECT_EQ(&list.names(), &list.names());
}

TYPED_TEST(EveryFileList, CopiesNoByteOfAContentMoreThanTwice) {
  constexpr unsigned kPiece = 4096;
  constexpr std::size_t kPieces = 512;
  const std::string piece(kPiece, 'x');
  this->files.name("a", 1);
  this->files.content(piece.data(), kPiece);
  std::size_t moved = 0;
  for (std::size_t i = 1; i < kPieces; ++i) {
    const std::string& content = this->files.contents()[0];
    const char* const place = content.data();
    const std::size_t size = content.size();
    this->files.content(piece.data(), kPiece);
    if (content.data() != place) moved += size;
  }
  ASSERT_EQ(this->files.contents().size(), 1U);
  EXPECT_EQ(this->files.contents()[0].size(), kPiece * kPieces);
  EXPECT_LE(moved, kPiece * kPieces);
}

TYPED_TEST(EveryFileList, StaysAsItWasWhenANameCannotBeAdded) {
  const std::string longName(100, 'n');
  const std::size_t failures = failEveryAllocation([&](FailurePoint& point) {
    TypeParam list;
    list.name("a", 1);
    const bool completed = point.during([&] { list.name(longName.data(), 100); });
    EXPECT_EQ(completed, !point.failed());
    EXPECT_EQ(list.names(), completed ? (Texts{"a", longName}) : Texts{"a"});
  });
  EXPECT_EQ(failures, 2U);  // the list, the name
}

TYPED_TEST(EveryFileList, StaysAsItWasWhenAContentCannotBeBegunOrContinued) {
  const std::string piece(100, 'x');
  const std::size_t failures = failEveryAllocation([&](FailurePoint& point) {
    TypeParam list;
    list.name("a", 1);
    list.content("x", 1);
    const bool continued = point.during([&] { list.content(piece.data(), 100); });
    EXPECT_EQ(list.contents(), Texts{continued ? "x" + piece : "x"});
    list.name("b", 1);
    const Texts before = list.contents();
    const bool begun = point.during([&] { list.content(piece.data(), 100); });
    EXPECT_EQ(list.contents(), begun ? (Texts{before[0], piece}) : before);
    EXPECT_EQ(list.names(), (Texts{"a", "b"}));
    EXPECT_EQ(continued && begun, !point.failed());
  });
  EXPECT_EQ(failures, 3U);  // the continued content, the list, the new content
}

TEST(ChartFiles, AreKeptApartByTheirFormat) {
  OmChart chart(OmStringCell("label"), "", 1);
  chart.addCSVFileName("a", 1);
  chart.addGeoJSONFileContent("g", 1);
  chart.addCSVFileContent("x", 1);
  chart.addGeoJSONFileContent("h", 1);
  chart.addCSVFileContent("y", 1);
  EXPECT_EQ(chart.getCSVFiles(), Texts{"xy"});
  EXPECT_EQ(chart.getGeoJSONContent(), (Texts{"g", "h"}));
  EXPECT_TRUE(chart.hasCSVFile());
  EXPECT_FALSE(chart.hasGeoJSONFile());
}

}  // namespace
}  // namespace om::test
