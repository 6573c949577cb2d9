#include "render/internal/Utf8.h"

#include <iconv.h>
#include <utf8proc.h>

#include <array>
#include <cerrno>
#include <memory>
#include <type_traits>

namespace om::render::internal {

namespace {

struct Closing {
  void operator()(iconv_t converter) const { iconv_close(converter); }
};
using Converter = std::unique_ptr<std::remove_pointer_t<iconv_t>, Closing>;

// False when the bytes are not of the code page, or it is not known.
bool convert(std::string_view bytes, const std::string& codePage, std::string& utf8) {
  iconv_t const opened = iconv_open("UTF-8", codePage.c_str());
  if (opened == reinterpret_cast<iconv_t>(-1)) return false;  // NOLINT(performance-no-int-to-ptr)
  const Converter converter(opened);

  std::string input(bytes);
  char* next = input.data();
  std::size_t left = input.size();
  std::array<char, 512> buffer;
  while (left != 0) {
    char* out = buffer.data();
    std::size_t room = buffer.size();
    const std::size_t result = iconv(opened, &next, &left, &out, &room);
    utf8.append(buffer.data(), buffer.size() - room);
    if (result == static_cast<std::size_t>(-1) && errno != E2BIG) return false;
  }
  return true;
}

}  // namespace

std::size_t sequenceLength(std::string_view bytes) {
  utf8proc_int32_t character = 0;
  const utf8proc_ssize_t length =
      utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(bytes.data()),
                       static_cast<utf8proc_ssize_t>(bytes.size()), &character);
  return length > 0 ? static_cast<std::size_t>(length) : 0;
}

bool isUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t length = sequenceLength(bytes);
    if (length == 0) return false;
    bytes.remove_prefix(length);
  }
  return true;
}

std::string validUtf8(std::string_view bytes) {
  std::string valid;
  valid.reserve(bytes.size());
  while (!bytes.empty()) {
    const std::size_t length = sequenceLength(bytes);
    valid += length != 0 ? bytes.substr(0, length) : kReplacement;
    bytes.remove_prefix(length != 0 ? length : 1);
  }
  return valid;
}

std::string toUtf8(std::string_view bytes, const std::string& codePage) {
  if (isUtf8(bytes)) return std::string(bytes);
  std::string converted;
  if (!codePage.empty() && convert(bytes, codePage, converted)) return converted;
  return validUtf8(bytes);
}

}  // namespace om::render::internal
