// The map information of charts: four strings in a packed buffer, in either byte order, and buffers
// that end too early.

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <string>
#include <vector>

#include "backend/OMSException.h"
#include "external/cells/OmStringCell.h"
#include "output/OmChart.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

constexpr std::endian kMachine = std::endian::native;
constexpr std::endian kOther =
    kMachine == std::endian::little ? std::endian::big : std::endian::little;

std::string number(std::uint32_t value, int width, std::endian order) {
  std::string bytes;
  for (int i = 0; i < width; ++i) {
    const int place = order == std::endian::little ? i : width - 1 - i;
    bytes += static_cast<char>(value >> (8 * place));
  }
  return bytes;
}

// A buffer by hand: mark, then 32-bit, 16-bit, 32-bit and 16-bit lengths, each with its string.
std::string buffer(std::endian order, const std::string& first, const std::string& second,
                   const std::string& third, const std::string& fourth) {
  const auto size = [](const std::string& text) { return static_cast<std::uint32_t>(text.size()); };
  return number(1, 2, order) + number(size(first), 4, order) + first +
         number(size(second), 2, order) + second + number(size(third), 4, order) + third +
         number(size(fourth), 2, order) + fourth;
}

class MapInfo : public testing::Test {
 protected:
  void set(const std::string& bytes) {
    chart.SetMapInfo(bytes.data(), static_cast<unsigned>(bytes.size()));
  }
  std::vector<std::string> read() const {
    std::vector<std::string> strings{"1", "2", "3", "4"};
    chart.getMapInfo(strings[0], strings[1], strings[2], strings[3]);
    return strings;
  }
  // Sets the buffer and expects that it is refused, with these two values.
  void expectRefused(const std::string& bytes, double announced, double left) {
    OmChart shortened(OmStringCell("label"), "", 1);
    shortened.SetMapInfo(bytes.data(), static_cast<unsigned>(bytes.size()));
    EXPECT_TRUE(shortened.hasMap());
    std::string strings[] = {"1", "2", "3", "4"};
    try {
      shortened.getMapInfo(strings[0], strings[1], strings[2], strings[3]);
      ADD_FAILURE() << bytes.size() << " bytes were accepted";
    } catch (const OMSException& refused) {
      EXPECT_EQ(refused.getMessage(), "OmChart::getMapInfo() -- length > remaining");
      EXPECT_EQ(refused.getValue1(), announced) << bytes.size();
      EXPECT_EQ(refused.getValue2(), left) << bytes.size();
    }
    EXPECT_EQ(strings[0] + strings[1] + strings[2] + strings[3], "1234");
    EXPECT_THROW(shortened.viewMapInfo(), OMSException);
  }

  OmChart chart{OmStringCell("label"), "", 1};
};

using Strings = std::vector<std::string>;

TEST_F(MapInfo, IsNotThereAtFirst) {
  EXPECT_FALSE(chart.hasMap());
  EXPECT_EQ(read(), (Strings{"1", "2", "3", "4"}));
}

TEST_F(MapInfo, IsNotThereWhenNothingWasAppended) {
  chart.SetMapInfo(nullptr, 0);
  EXPECT_FALSE(chart.hasMap());
  EXPECT_EQ(read(), (Strings{"1", "2", "3", "4"}));
}

TEST_F(MapInfo, IsThereAsSoonAsThereIsAByte) {
  chart.SetMapInfo("", 1);
  EXPECT_TRUE(chart.hasMap());
}

TEST_F(MapInfo, IsReadInTheMachinesByteOrder) {
  set(buffer(kMachine, "ab", "cde", "f", "ghij"));
  EXPECT_EQ(read(), (Strings{"ab", "cde", "f", "ghij"}));
}

TEST_F(MapInfo, IsReadInTheOtherByteOrder) {
  set(buffer(kOther, "ab", "cde", "f", "ghij"));
  EXPECT_EQ(read(), (Strings{"ab", "cde", "f", "ghij"}));
}

// The mark 00 01 says that the lengths begin with their highest byte, whatever the machine.
TEST_F(MapInfo, IsReadWithTheHighestByteFirstWhenTheMarkIs) {
  set(
      std::string("\0\1"
                  "\0\0\0\2"
                  "ab"
                  "\0\3"
                  "cde"
                  "\0\0\0\1"
                  "f"
                  "\0\0",
                  20));
  EXPECT_EQ(read(), (Strings{"ab", "cde", "f", ""}));
}

TEST_F(MapInfo, IsReadInTheOtherByteOrderWithAnyOtherMark) {
  for (const std::uint32_t mark : {0U, 2U, 0xFFFFU, 0x0101U}) {
    OmChart marked(OmStringCell("label"), "", 1);
    const std::string bytes =
        number(mark, 2, kMachine) + buffer(kOther, "ab", "c", "", "d").substr(2);
    marked.SetMapInfo(bytes.data(), static_cast<unsigned>(bytes.size()));
    EXPECT_EQ(marked.viewMapInfo().first, "ab") << mark;
    EXPECT_EQ(marked.viewMapInfo().fourth, "d") << mark;
  }
}

TEST_F(MapInfo, KeepsTheBytesOfTheStringsInEitherOrder) {
  const std::string bytes("\1\0\0\xFF\0\2", 6);
  for (const std::endian order : {kMachine, kOther}) {
    OmChart map(OmStringCell("label"), "", 1);
    const std::string whole = buffer(order, bytes, bytes, bytes, bytes);
    map.SetMapInfo(whole.data(), static_cast<unsigned>(whole.size()));
    EXPECT_EQ(map.viewMapInfo().first, bytes);
    EXPECT_EQ(map.viewMapInfo().second, bytes);
    EXPECT_EQ(map.viewMapInfo().third, bytes);
    EXPECT_EQ(map.viewMapInfo().fourth, bytes);
  }
}

TEST_F(MapInfo, MayHaveEmptyStrings) {
  set(buffer(kMachine, "", "", "", ""));
  EXPECT_TRUE(chart.hasMap());
  EXPECT_EQ(read(), (Strings{"", "", "", ""}));
}

TEST_F(MapInfo, HasLengthsOf32And16BitsInTurn) {
  const std::string wide(70'000, 'w');
  const std::string narrow(65'535, 'n');
  set(buffer(kMachine, wide, narrow, wide, narrow));
  EXPECT_EQ(read(), (Strings{wide, narrow, wide, narrow}));
}

TEST_F(MapInfo, MayComeInPieces) {
  for (const char byte : buffer(kOther, "ab", "cde", "f", "ghij")) chart.SetMapInfo(&byte, 1);
  EXPECT_EQ(read(), (Strings{"ab", "cde", "f", "ghij"}));
}

TEST_F(MapInfo, IsNotReadBeyondTheFourthString) {
  set(buffer(kMachine, "ab", "cde", "f", "ghij") + "more");
  EXPECT_EQ(read(), (Strings{"ab", "cde", "f", "ghij"}));
}

TEST_F(MapInfo, IsGivenAsViewsIntoTheBuffer) {
  EXPECT_EQ(chart.viewMapInfo().first, "");
  EXPECT_EQ(chart.viewMapInfo().fourth, "");
  set(buffer(kMachine, "ab", "cde", "f", "ghij"));
  const OmChart::MapInfo info = chart.viewMapInfo();
  EXPECT_EQ(info.first, "ab");
  EXPECT_EQ(info.second, "cde");
  EXPECT_EQ(info.third, "f");
  EXPECT_EQ(info.fourth, "ghij");
  // Behind the mark and the first length; behind the last length.
  EXPECT_EQ(info.first.data(), chart.viewMapInfoBuffer().data() + 6);
  EXPECT_EQ(info.fourth.data(), chart.viewMapInfoBuffer().data() + 20);
}

TEST_F(MapInfo, GivesTheLastOfTheStringsThatGoToOnePlace) {
  set(buffer(kMachine, "ab", "cde", "f", "ghij"));
  std::string first;
  std::string others;
  chart.getMapInfo(first, others, others, others);
  EXPECT_EQ(first, "ab");
  EXPECT_EQ(others, "ghij");
}

TEST_F(MapInfo, IsRefusedWhenTheMarkIsCutOff) { expectRefused("\1", 2, 1); }

TEST_F(MapInfo, IsRefusedWhereverItEndsTooEarly) {
  // What is announced at each place, and where the bytes for it begin.
  struct Piece {
    std::size_t begin;
    double announced;
  };
  // mark, length, "ab", length, "cde", length, "f", length, "ghij"
  const std::vector<Piece> pieces = {{0, 2},  {2, 4},  {6, 2},  {8, 2}, {10, 3},
                                     {13, 4}, {17, 1}, {18, 2}, {20, 4}};
  for (const std::endian order : {kMachine, kOther}) {
    const std::string whole = buffer(order, "ab", "cde", "f", "ghij");
    ASSERT_EQ(whole.size(), 24U);
    std::size_t piece = 0;
    for (std::size_t size = 1; size < whole.size(); ++size) {
      while (piece + 1 < pieces.size() && pieces[piece + 1].begin <= size) ++piece;
      expectRefused(whole.substr(0, size), pieces[piece].announced,
                    static_cast<double>(size - pieces[piece].begin));
    }
  }
}

TEST_F(MapInfo, IsRefusedWhenALengthExceedsWhatIsLeft) {
  const std::string mark = number(1, 2, kMachine);
  expectRefused(mark + "\xFF\xFF\xFF\xFF" + "abc", 4294967295.0, 3);
  expectRefused(mark + number(0, 4, kMachine) + "\xFF\xFF" + std::string(65'534, 'x'), 65535,
                65534);
}

TEST_F(MapInfo, SaysWhatIsWrongWithIt) {
  set(number(1, 2, kMachine) + number(100, 4, kMachine) + "abc");
  std::string text;
  try {
    chart.getMapInfo(text, text, text, text);
    FAIL() << "nothing was thrown";
  } catch (const OMSException& refused) {
    EXPECT_STREQ(refused.what(),
                 "OmChart::getMapInfo() -- length > remaining, value 1 == 100, value 2 == 3");
  }
}

TEST_F(MapInfo, CanBeReadOnceTheRestHasCome) {
  const std::string whole = buffer(kMachine, "ab", "cde", "f", "ghij");
  set(whole.substr(0, 9));
  EXPECT_THROW(read(), OMSException);
  set(whole.substr(9));
  EXPECT_EQ(read(), (Strings{"ab", "cde", "f", "ghij"}));
}

TEST(MapInfoOutOfMemory, LeavesTheFourStringsAsTheyWere) {
  const std::string longText(100, 'x');
  const std::string bytes = buffer(kMachine, longText, longText, longText, longText);
  const std::size_t failures = failEveryAllocation([&](FailurePoint& point) {
    OmChart chart(OmStringCell("label"), "", 1);
    chart.SetMapInfo(bytes.data(), static_cast<unsigned>(bytes.size()));
    std::string strings[] = {"1", "2", "3", "4"};
    const bool completed =
        point.during([&] { chart.getMapInfo(strings[0], strings[1], strings[2], strings[3]); });
    EXPECT_EQ(completed, !point.failed());
    for (std::size_t i = 0; i < 4; ++i) {
      EXPECT_EQ(strings[i], completed ? longText : std::to_string(i + 1));
    }
  });
  EXPECT_EQ(failures, 4U);
}

}  // namespace
}  // namespace om::test
