// The texts, axes and plain properties of a table.

#include <memory>
#include <utility>

#include "pivot/OmPivotTable.h"
#include "pivot/internal/PivotTableData.h"

PuppetVector<short>& OmPivotTable::Rows() { return _my->rows; }

const PuppetVector<short>& OmPivotTable::Rows() const { return _my->rows; }

PuppetVector<short>& OmPivotTable::Columns() { return _my->columns; }

const PuppetVector<short>& OmPivotTable::Columns() const { return _my->columns; }

PuppetVector<short>& OmPivotTable::Layers() { return _my->layers; }

const PuppetVector<short>& OmPivotTable::Layers() const { return _my->layers; }

OmCellText* OmPivotTable::TemplateName() { return _my->templateName.get(); }

const OmCellText* OmPivotTable::TemplateName() const { return _my->templateName.get(); }

OmCellText* OmPivotTable::Caption() { return _my->caption.get(); }

const OmCellText* OmPivotTable::Caption() const { return _my->caption.get(); }

// Caption and table title are given the tracker even when there is none: a tracker that the text
// brought along does not stay.
void OmPivotTable::Caption(const OmCellText* text) {
  _my->caption.reset(text != nullptr ? text->Clone(&_my->region) : nullptr);
  if (_my->caption) _my->caption->Accept(_my->helper);
}

OmCellText* OmPivotTable::CornerText() { return _my->cornerText.get(); }

const OmCellText* OmPivotTable::CornerText() const { return _my->cornerText.get(); }

void OmPivotTable::CornerText(const OmCellText* text) {
  _my->cornerText.reset(text != nullptr ? text->Clone(&_my->region) : nullptr);
  if (_my->cornerText) setHelper(*_my->cornerText);
}

OmCellText& OmPivotTable::TableTitle() { return *_my->tableTitle; }

const OmCellText* OmPivotTable::GetTableTitle() const { return _my->tableTitle.get(); }

void OmPivotTable::SetTableTitle(const OmCellText& text) {
  _my->tableTitle.reset(text.Clone(&_my->region));
  _my->tableTitle->Accept(_my->helper);
}

bool OmPivotTable::IsNotes() const { return _my->isNotes; }

bool OmPivotTable::IsWarnings() const { return _my->isWarnings; }

bool OmPivotTable::HasSplits() const { return _my->hasSplits; }

int OmPivotTable::MinColumnWidth() const { return _my->minColumnWidth; }

void OmPivotTable::MinColumnWidth(int width) { _my->minColumnWidth = width; }

int OmPivotTable::MaxColumnWidth() const { return _my->maxColumnWidth; }

void OmPivotTable::MaxColumnWidth(int width) { _my->maxColumnWidth = width; }

int OmPivotTable::MinRowWidth() const { return _my->minRowWidth; }

void OmPivotTable::MinRowWidth(int width) { _my->minRowWidth = width; }

int OmPivotTable::MaxRowWidth() const { return _my->maxRowWidth; }

void OmPivotTable::MaxRowWidth(int width) { _my->maxRowWidth = width; }

int OmPivotTable::OptionNumber() const { return _my->optionNumber; }

void OmPivotTable::OptionNumber(int number) { _my->optionNumber = number; }

int OmPivotTable::getLayerLoc() const { return _my->layerLoc; }

void OmPivotTable::setLayerLoc(int layer) { _my->layerLoc = layer; }

long long OmPivotTable::TableId() const { return _my->tableId; }

void OmPivotTable::TableId(long long id) { _my->tableId = id; }

long OmPivotTable::getStartColor() const { return _my->startColor; }

void OmPivotTable::setStartColor(long color) { _my->startColor = static_cast<std::int32_t>(color); }

long OmPivotTable::getEndColor() const { return _my->endColor; }

void OmPivotTable::setEndColor(long color) { _my->endColor = static_cast<std::int32_t>(color); }

int OmPivotTable::getLang() const { return _my->lang; }

void OmPivotTable::setLang(int lang) { _my->lang = lang; }

int OmPivotTable::getVariableMode() const { return _my->variableMode; }

void OmPivotTable::setVariableMode(int mode) { _my->variableMode = mode; }

int OmPivotTable::getValueMode() const { return _my->valueMode; }

void OmPivotTable::setValueMode(int mode) { _my->valueMode = mode; }

bool OmPivotTable::Show() const { return _my->show; }

void OmPivotTable::Show(bool show) { _my->show = show; }

bool OmPivotTable::showCaption() const { return _my->showCaption; }

void OmPivotTable::showCaption(bool show) { _my->showCaption = show; }

bool OmPivotTable::backendOwns() const { return _my->backendOwns; }

void OmPivotTable::setBackendOwns(bool owns) { _my->backendOwns = owns; }

bool OmPivotTable::RotateRowLabels() const { return _my->rotateRowLabels; }

void OmPivotTable::RotateRowLabels(bool rotate) { _my->rotateRowLabels = rotate; }

bool OmPivotTable::RotateColumnLabels() const { return _my->rotateColumnLabels; }

void OmPivotTable::RotateColumnLabels(bool rotate) { _my->rotateColumnLabels = rotate; }

bool OmPivotTable::getLabelsOnly() const { return _my->labelsOnly; }

void OmPivotTable::setLabelsOnly(bool labelsOnly) { _my->labelsOnly = labelsOnly; }

bool OmPivotTable::getImputed() const { return _my->imputed; }

void OmPivotTable::setImputed(bool imputed) { _my->imputed = imputed; }

bool OmPivotTable::HasRemovedFootnotes() const { return _my->removedFootnotes; }

void OmPivotTable::RemovedFootnotes(bool removed) { _my->removedFootnotes = removed; }

bool OmPivotTable::hasMarkers() const { return _my->hasMarkers; }

void OmPivotTable::setHasMarkers() { _my->hasMarkers = true; }

const std::string& OmPivotTable::TableLocale() const { return _my->tableLocale; }

void OmPivotTable::TableLocale(const std::string& locale) { _my->tableLocale = locale; }

const std::string& OmPivotTable::getBorderInfo() const { return _my->borderInfo; }

void OmPivotTable::setBorderInfo(const std::string& info) { _my->borderInfo = info; }

const std::string& OmPivotTable::getTableLookInfo() const { return _my->tableLookInfo; }

void OmPivotTable::setTableLookInfo(const std::string& info) { _my->tableLookInfo = info; }

const std::string& OmPivotTable::getTablePropertiesInfo() const { return _my->tablePropertiesInfo; }

void OmPivotTable::setTablePropertiesInfo(const std::string& info) {
  _my->tablePropertiesInfo = info;
}

const std::vector<unsigned int>& OmPivotTable::getTableCustomWidths() const {
  return _my->customWidths;
}

void OmPivotTable::setTableCustomWidths(const std::vector<unsigned int>& widths) {
  _my->customWidths = widths;
}

const std::vector<unsigned int>& OmPivotTable::getTableCustomHeights() const {
  return _my->customHeights;
}

void OmPivotTable::setTableCustomHeights(const std::vector<unsigned int>& heights) {
  _my->customHeights = heights;
}

const std::string& OmPivotTable::getMiscProperties() const { return _my->miscProperties; }

void OmPivotTable::addMiscProperty(std::string property) {
  std::string& properties = _my->miscProperties;
  properties = properties.empty() ? std::move(property) : properties + "," + property;
}

OmPivotTable::FormatArea* OmPivotTable::getAreaFormat(FormatArea::Area area) const {
  return area > 8 ? nullptr : _my->areaFormats[area];
}

void OmPivotTable::setAreaFormat(FormatArea* format) {
  if (format == nullptr) return;
  std::unique_ptr<FormatArea> taken(format);
  FormatArea*& kept = _my->areaFormats[format->getArea()];
  delete std::exchange(kept, taken.release());
}

std::vector<OmCellProperties>& OmPivotTable::cellStyles() { return _my->cellStyles; }

std::vector<OmCellProperties>& OmPivotTable::getCellStyles() const { return _my->cellStyles; }

std::map<unsigned long long, unsigned short>& OmPivotTable::emptyCellStyles() {
  return _my->emptyCellStyles;
}

std::map<unsigned long long, unsigned short>& OmPivotTable::getEmptyCellStyles() const {
  return _my->emptyCellStyles;
}
