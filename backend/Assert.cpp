#include "backend/Assert.h"

#include <atomic>
#include <cstdio>
#include <string>

namespace {

// Independent of the locale: a character beyond ASCII shows as "?".
std::string narrow(const wchar_t* text) {
  std::string result;
  for (; *text != L'\0'; ++text) {
    const bool ascii = *text > 0 && *text < 0x80;
    result += ascii ? static_cast<char>(*text) : '?';
  }
  return result;
}

void reportToStandardError(const wchar_t* message, const wchar_t* source, unsigned line) {
  std::fprintf(stderr, "Assertion failed: %s, file %s, line %u\n", narrow(message).c_str(),
               narrow(source).c_str(), line);
}

constinit std::atomic<OmAssertHandler> installed{reportToStandardError};

}  // namespace

void omAssertFailed(const wchar_t* message, const wchar_t* source, unsigned line) {
  installed.load()(message, source, line);
}

OmAssertHandler omSetAssertHandler(OmAssertHandler handler) {
  return installed.exchange(handler != nullptr ? handler : reportToStandardError);
}
