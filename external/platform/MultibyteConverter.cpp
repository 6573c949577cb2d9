#include "external/platform/MultibyteConverter.h"

#include <iconv.h>

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

class IconvConverter final : public MultibyteConverter {
 public:
  explicit IconvConverter(const std::string& codePage)
      : state_(isPlainName(codePage) ? iconv_open(codePage.c_str(), "UTF-8") : kNone) {}
  ~IconvConverter() override {
    if (state_ != kNone) iconv_close(state_);
  }

  int fromUtf8(const std::string& utf8, std::string& converted) override {
    if (state_ == kNone) return UNKNOWN_CODE_PAGE;
    iconv(state_, nullptr, nullptr, nullptr, nullptr);

    std::string result;
    char* from = const_cast<char*>(utf8.data());  // iconv does not write there
    std::size_t left = utf8.size();
    if (!run(&from, &left, result) || !run(nullptr, nullptr, result)) return NOT_CONVERTIBLE;
    converted = std::move(result);
    return CONVERTED;
  }

 private:
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
