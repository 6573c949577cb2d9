// What a chart shows of its record.

#include "output/OmChart.h"
#include "output/internal/ChartRecord.h"
#include "output/internal/MapInfo.h"

long long OmChart::getChartId() const { return record_->chartId; }
const std::string& OmChart::LocaleCodePage() const { return record_->localeCodePage; }
const std::string& OmChart::GetXmlDescription() const { return record_->xmlDescription; }
const std::string& OmChart::GetXmlData() const { return record_->xmlData; }
const std::string& OmChart::GetImageData() const { return record_->imageData; }
const std::string& OmChart::GetViZJSONData() const { return record_->vizJSON; }
const std::string& OmChart::getVizJSONTemplate() const { return record_->vizJSONTemplate; }
const std::string& OmChart::getOptions() const { return record_->options; }
const std::string& OmChart::getGraphServiceOptions() const { return record_->graphServiceOptions; }
const std::string& OmChart::getGraphServiceVariables() const {
  return record_->graphServiceVariables;
}
ChartXMLContentSubType OmChart::GetChartSubType() const { return record_->subType; }
OmChart::EDITABLE OmChart::GetEditable() const { return record_->editable; }
OmChart::EDITOR OmChart::GetEditor() const { return record_->editor; }

const std::vector<std::string>& OmChart::getCSVFileNames() const { return record_->csvFiles.names; }
const std::vector<std::string>& OmChart::getCSVFiles() const { return record_->csvFiles.contents; }
const std::vector<std::string>& OmChart::getGeoJSONFileNames() const {
  return record_->geoJSONFiles.names;
}
const std::vector<std::string>& OmChart::getGeoJSONContent() const {
  return record_->geoJSONFiles.contents;
}
bool OmChart::hasCSVFile() const { return !record_->csvFiles.names.empty(); }
bool OmChart::hasGeoJSONFile() const { return !record_->geoJSONFiles.names.empty(); }
bool OmChart::hasMap() const { return !record_->mapInfo.empty(); }

std::string_view OmChart::viewXmlDescription() const { return record_->xmlDescription; }
std::string_view OmChart::viewXmlData() const { return record_->xmlData; }
std::string_view OmChart::viewImageData() const { return record_->imageData; }
std::string_view OmChart::viewViZJSONData() const { return record_->vizJSON; }
std::string_view OmChart::viewVizJSONTemplate() const { return record_->vizJSONTemplate; }
std::string_view OmChart::viewGraphServiceOptions() const { return record_->graphServiceOptions; }
std::string_view OmChart::viewGraphServiceVariables() const {
  return record_->graphServiceVariables;
}
std::span<const std::string> OmChart::viewCSVFileNames() const { return record_->csvFiles.names; }
std::span<const std::string> OmChart::viewCSVFiles() const { return record_->csvFiles.contents; }
std::span<const std::string> OmChart::viewGeoJSONFileNames() const {
  return record_->geoJSONFiles.names;
}
std::span<const std::string> OmChart::viewGeoJSONContent() const {
  return record_->geoJSONFiles.contents;
}
std::string_view OmChart::viewMapInfoBuffer() const { return record_->mapInfo; }
OmChart::MapInfo OmChart::viewMapInfo() const {
  return hasMap() ? om::internal::readMapInfo(record_->mapInfo) : MapInfo();
}
