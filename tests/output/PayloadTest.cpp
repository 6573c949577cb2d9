// What holds for every field that producers stream into: pieces are appended byte for byte, in time
// that is linear in the whole stream, and nothing is lost when memory runs out.

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>

#include "external/cells/OmStringCell.h"
#include "tests/output/PartKinds.h"
#include "tests/output/PayloadFields.h"
#include "tests/support/Allocations.h"

namespace om::test {
namespace {

using std::string_view_literals::operator""sv;

template <class Part>
class EveryPayload : public testing::Test {
 protected:
  // Calls `check(part, field)` for each field with a new part, until a check fails.
  template <class Check>
  void forEachField(Check check) {
    for (const auto& field : PayloadsOf<Part>::fields) {
      const auto part = makePart<Part>(OmStringCell("label"));
      check(*part, field);
      ASSERT_FALSE(testing::Test::HasFailure()) << "the field is the " << field.name;
    }
  }
};

TYPED_TEST_SUITE(EveryPayload, SharingKinds, PartKindName);

TYPED_TEST(EveryPayload, IsEmptyAtFirst) {
  this->forEachField([](auto& part, const auto& field) {
    EXPECT_TRUE((part.*field.view)().empty());
    if (field.get != nullptr) {
      EXPECT_EQ((part.*field.get)(), "");
    }
  });
}

TYPED_TEST(EveryPayload, AppendsPiecesOfTenNoneAndFiveBytesInOrder) {
  this->forEachField([](auto& part, const auto& field) {
    field.append(part, "0123456789", 10);
    field.append(part, "none of these", 0);
    field.append(part, "abcde", 5);
    EXPECT_EQ((part.*field.view)(), "0123456789abcde");
  });
}

TYPED_TEST(EveryPayload, TakesExactlyTheBytesThatItIsTold) {
  this->forEachField([](auto& part, const auto& field) {
    field.append(part, "abcdef", 3);
    EXPECT_EQ((part.*field.view)(), "abc");
  });
}

TYPED_TEST(EveryPayload, KeepsBytesOfValueZeroAndBytesThatAreNoText) {
  this->forEachField([](auto& part, const auto& field) {
    field.append(part, "\0a\0", 3);
    field.append(part, "\xFF\0", 2);
    EXPECT_EQ((part.*field.view)(), "\0a\0\xFF\0"sv);
  });
}

TYPED_TEST(EveryPayload, NeedsNoTerminator) {
  this->forEachField([](auto& part, const auto& field) {
    const auto piece = std::make_unique<char[]>(3);
    for (int i = 0; i < 3; ++i) piece[static_cast<std::size_t>(i)] = static_cast<char>('x' + i);
    field.append(part, piece.get(), 3);
    EXPECT_EQ((part.*field.view)(), "xyz");
  });
}

TYPED_TEST(EveryPayload, AppendsNothingForNullWithLengthZero) {
  this->forEachField([](auto& part, const auto& field) {
    field.append(part, nullptr, 0);
    EXPECT_EQ((part.*field.view)(), "");
    field.append(part, "ab", 2);
    field.append(part, nullptr, 0);
    EXPECT_EQ((part.*field.view)(), "ab");
  });
}

TYPED_TEST(EveryPayload, IsOnlyWrittenByItsOwnSetter) {
  for (const auto& written : PayloadsOf<TypeParam>::fields) {
    const auto part = makePart<TypeParam>(OmStringCell("label"));
    written.append(*part, "abc", 3);
    for (const auto& read : PayloadsOf<TypeParam>::fields) {
      EXPECT_EQ(((*part).*read.view)(), &read == &written ? "abc" : "")
          << read.name << " after " << written.name;
    }
  }
}

TYPED_TEST(EveryPayload, IsGivenWithoutACopy) {
  this->forEachField([](auto& part, const auto& field) {
    const std::string piece(100, 'x');
    field.append(part, piece.data(), 100);
    const std::size_t blocks = totalNewBlocks();
    const std::string_view view = (part.*field.view)();
    EXPECT_EQ(totalNewBlocks(), blocks);
    EXPECT_EQ(view, piece);
    if (field.get == nullptr) return;
    EXPECT_EQ((part.*field.get)().data(), view.data());
    EXPECT_EQ(&(part.*field.get)(), &(part.*field.get)());
  });
}

TYPED_TEST(EveryPayload, TakesAPieceOfItself) {
  this->forEachField([](auto& part, const auto& field) {
    field.append(part, "abcdefgh", 8);
    std::string expected = "abcdefgh";
    for (int i = 0; i < 10; ++i) {
      const std::string_view half = (part.*field.view)().substr(expected.size() / 2);
      field.append(part, half.data(), static_cast<unsigned>(half.size()));
      expected += expected.substr(expected.size() / 2);
    }
    EXPECT_EQ((part.*field.view)(), expected);
  });
}

// Each byte is copied once when it comes. What is copied beyond that are the bytes that are there
// when the field moves to larger room.
TYPED_TEST(EveryPayload, CopiesNoByteMoreThanTwiceInAStream) {
  constexpr unsigned kPiece = 4096;
  constexpr std::size_t kPieces = 1024;
  this->forEachField([](auto& part, const auto& field) {
    const std::string piece(kPiece, 'x');
    std::size_t moved = 0;
    for (std::size_t i = 0; i < kPieces; ++i) {
      const std::string_view before = (part.*field.view)();
      field.append(part, piece.data(), kPiece);
      if ((part.*field.view)().data() != before.data()) moved += before.size();
    }
    EXPECT_EQ((part.*field.view)().size(), kPiece * kPieces);
    EXPECT_LE(moved, kPiece * kPieces);
  });
}

TYPED_TEST(EveryPayload, StaysAsItWasWhenAPieceCannotBeAppended) {
  const std::string piece(100, 'x');
  this->forEachField([&](auto&, const auto& field) {
    const std::size_t failures = failEveryAllocation([&](FailurePoint& point) {
      const auto part = makePart<TypeParam>(OmStringCell("label"));
      field.append(*part, "ab", 2);
      const bool completed = point.during([&] { field.append(*part, piece.data(), 100); });
      EXPECT_EQ(completed, !point.failed());
      EXPECT_EQ(((*part).*field.view)(), completed ? "ab" + piece : "ab");
      if (!completed) {
        field.append(*part, "cd", 2);
        EXPECT_EQ(((*part).*field.view)(), "abcd");
      }
    });
    EXPECT_EQ(failures, 1U);
  });
}

TEST(ChartPayload, DoesNotGrowQuadraticallyWhenRoomIsMadeForEachPiece) {
  constexpr unsigned kPiece = 4096;
  constexpr unsigned kPieces = 1024;
  OmChart chart(OmStringCell("label"), "", 1);
  const std::string piece(kPiece, 'x');
  std::size_t moved = 0;
  for (unsigned i = 0; i < kPieces; ++i) {
    const std::string_view before = chart.viewXmlDescription();
    chart.SetXmlCompressedLength((i + 1) * kPiece);
    chart.SetXmlDescription(piece.data(), kPiece);
    if (chart.viewXmlDescription().data() != before.data()) moved += before.size();
  }
  EXPECT_EQ(chart.viewXmlDescription().size(), std::size_t{kPiece} * kPieces);
  EXPECT_LE(moved, std::size_t{kPiece} * kPieces);
}

TEST(ChartPayload, StaysWhereItIsWhenRoomForTheWholeStreamWasMade) {
  OmChart chart(OmStringCell("label"), "", 1);
  chart.SetXmlCompressedLength(1000);
  EXPECT_EQ(chart.GetXmlDescription(), "");
  chart.SetXmlDescription("a", 1);
  const char* const place = chart.viewXmlDescription().data();
  for (int i = 1; i < 1000; ++i) chart.SetXmlDescription("a", 1);
  EXPECT_EQ(chart.viewXmlDescription().data(), place);
  EXPECT_EQ(chart.GetXmlDescription(), std::string(1000, 'a'));
}

TEST(ChartPayload, KeepsItsBytesAndItsRoomWhenLessRoomIsAskedFor) {
  OmChart chart(OmStringCell("label"), "", 1);
  chart.SetXmlCompressedLength(1000);
  chart.SetXmlDescription("abc", 3);
  const char* const place = chart.viewXmlDescription().data();
  chart.SetXmlCompressedLength(0);
  chart.SetXmlCompressedLength(10);
  EXPECT_EQ(chart.viewXmlDescription().data(), place);
  EXPECT_EQ(chart.GetXmlDescription(), "abc");
}

TEST(ChartPayload, StaysAsItWasWhenRoomCannotBeMade) {
  const std::size_t failures = failEveryAllocation([](FailurePoint& point) {
    OmChart chart(OmStringCell("label"), "", 1);
    chart.SetXmlDescription("abc", 3);
    const bool completed = point.during([&] { chart.SetXmlCompressedLength(1000); });
    EXPECT_EQ(completed, !point.failed());
    EXPECT_EQ(chart.GetXmlDescription(), "abc");
  });
  EXPECT_EQ(failures, 1U);
}

}  // namespace
}  // namespace om::test
