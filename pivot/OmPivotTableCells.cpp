// The cells of a table and the iterators over them.

#include <memory>
#include <utility>

#include "backend/OMSException.h"
#include "pivot/OmPivotTable.h"
#include "pivot/internal/CellIteration.h"
#include "pivot/internal/PivotTableData.h"

using om::internal::CellIteration;

namespace {

[[noreturn, gnu::cold]] void refuseLength(const std::vector<int>& index, std::size_t dimensions) {
  throw OMSException("OmPivotTable::Cell() -- nind != _my->_dimensions.size()",
                     static_cast<double>(index.size()), static_cast<double>(dimensions));
}

[[noreturn, gnu::cold]] void refuseSubscript(int subscript) {
  throw OMSException("OmPivotTable::Cell() -- subscript < 0",
                     static_cast<double>(static_cast<unsigned long long>(subscript)), 0);
}

void checkSigns(const std::vector<int>& index) {
  for (const int subscript : index) {
    if (subscript < 0) refuseSubscript(subscript);
  }
}

om::internal::CellPlace* firstPlace(const om::internal::PointerVector* root,
                                    const std::vector<int>& sizes) {
  auto iteration = std::make_unique<CellIteration>(root, sizes);
  iteration->First();
  return iteration.release();
}

CellIteration* iterationOf(om::internal::CellPlace* place) {
  return static_cast<CellIteration*>(place);
}

}  // namespace

OmCellText* OmPivotTable::Cell(const std::vector<int>& index) {
  return const_cast<OmCellText*>(std::as_const(*this).Cell(index));
}

const OmCellText* OmPivotTable::Cell(const std::vector<int>& index) const {
  const std::size_t dimensions = _my->dimensions.size();
  if (index.size() != dimensions) refuseLength(index, dimensions);
  // A subscript of a cell that is found cannot be negative.
  const OmCellText* const cell = index.empty() ? nullptr : _my->cells.Find(index);
  if (cell == nullptr) checkSigns(index);
  return cell;
}

bool OmPivotTable::Cell(const std::vector<int>& index, const OmCellText* text) {
  const std::int32_t count = _my->numCells;
  _my->numCells = static_cast<std::int32_t>(static_cast<std::uint32_t>(count) + 1);
  if (count > _my->settings.getMaxCells()) {
    Scratch(true);
    return false;
  }
  const std::size_t dimensions = _my->dimensions.size();
  if (index.size() != dimensions || dimensions == 0) refuseLength(index, dimensions);
  checkSigns(index);

  // Ready before anything changes: it may fail, and the text may be the very cell that it replaces.
  std::unique_ptr<OmCellText> cell(text != nullptr ? text->Clone(&_my->region) : nullptr);
  if (cell != nullptr) setHelper(*cell);
  om::internal::CellStore::Place place = _my->cells.Reach(index);
  const OmCellText* const former = place.Cell();
  if (cell != nullptr && former != nullptr && former->hasMeta()) cell->setMeta(former->getMeta());
  place.Put(std::move(cell));
  return true;
}

bool OmPivotTable::Cell(const std::vector<int>& index, const OmCellText& text) {
  return Cell(index, &text);
}

void OmPivotTable::deleteCell(const std::vector<int>& index) {
  if (index.size() == NDimensions()) _my->cells.Erase(index);
}

long OmPivotTable::getNumCells() const { return _my->numCells; }

bool OmPivotTable::IsScratched() const { return _my->scratched; }

void OmPivotTable::Scratch(bool scratched) { _my->scratched = scratched; }

OmPivotTable::Iterator OmPivotTable::FirstCell() {
  return Iterator(firstPlace(_my->cells.Root(), SizeVector()));
}

OmPivotTable::ConstIterator OmPivotTable::FirstCell() const {
  return ConstIterator(firstPlace(_my->cells.Root(), SizeVector()));
}

OmPivotTable::Iterator OmPivotTable::begin() { return FirstCell(); }

OmPivotTable::Iterator OmPivotTable::end() { return Iterator(); }

OmPivotTable::ConstIterator OmPivotTable::begin() const { return FirstCell(); }

OmPivotTable::ConstIterator OmPivotTable::end() const { return ConstIterator(); }

template <class Text>
OmPivotTable::CellIterator<Text>::CellIterator(const CellIterator& other)
    : data_(other.data_ != nullptr ? new CellIteration(*iterationOf(other.data_)) : nullptr) {}

template <class Text>
OmPivotTable::CellIterator<Text>::CellIterator(CellIterator&& other) noexcept
    : data_(std::exchange(other.data_, nullptr)) {}

template <class Text>
OmPivotTable::CellIterator<Text>& OmPivotTable::CellIterator<Text>::operator=(
    const CellIterator& other) {
  CellIterator copy(other);
  std::swap(data_, copy.data_);
  return *this;
}

template <class Text>
OmPivotTable::CellIterator<Text>& OmPivotTable::CellIterator<Text>::operator=(
    CellIterator&& other) noexcept {
  std::swap(data_, other.data_);
  return *this;
}

template <class Text>
void OmPivotTable::CellIterator<Text>::release() {
  delete iterationOf(data_);
}

template <class Text>
const std::vector<int>& OmPivotTable::CellIterator<Text>::Index() const {
  static const std::vector<int> none;
  return data_ != nullptr ? iterationOf(data_)->Index() : none;
}

template <class Text>
void OmPivotTable::CellIterator<Text>::findNext() {
  iterationOf(data_)->Find();
}

template <class Text>
OmPivotTable::CellIterator<Text> OmPivotTable::CellIterator<Text>::operator++(int) {
  CellIterator before(*this);
  ++*this;
  return before;
}

template class OmPivotTable::CellIterator<OmCellText>;
template class OmPivotTable::CellIterator<const OmCellText>;
