#include "pivot/OmPivotTable.h"

#include <memory>
#include <utility>

#include "backend/OMSException.h"
#include "dimensions/internal/DimensionFactory.h"
#include "pivot/internal/PivotTableData.h"
#include "pivot/internal/SameText.h"

using om::internal::DimensionFactory;

namespace {

// Whether `which` is a dimension, for the messages of Dimension and Size.
void checkDimension(int which, std::size_t count, const char* negative, const char* tooLarge) {
  if (which < 0) throw OMSException(negative, which, 0);
  if (static_cast<std::size_t>(which) >= count) {
    throw OMSException(tooLarge, which, static_cast<double>(count));
  }
}

PuppetVector<short> withoutEmptyEntries(const PuppetVector<short>& axis) {
  PuppetVector<short> kept;
  for (const short entry : axis) {
    if (entry != -1) kept.push_back(entry);
  }
  return kept;
}

}  // namespace

OmPivotTable::Data::Data(const OmCellText& templateText, bool splits)
    : templateName(templateText.Clone(&region)), hasSplits(splits) {
  const std::string name = *templateName;
  isWarnings = name == "Warnings";
  isNotes = name == "Notes";
}

OmPivotTable::Data::~Data() {
  region.WorkingRelease(false);
  templateName.reset();
  cornerText.reset();
  caption.reset();
  tableTitle.reset();
  if (!dimensions.empty()) cells.Destroy(dimensions.size());
  for (OmDimension* const dimension : dimensions) delete dimension;
  for (const auto& [area, format] : areaFormats) delete format;
}

OmPivotTable::OmPivotTable(const OmCellText& title, const OmCellText& templateName, bool hasSplits)
    : OmOutputPart(title), _my(new Data(templateName, hasSplits)) {}

OmPivotTable::~OmPivotTable() {
  // The trackers go after all texts that refer to them, the part's label included.
  const std::unique_ptr<icuTracker> tracker(_my->tracker);
  const std::unique_ptr<icuTracker> utf8Tracker(_my->utf8Tracker != _my->tracker ? _my->utf8Tracker
                                                                                 : nullptr);
  delete _my;
  adoptLabel(nullptr);
}

void OmPivotTable::Accept(OmOutputPart::Visitor& visitor) { visitor.Visit(*this); }

OmDimension& OmPivotTable::append(std::unique_ptr<OmDimension> dimension) {
  _my->dimensions.makeRoom();
  _my->cells.AddLevel();
  _my->dimensions.push_back(dimension.get());
  return *dimension.release();
}

OmDimension& OmPivotTable::AddDimension(const OmDimension& dimension) {
  OmDimension& added = append(DimensionFactory::copy(dimension, &_my->region));
  added.Root()->Subscript(NDimensions() - 1);
  setHelper(added.Name());
  return added;
}

OmDimension& OmPivotTable::AddDimension(const OmCellText& label) {
  const OmDimensionNode root(label, ~0ULL, true, nullptr);
  OmDimension& added = append(DimensionFactory::make(root, &_my->region));
  added.Root()->Subscript(NDimensions() - 1);
  setHelper(added.Name());
  return added;
}

void OmPivotTable::CopyDimensions(const OmPivotTable& other) {
  if (NDimensions() != 0) {
    throw OMSException("OmPivotTable::CopyDimensions() -- _my->_dimensions.size() != 0",
                       static_cast<double>(NDimensions()), 0);
  }
  std::vector<std::unique_ptr<OmDimension>> copies;
  for (const OmDimension* const dimension : other._my->dimensions) {
    copies.push_back(DimensionFactory::copy(*dimension, &_my->region));
  }
  _my->dimensions.reserve(copies.size());
  for (std::unique_ptr<OmDimension>& copy : copies) append(std::move(copy));
}

std::size_t OmPivotTable::NDimensions() const { return _my->dimensions.size(); }

OmDimension& OmPivotTable::Dimension(int which) {
  return const_cast<OmDimension&>(std::as_const(*this).Dimension(which));
}

const OmDimension& OmPivotTable::Dimension(int which) const {
  checkDimension(which, NDimensions(), "OmPivotTable::Dimension() -- which < 0",
                 "OmPivotTable::Dimension() -- which < NDimensions()");
  return *_my->dimensions[static_cast<std::size_t>(which)];
}

int OmPivotTable::FindDimension(const OmCellText& label) const {
  for (std::size_t i = 0; i < NDimensions(); ++i) {
    const OmDimension& dimension = *_my->dimensions[i];
    if (om::internal::sameText(dimension.Root()->Text(), &label)) return static_cast<int>(i);
  }
  return -1;
}

std::size_t OmPivotTable::Size(int which) const {
  checkDimension(which, NDimensions(), "OmPivotTable::Size() -- which < 0",
                 "OmPivotTable::Size() -- which < NDimensions()");
  return static_cast<std::size_t>(Dimension(which).NumCategories());
}

std::vector<int> OmPivotTable::SizeVector() const {
  std::vector<int> sizes;
  sizes.reserve(NDimensions());
  for (const OmDimension* const dimension : _my->dimensions) {
    sizes.push_back(dimension->NumCategories());
  }
  return sizes;
}

void OmPivotTable::EndTable() {
  const std::size_t count = NDimensions();
  if (_my->rows.size() + _my->columns.size() + _my->layers.size() == count) return;
  PuppetVector<short> layers = withoutEmptyEntries(_my->layers);
  PuppetVector<short> columns = withoutEmptyEntries(_my->columns);
  PuppetVector<short> rows = withoutEmptyEntries(_my->rows);
  const std::size_t entries = rows.size() + columns.size() + layers.size();
  if (entries != count) {
    throw OMSException("OmPivotTable::Data::ReindexAxis() -- ndim != nCount",
                       static_cast<double>(count), static_cast<double>(entries));
  }
  _my->layers = std::move(layers);
  _my->columns = std::move(columns);
  _my->rows = std::move(rows);
}
