// Plain decimal numbers, as measures and weights are written: "12", "-0.5", ".5", "1e6". No blanks,
// no "inf", no thousands separators.

#ifndef OM_TOOLS_TABULATE_NUMBER_H_
#define OM_TOOLS_TABULATE_NUMBER_H_

#include <string_view>

namespace om::tabulate {

struct Number {
  double value = 0;
  int decimals = 0;  // digits behind the point that it needs as it was written
};

// False where the text is no number, or is one that no double comes near.
bool parseNumber(std::string_view text, Number& number);

// Whether the text is digits with at most a sign "-" before and a fraction behind them.
bool isPlainDecimal(std::string_view text);

}  // namespace om::tabulate

#endif  // OM_TOOLS_TABULATE_NUMBER_H_
