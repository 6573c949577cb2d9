// What a chart holds.

#ifndef OM_OUTPUT_INTERNAL_CHARTRECORD_H_
#define OM_OUTPUT_INTERNAL_CHARTRECORD_H_

#include <cstdint>
#include <string>

#include "output/OmChart.h"
#include "output/internal/FileList.h"
#include "output/internal/SharedRecord.h"

namespace om::internal {

struct ChartRecord : SharedRecord {
  ChartRecord(const std::string& codePage, long long id) : localeCodePage(codePage), chartId(id) {}

  std::string xmlDescription;
  std::string xmlData;
  std::string imageData;
  std::string vizJSON;
  std::string localeCodePage;
  std::string mapInfo;
  FileList csvFiles;
  FileList geoJSONFiles;
  std::string vizJSONTemplate;
  std::string options;
  OmChart::EDITABLE editable = OmChart::NOT_EDITABLE;
  OmChart::EDITOR editor = OmChart::STANDARD_EDITOR;
  ChartXMLContentSubType subType = CHART_XML_PLAIN;
  std::int64_t chartId;
  std::string graphServiceOptions;
  std::string graphServiceVariables;
  std::uint32_t xmlUncompressedLength = 0;
};

}  // namespace om::internal

#endif  // OM_OUTPUT_INTERNAL_CHARTRECORD_H_
