#include "output/internal/MapInfo.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>

#include "backend/OMSException.h"

namespace {

class Reader {
 public:
  // Any mark but 1 stands for the other byte order.
  explicit Reader(std::string_view buffer)
      : rest_(buffer), reversed_(number<std::uint16_t>(false) != 1) {}

  template <class Length>
  std::string_view string() {
    return take(number<Length>(reversed_));
  }

 private:
  std::string_view take(std::size_t length) {
    if (length > rest_.size()) {
      throw OMSException("OmChart::getMapInfo() -- length > remaining", static_cast<double>(length),
                         static_cast<double>(rest_.size()));
    }
    const std::string_view taken = rest_.substr(0, length);
    rest_.remove_prefix(length);
    return taken;
  }

  template <class Number>
  Number number(bool reversed) {
    unsigned char bytes[sizeof(Number)];
    std::memcpy(bytes, take(sizeof(Number)).data(), sizeof(Number));
    if (reversed) {
      for (std::size_t i = 0; i < sizeof(Number) / 2; ++i) {
        std::swap(bytes[i], bytes[sizeof(Number) - 1 - i]);
      }
    }
    Number value;
    std::memcpy(&value, bytes, sizeof(Number));
    return value;
  }

  std::string_view rest_;
  bool reversed_;
};

}  // namespace

OmChart::MapInfo om::internal::readMapInfo(std::string_view buffer) {
  Reader reader(buffer);
  OmChart::MapInfo info;
  info.first = reader.string<std::uint32_t>();
  info.second = reader.string<std::uint16_t>();
  info.third = reader.string<std::uint32_t>();
  info.fourth = reader.string<std::uint16_t>();
  return info;
}
