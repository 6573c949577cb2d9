#include "render/internal/CsvField.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "render/internal/Utf8.h"

namespace om::render::internal {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// A sign, digits with points and commas among them, an exponent, a per cent sign.
bool isSignedNumber(std::string_view text) {
  std::size_t at = 1;
  const auto skip = [&](const auto& isWanted) {
    const std::size_t begin = at;
    while (at < text.size() && isWanted(text[at])) ++at;
    return at != begin;
  };
  if (at == text.size() || !isDigit(text[at])) return false;
  skip([](char c) { return isDigit(c) || c == '.' || c == ','; });
  if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    ++at;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
    if (!skip(isDigit)) return false;
  }
  if (at < text.size() && text[at] == '%') ++at;
  return at == text.size();
}

bool isPlain(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte < 0x80 && byte != 0 && c != '"' && c != ',' && c != '\r' && c != '\n';
}

bool needsQuotes(std::string_view text) { return text.find_first_of("\",\r\n") != text.npos; }

}  // namespace

// In Japanese input the wide forms of the signs count as well.
bool CsvField::isFormula(std::string_view text) {
  static constexpr std::array<std::string_view, 4> kWide = {"\xEF\xBC\x9D", "\xEF\xBC\x8B",
                                                            "\xEF\xBC\x8D", "\xEF\xBC\xA0"};
  if (text.size() < 2) return false;
  switch (text.front()) {
    case '=':
    case '@':
    case '\t':
    case '\r':
    case '\n':
      return true;
    case '+':
    case '-':
      return !isSignedNumber(text);
    case '\xEF':
      return text.size() > 3 &&
             std::find(kWide.begin(), kWide.end(), text.substr(0, 3)) != kWide.end();
    default:
      return false;
  }
}

std::string_view CsvField::operator()(std::string_view text) {
  const std::size_t apostrophes = std::min(text.find_first_not_of('\''), text.size());
  const bool guarded = guardFormulas_ && isFormula(text.substr(apostrophes));
  if (!guarded && std::all_of(text.begin(), text.end(), isPlain)) return text;

  std::string valid = validUtf8(text);
  for (std::size_t at = 0; (at = valid.find('\0', at)) != valid.npos;) {
    valid.replace(at, 1, kReplacement);
  }
  const bool quoted = needsQuotes(valid);
  field_.clear();
  if (quoted) field_ += '"';
  if (guarded) field_ += '\'';
  for (const char c : valid) {
    if (c == '"') field_ += '"';
    field_ += c;
  }
  if (quoted) field_ += '"';
  return field_;
}

}  // namespace om::render::internal
