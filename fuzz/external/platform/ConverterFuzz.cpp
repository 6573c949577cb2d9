// Any code-page name and any bytes: a conversion either succeeds or leaves its output alone, it
// answers the same a second time, and to UTF-8 it changes nothing. The first byte chooses a known
// code page, or says that the name is among the bytes too.

#include <external/platform/MultibyteConverter.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

namespace {

constexpr std::array kCodePages{"UTF-8",       "windows-1252", "ISO-8859-7", "Shift_JIS",
                                "ISO-2022-JP", "KOI8-R",       "GB18030",    "UTF-16"};

void require(bool condition) {
  if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return 0;
  std::string text(reinterpret_cast<const char*>(data) + 2, size - 2);
  std::string codePage;
  if (data[0] < kCodePages.size()) {
    codePage = kCodePages[data[0]];
  } else {
    const std::size_t length = data[1] % size;
    codePage = text.substr(0, length);
    text.erase(0, length);
  }

  const std::unique_ptr<MultibyteConverter> converter(MultibyteConverter::create(codePage));
  std::string first = "untouched";
  const int result = converter->fromUtf8(text, first);
  if (result != MultibyteConverter::CONVERTED) require(first == "untouched");
  if (result == MultibyteConverter::CONVERTED && codePage == "UTF-8") require(first == text);

  std::string second = "untouched";
  require(converter->fromUtf8(text, second) == result);
  require(first == second);
  return 0;
}
