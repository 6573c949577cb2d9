// Options: what the command line says.

#ifndef OM_TOOLS_TABULATE_OPTIONS_H_
#define OM_TOOLS_TABULATE_OPTIONS_H_

#include <optional>
#include <string>
#include <vector>

#include "tools/tabulate/Progress.h"
#include "tools/tabulate/Rendering.h"
#include "tools/tabulate/Request.h"

namespace om::tabulate {

struct Options {
  std::string answer;   // not empty: what to print instead of doing anything, as for --help
  std::string jobFile;  // not empty: tabulate what the job says
  TableRequest request;
  TableRendering rendering;
  OutputFormat format = OutputFormat::TEXT;
  std::string output;        // a file name; empty for the standard output
  std::optional<int> width;  // of text; the terminal's when it is not said
  bool ascii = false;
  Progress::When progress = Progress::When::AUTO;
};

// The arguments stand without the name of the program. Throws Failure (usage).
Options parseOptions(const std::vector<std::string>& arguments);

// The command as a shell takes it.
std::string commandLine(const std::vector<std::string>& arguments);

}  // namespace om::tabulate

#endif  // OM_TOOLS_TABULATE_OPTIONS_H_
