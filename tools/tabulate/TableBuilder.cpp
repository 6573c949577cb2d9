#include "tools/tabulate/TableBuilder.h"

#include <algorithm>
#include <limits>
#include <map>
#include <utility>
#include <vector>

#include "external/cells/OmNumber.h"
#include "external/cells/OmStringCell.h"
#include "tools/tabulate/Categories.h"
#include "tools/tabulate/Margins.h"
#include "tools/tabulate/Statistics.h"

namespace om::tabulate {

namespace {

constexpr char kTotal[] = "Total";
constexpr char kStatistics[] = "Statistics";

std::string join(const std::vector<std::string>& parts, const char* separator) {
  std::string joined;
  for (const std::string& part : parts) {
    if (&part != &parts.front()) joined += separator;
    joined += part;
  }
  return joined;
}

std::string nameOf(const DimensionRequest& dimension) { return join(dimension, " / "); }

std::string plural(std::uint64_t count, const char* noun) {
  return std::string(OmNumber(static_cast<double>(count), {0, false, true})) + " " + noun +
         (count == 1 ? "" : "s");
}

// A dimension of the table and where it stands.
struct Placed {
  Axis axis;
  const DimensionRequest* request;
  Categories categories;
};

// What the percentages of one kind are of.
struct Base {
  std::vector<const Categories*> dimensions;  // null: summed over
  Tally tally;
};

class TableBuilder {
 public:
  TableBuilder(const TableRequest& request, const Counted& counted)
      : request_(request), counted_(counted), statistics_(statisticsOf(request, counted)) {}

  std::unique_ptr<OmPivotTable> build();

 private:
  void addTitleNotes(OmStringCell& title);
  short addNote(const std::string& text);
  void addStatistics();
  void addDimension(const Placed& placed);
  void fillNode(OmDimension& dimension, const OmDimension::Node& parent, const Placed& placed,
                std::size_t node);
  void fillAxes();
  void fillCells();
  double valueOf(const StatisticEntry& entry, const Tally& body, std::size_t cell);
  double shareOf(Statistic statistic, const Tally& body, std::size_t cell);
  std::vector<const Categories*> kept(bool rows, bool columns) const;

  bool hasStatistics() const { return statistics_.size() > 1; }
  PuppetVector<short>& axisOf(Axis axis) {
    return axis == Axis::ROWS      ? table_->Rows()
           : axis == Axis::COLUMNS ? table_->Columns()
                                   : table_->Layers();
  }

  const TableRequest& request_;
  const Counted& counted_;
  const std::vector<StatisticEntry> statistics_;
  std::unique_ptr<OmPivotTable> table_;
  std::vector<Placed> dimensions_;  // in the order in which the table has them
  std::map<Statistic, Base> bases_;
  std::vector<Tally::Code> codes_;  // of the last base, to have room for it
  short missingNote_ = -1;
};

std::unique_ptr<OmPivotTable> TableBuilder::build() {
  OmStringCell title(titleOf(request_));
  table_ = std::make_unique<OmPivotTable>(title, OmStringCell("Tabulation"), false);
  BackendSettings settings;
  // The library refuses a cell when more than its limit are there.
  settings.setMaxCells(request_.maxCells - 1);
  table_->setBackendSettings(settings);

  addTitleNotes(title);
  table_->SetTableTitle(title);
  if (!request_.caption.empty()) {
    const OmStringCell caption(request_.caption);
    table_->Caption(&caption);
  }
  if (!hasStatistics()) {
    const OmStringCell corner(labelOf(statistics_.front().statistic));
    table_->CornerText(&corner);
  }

  // The store of the cells likes the densest dimension first, which is that of the statistics.
  if (hasStatistics()) addStatistics();
  PerAxis<std::size_t> level;  // of the dictionaries behind those of the axis
  std::size_t levels = 0;
  for (const Axis axis : kAxes) {
    for (const DimensionRequest& dimension : request_.dimensions[axis]) levels += dimension.size();
    level[axis] = levels;
  }
  for (const Axis axis : {Axis::COLUMNS, Axis::ROWS, Axis::LAYERS}) {
    const std::vector<DimensionRequest>& requests = request_.dimensions[axis];
    for (auto dimension = requests.rbegin(); dimension != requests.rend(); ++dimension) {
      level[axis] -= dimension->size();
      dimensions_.push_back({axis, &*dimension,
                             Categories(counted_.tally, counted_.dictionaries, level[axis],
                                        dimension->size(), request_.order, request_.totals[axis])});
    }
  }
  for (const Placed& placed : dimensions_) addDimension(placed);
  fillAxes();
  fillCells();
  table_->EndTable();
  return std::move(table_);
}

short TableBuilder::addNote(const std::string& text) {
  const OmStringCell note(text);
  return static_cast<short>(table_->Footnote(OmFootnote(&note, nullptr, nullptr), true));
}

void TableBuilder::addTitleNotes(OmStringCell& title) {
  const auto add = [&](const std::string& text) { title.Footnotes().push_back(addNote(text)); };
  if (!request_.weight.empty()) add("Weighted by " + request_.weight + ".");
  if (counted_.missing != 0) {
    add("Left out: " + plural(counted_.missing, "record") +
        " in which a value of the variables on rows, columns or layers is missing.");
  }
  if (counted_.missingWeight != 0) {
    add("Left out: " + plural(counted_.missingWeight, "record") + " without a weight.");
  }
  if (!hasStatistics() && statistics_.front().measure != StatisticEntry::kNoMeasure) {
    const Counted::Measure& measure = counted_.measures[statistics_.front().measure];
    if (measure.missing != 0) {
      add(plural(measure.missing, "record") + " without a value of " + measure.name + ".");
    }
  }
  for (const std::string& note : request_.notes) add(note);
}

void TableBuilder::addStatistics() {
  OmDimension& dimension = table_->AddDimension(OmStringCell(kStatistics));
  OmDimension::Node group = dimension.Root();
  // Over "Count" and "Row %" the name would only take room; a layer is chosen by it.
  group->Hide(request_.statisticsOn != Axis::LAYERS);
  std::size_t measure = StatisticEntry::kNoMeasure;
  for (std::size_t i = 0; i < statistics_.size(); ++i) {
    if (statistics_[i].measure != measure) {
      measure = statistics_[i].measure;
      OmStringCell label(counted_.measures[measure].name);
      if (counted_.measures[measure].missing != 0) {
        label.Footnotes().push_back(addNote(plural(counted_.measures[measure].missing, "record") +
                                            " without a value of " +
                                            counted_.measures[measure].name + "."));
      }
      group = dimension.AddNewChild(dimension.Root(), label, 0, true);
    }
    dimension.AddNewChild(group, OmStringCell(labelOf(statistics_[i].statistic)), i, false);
  }
}

void TableBuilder::addDimension(const Placed& placed) {
  OmDimension& dimension = table_->AddDimension(OmStringCell(nameOf(*placed.request)));
  fillNode(dimension, dimension.Root(), placed, 0);
}

// Each group is filled before the next one is added beside it, which would invalidate its handle.
void TableBuilder::fillNode(OmDimension& dimension, const OmDimension::Node& parent,
                            const Placed& placed, std::size_t node) {
  const std::vector<Categories::Node>& nodes = placed.categories.nodes();
  for (const std::size_t child : nodes[node].children) {
    const Categories::Node& category = nodes[child];
    OmStringCell label(category.isTotal ? kTotal : std::string(category.label));
    if (!category.isTotal && category.label.empty()) {
      if (missingNote_ < 0) missingNote_ = addNote("The value is missing.");
      label.Footnotes().push_back(missingNote_);
    }
    const OmDimension::Node added = dimension.AddNewChild(
        parent, label, category.isGroup ? 0 : category.subscript, category.isGroup);
    if (category.isGroup) fillNode(dimension, added, placed, child);
  }
}

// The lists of the axes begin with the innermost dimension, and so do the dimensions here.
void TableBuilder::fillAxes() {
  short position = 0;
  if (hasStatistics()) axisOf(request_.statisticsOn).push_back(position++);
  for (const Placed& placed : dimensions_) axisOf(placed.axis).push_back(position++);
}

std::vector<const Categories*> TableBuilder::kept(bool rows, bool columns) const {
  std::vector<const Categories*> dimensions;
  for (const Placed& placed : dimensions_) {
    const bool keep = placed.axis == Axis::LAYERS || (placed.axis == Axis::ROWS && rows) ||
                      (placed.axis == Axis::COLUMNS && columns);
    dimensions.push_back(keep ? &placed.categories : nullptr);
  }
  return dimensions;
}

void TableBuilder::fillCells() {
  const auto limit = static_cast<std::size_t>(request_.maxCells) / statistics_.size();
  const Tally body = expand(counted_.tally, kept(true, true), counted_.tally.content(), limit);
  const Tally::Content weights{counted_.tally.content().weighted, 0, false};
  for (const StatisticEntry& entry : statistics_) {
    const bool ofRow = entry.statistic == Statistic::ROW_PERCENT;
    const bool ofColumn = entry.statistic == Statistic::COLUMN_PERCENT;
    if (ofRow || ofColumn || entry.statistic == Statistic::TOTAL_PERCENT) {
      std::vector<const Categories*> dimensions = kept(ofRow, ofColumn);
      Tally base =
          expand(counted_.tally, dimensions, weights, std::numeric_limits<std::size_t>::max());
      bases_.emplace(entry.statistic, Base{std::move(dimensions), std::move(base)});
    }
  }
  const std::size_t first = hasStatistics() ? 1 : 0;
  std::vector<int> index(first + dimensions_.size());
  for (std::size_t cell = 0; cell < body.size(); ++cell) {
    std::copy(body.key(cell).begin(), body.key(cell).end(),
              index.begin() + static_cast<std::ptrdiff_t>(first));
    for (std::size_t i = 0; i < statistics_.size(); ++i) {
      if (hasStatistics()) index[0] = static_cast<int>(i);
      const OmNumber number(valueOf(statistics_[i], body, cell), statistics_[i].format);
      if (!table_->Cell(index, &number) && table_->IsScratched()) return;
    }
  }
}

double TableBuilder::valueOf(const StatisticEntry& entry, const Tally& body, std::size_t cell) {
  switch (entry.statistic) {
    case Statistic::COUNT:
      return body.count(cell);
    case Statistic::ROW_PERCENT:
    case Statistic::COLUMN_PERCENT:
    case Statistic::TOTAL_PERCENT:
      return shareOf(entry.statistic, body, cell);
    default:
      break;
  }
  if (entry.measure == StatisticEntry::kNoMeasure) return static_cast<double>(body.records(cell));
  const Moments& moments = body.moments(cell, entry.measure);
  switch (entry.statistic) {
    case Statistic::SUM:
      return moments.n() == 0 ? Moments::kNone : moments.sum();
    case Statistic::MEAN:
      return moments.mean();
    case Statistic::SD:
      return moments.sd();
    case Statistic::MIN:
      return moments.least();
    case Statistic::MAX:
      return moments.greatest();
    case Statistic::MEDIAN:
      return body.values(cell, entry.measure).median();
    default:
      return static_cast<double>(moments.n());
  }
}

double TableBuilder::shareOf(Statistic statistic, const Tally& body, std::size_t cell) {
  const Base& of = bases_.at(statistic);
  codes_.assign(body.key(cell).begin(), body.key(cell).end());
  for (std::size_t i = 0; i < codes_.size(); ++i) {
    if (of.dimensions[i] == nullptr) codes_[i] = 0;
  }
  const double base = of.tally.count(of.tally.find(codes_.data()));
  return base > 0 ? 100 * body.count(cell) / base : Moments::kNone;
}

}  // namespace

std::string titleOf(const TableRequest& request) {
  if (!request.title.empty()) return request.title;
  const std::vector<Statistic> statistics = request.effectiveStatistics();
  std::string title;
  if (statistics.size() == 1 && request.measures.size() < 2) {
    if (!request.measures.empty()) {
      title = labelOf(statistics.front()) + " of " + request.measures.front() + ": ";
    } else if (statistics.front() != Statistic::COUNT) {
      title = labelOf(statistics.front()) + ": ";
    }
  }
  bool first = true;
  for (const Axis axis : kAxes) {
    std::vector<std::string> names;
    for (const DimensionRequest& dimension : request.dimensions[axis]) {
      names.push_back(nameOf(dimension));
    }
    if (names.empty()) continue;
    title += (first ? "" : " by ") + join(names, ", ");
    first = false;
  }
  return title;
}

std::unique_ptr<OmPivotTable> buildTable(const TableRequest& request, const Counted& counted) {
  return TableBuilder(request, counted).build();
}

}  // namespace om::tabulate
