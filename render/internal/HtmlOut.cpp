#include "render/internal/HtmlOut.h"

#include <algorithm>
#include <array>

#include "render/internal/Utf8.h"

namespace om::render::internal {

namespace {

// Bytes that stand for themselves wherever text may be.
constexpr std::array<bool, 256> kIsPlain = [] {
  std::array<bool, 256> plain{};
  for (std::size_t byte = 0x20; byte < 0x7F; ++byte) plain[byte] = true;
  plain['\t'] = true;
  for (const char special : {'&', '<', '>', '"'})
    plain[static_cast<unsigned char>(special)] = false;
  return plain;
}();

bool isPlain(char byte) { return kIsPlain[static_cast<unsigned char>(byte)]; }

// The code point of a well-formed sequence.
char32_t codePoint(std::string_view sequence) {
  const auto byte = [&](std::size_t i) {
    return static_cast<char32_t>(static_cast<unsigned char>(sequence[i]));
  };
  const char32_t lead = byte(0);
  char32_t point = sequence.size() == 1   ? lead
                   : sequence.size() == 2 ? lead & 0x1F
                   : sequence.size() == 3 ? lead & 0x0F
                                          : lead & 0x07;
  for (std::size_t i = 1; i < sequence.size(); ++i) point = point << 6 | (byte(i) & 0x3F);
  return point;
}

bool mayStandInPage(char32_t point) {
  const bool isControl = point < 0x20 || (point >= 0x7F && point < 0xA0);
  const bool isNoncharacter = (point >= 0xFDD0 && point <= 0xFDEF) || (point & 0xFFFE) == 0xFFFE;
  return !isControl && !isNoncharacter;
}

struct Range {
  char32_t first;
  char32_t last;
};

// The blocks of scripts that run from right to left, and the characters that direct text.
constexpr std::array<Range, 8> kRightToLeft = {{{0x0590, 0x08FF},
                                                {0x200E, 0x200F},
                                                {0x202A, 0x202E},
                                                {0x2066, 0x2069},
                                                {0xFB1D, 0xFDFF},
                                                {0xFE70, 0xFEFF},
                                                {0x10800, 0x10FFF},
                                                {0x1E800, 0x1EFFF}}};

}  // namespace

HtmlOut& HtmlOut::text(std::string_view text) { return escape(text, "<br>"); }

HtmlOut& HtmlOut::isolated(std::string_view text) {
  if (!mayRunRightToLeft(text)) return this->text(text);
  return markup("<bdi>").text(text).markup("</bdi>");
}

HtmlOut& HtmlOut::preformatted(std::string_view text) { return escape(text, "\n"); }

HtmlOut& HtmlOut::attribute(std::string_view text) { return escape(text, " "); }

HtmlOut& HtmlOut::base64(std::string_view bytes) {
  static constexpr std::string_view kDigits =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  for (; !bytes.empty(); bytes.remove_prefix(std::min<std::size_t>(bytes.size(), 3))) {
    std::uint32_t group = 0;
    for (std::size_t i = 0; i < 3; ++i) {
      group = group << 8 | (i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0U);
    }
    std::array<char, 4> digits;
    for (std::size_t i = 0; i < digits.size(); ++i) {
      digits[i] = i <= bytes.size() ? kDigits[group >> (18 - 6 * i) & 0x3F] : '=';
    }
    write({digits.data(), digits.size()});
  }
  return *this;
}

HtmlOut& HtmlOut::escape(std::string_view text, std::string_view lineEnd) {
  std::size_t begin = 0;  // of what is not written yet
  std::size_t at = 0;
  const auto replace = [&](std::size_t length, std::string_view by) {
    write(text.substr(begin, at - begin)).write(by);
    begin = at += length;
  };
  while (at != text.size()) {
    if (isPlain(text[at])) {
      ++at;
      continue;
    }
    switch (text[at]) {
      case '&':
        replace(1, "&amp;");
        break;
      case '<':
        replace(1, "&lt;");
        break;
      case '>':
        replace(1, "&gt;");
        break;
      case '"':
        replace(1, "&quot;");
        break;
      case '\n':
        replace(1, lineEnd);
        break;
      case '\r':
        replace(text.substr(at).starts_with("\r\n") ? 2 : 1, lineEnd);
        break;
      default: {
        const std::size_t length = sequenceLength(text.substr(at));
        if (length == 0 || !mayStandInPage(codePoint(text.substr(at, length)))) {
          replace(std::max<std::size_t>(length, 1), kReplacement);
        } else {
          at += length;
        }
      }
    }
  }
  return write(text.substr(begin));
}

bool mayRunRightToLeft(std::string_view text) {
  constexpr unsigned char kFirstLead = 0xD6;  // of U+0590
  while (!text.empty()) {
    if (static_cast<unsigned char>(text[0]) < kFirstLead) {
      text.remove_prefix(1);
      continue;
    }
    const std::size_t length = std::max<std::size_t>(sequenceLength(text), 1);
    const char32_t point = length == 1 ? 0 : codePoint(text.substr(0, length));
    for (const Range& range : kRightToLeft) {
      if (point >= range.first && point <= range.last) return true;
    }
    text.remove_prefix(length);
  }
  return false;
}

bool isBlank(std::string_view text) {
  return text.find_first_not_of(" \t\n\r") == std::string_view::npos;
}

}  // namespace om::render::internal
