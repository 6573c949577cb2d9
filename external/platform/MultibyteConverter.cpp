#include "external/platform/MultibyteConverter.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>
#include <utility>

namespace {

// No converter: what iconv_open answers when it fails.
const iconv_t kNone = reinterpret_cast<iconv_t>(-1);

// iconv reads more than a name: "//TRANSLIT" and "//IGNORE" ask for replacements, and an empty name
// stands for the process's locale. Neither is a code page.
bool isPlainName(const std::string& name) {
  constexpr std::string_view kAllowed =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_.:()+";
  return !name.empty() && name.find_first_not_of(kAllowed) == std::string::npos;
}

// Some iconv take four bytes for more than the last code point, U+10FFFF.
bool goesBeyondUnicode(std::string_view utf8) {
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const auto byte = static_cast<unsigned char>(utf8[i]);
    const auto next = static_cast<unsigned char>(i + 1 < utf8.size() ? utf8[i + 1] : 0);
    if (byte > 0xF4 || (byte == 0xF4 && next > 0x8F)) return true;
  }
  return false;
}

// The first tag character, U+E0000 to U+E007F. Some iconv leave these out where the code page lacks
// them, and call it success; so one is tried alone, which shows whether anything comes of it.
std::string_view firstTag(std::string_view utf8) {
  constexpr std::size_t kBytesOfTag = 4;
  const std::size_t place = std::min(utf8.find("\xF3\xA0\x80"), utf8.find("\xF3\xA0\x81"));
  return place == std::string_view::npos ? std::string_view() : utf8.substr(place, kBytesOfTag);
}

class IconvConverter final : public MultibyteConverter {
 public:
  explicit IconvConverter(const std::string& codePage)
      : state_(isPlainName(codePage) ? iconv_open(codePage.c_str(), "UTF-8") : kNone) {}
  ~IconvConverter() override {
    if (state_ != kNone) iconv_close(state_);
  }

  int fromUtf8(const std::string& utf8, std::string& converted) override {
    if (state_ == kNone) return UNKNOWN_CODE_PAGE;
    if (goesBeyondUnicode(utf8)) return NOT_CONVERTIBLE;
    const std::string_view tag = firstTag(utf8);
    std::string result;
    if (!tag.empty() && !(convert(tag, result) && !result.empty())) return NOT_CONVERTIBLE;
    result.clear();
    if (!convert(utf8, result)) return NOT_CONVERTIBLE;
    converted = std::move(result);
    return CONVERTED;
  }

 private:
  bool convert(std::string_view utf8, std::string& result) {
    iconv(state_, nullptr, nullptr, nullptr, nullptr);
    char* from = const_cast<char*>(utf8.data());  // iconv does not write there
    std::size_t left = utf8.size();
    return run(&from, &left, result) && run(nullptr, nullptr, result);
  }

  // Converts the input, or with none ends the text: some code pages close it with a sequence.
  bool run(char** from, std::size_t* left, std::string& result) {
    std::array<char, 512> piece;
    for (;;) {
      char* to = piece.data();
      std::size_t room = piece.size();
      const std::size_t replaced = iconv(state_, from, left, &to, &room);
      const int error = errno;
      result.append(piece.data(), to);
      if (replaced == 0) return true;
      if (replaced != static_cast<std::size_t>(-1) || error != E2BIG) return false;
    }
  }

  const iconv_t state_;
};

}  // namespace

MultibyteConverter::~MultibyteConverter() = default;

MultibyteConverter* MultibyteConverter::create(const std::string& codePageName) {
  return new IconvConverter(codePageName);
}
