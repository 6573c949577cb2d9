// Text from others stays text in every format, from the CSV file to the document: it becomes no
// markup, no formula, no control sequence and no path.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <nlohmann/json.hpp>

#include "render/XlsxWriter.h"
#include "tests/render/Html.h"
#include "tests/tools/tabulate/RunProgram.h"
#include "tests/tools/tabulate/TemporaryFolder.h"
#include "tests/tools/tabulate/TestData.h"

namespace om::test {
namespace {

using Json = nlohmann::json;
using Names = std::vector<std::string>;
using tabulate::ExitCode;

const Names kHostile{"<script>alert(1)</script>",
                     "\"><img src=x onerror=alert(1)>",
                     "</table></style><!--",
                     "&lt;&#0;",
                     "=HYPERLINK(\"http://x\",\"y\")",
                     "+1+cmd|' /C calc'!A0",
                     "-2+3",
                     "@SUM(A1)",
                     "'=1+1",
                     "../../etc/passwd",
                     "/etc/passwd",
                     "C:\\x",
                     "\x1b[31mred\x1b]0;title\x07",
                     "\xc2\x9b"
                     "31m C1",
                     "\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d",
                     "\xe2\x80\xae"
                     "txt.exe",
                     "bell\x07 delete\x7f",
                     "line\nbreak\r\nand\ttab",
                     std::string("nul\0here", 8),
                     std::string(20'000, 'x')};

std::string quoted(const std::string& text) {
  std::string field = "\"";
  for (const char c : text) field += c == '"' ? std::string("\"\"") : std::string(1, c);
  return field + '"';
}

// A name in an option.
std::string escaped(const std::string& name) {
  std::string result;
  for (const char c : name) {
    if (c == '/' || c == ',' || c == '\\') result += '\\';
    result += c;
  }
  return result;
}

// Each of the texts as a label of two columns, whose names are hostile too, and as title, caption
// and note of the table.
class ProgramHostile : public testing::Test {
 protected:
  ProgramHostile() : inFolder_(folder_.path()) {
    std::filesystem::create_directory("in");
    std::string data = quoted(kHostile[0]) + "," + quoted(kHostile[4]) + ",n\n";
    for (std::size_t i = 0; i < kHostile.size(); ++i) {
      const std::string& other = kHostile[(i + 1) % kHostile.size()];
      data += quoted(kHostile[i]) + "," + quoted(other) + ",1\n";
    }
    folder_.write("in/d.csv", data);
  }

  // What is written to a file by this name.
  std::string written(const std::string& name, Arguments more = {}) const {
    Arguments arguments{
        "in/d.csv", "--rows",    escaped(kHostile[0]), "--layers",   escaped(kHostile[4]),
        "--title",  kHostile[1], "--caption",          kHostile[12], "-o",
        name};
    for (const std::string& text : kHostile) {
      // An argument ends at a NUL.
      arguments.insert(arguments.end(), {"--note=" + text.substr(0, text.find('\0'))});
    }
    arguments.insert(arguments.end(), more.begin(), more.end());
    const Ran ran = run(arguments);
    EXPECT_EQ("", ran.err);
    EXPECT_EQ(ExitCode::DONE, ran.code);
    EXPECT_EQ("", ran.out);
    EXPECT_EQ((Names{"in", name}), folder_.names());
    EXPECT_EQ(1, std::distance(std::filesystem::directory_iterator("in"), {}));
    return contentOf(name);
  }

 private:
  const TemporaryFolder folder_;
  const WorkingFolder inFolder_;
};

// Every text in a JSON value, keys included.
void forEachText(const Json& value, const std::function<void(const std::string&)>& use) {
  if (value.is_string()) use(value.get<std::string>());
  if (value.is_object()) {
    for (const auto& [key, element] : value.items()) use(key);
  }
  for (const Json& element : value) {
    if (!value.is_primitive()) forEachText(element, use);
  }
}

bool isControl(const std::string& text, std::size_t at) {
  const auto byte = static_cast<unsigned char>(text[at]);
  const bool isC1 =
      byte == 0xc2 && at + 1 < text.size() && static_cast<unsigned char>(text[at + 1]) < 0xa0;
  return (byte < 0x20 && byte != '\n') || byte == 0x7f || isC1;
}

TEST_F(ProgramHostile, TextHasNoControlCharacters) {
  for (const Arguments& more : {Arguments{}, Arguments{"--width", "40", "--ascii"}}) {
    const std::string text = written("t.txt", more);
    for (std::size_t i = 0; i < text.size(); ++i) ASSERT_FALSE(isControl(text, i)) << i;
    EXPECT_NE(std::string::npos, text.find("31mred"));
  }
}

TEST_F(ProgramHostile, HtmlHasNoMarkupOfTheirs) {
  const std::string page = written("t.html");
  std::size_t scripts = 0;
  Names texts;
  for (const HtmlToken& token : tokensOf(page)) {
    scripts += token.name == "script" ? 1 : 0;
    EXPECT_NE("img", token.name);
    if (token.name.empty()) texts.push_back(token.text);
    for (const auto& [name, value] : token.attributes) {
      EXPECT_NE("on", name.substr(0, 2));
      EXPECT_NE("src", name);
      EXPECT_TRUE(name != "href" || value.starts_with("#")) << value;
      EXPECT_TRUE(name != "id" || value.find('<') == value.npos) << value;
    }
  }
  EXPECT_EQ(1U, scripts);
  EXPECT_NE(texts.end(),
            std::find(texts.begin(), texts.end(), "&lt;script&gt;alert(1)&lt;/script&gt;"));
  EXPECT_NE(texts.end(), std::find(texts.begin(), texts.end(), "&amp;lt;&amp;#0;"));
  EXPECT_NE(std::string::npos, page.find("<bdi>\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d</bdi>"));
}

TEST_F(ProgramHostile, CsvHasNoFormulas) {
  written("t.csv");
  Names fields;
  for (const Names& record : recordsOf("t.csv")) {
    ASSERT_EQ(11U, record.size());  // of which the summary has no layer, and the table no column
    fields.insert(fields.end(), record.begin(), record.end());
  }
  EXPECT_GT(fields.size(), 11 * kHostile.size());
  for (const std::string& field : fields) {
    EXPECT_EQ(std::string::npos, field.substr(0, 1).find_first_of("=+-@\t\r")) << field;
    EXPECT_EQ(std::string::npos, field.find('\0'));
  }
  for (const std::string text : {"'=HYPERLINK(\"http://x\",\"y\")", "'+1+cmd|' /C calc'!A0",
                                 "'-2+3", "'@SUM(A1)", "''=1+1", "../../etc/passwd"}) {
    EXPECT_NE(fields.end(), std::find(fields.begin(), fields.end(), text)) << text;
  }
}

TEST_F(ProgramHostile, JsonParsesAndHoldsTheTexts) {
  for (const Arguments& more : {Arguments{}, Arguments{"--format", "jsonstat"}}) {
    Names texts;
    forEachText(Json::parse(written("t.json", more)),
                [&](const std::string& text) { texts.push_back(text); });
    for (const std::string& text : kHostile) {
      EXPECT_NE(texts.end(), std::find(texts.begin(), texts.end(), text)) << text.substr(0, 40);
    }
  }
}

TEST_F(ProgramHostile, XlsxGoesToItsFile) {
  if (render::canWriteXlsx()) {
    EXPECT_EQ("PK\x03\x04", written("t.xlsx").substr(0, 4));
  } else {
    const Ran ran = run({"in/d.csv", "--rows", escaped(kHostile[0]), "-o", "t.xlsx"});
    EXPECT_EQ("tabulate: this build cannot write xlsx\n", ran.err);
    EXPECT_FALSE(std::filesystem::exists("t.xlsx"));
  }
}

TEST_F(ProgramHostile, MessagesAreOneLineWithoutControlCharacters) {
  const Ran ran = run({"in/d.csv", "--rows", "a"});
  EXPECT_EQ(ExitCode::USAGE, ran.code);
  EXPECT_EQ("tabulate: in/d.csv: there is no column \"a\"; the columns are " + kHostile[0] + ", " +
                kHostile[4] + ", n\n",
            ran.err);
}

// A job from somebody else names files that it may not read.
TEST_F(ProgramHostile, AJobReadsInItsFolderAlone) {
  std::filesystem::create_directory("job");
  std::ofstream("job/j.json") << R"({"tables": [{"data": "../in/d.csv", "rows": ["n"]}]})";
  const Ran ran = run({"run", "job/j.json"});
  EXPECT_EQ(ExitCode::USAGE, ran.code);
  EXPECT_EQ(
      "tabulate: job/j.json: table 1: \"data\": \"../in/d.csv\" does not lie in the folder of the "
      "job or below it\n",
      ran.err);
}

}  // namespace
}  // namespace om::test
