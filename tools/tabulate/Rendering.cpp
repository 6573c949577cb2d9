#include "tools/tabulate/Rendering.h"

#include <algorithm>
#include <string>
#include <vector>

#include "display/OmDisplayColumnHeading.h"
#include "display/OmDisplayLayerHeading.h"
#include "display/OmDisplayRowHeading.h"
#include "external/cells/OmNumber.h"
#include "output/OmHeading.h"
#include "output/OmOutputWalker.h"
#include "output/OmPageTitle.h"
#include "output/OmTextBlock.h"
#include "tools/tabulate/Failure.h"

namespace om::tabulate {

namespace {

using Entry = OmDisplayLayerHeading::ConstNode;

std::string textOf(const OmCellText* text) {
  if (text == nullptr) return "";
  std::string result = printable(std::string(*text), 1000);
  for (const short note : text->Footnotes()) {
    result += " [" + std::to_string(note + 1) + "]";
  }
  return result;
}

// Characters, at which terminals mostly show one column each.
std::size_t widthOf(const std::string& text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xc0) != 0x80; }));
}

// Lines of columns, of which those from `numbers` on are set to the right.
class Grid {
 public:
  explicit Grid(std::size_t numbers) : numbers_(numbers) {}

  std::vector<std::string>& addLine() { return lines_.emplace_back(); }
  void write(std::ostream& out) const;

 private:
  std::size_t numbers_;
  std::vector<std::vector<std::string>> lines_;
};

void Grid::write(std::ostream& out) const {
  std::vector<std::size_t> widths;
  for (const auto& line : lines_) {
    widths.resize(std::max(widths.size(), line.size()));
    for (std::size_t i = 0; i < line.size(); ++i) widths[i] = std::max(widths[i], widthOf(line[i]));
  }
  for (const auto& line : lines_) {
    std::string text;
    for (std::size_t i = 0; i < line.size(); ++i) {
      const std::string padding(widths[i] - widthOf(line[i]), ' ');
      if (i != 0) text += "  ";
      text += i >= numbers_ ? padding + line[i] : line[i] + padding;
    }
    text.erase(text.find_last_not_of(' ') + 1);
    out << text << '\n';
  }
}

// Plain text, a grid for each layer of a table.
class TextWriter : public OmOutputWalker {
 public:
  TextWriter(const RenderingOptions& options, std::ostream& out) : options_(options), out_(out) {}

  void Visit(OmInteractive&) override { other(); }
  void Visit(OmModel&) override { other(); }
  void Visit(OmAnswerTree&) override { other(); }
  void Visit(OmChart&) override { other(); }
  void Visit(OmPageTitle& part) override { lines(part); }
  void Visit(OmTextBlock& part) override {
    out_ << textOf(&part.Label()) << '\n';
    lines(part);
  }
  void Visit(OmHeading& part) override { out_ << textOf(&part.Label()) << "\n\n"; }
  void Visit(OmPivotTable& part) override;

 private:
  void other() { out_ << "(not shown)\n\n"; }
  void lines(const OmTextBlock& part) {
    for (const std::string& line : part.TextList()) out_ << "  " << printable(line, 4000) << '\n';
    out_ << '\n';
  }
  void writeLayer(OmPivotTable& table, OmDisplayLayerHeading& layers,
                  const TableRendering& options);

  const RenderingOptions& options_;
  std::ostream& out_;
};

void TextWriter::Visit(OmPivotTable& table) {
  const TableRendering& options = options_.of(table);
  const OmCellText* const title = table.GetTableTitle();
  out_ << textOf(title != nullptr ? title : &table.Label()) << '\n';
  OmDisplayLayerHeading layers(table, options.skipEmpty[Axis::LAYERS]);
  if (options.layer == TableRendering::kAllLayers) {
    while (layers.NextLayer()) writeLayer(table, layers, options);
  } else if (layers.SwitchLayer(options.layer)) {
    writeLayer(table, layers, options);
  }
  if (table.Caption() != nullptr) out_ << textOf(table.Caption()) << '\n';
  for (std::size_t i = 0; i < table.Footnotes().size(); ++i) {
    out_ << '[' << i + 1 << "] " << textOf(table.Footnotes()[i].Text()) << '\n';
  }
  out_ << '\n';
}

void TextWriter::writeLayer(OmPivotTable& table, OmDisplayLayerHeading& layers,
                            const TableRendering& options) {
  for (int i = 0; i < layers.NDimensions(); ++i) {
    std::string path;
    for (const Entry* const entry : layers.Nodes(i)) {
      if (entry != nullptr) path += (path.empty() ? "" : ": ") + textOf((*entry)->Text());
    }
    out_ << path << '\n';
  }
  const OmDisplayRowHeading rows(layers, options.skipEmpty[Axis::ROWS], options.namesInCorner);
  const OmDisplayColumnHeading columns(layers, options.skipEmpty[Axis::COLUMNS]);
  Grid grid(static_cast<std::size_t>(rows.NColumns()));
  const auto addLabels = [](std::vector<std::string>& line, const auto& entries) {
    for (const Entry* const entry : entries) {
      line.push_back(entry != nullptr ? textOf((*entry)->Text()) : "");
    }
  };
  for (int row = 0; row < columns.NRows(); ++row) {
    std::vector<std::string>& line = grid.addLine();
    for (const OmCellText* const text : rows.CornerText()) {
      line.push_back(row + 1 == columns.NRows() ? textOf(text) : "");
    }
    addLabels(line, columns.Row(row));
  }
  std::vector<int> index;
  layers.Fill(index);
  index.resize(table.NDimensions());
  for (int row = 0; row < rows.NRows(); ++row) {
    std::vector<std::string>& line = grid.addLine();
    addLabels(line, rows.Row(row));
    rows.Fill(index, row);
    for (int column = 0; column < columns.NColumns(); ++column) {
      columns.Fill(index, column);
      line.push_back(textOf(table.Cell(index)));
    }
  }
  grid.write(out_);
}

}  // namespace

void writeDocument(const OmOutputTree& document, OutputFormat format,
                   const RenderingOptions& options, std::ostream& out) {
  static constexpr const char* kNames[] = {"text", "html", "csv", "json", "jsonstat", "xlsx"};
  if (format != OutputFormat::TEXT) {
    throw usageFailure("this build cannot write " +
                       std::string(kNames[static_cast<std::size_t>(format)]));
  }
  TextWriter(options, out).Walk(document);
}

}  // namespace om::tabulate
