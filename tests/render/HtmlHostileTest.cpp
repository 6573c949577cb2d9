// Text never becomes markup: a page has the same tags and attributes whatever its texts say. And
// what the writer does when the stream fails, or memory ends.

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <ios>
#include <ostream>
#include <sstream>
#include <streambuf>
#include <string>

#include "tests/render/Html.h"
#include "tests/render/SampleDocuments.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

// Every place of a table where a text can stand holds this one.
SampleTable tableOf(const std::string& text) {
  SampleTable table = sampleTable(text);
  table->SetTableTitle(*noted(text, {0}));
  addSampleNote(*table, text, text.c_str());
  addSampleNote(*table, text);
  for (int i = 0; i < 3; ++i) {
    OmDimension& dimension = table->AddDimension(*noted(text, {1}));
    addSampleCategories(dimension, addSampleGroup(dimension, dimension.Root(), text), {text, text});
  }
  table->Rows().push_back(0);
  table->Columns().push_back(1);
  table->Layers().push_back(2);
  for (int i = 0; i < 8; ++i) {
    table->Cell({i & 1, i >> 1 & 1, i >> 2}, *noted(text, {0, 1}));
  }
  table->Caption(noted(text, {1}).get());
  table->CornerText(noted(text, {1}).get());
  return table;
}

// And every place of a document.
std::string pageOf(const std::string& text) {
  OmOutputTree tree;
  tree.AppendLast(samplePageTitle({text, text}), 1);
  tree.AppendLast(sampleHeading(text), 1);
  tree.AppendLast(sampleProcedure(text), 2);
  tree.AppendLast(sampleBlock("Log", {text, text}), 3);
  tree.AppendLast(sampleBlock(text, {text, text}), 3);
  tree.AppendLast(tableOf(text), 3);
  tree.AppendLast(sampleChart(text, tinyPng()), 1);
  tree.AppendLast(sampleChart(text, text), 1);
  tree.AppendLast(sampleModel(text, 10), 1);
  tree.AppendLast(sampleInteractive(text), 1);
  tree.AppendLast(sampleAnswerTree(text), 1);
  render::HtmlOptions options;
  options.title = text;
  options.language = text;
  return htmlOf(tree, options);
}

// The tags with their attributes, but for what texts decide: the values of attributes that hold
// text, line breaks, isolation, and how a text is set.
std::string skeletonOf(const std::string& page) {
  std::string skeleton;
  for (const HtmlToken& token : tokensOf(page)) {
    if (token.name.empty() || token.name == "br") continue;
    if (token.name == "bdi" || token.name == "/bdi") continue;
    skeleton += token.name;
    for (const auto& [name, value] : token.attributes) {
      const bool isSetting = (name == "class" && (value == "text" || value == "hang"));
      if (isSetting || name == "dir") continue;
      const bool isText = name == "aria-label" || name == "alt" || name == "lang";
      skeleton += ' ' + name + '=' + (isText ? "" : value);
    }
    skeleton += '\n';
  }
  return skeleton;
}

TEST(HtmlHostile, TextNeverBecomesMarkup) {
  const std::string harmless = skeletonOf(pageOf("x"));
  ASSERT_GT(countOf(harmless, "\n"), 200U);
  std::vector<std::string> texts = hostileTexts();
  for (const char* const more : {"</script><script>alert(1)</script>",
                                 "</style>",
                                 "</title>",
                                 "\" onclick=\"alert(1)",
                                 "' x='",
                                 "<!--",
                                 "-->",
                                 "]]>",
                                 "<![CDATA[",
                                 "&lt;script&gt;",
                                 "&#60;b&#62;",
                                 "&",
                                 "<",
                                 ">",
                                 "\"",
                                 "</select></fieldset>",
                                 "</pre>",
                                 "</td></tr></table>",
                                 "<base href=//x>",
                                 "javascript:alert(1)",
                                 "\xC0\xBCscript\xC0\xBE",
                                 "\xF8<",
                                 "\xE2<b>",
                                 "\xF0\x9F<b>",
                                 "<\nscript\n>",
                                 "{{x}}",
                                 "${x}",
                                 "\xEF\xBB\xBF<b>",
                                 "+ADw-script+AD4-"}) {
    texts.emplace_back(more);
  }
  for (const std::string& text : texts) {
    if (text.empty()) continue;
    EXPECT_EQ(skeletonOf(pageOf(text)), harmless) << text;
  }
}

TEST(HtmlHostile, PagesOfNoTextAreWellFormed) {
  for (const char* const text : {"", " ", "\n"}) EXPECT_NO_THROW(tokensOf(pageOf(text)));
}

TEST(HtmlHostile, AnyByteMayStandAnywhere) {
  const std::string harmless = skeletonOf(pageOf("x"));
  for (int byte = 0; byte < 256; ++byte) {
    const std::string text = std::string("a") + static_cast<char>(byte) + "b";
    ASSERT_EQ(skeletonOf(pageOf(text)), harmless) << byte;
  }
}

// Takes so many bytes, and then no more.
class ShortBuffer : public std::streambuf {
 public:
  explicit ShortBuffer(std::size_t room) : room_(room) {}
  const std::string& taken() const { return taken_; }
  int refusals() const { return refusals_; }

 protected:
  std::streamsize xsputn(const char* bytes, std::streamsize count) override {
    const std::size_t fits = std::min(static_cast<std::size_t>(count), room_ - taken_.size());
    if (fits < static_cast<std::size_t>(count)) ++refusals_;
    taken_.append(bytes, fits);
    return static_cast<std::streamsize>(fits);
  }
  int_type overflow(int_type) override { return traits_type::eof(); }

 private:
  std::size_t room_;
  std::string taken_;
  int refusals_ = 0;
};

TEST(HtmlFailure, WritesWhatFitsAndLeavesTheStreamFailed) {
  OmOutputTree document;
  for (int i = 0; i < 20; ++i) document.AppendLast(nestedTable(), 1);
  const std::string whole = htmlOf(document);
  ASSERT_GT(whole.size(), 100'000U);
  for (const std::size_t room :
       std::array<std::size_t, 5>{0, 1, 20'000, 80'000, whole.size() - 1}) {
    ShortBuffer buffer(room);
    std::ostream out(&buffer);
    render::writeHtml(document, out);
    EXPECT_FALSE(out);
    EXPECT_EQ(buffer.taken(), whole.substr(0, room));
    EXPECT_EQ(buffer.refusals(), 1);
  }
}

TEST(HtmlFailure, PassesOnWhatTheStreamThrows) {
  ShortBuffer buffer(10);
  std::ostream out(&buffer);
  out.exceptions(std::ios::badbit);
  EXPECT_THROW(render::writeHtml(sampleDocument(), out), std::ios::failure);
}

// Takes everything and keeps nothing.
class NullBuffer : public std::streambuf {
 protected:
  std::streamsize xsputn(const char*, std::streamsize count) override { return count; }
};

TEST(HtmlFailure, LeavesNothingBehindWhenMemoryEnds) {
  OmOutputTree document;
  document.AppendLast(sampleProcedure("A procedure with a long label"), 1);
  document.AppendLast(sampleBlock("Log", {"a line that is too long for a small string"}), 2);
  document.AppendLast(footnoteTable(), 2);
  document.AppendLast(nestedTable(), 2);
  document.AppendLast(sampleChart("A chart with a long label", tinyPng()), 2);
  NullBuffer buffer;
  EXPECT_GT(failEveryAllocation([&](FailurePoint& failure) {
              std::ostream out(&buffer);
              failure.during([&] { render::writeHtml(document, out); });
            }),
            50U);
}

}  // namespace
}  // namespace om::test
