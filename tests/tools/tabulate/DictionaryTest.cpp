// Labels to codes and back.

#include "tools/tabulate/Dictionary.h"

#include <gtest/gtest.h>

#include <unordered_map>

#include "tests/support/Allocations.h"
#include "tests/support/Oracle.h"

namespace om::test {
namespace {

using tabulate::Dictionary;

TEST(Dictionary, NumbersLabelsAsTheyCome) {
  Dictionary dictionary;
  EXPECT_EQ(1U, dictionary.intern("b"));
  EXPECT_EQ(2U, dictionary.intern("a"));
  EXPECT_EQ(1U, dictionary.intern("b"));
  EXPECT_EQ("b", dictionary.label(1));
  EXPECT_EQ("a", dictionary.label(2));
  EXPECT_EQ(3U, dictionary.size());
}

TEST(Dictionary, TheEmptyLabelIsTheMissingOne) {
  Dictionary dictionary;
  EXPECT_EQ(Dictionary::kMissing, dictionary.intern(""));
  EXPECT_EQ("", dictionary.label(Dictionary::kMissing));
  EXPECT_EQ(1U, dictionary.size());
}

TEST(Dictionary, TellsLabelsApartThatDifferInZeroBytesOnly) {
  using namespace std::string_view_literals;
  Dictionary dictionary;
  EXPECT_EQ(1U, dictionary.intern("a"));
  EXPECT_EQ(2U, dictionary.intern("a\0"sv));
  EXPECT_EQ(3U, dictionary.intern("\0"sv));
  EXPECT_EQ("a\0"sv, dictionary.label(2));
}

TEST(Dictionary, TheTextNaIsALabelLikeOthers) {
  Dictionary dictionary;
  EXPECT_NE(Dictionary::kMissing, dictionary.intern("NA"));
}

TEST(Dictionary, AnswersAsAMapDoes) {
  Dictionary dictionary;
  std::unordered_map<std::string, Dictionary::Code> model;
  runRandomOperations(1, 60'000, [&](Random& random) {
    std::string label(1 + random.below(20), 'x');
    for (char& c : label) c = static_cast<char>('a' + random.below(3));
    const auto [entry, isNew] =
        model.try_emplace(label, static_cast<Dictionary::Code>(model.size() + 1));
    ASSERT_EQ(entry->second, dictionary.intern(label));
    ASSERT_EQ(label, dictionary.label(entry->second));
    ASSERT_EQ(model.size() + 1, dictionary.size());
  });
}

TEST(Dictionary, IsAsBeforeWhenMemoryRunsOut) {
  const std::size_t failures = failEveryAllocation([](FailurePoint& failure) {
    Dictionary dictionary;
    Dictionary::Code next = 1;
    for (int i = 0; i < 40; ++i) {
      const std::string label = "a label of some length " + std::to_string(i);
      Dictionary::Code code = 0;
      if (!failure.during([&] { code = dictionary.intern(label); })) {
        EXPECT_EQ(next, dictionary.size());
        code = dictionary.intern(label);
      }
      EXPECT_EQ(next++, code);
      EXPECT_EQ(label, dictionary.label(code));
    }
  });
  EXPECT_GT(failures, 2U);
}

}  // namespace
}  // namespace om::test
