// The footnotes of headings and procedures: their marks, and what texts, pages and JSON make of
// them.

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "render/FootnoteMarks.h"
#include "render/JsonWriter.h"
#include "render/TextWriter.h"
#include "tests/render/Html.h"
#include "tests/render/SampleDocuments.h"

namespace om::test {
namespace {

using render::FootnoteMarks;
using render::Marks;

// A heading whose label has the footnotes given, of three: one with a marker of its own.
std::unique_ptr<OmHeading> notedHeading(const std::vector<short>& notes,
                                        const std::string& label = "Results") {
  auto heading = sampleHeading(label);
  heading->Label().Footnotes() = notes;
  heading->Footnotes().push_back(sampleNote("First."));
  heading->Footnotes().push_back(sampleNote("Second.", "*"));
  heading->Footnotes().push_back(sampleNote("Third."));
  return heading;
}

// A procedure with a footnote, all in windows-1252.
std::unique_ptr<OmProcedure> notedProcedure() {
  auto procedure =
      std::make_unique<OmProcedure>(OmStringCell("H\xF6he"), "de", "windows-1252", "de_DE");
  procedure->Label().Footnotes() = {0};
  procedure->Footnotes().push_back(sampleNote("Gesch\xE4tzt.", "\xA7"));
  return procedure;
}

OmOutputTree treeOf(std::unique_ptr<OmHeading> heading) {
  OmOutputTree tree;
  tree.AppendLast(std::move(heading), 1);
  return tree;
}

std::string textOf(const OmOutputTree& tree, const render::TextOptions& options = {}) {
  std::ostringstream out;
  render::writeText(tree, out, options);
  return out.str();
}

std::string jsonOf(const OmOutputTree& tree) {
  std::ostringstream out;
  render::writeJson(tree, out);
  return out.str();
}

// As in "a=First. *=Second.".
std::string notesOf(const FootnoteMarks& marks) {
  std::string text;
  for (const FootnoteMarks::Note& note : marks.notes()) {
    if (!text.empty()) text += ' ';
    text += note.mark + "=" + note.text;
  }
  return text;
}

// ---- Marks

TEST(HeadingNotes, AreThoseOfTheLabelInItsOrder) {
  const auto heading = notedHeading({2, 1, 0, 2});
  const FootnoteMarks marks(*heading, {}, Marks::LETTERS);
  EXPECT_EQ(notesOf(marks), "a=Third. *=Second. b=First.");
  EXPECT_EQ(marks.marksOf(&heading->Label()), "a,*,b");
}

TEST(HeadingNotes, ThatTheLabelDoesNotHaveAreLeftOut) {
  EXPECT_EQ(notesOf(FootnoteMarks(*notedHeading({2}), {}, Marks::NUMBERS)), "1=Third.");
  EXPECT_EQ(notesOf(FootnoteMarks(*notedHeading({}), {}, Marks::NUMBERS)), "");
  EXPECT_EQ(notesOf(FootnoteMarks(*notedHeading({-1, 3}), {}, Marks::NUMBERS)), "");
}

TEST(HeadingNotes, AreReadInTheCodePage) {
  EXPECT_EQ(notesOf(FootnoteMarks(*notedProcedure(), "windows-1252", Marks::LETTERS)),
            "§=Geschätzt.");
}

// ---- Text

TEST(HeadingNotes, StandBelowTheLineOfAHeadingInText) {
  OmOutputTree tree = treeOf(notedHeading({0, 1}));
  tree.AppendLast(sampleBlock("", {"below"}), 2);
  EXPECT_EQ(textOf(tree),
            "Results[a,*]\n"
            "════════════\n"
            "[a] First.\n"
            "[*] Second.\n"
            "\n"
            "below\n");
}

TEST(HeadingNotes, AreMarkedAsTheOptionsSayInText) {
  render::TextOptions options;
  options.ascii = true;
  options.tables.marks = Marks::NUMBERS;
  EXPECT_EQ(textOf(treeOf(notedHeading({2})), options), "Results[1]\n==========\n[1] Third.\n");
}

TEST(HeadingNotes, OfALabelWithoutWordsAreShownInText) {
  EXPECT_EQ(textOf(treeOf(notedHeading({0}, ""))), "[a]\n═══\n[a] First.\n");
}

TEST(HeadingNotes, AreReadInTheCodePageOfTheProcedureInText) {
  EXPECT_EQ(textOf(treeOf(notedProcedure())), "Höhe[§]\n═══════\n[§] Geschätzt.\n");
}

// ---- HTML

TEST(HeadingNotes, AreLinkedBothWaysInAPage) {
  EXPECT_EQ(between(htmlOf(treeOf(notedHeading({0, 1}))), "<section", "</section>"),
            "<section id=\"p1\">\n"
            "<h2>Results<sup><a id=\"p1m0\" href=\"#p1n0\" role=\"doc-noteref\" "
            "aria-label=\"Footnote a\">a</a>, <a id=\"p1m1\" href=\"#p1n1\" "
            "role=\"doc-noteref\" aria-label=\"Footnote *\">*</a></sup></h2>\n"
            "<ul class=\"notes\">\n"
            "<li id=\"p1n0\"><a href=\"#p1m0\" role=\"doc-backlink\" "
            "aria-label=\"Back to footnote a\">a</a> First.</li>\n"
            "<li id=\"p1n1\"><a href=\"#p1m1\" role=\"doc-backlink\" "
            "aria-label=\"Back to footnote *\">*</a> Second.</li>\n"
            "</ul>\n</section>");
}

TEST(HeadingNotes, HaveNoMarksInTheOutline) {
  EXPECT_EQ(countOf(htmlOf(treeOf(notedHeading({0, 1}))),
                    "<li><a class=\"heading\" href=\"#p1\">Results</a></li>"),
            1U);
}

TEST(HeadingNotes, HaveIdsFromTheNumberOfTheirHeading) {
  OmOutputTree tree = treeOf(notedHeading({0}, "Same"));
  tree.AppendLast(notedHeading({0}, "Same"), 2);
  const std::string page = htmlOf(tree);
  for (const char* const id : {"p1m0", "p1n0", "p2m0", "p2n0"}) {
    EXPECT_EQ(countOf(page, "id=\"" + std::string(id) + "\""), 1U) << id;
  }
}

TEST(HeadingNotes, AreMarkedAsTheOptionsSayInAPage) {
  render::HtmlOptions options;
  options.tables.marks = Marks::SYMBOLS;
  EXPECT_EQ(countOf(htmlOf(treeOf(notedHeading({2})), options), "aria-label=\"Footnote *\">*</a>"),
            1U);
}

TEST(HeadingNotes, AreReadInTheCodePageOfTheProcedureInAPage) {
  const std::string page = htmlOf(treeOf(notedProcedure()));
  EXPECT_EQ(countOf(page, "<h2>Höhe<sup>"), 1U);
  EXPECT_EQ(countOf(page, ">§</a> Geschätzt.</li>"), 1U);
}

// ---- JSON

TEST(HeadingNotes, AreInJsonWithThePositionsThatTheLabelHas) {
  const std::string json = jsonOf(treeOf(notedHeading({2, 0, 2, 7})));
  EXPECT_EQ(countOf(json, "\"labelFootnotes\": [2,0]"), 1U);
  EXPECT_EQ(countOf(json, "{\"text\":\"Second.\",\"marker\":\"*\"}"), 1U);
  EXPECT_EQ(countOf(jsonOf(treeOf(notedHeading({}))), "labelFootnotes"), 0U);
}

TEST(HeadingNotes, AreReadInTheCodePageOfTheProcedureInJson) {
  EXPECT_EQ(countOf(jsonOf(treeOf(notedProcedure())), "{\"text\":\"Geschätzt.\",\"marker\":\"§\"}"),
            1U);
}

}  // namespace
}  // namespace om::test
