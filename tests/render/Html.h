// Reads the pages that the HTML writer makes, strictly: what is not well formed by the few rules
// that the writer keeps is a failure.

#ifndef OM_TESTS_RENDER_HTML_H_
#define OM_TESTS_RENDER_HTML_H_

#include <algorithm>
#include <cstddef>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "render/HtmlWriter.h"

namespace om::test {

inline std::string htmlOf(const OmOutputTree& document, const render::HtmlOptions& options = {}) {
  std::ostringstream out;
  render::writeHtml(document, out, options);
  return out.str();
}

inline std::string htmlOf(OmPivotTable& table, const render::HtmlOptions& options = {}) {
  std::ostringstream out;
  render::writeHtml(table, out, options);
  return out.str();
}

// The part of a text from the first `begin` to the next `end`, both included.
inline std::string between(std::string_view text, std::string_view begin, std::string_view end) {
  const std::size_t from = text.find(begin);
  if (from == text.npos) return "no " + std::string(begin);
  const std::size_t to = text.find(end, from + begin.size());
  if (to == text.npos) return "no " + std::string(end);
  return std::string(text.substr(from, to + end.size() - from));
}

inline std::size_t countOf(std::string_view text, std::string_view part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at + part.size())) {
    ++count;
  }
  return count;
}

// A tag, or the text up to the next one.
struct HtmlToken {
  std::string name;  // with "/" in front of an end tag; empty for text
  std::vector<std::pair<std::string, std::string>> attributes;
  std::string text;

  std::string attribute(std::string_view wanted) const {
    for (const auto& [attributeName, value] : attributes) {
      if (attributeName == wanted) return value;
    }
    return {};
  }
};

class HtmlReader {
 public:
  explicit HtmlReader(std::string_view page) : rest_(page) {}

  // Throws std::runtime_error when the page is not well formed.
  std::vector<HtmlToken> read() {
    take("<!DOCTYPE html>\n");
    while (!rest_.empty()) {
      if (rest_[0] == '<') {
        readTag();
      } else {
        HtmlToken& token = tokens_.emplace_back();
        token.text = readText('<');
      }
    }
    if (!open_.empty()) fail("not closed: " + open_.back());
    return tokens_;
  }

 private:
  [[noreturn]] void fail(const std::string& reason) const {
    throw std::runtime_error(reason + " at: " + std::string(rest_.substr(0, 60)));
  }

  void take(std::string_view expected) {
    if (!rest_.starts_with(expected)) fail("expected " + std::string(expected));
    rest_.remove_prefix(expected.size());
  }

  std::string readName() {
    static constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz0123456789-";
    const std::size_t length = std::min(rest_.find_first_not_of(kLetters), rest_.size());
    if (length == 0) fail("expected a name");
    const std::string name(rest_.substr(0, length));
    rest_.remove_prefix(length);
    return name;
  }

  // Up to `end`; what could be markup must be escaped.
  std::string readText(char end) {
    std::string text;
    for (; !rest_.empty() && rest_[0] != end; rest_.remove_prefix(1)) {
      if (std::string_view("<>\"").find(rest_[0]) != std::string_view::npos) fail("not escaped");
      if (static_cast<unsigned char>(rest_[0]) < 0x20 && rest_[0] != '\n' && rest_[0] != '\t') {
        fail("control character");
      }
      if (rest_[0] == '&') {
        const std::string_view entity = rest_.substr(0, rest_.find(';') + 1);
        if (entity != "&amp;" && entity != "&lt;" && entity != "&gt;" && entity != "&quot;") {
          fail("not escaped");
        }
      }
      text += rest_[0];
    }
    return text;
  }

  void readTag() {
    HtmlToken token;
    take("<");
    if (rest_.starts_with("/")) {
      take("/");
      const std::string name = readName();
      take(">");
      if (open_.empty() || open_.back() != name) fail("not open: " + name);
      open_.pop_back();
      token.name = "/" + name;
      tokens_.push_back(std::move(token));
      return;
    }
    token.name = readName();
    while (!rest_.starts_with(">")) {
      take(" ");
      std::string name = readName();
      std::string value;
      if (rest_.starts_with("=")) {
        take("=\"");
        value = readText('"');
        take("\"");
      }
      token.attributes.emplace_back(std::move(name), std::move(value));
    }
    take(">");
    const std::string name = token.name;
    tokens_.push_back(std::move(token));
    if (name == "style" || name == "script") {
      const std::string end = "</" + name + ">";
      if (rest_.find(end) == rest_.npos) fail("not closed: " + name);
      rest_.remove_prefix(rest_.find(end) + end.size());
    } else if (name != "meta" && name != "img" && name != "br") {
      open_.push_back(name);
    }
  }

  std::string_view rest_;
  std::vector<std::string> open_;
  std::vector<HtmlToken> tokens_;
};

inline std::vector<HtmlToken> tokensOf(const std::string& page) { return HtmlReader(page).read(); }

// The values of an attribute, in the order of the page.
inline std::vector<std::string> valuesOf(const std::string& page, std::string_view attribute) {
  std::vector<std::string> values;
  for (const HtmlToken& token : tokensOf(page)) {
    for (const auto& [name, value] : token.attributes) {
      if (name == attribute) values.push_back(value);
    }
  }
  return values;
}

}  // namespace om::test

#endif  // OM_TESTS_RENDER_HTML_H_
