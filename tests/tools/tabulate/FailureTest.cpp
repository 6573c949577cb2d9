// Texts from files in messages: one line that no terminal takes for a command.

#include "tools/tabulate/Failure.h"

#include <gtest/gtest.h>

namespace om::test {
namespace {

using namespace std::string_view_literals;
using tabulate::inQuotes;
using tabulate::printable;

TEST(Printable, LeavesTextsInAnyScriptAlone) {
  EXPECT_EQ("Gr\u00f6\u00dfe, \u65e5\u672c \U0001f427",
            printable("Gr\u00f6\u00dfe, \u65e5\u672c \U0001f427"));
}

TEST(Printable, WritesControlsAndWrongBytesAsNumbers) {
  EXPECT_EQ("a\\x0ab\\x1b[2J\\x00\\x7f", printable("a\nb\x1b[2J\0\x7f"sv));
  EXPECT_EQ("\\xc2\\x9b", printable("\u009b"));
  EXPECT_EQ("\\xff\\xc3", printable("\xff\xc3"));
}

TEST(Printable, EndsAtItsLimit) {
  EXPECT_EQ("aaaa...", printable("aaaaaaaa", 4));
  EXPECT_EQ("aaaa", printable("aaaa", 4));
}

TEST(Printable, InQuotesIsShort) {
  EXPECT_EQ("\"x\"", inQuotes("x"));
  EXPECT_EQ('"' + std::string(60, 'x') + "...\"", inQuotes(std::string(1000, 'x')));
}

}  // namespace
}  // namespace om::test
