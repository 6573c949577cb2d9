#include "tools/tabulate/Encoding.h"

#include <array>
#include <cerrno>
#include <cstdint>

#include "tools/tabulate/Failure.h"
#include "tools/tabulate/Utf8.h"

namespace om::tabulate {

namespace {

// What iconv_open gives when it fails; here also: there is no converter.
iconv_t none() { return reinterpret_cast<iconv_t>(std::intptr_t{-1}); }

bool isUtf8(const std::string& name) {
  std::string plain;
  for (const char c : name) {
    if (c != '-') plain += static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
  }
  return plain == "utf8";
}

struct Mark {
  std::string_view bytes;
  const char* encoding;
};

// The longer one of two that begin alike comes first.
constexpr std::array<Mark, 5> kMarks{{{std::string_view("\xff\xfe\0\0", 4), "UTF-32LE"},
                                      {std::string_view("\0\0\xfe\xff", 4), "UTF-32BE"},
                                      {std::string_view("\xef\xbb\xbf", 3), "UTF-8"},
                                      {std::string_view("\xff\xfe", 2), "UTF-16LE"},
                                      {std::string_view("\xfe\xff", 2), "UTF-16BE"}}};

}  // namespace

Decoder::Decoder(const std::string& encoding) : converter_(none()) { open(encoding); }

Decoder::~Decoder() { close(); }

void Decoder::open(const std::string& encoding) {
  close();
  name_ = encoding;
  if (isUtf8(encoding)) return;
  // What stands behind a slash would let iconv drop or replace characters.
  const bool plain =
      !encoding.empty() && encoding.find_first_of(std::string_view("/,\0", 3)) == encoding.npos;
  if (plain) converter_ = iconv_open("UTF-8", encoding.c_str());
  if (converter_ == none()) throw usageFailure("there is no encoding " + inQuotes(encoding));
}

void Decoder::close() {
  if (converter_ != none()) iconv_close(converter_);
  converter_ = none();
}

bool Decoder::decode(std::string_view bytes, std::string& text) {
  kept_.append(bytes);
  if (!started_) {
    if (kept_.size() < kLongestMark) return true;
    takeMark();
  }
  return decodeKept(text);
}

bool Decoder::finish(std::string& text) {
  if (!started_) takeMark();
  return decodeKept(text) && kept_.empty();
}

void Decoder::takeMark() {
  started_ = true;
  for (const Mark& mark : kMarks) {
    if (kept_.starts_with(mark.bytes)) {
      open(mark.encoding);
      kept_.erase(0, mark.bytes.size());
      return;
    }
  }
}

bool Decoder::decodeKept(std::string& text) {
  return converter_ == none() ? validate(text) : convert(text);
}

bool Decoder::validate(std::string& text) {
  const std::size_t valid = utf8::validPrefix(kept_);
  text.append(kept_, 0, valid);
  kept_.erase(0, valid);
  return kept_.empty() || utf8::isBeginning(kept_);
}

bool Decoder::convert(std::string& text) {
  char* from = kept_.data();
  std::size_t left = kept_.size();
  bool fine = true;
  std::array<char, 16384> room;
  while (left != 0) {
    char* to = room.data();
    std::size_t free = room.size();
    const std::size_t result = iconv(converter_, &from, &left, &to, &free);
    const int reason = errno;
    text.append(room.data(), room.size() - free);
    if (result != static_cast<std::size_t>(-1)) break;
    if (reason == E2BIG) continue;
    fine = reason == EINVAL;  // cut off within a character
    break;
  }
  kept_.erase(0, kept_.size() - left);
  return fine;
}

}  // namespace om::tabulate
