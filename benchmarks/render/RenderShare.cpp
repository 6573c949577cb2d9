// The model's own share of a table: builds the one of 84,000 counts, lays it out, and writes it as
// text and as HTML.
//
//   render_share FILE ROUNDS
//
// Writes its numbers to FILE as CSV, for other programs to make the same table from, and then
// prints a line for each round: the milliseconds of processor time for building, and of writing
// text and HTML with the layout. These include what it takes to destroy what was made.

#include <ctime>
#include <fstream>
#include <functional>
#include <iostream>
#include <string>

#include "benchmarks/render/ByteCounter.h"
#include "benchmarks/render/RenderTables.h"
#include "render/HtmlWriter.h"
#include "render/TextWriter.h"

namespace om::bench {
namespace {

bool writeRecords(const std::string& path) {
  std::ofstream out(path);
  out << "region,area,town,class,sex,n\n";
  visitNumbers(kSmallShape, Content::COUNTS, [&](const std::vector<int>& index, const OmNumber& n) {
    out << "Region " << index[4] + 1 << ",Area " << index[3] + 1 << ",Town " << index[2] + 1
        << ",Class " << index[1] + 1 << ',' << (index[0] == 0 ? "Female" : "Male") << ','
        << static_cast<long long>(n.Value()) << '\n';
  });
  out.close();
  return out.good();
}

double millisecondsOf(const std::function<void()>& run) {
  const std::clock_t begin = std::clock();
  run();
  return 1000 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

void measure(int rounds) {
  for (int i = 0; i < rounds; ++i) {
    std::unique_ptr<OmPivotTable> table;
    ByteCounter out;
    const double build = millisecondsOf([&] { table = renderTable(kSmallShape, Content::COUNTS); });
    const double text = millisecondsOf([&] { render::writeText(*table, out, {{}, 0}); });
    const double html = millisecondsOf([&] { render::writeHtml(*table, out); });
    const double drop = millisecondsOf([&] { table.reset(); });
    std::cout << "om " << build + drop << ' ' << text << ' ' << html << '\n';
  }
}

}  // namespace
}  // namespace om::bench

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  if (!om::bench::writeRecords(argv[1])) return 1;
  om::bench::measure(std::stoi(argv[2]));
  return 0;
}
