// Failure: why the program stops, with the exit code that tells scripts who has to act. Its text is
// one line, whatever is quoted in it.

#ifndef OM_TOOLS_TABULATE_FAILURE_H_
#define OM_TOOLS_TABULATE_FAILURE_H_

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace om::tabulate {

enum class ExitCode : std::int32_t {
  DONE = 0,
  DATA = 1,     // what was read or written is at fault
  USAGE = 2,    // the command or the job is
  DROPPED = 3,  // done, but a table had more cells than allowed and was dropped
};

class Failure : public std::runtime_error {
 public:
  Failure(ExitCode code, const std::string& text) : std::runtime_error(text), code_(code) {}
  ExitCode code() const { return code_; }

 private:
  ExitCode code_;
};

inline Failure usageFailure(const std::string& text) { return {ExitCode::USAGE, text}; }
inline Failure dataFailure(const std::string& text) { return {ExitCode::DATA, text}; }

// The text for use in a message: control characters and bytes that are no UTF-8 as \xNN, and
// "..." in place of what is beyond the first `limit` bytes or so.
std::string printable(std::string_view text, std::size_t limit = 200);
// The same in quotes, at most 60 bytes.
std::string inQuotes(std::string_view text);

}  // namespace om::tabulate

#endif  // OM_TOOLS_TABULATE_FAILURE_H_
