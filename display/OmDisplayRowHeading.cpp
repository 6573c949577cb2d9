#include "display/OmDisplayRowHeading.h"

#include <memory>

#include "display/internal/OmDisplayAxisData.h"

using om::internal::DisplayInternals;
using om::internal::OmDisplayAxisData;

namespace {

OmDisplayAxisData* makeRows(OmDisplayLayerHeading& layers, bool skipEmpty, bool dimNamesInCorner) {
  auto rows = std::make_unique<OmDisplayAxisData>(DisplayInternals::dataOf(layers), skipEmpty,
                                                  dimNamesInCorner, layers.Table().Rows(),
                                                  layers.Table().Columns());
  rows->enterCornerTexts();
  return rows.release();
}

}  // namespace

OmDisplayRowHeading::OmDisplayRowHeading(OmDisplayLayerHeading& layers, bool skipEmpty,
                                         bool dimNamesInCorner)
    : _my(makeRows(layers, skipEmpty, dimNamesInCorner)) {}

OmDisplayRowHeading::~OmDisplayRowHeading() { delete _my; }

OmPivotTable& OmDisplayRowHeading::Table() const { return *_my->table; }

bool OmDisplayRowHeading::SkipEmpty() const { return _my->skipEmpty; }

bool OmDisplayRowHeading::DimNamesInCorner() const { return _my->dimNamesInCorner; }

int OmDisplayRowHeading::NDimensions() const {
  return static_cast<int>(_my->axisDimensions.size());
}

int OmDisplayRowHeading::getDimensionIndex(int position) const {
  return _my->axisDimensions[static_cast<std::size_t>(position)];
}

int OmDisplayRowHeading::NRows() const { return static_cast<int>(_my->positionCount); }

int OmDisplayRowHeading::NColumns() const { return static_cast<int>(_my->totalLevels); }

int OmDisplayRowHeading::VisibleWidth(int position) const { return _my->levelsAt(position); }

std::deque<OmDisplayRowHeading::ConstNode*> OmDisplayRowHeading::Row(int row) const {
  return _my->labels(row);
}

std::deque<OmDisplayRowHeading::ConstNode*> OmDisplayRowHeading::Column(int level) const {
  return _my->labelsOnLevel(level);
}

std::deque<OmDisplayRowHeading::ConstNode*> OmDisplayRowHeading::RowCategories(int row) const {
  return _my->categories(row);
}

void OmDisplayRowHeading::Fill(std::vector<int>& index, int row) const { _my->fill(index, row); }

void OmDisplayRowHeading::DimAllNodes(int row, std::vector<ConstNode*>& out) const {
  _my->appendPaths(row, out);
}

void OmDisplayRowHeading::DimCatNodes(int row, std::vector<ConstNode*>& dimensions,
                                      std::vector<ConstNode*>& categories) const {
  _my->appendEnds(row, dimensions, categories);
}

const std::vector<unsigned long long>& OmDisplayRowHeading::getNonEmptyRows() const {
  return _my->shownPositions();
}

std::vector<const OmCellText*> OmDisplayRowHeading::CornerText() const { return _my->cornerTexts; }
