// Documents as plain text: headings, texts, objects, and what hostile ones come to; failures.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <string_view>
#include <utility>

#include "render/TextWriter.h"
#include "render/internal/Utf8.h"
#include "tests/render/SampleDocuments.h"
#include "tests/support/Allocations.h"
#include "tests/support/Golden.h"

namespace om::test {
namespace {

using render::TextOptions;

std::string textOf(const OmOutputTree& tree, const TextOptions& options = {}) {
  std::ostringstream out;
  render::writeText(tree, out, options);
  return out.str();
}

OmOutputTree treeOf(std::unique_ptr<OmOutputPart> part) {
  OmOutputTree tree;
  tree.AppendLast(std::move(part), 1);
  return tree;
}

// ---- Parts

TEST(TextDocument, HeadingsAreUnderlinedByTheirDepth) {
  OmOutputTree tree;
  tree.AppendLast(sampleHeading("One"), 1);
  tree.AppendLast(sampleProcedure("Two"), 2);
  tree.AppendLast(sampleHeading("Three"), 3);
  tree.AppendLast(sampleHeading("Four"), 4);
  EXPECT_EQ(textOf(tree),
            "One\n═══\n\n"
            "Two\n───\n\n"
            "Three\n┈┈┈┈┈\n\n"
            "Four\n┈┈┈┈\n");
  EXPECT_EQ(textOf(tree, {.ascii = true}),
            "One\n===\n\n"
            "Two\n---\n\n"
            "Three\n.....\n\n"
            "Four\n....\n");
}

TEST(TextDocument, TheUnderlineOfAWrappedHeadingIsAsWideAsItsWidestLine) {
  EXPECT_EQ(textOf(treeOf(sampleHeading("A heading of words")), {.width = 12, .ascii = true}),
            "A heading of\nwords\n============\n");
  EXPECT_EQ(textOf(treeOf(sampleHeading("漢字")), {.ascii = true}), "漢字\n====\n");
}

TEST(TextDocument, AHeadingWithoutALabelIsNotSeen) {
  EXPECT_EQ(textOf(treeOf(sampleHeading(""))), "");
}

TEST(TextDocument, APageTitleIsCentred) {
  EXPECT_EQ(textOf(treeOf(samplePageTitle({"Title", "of it"})), {.width = 21}),
            "        Title\n        of it\n");
  EXPECT_EQ(textOf(treeOf(samplePageTitle({"Title"})), {.width = 0}), "Title\n");
}

TEST(TextDocument, ALogHasALineBesideIt) {
  EXPECT_EQ(textOf(treeOf(sampleBlock("Log", {"FREQUENCIES", "  x."}))),
            "Log\n│ FREQUENCIES\n│   x.\n");
  EXPECT_EQ(textOf(treeOf(sampleBlock("Log", {"x"})), {.ascii = true}), "Log\n| x\n");
}

TEST(TextDocument, LinesOfATextStandIndentedUnderItsLabel) {
  EXPECT_EQ(textOf(treeOf(sampleBlock("Warning", {"one", "two"}))), "Warning\n  one\n  two\n");
  EXPECT_EQ(textOf(treeOf(sampleBlock("", {"one", "two"}))), "one\ntwo\n");
}

TEST(TextDocument, ATextWithoutLinesIsItsLabel) {
  EXPECT_EQ(textOf(treeOf(sampleBlock("Too large to be kept", {}))), "Too large to be kept\n");
  EXPECT_EQ(textOf(treeOf(sampleBlock("", {}))), "");
}

TEST(TextDocument, LongLinesOfATextAreWrapped) {
  EXPECT_EQ(textOf(treeOf(sampleBlock("Log", {"one two three"})), {.width = 9}),
            "Log\n│ one two\n│ three\n");
}

TEST(TextDocument, TabsOfATextReachTheNextEighthColumn) {
  EXPECT_EQ(textOf(treeOf(sampleBlock("", {"a\tb", "漢字\tc", "12345678\td"}))),
            "a       b\n漢字    c\n12345678        d\n");
  EXPECT_EQ(textOf(treeOf(sampleBlock("", {"long line\na\tb\tc"}))),
            "long line\na       b       c\n");
}

TEST(TextDocument, TextsAreReadInTheirCodePage) {
  EXPECT_EQ(textOf(treeOf(sampleBlock("T\xE9xte", {"na\xEFve"}, "windows-1252"))),
            "Téxte\n  naïve\n");
}

TEST(TextDocument, ObjectsAreShownByNameTypeAndSize) {
  OmOutputTree tree;
  tree.AppendLast(sampleChart("Mass", tinyPng()), 1);  // 8 bytes of description, 67 of image
  tree.AppendLast(sampleChart("", {}), 1);
  tree.AppendLast(sampleModel("Small", 1), 1);
  tree.AppendLast(sampleModel("Below", 1023), 1);
  tree.AppendLast(sampleModel("Unit", 1024), 1);
  tree.AppendLast(sampleModel("Rounded", 1024 * 1024 - 1), 1);
  tree.AppendLast(sampleModel("Large", 1'500'000), 1);  // 1.43 MiB
  tree.AppendLast(sampleInteractive("Map\nof it"), 1);
  EXPECT_EQ(textOf(tree),
            "[Chart: Mass] image/png, 75 bytes\n\n"
            "[Chart] 8 bytes\n\n"
            "[Model: Small] 1 byte\n\n"
            "[Model: Below] 1023 bytes\n\n"
            "[Model: Unit] 1.0 KiB\n\n"
            "[Model: Rounded] 1.0 MiB\n\n"
            "[Model: Large] 1.4 MiB\n\n"
            "[Interactive output: Map of it] 2 bytes\n");
}

TEST(TextDocument, AnEmptyDocumentIsEmpty) { EXPECT_EQ(textOf(OmOutputTree()), ""); }

// ---- Goldens

TEST(TextDocument, TheSampleDocumentIsWrittenAsInItsGoldenFile) {
  expectGolden("text/document.txt", textOf(sampleDocument()));
}

TEST(TextDocument, InAsciiOnANarrowPageItIsWrittenAsInItsGoldenFile) {
  expectGolden("text/narrow_ascii.txt", textOf(sampleDocument(), {.width = 40, .ascii = true}));
}

TEST(TextDocument, AWideTableIsWrittenAsInItsGoldenFile) {
  expectGolden("text/wide.txt", textOf(treeOf(wideTable())));
}

TEST(TextDocument, AHostileDocumentIsWrittenAsInItsGoldenFile) {
  expectGolden("text/hostile.txt", textOf(hostileDocument()));
}

// ---- Hostile texts

TEST(TextDocument, NothingInADocumentControlsTheTerminal) {
  const std::string text = textOf(hostileDocument());
  EXPECT_TRUE(render::internal::isUtf8(text));
  for (const char c : text) {
    EXPECT_TRUE(c == '\n' || (static_cast<unsigned char>(c) >= 0x20 && c != '\x7F'));
  }
  for (const std::string_view turning :
       {"\u202A", "\u202B", "\u202D", "\u202E", "\u2066", "\u2067"}) {
    EXPECT_EQ(text.find(turning), std::string::npos);
  }
}

TEST(TextDocument, ExtremelyLongTextsAreWritten) {
  const std::string label(1'000'000, 'x');
  SampleTable table = sampleTable(label);
  addSampleDimension(*table, label, {label});
  table->Rows().push_back(0);
  table->Cell({0}, OmStringCell(label));
  const std::string text = textOf(treeOf(std::move(table)));
  // The title, the name, the label and the cell.
  EXPECT_EQ(std::count(text.begin(), text.end(), 'x'), 4'000'000);
}

// ---- Failures

// Takes a number of bytes, then fails or throws.
class Narrow : public std::streambuf {
 public:
  Narrow(std::size_t room, bool throws) : room_(room), throws_(throws) {}
  std::size_t taken() const { return taken_; }
  std::size_t callsBehind() const { return callsBehind_; }

 private:
  std::streamsize xsputn(const char* /*bytes*/, std::streamsize count) override {
    const auto wanted = static_cast<std::size_t>(count);
    if (hasFailed_) ++callsBehind_;
    if (taken_ + wanted <= room_) {
      taken_ += wanted;
      return count;
    }
    hasFailed_ = true;
    if (throws_) throw std::runtime_error("full");
    return 0;
  }
  int_type overflow(int_type byte) override {
    const char c = traits_type::to_char_type(byte);
    return xsputn(&c, 1) == 1 ? byte : traits_type::eof();
  }

  const std::size_t room_;
  const bool throws_;
  std::size_t taken_ = 0;
  bool hasFailed_ = false;
  std::size_t callsBehind_ = 0;
};

OmOutputTree largeDocument() {
  OmOutputTree tree;
  for (int i = 0; i < 50; ++i) {
    tree.AppendLast(sampleHeading("Heading"), 1);
    tree.AppendLast(nestedTable(), 2);
  }
  return tree;
}

TEST(TextDocument, AStreamThatFailsIsNotWrittenToAnyMore) {
  const OmOutputTree tree = largeDocument();
  for (const std::size_t room : {0U, 1U, 20'000U, 50'000U}) {
    Narrow narrow(room, false);
    std::ostream out(&narrow);
    render::writeText(tree, out);
    EXPECT_TRUE(out.fail());
    EXPECT_LE(narrow.taken(), room);
    EXPECT_EQ(narrow.callsBehind(), 0U);
  }
}

TEST(TextDocument, WhatTheStreamThrowsIsPassedOn) {
  const OmOutputTree tree = largeDocument();
  Narrow narrow(20'000, true);
  std::ostream out(&narrow);
  out.exceptions(std::ios::badbit);
  EXPECT_THROW(render::writeText(tree, out), std::runtime_error);
}

TEST(TextDocument, AStreamThatHasFailedBeforeGetsNothing) {
  Narrow narrow(1000, false);
  std::ostream out(&narrow);
  out.setstate(std::ios::failbit);
  render::writeText(largeDocument(), out);
  EXPECT_EQ(narrow.taken(), 0U);
}

// A stream that takes everything and keeps nothing.
class Sink : public std::streambuf {
  std::streamsize xsputn(const char* /*bytes*/, std::streamsize count) override { return count; }
  int_type overflow(int_type byte) override { return byte; }
};

TEST(TextDocument, RunningOutOfMemoryLeavesNothingBehind) {
  const OmOutputTree tree = sampleDocument();
  Sink sink;
  std::ostream out(&sink);
  const std::size_t failures = failEveryAllocation([&](FailurePoint& point) {
    point.during([&] { render::writeText(tree, out, {.width = 40}); });
  });
  EXPECT_GT(failures, 100U);
}

}  // namespace
}  // namespace om::test
