#include "tools/tabulate/Report.h"

#include <limits>
#include <memory>
#include <utility>

#include "external/cells/OmNumber.h"
#include "external/cells/OmStringCell.h"
#include "output/OmPageTitle.h"
#include "output/OmProcedure.h"
#include "output/OmTextBlock.h"
#include "tools/tabulate/TableBuilder.h"

namespace om::tabulate {

namespace {

constexpr char kCodePage[] = "UTF-8";

std::unique_ptr<OmPivotTable> summaryOf(const TableRequest& request, const Counted& counted) {
  const OmStringCell title("Data summary");
  auto table = std::make_unique<OmPivotTable>(title, OmStringCell("Data summary"), false);
  table->setBackendSettings(BackendSettings());
  table->SetTableTitle(title);
  const OmStringCell source("Data: " + (request.data == "-" ? "standard input" : request.data));
  table->Caption(&source);

  std::vector<std::pair<const char*, std::uint64_t>> lines{
      {"Read", counted.read}, {"Used", counted.used}, {"Value missing", counted.missing}};
  if (!request.weight.empty()) lines.emplace_back("Weight missing", counted.missingWeight);

  OmDimension& statistics = table->AddDimension(OmStringCell("Statistics"));
  statistics.Root()->Hide(true);
  statistics.AddNewChild(statistics.Root(), OmStringCell("N"), 0, false);
  statistics.AddNewChild(statistics.Root(), OmStringCell("Percent"), 1, false);
  OmDimension& records = table->AddDimension(OmStringCell("Records"));
  int subscript = 0;
  for (const auto& [label, number] : lines) {
    records.AddNewChild(records.Root(), OmStringCell(label),
                        static_cast<unsigned long long>(subscript), false);
    const auto n = static_cast<double>(number);
    const double percent = counted.read != 0 ? 100 * n / static_cast<double>(counted.read)
                                             : std::numeric_limits<double>::quiet_NaN();
    table->Cell({0, subscript}, OmNumber(n, {0, false, true}));
    table->Cell({1, subscript}, OmNumber(percent, {1, true, false}));
    ++subscript;
  }
  table->Columns().push_back(0);
  table->Rows().push_back(1);
  table->EndTable();
  return table;
}

}  // namespace

const OmPivotTable* Report::add(const TableRequest& request, const Counted& counted,
                                const std::vector<std::string>& log) {
  auto procedure = std::make_unique<OmProcedure>(OmStringCell("Tabulate"), "en", kCodePage, "en");
  if (!log.empty()) procedure->SetCommand(log.front());
  document_.AppendLast(std::move(procedure), 1);

  auto block = std::make_unique<OmTextBlock>(OmStringCell("Log"), kCodePage);
  block->TextList().assign(log.begin(), log.end());
  document_.AppendLast(std::move(block), 2);

  auto pageTitle = std::make_unique<OmPageTitle>(kCodePage);
  pageTitle->TextList().push_back(titleOf(request));
  document_.AppendLast(std::move(pageTitle), 2);
  document_.AppendLast(summaryOf(request, counted), 2);

  std::unique_ptr<OmPivotTable> table = buildTable(request, counted);
  const OmPivotTable* const added = table.get();
  const bool scratched = table->IsScratched();
  const OmOutputTree::Node node = document_.AppendLast(std::move(table), 2);
  if (!scratched) return added;

  const OmOutputTree::Node message = Amputate(node, nullptr, kCodePage);
  dynamic_cast<OmTextBlock&>(*message.Item())
      .TextList()
      .push_back("The table was dropped: it has more than " + std::to_string(request.maxCells) +
                 " cells, which is the limit.");
  return nullptr;
}

}  // namespace om::tabulate
