#include "output/OmInteractive.h"

#include <cstdint>
#include <memory>

#include "output/internal/FileList.h"
#include "output/internal/LabelEncoding.h"
#include "output/internal/SharedRecord.h"

struct om::internal::InteractiveRecord : SharedRecord {
  InteractiveRecord(const std::string& codePage, long long id)
      : localeCodePage(codePage), interactiveId(id) {}

  std::string localeCodePage;
  FileList geoJSONFiles;
  std::string interactiveJSON;
  std::string procedureName;
  std::string jsonPath;
  std::string options;
  std::int64_t interactiveId;
};

OmInteractive::OmInteractive(const OmCellText& label, const std::string& localeCodePage,
                             long long interactiveId)
    : OmOutputPart(label), record_(nullptr) {
  auto record = std::make_unique<om::internal::InteractiveRecord>(localeCodePage, interactiveId);
  om::internal::encodeLabel(*this, localeCodePage);
  record_ = record.release();
}

OmInteractive::OmInteractive(const OmInteractive& other)
    : OmOutputPart(other, *other.record_), record_(other.record_) {}

OmInteractive::~OmInteractive() { om::internal::SharedRecord::removePart(record_); }

void OmInteractive::Accept(Visitor& visitor) { visitor.Visit(*this); }

void OmInteractive::setInteractiveJSON(const char* data, unsigned int length) {
  om::internal::appendPiece(record_->interactiveJSON, data, length);
}

void OmInteractive::addGeoJSONFileName(const char* data, unsigned int length) {
  record_->geoJSONFiles.addName(data, length);
}

void OmInteractive::addGeoJSONFileContent(const char* data, unsigned int length) {
  record_->geoJSONFiles.addContent(data, length);
}

void OmInteractive::setProcedureName(const std::string& name) { record_->procedureName = name; }
void OmInteractive::setJSONPath(const std::string& path) { record_->jsonPath = path; }
void OmInteractive::setOptions(const std::string& options) { record_->options = options; }

long long OmInteractive::getInteractiveId() const { return record_->interactiveId; }
const std::string& OmInteractive::LocaleCodePage() const { return record_->localeCodePage; }
const std::string& OmInteractive::getInteractiveJSON() const { return record_->interactiveJSON; }
const std::string& OmInteractive::getProcedureName() const { return record_->procedureName; }
const std::string& OmInteractive::getJSONPath() const { return record_->jsonPath; }
const std::string& OmInteractive::getOptions() const { return record_->options; }
const std::vector<std::string>& OmInteractive::getGeoJSONFileNames() const {
  return record_->geoJSONFiles.names;
}
const std::vector<std::string>& OmInteractive::getGeoJSONContent() const {
  return record_->geoJSONFiles.contents;
}
bool OmInteractive::hasGeoJSONFile() const { return !record_->geoJSONFiles.names.empty(); }

std::string_view OmInteractive::viewInteractiveJSON() const { return record_->interactiveJSON; }
std::span<const std::string> OmInteractive::viewGeoJSONFileNames() const {
  return record_->geoJSONFiles.names;
}
std::span<const std::string> OmInteractive::viewGeoJSONContent() const {
  return record_->geoJSONFiles.contents;
}
