// The assertion sink: the installed handler, and the line that the default one writes.

#include "backend/Assert.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/Asserts.h"

namespace om::test {
namespace {

// Every test leaves the handler of the test programs behind.
class Assert : public testing::Test {
 protected:
  void TearDown() override { installAssertCheck(); }
};

struct Call {
  const wchar_t* message = nullptr;
  const wchar_t* source = nullptr;
  unsigned line = 0;
  int count = 0;
};
Call lastCall;

void remember(const wchar_t* message, const wchar_t* source, unsigned line) {
  lastCall = {message, source, line, lastCall.count + 1};
}

void ignore(const wchar_t*, const wchar_t*, unsigned) {}

std::string standardErrorOf(const wchar_t* message, const wchar_t* source, unsigned line) {
  testing::internal::CaptureStderr();
  omAssertFailed(message, source, line);
  return testing::internal::GetCapturedStderr();
}

TEST_F(Assert, TheInstalledHandlerReceivesTheReportOnce) {
  lastCall = {};
  omSetAssertHandler(&remember);
  const wchar_t* const message = L"a == b";
  const wchar_t* const source = L"backend/tables/ListTree";
  omAssertFailed(message, source, 503);
  EXPECT_EQ(lastCall.count, 1);
  EXPECT_EQ(lastCall.message, message);
  EXPECT_EQ(lastCall.source, source);
  EXPECT_EQ(lastCall.line, 503U);
}

TEST_F(Assert, AnInstalledHandlerKeepsStandardErrorEmpty) {
  omSetAssertHandler(&ignore);
  EXPECT_EQ(standardErrorOf(L"m", L"s", 1), "");
}

TEST_F(Assert, InstallingGivesTheFormerHandlerBack) {
  omSetAssertHandler(&ignore);
  EXPECT_EQ(omSetAssertHandler(&remember), &ignore);
  EXPECT_EQ(omSetAssertHandler(&ignore), &remember);
}

TEST_F(Assert, NullBringsTheDefaultBack) {
  const OmAssertHandler defaultHandler = (omSetAssertHandler(nullptr), omSetAssertHandler(&ignore));
  ASSERT_NE(defaultHandler, nullptr);
  EXPECT_EQ(omSetAssertHandler(nullptr), &ignore);
  EXPECT_EQ(omSetAssertHandler(nullptr), defaultHandler);
  EXPECT_EQ(standardErrorOf(L"m", L"s", 1), "Assertion failed: m, file s, line 1\n");
}

TEST_F(Assert, TheDefaultHandlerCanBeInstalledByItsAddress) {
  omSetAssertHandler(nullptr);
  const OmAssertHandler defaultHandler = omSetAssertHandler(&ignore);
  omSetAssertHandler(defaultHandler);
  EXPECT_EQ(standardErrorOf(L"m", L"s", 2), "Assertion failed: m, file s, line 2\n");
}

TEST_F(Assert, TheDefaultWritesOneLineToStandardErrorAndReturns) {
  omSetAssertHandler(nullptr);
  bool wentOn = false;
  testing::internal::CaptureStderr();
  omAssertFailed(L"target._tree == this", L"backend/tables/ListTree", 503);
  wentOn = true;
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "Assertion failed: target._tree == this, file backend/tables/ListTree, line 503\n");
  EXPECT_TRUE(wentOn);
}

TEST_F(Assert, TheDefaultWritesNothingToStandardOutput) {
  omSetAssertHandler(nullptr);
  testing::internal::CaptureStdout();
  const std::string error = standardErrorOf(L"m", L"s", 1);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(error, "Assertion failed: m, file s, line 1\n");
}

TEST_F(Assert, EachReportIsALineOfItsOwn) {
  omSetAssertHandler(nullptr);
  testing::internal::CaptureStderr();
  omAssertFailed(L"a", L"b", 1);
  omAssertFailed(L"c", L"d", 2);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "Assertion failed: a, file b, line 1\nAssertion failed: c, file d, line 2\n");
}

TEST_F(Assert, TheLineNumberIsUnsigned) {
  omSetAssertHandler(nullptr);
  EXPECT_EQ(standardErrorOf(L"m", L"s", 4294967295U),
            "Assertion failed: m, file s, line 4294967295\n");
}

TEST_F(Assert, EmptyTextsLeaveTheirPlacesEmpty) {
  omSetAssertHandler(nullptr);
  EXPECT_EQ(standardErrorOf(L"", L"", 0), "Assertion failed: , file , line 0\n");
}

TEST_F(Assert, ACharacterBeyondAsciiShowsAsAQuestionMark) {
  omSetAssertHandler(nullptr);
  EXPECT_EQ(standardErrorOf(L"na\u00efve \u20ac", L"\u00e9/s", 1),
            "Assertion failed: na?ve ?, file ?/s, line 1\n");
}

TEST_F(Assert, TheLastAsciiCharacterIsWrittenAsItIs) {
  omSetAssertHandler(nullptr);
  EXPECT_EQ(standardErrorOf(L"~\x7f\x80", L"s", 1), "Assertion failed: ~\x7f?, file s, line 1\n");
}

TEST_F(Assert, APercentSignIsNotAFormat) {
  omSetAssertHandler(nullptr);
  EXPECT_EQ(standardErrorOf(L"a % b == 0", L"%s%n", 1),
            "Assertion failed: a % b == 0, file %s%n, line 1\n");
}

}  // namespace
}  // namespace om::test
