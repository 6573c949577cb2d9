// Program: what `tabulate` does from its arguments to its exit code.

#ifndef OM_TOOLS_TABULATE_PROGRAM_H_
#define OM_TOOLS_TABULATE_PROGRAM_H_

#include <istream>
#include <ostream>
#include <string>
#include <vector>

#include "tools/tabulate/Failure.h"

namespace om::tabulate {

// What the program reads from and writes to.
struct Surroundings {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
  bool errIsTerminal = false;
  int outWidth = 0;  // columns of the terminal; 0 when it is none
};

// Never throws. What goes wrong is one line on `err`. The arguments stand without the program's
// name.
ExitCode runProgram(const std::vector<std::string>& arguments, const Surroundings& surroundings);

}  // namespace om::tabulate

#endif  // OM_TOOLS_TABULATE_PROGRAM_H_
