#include "render/internal/XlsxText.h"

#include <algorithm>

#include "render/internal/Utf8.h"

namespace om::render::internal {

namespace {

constexpr std::string_view kEllipsis = "\xE2\x80\xA6";
constexpr std::size_t kMostSheetUnits = 31;
constexpr std::size_t kMostFormatMarks = 40;

// Of a well-formed sequence.
std::size_t unitsOf(std::string_view sequence) { return sequence.size() == 4 ? 2 : 1; }

// What a program reads as the code of a character, as in "_x000D_".
bool isCode(std::string_view text) {
  const auto isHex = [](char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
  };
  return text.size() >= 7 && text.starts_with("_x") && text[6] == '_' &&
         std::all_of(text.begin() + 2, text.begin() + 6, isHex);
}

bool isAllowed(std::string_view sequence) {
  const char c = sequence.front();
  if (sequence.size() == 1) return static_cast<unsigned char>(c) >= 0x20 || c == '\n' || c == '\t';
  return sequence != "\xEF\xBF\xBE" && sequence != "\xEF\xBF\xBF";  // no characters of XML
}

}  // namespace

std::size_t xlsxUnits(std::string_view utf8) {
  std::size_t units = 0;
  for (const char c : utf8) {
    const auto byte = static_cast<unsigned char>(c);
    units += byte >= 0xF0 ? 2 : (byte & 0xC0) != 0x80 ? 1 : 0;
  }
  return units;
}

std::string xlsxText(std::string_view text, std::size_t most) {
  std::string result;
  std::size_t units = 0;
  std::size_t cut = 0;  // the length up to which there is room for an ellipsis
  while (!text.empty()) {
    const std::size_t length = std::max<std::size_t>(sequenceLength(text), 1);
    std::string_view sequence = text.substr(0, length);
    if (sequence == "\r") {
      text.remove_prefix(text.starts_with("\r\n") ? 2 : 1);
      sequence = "\n";
    } else {
      if (isCode(text)) sequence = "_x005F_";  // the code of the "_" that it begins with
      text.remove_prefix(length);
      if (sequenceLength(sequence) == 0 || !isAllowed(sequence)) sequence = kReplacement;
    }
    units += sequence.size() > 4 ? sequence.size() : unitsOf(sequence);
    if (units > most) {
      result.resize(cut);
      return result.append(most != 0 ? kEllipsis : "");
    }
    result += sequence;
    if (units < most) cut = result.size();
  }
  return result;
}

std::string xlsxSheetName(const std::string& number, std::string_view title) {
  std::string name = number + ' ' + xlsxText(title);
  for (char& c : name) {
    if (static_cast<unsigned char>(c) < 0x20 ||
        std::string_view("[]:*?/\\").find(c) != std::string_view::npos)
      c = ' ';
  }
  name = xlsxText(name, kMostSheetUnits);
  while (name.back() == ' ' || name.back() == '\'') name.pop_back();
  return name;
}

std::string xlsxNumberFormat(const OmNumber& number, std::string_view marks) {
  constexpr std::size_t kMostDecimals = 30;
  const OmNumber::Format& format = number.DisplayFormat();
  const std::string text(number);
  const std::size_t point = text.find('.');
  const std::size_t digitsEnd = text.find_last_of("0123456789") + 1;
  const bool isShortest = format.decimals < 0 && !format.grouping;

  std::string code;
  if (isShortest || text.find('e') != text.npos) {
    code = "General";
  } else {
    code = format.grouping ? "#,##0" : "0";
    const std::size_t decimals = point != text.npos ? digitsEnd - point - 1 : 0;
    if (decimals != 0) code += '.' + std::string(std::min(decimals, kMostDecimals), '0');
  }
  if (format.percent) code += "\"%\"";  // in quotes it does not multiply
  if (!marks.empty()) code += "\" " + std::string(marks) + '"';
  return code;
}

bool fitXlsxFormat(std::string_view marks) {
  return marks.size() <= kMostFormatMarks && isUtf8(marks) &&
         std::none_of(marks.begin(), marks.end(), [](char c) {
           return static_cast<unsigned char>(c) < 0x20 || c == '"' || c == '\\';
         });
}

}  // namespace om::render::internal
