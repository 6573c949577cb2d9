#include "output/OmChart.h"

#include <cstring>
#include <memory>
#include <utility>

#include "output/internal/ChartRecord.h"
#include "output/internal/LabelEncoding.h"
#include "output/internal/MapInfo.h"

using om::internal::appendPiece;

OmChart::OmChart(const OmCellText& label, const std::string& localeCodePage, long long chartId)
    : OmOutputPart(label), record_(nullptr) {
  auto record = std::make_unique<om::internal::ChartRecord>(localeCodePage, chartId);
  om::internal::encodeLabel(*this, localeCodePage);
  record_ = record.release();
}

OmChart::OmChart(const OmChart& other)
    : OmOutputPart(other, *other.record_), record_(other.record_) {}

OmChart::~OmChart() { om::internal::SharedRecord::removePart(record_); }

void OmChart::Accept(Visitor& visitor) { visitor.Visit(*this); }

void OmChart::SetXmlDescription(const char* data, unsigned int length) {
  appendPiece(record_->xmlDescription, data, length);
}

void OmChart::SetXmlUncompressedLength(unsigned int length) {
  record_->xmlUncompressedLength = length;
}

void OmChart::SetXmlCompressedLength(unsigned int length) {
  om::internal::reserveRoom(record_->xmlDescription, length);
}

void OmChart::SetBinaryDataStream(const char* data, unsigned int length) {
  appendPiece(record_->xmlData, data, length);
}

void OmChart::SetImageStream(const char* data, unsigned int length) {
  appendPiece(record_->imageData, data, length);
}

void OmChart::SetViZJSON(const char* data, unsigned int length) {
  appendPiece(record_->vizJSON, data, length);
}

void OmChart::SetImageSubType(ChartXMLContentSubType subType) { record_->subType = subType; }

void OmChart::Done(const char* info) {
  std::int32_t values[2];
  std::memcpy(values, info, sizeof(values));
  record_->editable = static_cast<EDITABLE>(values[0]);
  record_->editor = static_cast<EDITOR>(values[1]);
}

void OmChart::SetMapInfo(const char* data, unsigned int length) {
  appendPiece(record_->mapInfo, data, length);
}

void OmChart::setVizJSONTemplate(const char* data, unsigned int length) {
  appendPiece(record_->vizJSONTemplate, data, length);
}

void OmChart::setGraphServiceOptions(const char* data, unsigned int length) {
  appendPiece(record_->graphServiceOptions, data, length);
}

void OmChart::setGraphServiceVariables(const char* data, unsigned int length) {
  appendPiece(record_->graphServiceVariables, data, length);
}

void OmChart::setOptions(const std::string& options) { record_->options = options; }

void OmChart::addCSVFileName(const char* data, unsigned int length) {
  record_->csvFiles.addName(data, length);
}

void OmChart::addCSVFileContent(const char* data, unsigned int length) {
  record_->csvFiles.addContent(data, length);
}

void OmChart::addGeoJSONFileName(const char* data, unsigned int length) {
  record_->geoJSONFiles.addName(data, length);
}

void OmChart::addGeoJSONFileContent(const char* data, unsigned int length) {
  record_->geoJSONFiles.addContent(data, length);
}

void OmChart::deleteData() { record_->xmlData.clear(); }

void OmChart::getMapInfo(std::string& first, std::string& second, std::string& third,
                         std::string& fourth) const {
  if (!hasMap()) return;
  const MapInfo info = viewMapInfo();
  std::string strings[] = {std::string(info.first), std::string(info.second),
                           std::string(info.third), std::string(info.fourth)};
  first = std::move(strings[0]);
  second = std::move(strings[1]);
  third = std::move(strings[2]);
  fourth = std::move(strings[3]);
}
