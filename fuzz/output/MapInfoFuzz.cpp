// Any map information, sound, cut off or made of any bytes: it is read whole, or refused with the
// four strings untouched. What was read, written down again, is how the buffer begins.
//
// The first byte says how the buffer is made of the others: from them as they are, or a sound one
// in either byte order with the strings cut out of them, which may end too early.

#include <backend/OMSException.h>
#include <external/cells/OmStringCell.h>
#include <output/OmChart.h>

#include <array>
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

using Strings = std::array<std::string, 4>;

void require(bool condition) {
  if (!condition) std::abort();
}

std::string number(std::size_t value, std::size_t width, bool lowestFirst) {
  std::string bytes;
  for (std::size_t i = 0; i < width; ++i) {
    const std::size_t place = lowestFirst ? i : width - 1 - i;
    bytes += static_cast<char>((value >> (8 * place)) & 0xFF);
  }
  return bytes;
}

std::string written(const std::string& mark, const Strings& strings, bool lowestFirst) {
  std::string buffer = mark;
  for (std::size_t i = 0; i < strings.size(); ++i) {
    buffer += number(strings[i].size(), i % 2 == 0 ? 4 : 2, lowestFirst) + strings[i];
  }
  return buffer;
}

// Four strings, cut out of the bytes with lengths that are among them.
Strings cut(const std::string& bytes) {
  Strings strings;
  std::size_t at = 0;
  for (std::string& string : strings) {
    if (at == bytes.size()) break;
    const auto length = static_cast<unsigned char>(bytes[at++]);
    string = bytes.substr(at, length);
    at += string.size();
  }
  return strings;
}

// Whether the buffer was read. It is delivered in two pieces.
bool read(const std::string& buffer, Strings& strings) {
  OmChart chart(OmStringCell("label"), "", 1);
  const auto half = static_cast<unsigned>(buffer.size() / 2);
  chart.SetMapInfo(buffer.data(), half);
  chart.SetMapInfo(buffer.data() + half, static_cast<unsigned>(buffer.size()) - half);
  require(chart.hasMap() != buffer.empty());
  try {
    chart.getMapInfo(strings[0], strings[1], strings[2], strings[3]);
  } catch (const OMSException& refused) {
    require(refused.getMessage() == "OmChart::getMapInfo() -- length > remaining");
    require(refused.getValue1() > refused.getValue2());
    require(refused.getValue2() <= static_cast<double>(buffer.size()));
    return false;
  }
  const OmChart::MapInfo views = chart.viewMapInfo();
  if (chart.hasMap()) {
    require(views.first == strings[0] && views.second == strings[1]);
    require(views.third == strings[2] && views.fourth == strings[3]);
  }
  return true;
}

const Strings kUntouched = {"1", "2", "3", "4"};
constexpr bool kLowestFirst = std::endian::native == std::endian::little;

void checkSound(const std::string& bytes, bool lowestFirst, std::size_t cutOff) {
  const Strings expected = cut(bytes);
  std::string buffer = written(number(1, 2, lowestFirst), expected, lowestFirst);
  cutOff %= buffer.size() + 1;
  buffer.resize(buffer.size() - cutOff);

  Strings strings = kUntouched;
  const bool whole = read(buffer, strings);
  require(whole == (cutOff == 0 || buffer.empty()));
  require(strings == (cutOff == 0 ? expected : kUntouched));
}

void checkAny(const std::string& buffer) {
  Strings strings = kUntouched;
  if (!read(buffer, strings) || buffer.empty()) {
    require(strings == kUntouched);
    return;
  }
  const std::string mark = buffer.substr(0, 2);
  const bool lowestFirst = (mark == number(1, 2, kLowestFirst)) == kLowestFirst;
  require(buffer.starts_with(written(mark, strings, lowestFirst)));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  const std::uint8_t how = data[0];
  if (how % 2 == 0) {
    checkAny(bytes);
  } else {
    checkSound(bytes, how % 4 == 1, how / 16);
  }
  return 0;
}
