#include "display/OmDisplayColumnHeading.h"

#include "display/internal/OmDisplayAxisData.h"

using om::internal::DisplayInternals;
using om::internal::OmDisplayAxisData;

OmDisplayColumnHeading::OmDisplayColumnHeading(OmDisplayLayerHeading& layers, bool skipEmpty)
    : _my(new OmDisplayAxisData(DisplayInternals::dataOf(layers), skipEmpty, false,
                                layers.Table().Columns(), layers.Table().Rows())) {}

OmDisplayColumnHeading::~OmDisplayColumnHeading() { delete _my; }

OmPivotTable& OmDisplayColumnHeading::Table() const { return *_my->table; }

bool OmDisplayColumnHeading::SkipEmpty() const { return _my->skipEmpty; }

int OmDisplayColumnHeading::NDimensions() const {
  return static_cast<int>(_my->axisDimensions.size());
}

int OmDisplayColumnHeading::getDimensionIndex(int position) const {
  return _my->axisDimensions[static_cast<std::size_t>(position)];
}

int OmDisplayColumnHeading::NColumns() const { return static_cast<int>(_my->positionCount); }

int OmDisplayColumnHeading::NRows() const { return static_cast<int>(_my->totalLevels); }

int OmDisplayColumnHeading::VisibleHeight(int position) const { return _my->levelsAt(position); }

std::deque<OmDisplayColumnHeading::ConstNode*> OmDisplayColumnHeading::Column(int column) const {
  return _my->labels(column);
}

std::deque<OmDisplayColumnHeading::ConstNode*> OmDisplayColumnHeading::Row(int level) const {
  return _my->labelsOnLevel(level);
}

std::deque<OmDisplayColumnHeading::ConstNode*> OmDisplayColumnHeading::ColumnCategories(
    int column) const {
  return _my->categories(column);
}

void OmDisplayColumnHeading::Fill(std::vector<int>& index, int column) const {
  _my->fill(index, column);
}

void OmDisplayColumnHeading::DimAllNodes(int column, std::vector<ConstNode*>& out) const {
  _my->appendPaths(column, out);
}

void OmDisplayColumnHeading::DimCatNodes(int column, std::vector<ConstNode*>& dimensions,
                                         std::vector<ConstNode*>& categories) const {
  _my->appendEnds(column, dimensions, categories);
}

const std::vector<unsigned long long>& OmDisplayColumnHeading::getNonEmptyColumns() const {
  return _my->shownPositions();
}
