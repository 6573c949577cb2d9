// Any bytes as a job: they are refused with one line, or asked tables of that go together and read
// no file outside the job's folder. The first byte says whether the others stand for themselves or
// for the words that jobs are made of.

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "tools/tabulate/Failure.h"
#include "tools/tabulate/JobFile.h"

namespace {

using namespace om::tabulate;

constexpr std::array kPieces{"{",
                             "}",
                             "[",
                             "]",
                             ",",
                             ":",
                             "{\"tables\": [{\"data\": \"d.csv\", \"rows\": [\"a\"]",
                             "}]}",
                             ", \"columns\": [",
                             ", \"layers\": [[\"p\", \"q\"]]",
                             "\"a\"",
                             "\"b\"",
                             "\"x\\ny\"",
                             "]",
                             ", \"weight\": ",
                             ", \"measure\": [\"m\"]",
                             ", \"statistics\": [\"count\", \"mean\"]",
                             ", \"totals\": [\"rows\"]",
                             ", \"missing\": \"category\"",
                             ", \"order\": ",
                             "\"typed\"",
                             ", \"max-cells\": ",
                             "7",
                             "-1",
                             "1e999",
                             "true",
                             "null",
                             ", \"layer\": ",
                             "}, {\"rows\": [\"c\"], \"data\": ",
                             "\"../d.csv\"",
                             "\"\\u0000\"",
                             "\"\xff\"",
                             "\"\\ud800\"",
                             " "};

void require(bool condition) {
  if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 1) return 0;
  std::string text;
  for (std::size_t i = 1; i < size; ++i) {
    if (data[0] >= 64) {
      text += kPieces[data[i] % kPieces.size()];
    } else {
      text += static_cast<char>(data[i]);
    }
  }
  try {
    for (const JobTable& table : parseJob(text, "fuzz.json")) {
      table.request.check();
      require(!table.request.data.empty() && table.request.data[0] != '/');
      require(('/' + table.request.data + '/').find("/../") == std::string::npos);
      require(table.request.maxCells >= 1);
    }
  } catch (const Failure& failure) {
    require(failure.code() == ExitCode::USAGE);
    require(std::string(failure.what()).find_first_of("\n\r\x1b") == std::string::npos);
  }
  return 0;
}
