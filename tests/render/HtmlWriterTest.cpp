// A page: its head, its outline, and what it shows of each kind of part.

#include "render/HtmlWriter.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "render/internal/HtmlOut.h"
#include "render/internal/HtmlScript.h"
#include "render/internal/HtmlStyle.h"
#include "render/internal/Sha256.h"
#include "tests/render/Html.h"
#include "tests/render/SampleDocuments.h"
#include "tests/support/Golden.h"

namespace om::test {
namespace {

template <class Part>
std::string mainOf(std::unique_ptr<Part> part) {
  OmOutputTree tree;
  tree.AppendLast(std::move(part), 1);
  return between(htmlOf(tree), "<h1>Output</h1>\n", "\n</main>");
}

std::string expected(const std::string& content) {
  return "<h1>Output</h1>\n" + content + "\n</main>";
}

// Without the style sheet and the script, which have tests of their own in a browser.
std::string withoutCode(std::string page) {
  for (const auto& [begin, end] :
       {std::pair("<style>", "</style>"), std::pair("<script>", "</script>"),
        std::pair("sha256-", "'"), std::pair("script-src 'sha256-", "'")}) {
    const std::size_t from = page.find(begin) + std::string(begin).size();
    page.replace(from, page.find(end, from) - from, "...");
  }
  return page;
}

TEST(HtmlWriter, WritesTheSampleDocument) {
  render::HtmlOptions options;
  options.title = "Penguins and passengers";
  expectGolden("html/sample.html", withoutCode(htmlOf(sampleDocument(), options)));
}

TEST(HtmlWriter, WritesHostileTexts) {
  expectGolden("html/hostile.html", withoutCode(htmlOf(hostileDocument())));
}

TEST(HtmlWriter, WritesATableAlone) {
  expectGolden("html/table.html", withoutCode(htmlOf(*footnoteTable())));
}

TEST(HtmlWriter, NamesTheLanguageAndTheTitleOfThePage) {
  render::HtmlOptions options;
  options.title = "Kosten & Nutzen\n<2020>";
  options.language = "de\"x";
  const std::string page = htmlOf(OmOutputTree(), options);
  EXPECT_TRUE(
      page.starts_with("<!DOCTYPE html>\n<html lang=\"de&quot;x\">\n<head>\n"
                       "<meta charset=\"utf-8\">\n"));
  EXPECT_EQ(between(page, "<title>", "</title>"),
            "<title>Kosten &amp; Nutzen &lt;2020&gt;</title>");
  EXPECT_EQ(between(page, "<h1>", "</h1>"), "<h1>Kosten &amp; Nutzen<br>&lt;2020&gt;</h1>");
}

TEST(HtmlWriter, LetsNothingActInThePageButItsOwnStyleAndScript) {
  const auto digest = [](std::string_view code) {
    std::ostringstream stream;
    render::internal::HtmlOut out(stream);
    out.base64(render::internal::sha256(code)).flush();
    return stream.str();
  };
  const std::string page = htmlOf(OmOutputTree());
  EXPECT_EQ(between(page, "<meta http-equiv", "\n"),
            "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; "
            "img-src data:; style-src 'sha256-" +
                digest(render::internal::kHtmlStyle) + "'; script-src 'sha256-" +
                digest(render::internal::kHtmlScript) +
                "'; base-uri 'none'; form-action 'none'\">\n");
  EXPECT_EQ(between(page, "<style>", "</style>"),
            "<style>" + std::string(render::internal::kHtmlStyle) + "</style>");
  EXPECT_EQ(between(page, "<script>", "</script>"),
            "<script>" + std::string(render::internal::kHtmlScript) + "</script>");
}

TEST(HtmlWriter, NeedsNothingElse) {
  for (const OmOutputTree& document : {sampleDocument(), hostileDocument()}) {
    for (const HtmlToken& token : tokensOf(htmlOf(document))) {
      for (const auto& [name, value] : token.attributes) {
        EXPECT_FALSE(name.starts_with("on") || name == "style" || name == "srcset") << name;
        EXPECT_TRUE(name != "src" || value.starts_with("data:image/")) << value;
        EXPECT_TRUE(name != "href" || value.starts_with("#")) << value;
      }
    }
  }
}

TEST(HtmlWriter, ListsThePartsInAnOutline) {
  OmOutputTree tree;
  tree.AppendLast(sampleProcedure("Means"), 1);
  tree.AppendLast(sampleBlock("Log", {"x"}), 2);
  tree.AppendLast(sampleHeading("Empty"), 2);
  tree.AppendLast(flatTable(), 1);
  EXPECT_EQ(
      between(htmlOf(tree), "<nav", "</nav>"),
      "<nav class=\"outline\" aria-label=\"Outline\"><details open><summary>Outline</summary>\n"
      "<ul>\n<li><a class=\"heading\" href=\"#p1\">Means</a>\n"
      "<ul>\n<li><a href=\"#p2\">Log</a></li>\n"
      "<li><a class=\"heading\" href=\"#p3\">Empty</a></li>\n</ul>\n</li>\n"
      "<li><a href=\"#p4\">Penguins by species</a></li>\n</ul>\n</details></nav>");
}

TEST(HtmlWriter, LinksEveryPartOnce) {
  const std::string page = htmlOf(sampleDocument());
  const std::string outline = between(page, "<nav", "</nav>");
  EXPECT_EQ(countOf(outline, "href=\"#p"), 18U);
  for (int part = 1; part <= 18; ++part) {
    EXPECT_EQ(countOf(outline, "href=\"#p" + std::to_string(part) + "\""), 1U);
    EXPECT_EQ(countOf(page, "id=\"p" + std::to_string(part) + "\""), 1U);
  }
}

TEST(HtmlWriter, LeavesOutWhatIsNotVisible) {
  EXPECT_EQ(countOf(htmlOf(sampleDocument()), "Not shown"), 0U);
  EXPECT_EQ(countOf(htmlOf(sampleDocument()), "not shown either"), 0U);
}

TEST(HtmlWriter, SaysThatADocumentIsEmpty) {
  const std::string page = htmlOf(OmOutputTree());
  EXPECT_EQ(countOf(page, "<nav"), 0U);
  EXPECT_EQ(
      between(page, "<main", "</main>"),
      "<main id=\"content\">\n<h1>Output</h1>\n<p class=\"empty\">This document is empty.</p>\n"
      "</main>");
}

// Levels count the headings around a part, not its depth, and end at 6.
TEST(HtmlWriter, NestsHeadings) {
  OmOutputTree tree;
  tree.AppendLast(flatTable(), 1);
  tree.AppendLast(sampleHeading("Below a table"), 2);
  for (int level = 3; level < 9; ++level) {
    tree.AppendLast(sampleHeading("Heading " + std::to_string(level)), level);
  }
  const std::string page = htmlOf(tree);
  EXPECT_EQ(countOf(page, "<h2>Below a table</h2>"), 1U);
  EXPECT_EQ(countOf(page, "<h3>Heading 3</h3>"), 1U);
  EXPECT_EQ(countOf(page, "<h6>Heading 6</h6>"), 1U);
  EXPECT_EQ(countOf(page, "<h6>Heading 8</h6>"), 1U);
  EXPECT_NO_THROW(tokensOf(page));
}

TEST(HtmlWriter, ReadsLabelsInTheirCodePage) {
  OmOutputTree tree;
  tree.AppendLast(std::make_unique<OmProcedure>(OmStringCell("Gr\xF6\xDF"
                                                             "e"),
                                                "de", "windows-1252", "de_DE"),
                  1);
  tree.AppendLast(sampleBlock("H\xF6he", {"\xFC"}, "windows-1252"), 2);
  const std::string page = htmlOf(tree);
  EXPECT_EQ(countOf(page, "<h2>Größe</h2>"), 1U);
  EXPECT_EQ(countOf(page, "<h3 class=\"label\">Höhe</h3>\n<p>ü</p>"), 1U);
}

TEST(HtmlWriter, NamesPartsWithoutALabelByTheirKind) {
  EXPECT_EQ(countOf(mainOf(sampleHeading(" \n")), "<h2>Heading</h2>"), 1U);
  EXPECT_EQ(mainOf(sampleModel("", 1)),
            expected("<div class=\"part object\" id=\"p1\">\n<p><span>Model</span> "
                     "<span class=\"size\">1 byte</span></p>\n</div>"));
}

TEST(HtmlWriter, KeepsALogAsItIs) {
  EXPECT_EQ(mainOf(sampleBlock("Log", {"", "  a  b", "<i>", ""})),
            expected("<div class=\"part log\" id=\"p1\">\n<h2 class=\"label\">Log</h2>\n"
                     "<pre class=\"scroll\" role=\"group\" tabindex=\"0\" aria-label=\"Log\">\n"
                     "\n  a  b\n&lt;i&gt;\n\n</pre>\n</div>"));
}

TEST(HtmlWriter, BreaksTextsIntoParagraphsAtBlankLines) {
  EXPECT_EQ(mainOf(sampleBlock("Warning", {"", "One", "two", " ", "", "Three"})),
            expected("<div class=\"part words\" id=\"p1\">\n<h2 class=\"label\">Warning</h2>\n"
                     "<p>One<br>\ntwo</p>\n<p>Three</p>\n</div>"));
}

TEST(HtmlWriter, ShowsAPageTitleLineByLine) {
  EXPECT_EQ(mainOf(samplePageTitle({"Penguins", "A sample"})),
            expected("<div class=\"part page-title words\" id=\"p1\">\n<p>Penguins</p>\n"
                     "<p>A sample</p>\n</div>"));
}

TEST(HtmlWriter, ShowsTheImageOfAChart) {
  // The tiny image in base64, worked out by another program.
  EXPECT_EQ(
      mainOf(sampleChart("Mass \"by\" species", tinyPng())),
      expected(
          "<figure class=\"part\" id=\"p1\">\n<img src=\"data:image/png;base64,"
          "iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAAAAAA6fptVAAAACklEQVR4nGNoAAAAggCBd81ytgAAAABJRU5E"
          "rkJggg==\" alt=\"Mass &quot;by&quot; species\">\n<figcaption>"
          "<span class=\"kind\">Chart</span> <span>Mass &quot;by&quot; species</span>"
          "</figcaption>\n</figure>"));
}

TEST(HtmlWriter, ShowsVectorImagesAsImagesToo) {
  EXPECT_EQ(countOf(mainOf(sampleChart("Chart", "<svg onload=\"alert(1)\">")),
                    "<img src=\"data:image/svg+xml;base64,PHN2ZyBvbmxvYWQ9ImFsZXJ0KDEpIj4=\""),
            1U);
}

TEST(HtmlWriter, ShowsAChartWithoutAKnownImageByItsSize) {
  // 8 bytes of description.
  EXPECT_EQ(mainOf(sampleChart("Mass", "no image")),
            expected("<div class=\"part object\" id=\"p1\">\n<p><span class=\"kind\">Chart</span> "
                     "<span>Mass</span> <span class=\"size\">16 bytes</span></p>\n</div>"));
}

TEST(HtmlWriter, IsolatesTextsThatRunFromRightToLeft) {
  EXPECT_EQ(countOf(mainOf(sampleBlock("שלום", {"שלום"})), "<bdi>שלום</bdi>"), 2U);
}

}  // namespace
}  // namespace om::test
