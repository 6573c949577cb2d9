// tabulate: turns CSV data into documents of tables. See docs/tabulate.md.

#include <sys/ioctl.h>
#include <unistd.h>

#include <iostream>
#include <string>
#include <vector>

#include "tools/tabulate/DescriptorBuffer.h"
#include "tools/tabulate/OutputFile.h"
#include "tools/tabulate/Program.h"

namespace {

int widthOfTerminal(int descriptor) {
  winsize size{};
  const bool known = isatty(descriptor) != 0 && ioctl(descriptor, TIOCGWINSZ, &size) == 0;
  return known ? size.ws_col : 0;
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  om::tabulate::OutputFile::removeOnSignals();
  om::tabulate::DescriptorBuffer buffer(STDOUT_FILENO);
  std::ostream out(&buffer);
  const om::tabulate::Surroundings surroundings{
      std::cin, out, std::cerr, isatty(STDERR_FILENO) != 0, widthOfTerminal(STDOUT_FILENO)};
  return static_cast<int>(
      om::tabulate::runProgram(std::vector<std::string>(argv + 1, argv + argc), surroundings));
}
