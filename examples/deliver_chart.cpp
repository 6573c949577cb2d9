// Delivers a chart in pieces, as a procedure does, and reads it back as a viewer does.

#include <external/cells/OmStringCell.h>
#include <output/OmChart.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iostream>
#include <string>
#include <string_view>

namespace {

void deliver(OmChart& chart, std::string_view image) {
  constexpr std::size_t kPiece = 8;
  for (std::size_t at = 0; at < image.size(); at += kPiece) {
    const std::string_view piece = image.substr(at, kPiece);
    chart.SetImageStream(piece.data(), static_cast<unsigned>(piece.size()));
  }

  chart.addCSVFileName("counts.csv", 10);
  chart.addCSVFileContent("species,n\n", 10);
  chart.addCSVFileContent("Adelie,152\n", 11);

  const std::int32_t info[] = {OmChart::FULLY_EDITABLE, OmChart::STANDARD_EDITOR};
  char bytes[sizeof(info)];
  std::memcpy(bytes, info, sizeof(info));
  chart.Done(bytes);
}

}  // namespace

int main() {
  OmChart chart(OmStringCell("Penguins by species"), "UTF-8", 1);
  deliver(chart, "<svg><rect width='152' height='9'/></svg>");

  std::cout << std::string(chart.Label()) << (chart.GetEditable() ? ", editable" : "") << '\n'
            << chart.viewImageData() << '\n';
  for (std::size_t i = 0; i < chart.viewCSVFileNames().size(); ++i) {
    std::cout << chart.viewCSVFileNames()[i] << ":\n" << chart.viewCSVFiles()[i];
  }

  std::string first, second, third, fourth;
  chart.getMapInfo(first, second, third, fourth);  // leaves them when there is no map
  std::cout << (chart.hasMap() ? "a map of " + first : "no map") << '\n';
}
