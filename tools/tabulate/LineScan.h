// LineScan: follows records and lines through well-formed CSV text, block by block, so that a
// message can name the line of a record. It knows no fields; CsvReader knows them, and no lines.

#ifndef OM_TOOLS_TABULATE_LINESCAN_H_
#define OM_TOOLS_TABULATE_LINESCAN_H_

#include <cstdint>
#include <string_view>

namespace om::tabulate {

struct LineScan {
  std::uint64_t records =
      0;                   // that have ended: the number of the present one, the header's being 0
  std::uint64_t line = 1;  // the present one
  std::uint64_t recordLine = 1;  // where the present record begins, when it has begun
  bool begun = false;            // the present record has a character
  bool quoted = false;           // within quotes
  bool afterCr = false;          // a line feed that follows belongs to the same line break

  // Goes over the text, but stops where the record with this number has begun.
  void scan(std::string_view text, std::uint64_t untilRecord = UINT64_MAX);

  // Goes over text behind which `recordsEnded` records have ended and none has begun. Fast.
  void skip(std::string_view text, std::uint64_t recordsEnded);
};

}  // namespace om::tabulate

#endif  // OM_TOOLS_TABULATE_LINESCAN_H_
