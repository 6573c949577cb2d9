#include "output/OmModel.h"

#include "output/internal/Payload.h"
#include "output/internal/SharedRecord.h"

using om::internal::appendPiece;

struct om::internal::ModelRecord : SharedRecord {
  OmModel::MODEL_TYPE modelType = OmModel::UNSPECIFIED_MODEL;
  std::string pmml;
  std::string binaryDataStream;
  std::string pmmlContainer;
  std::string statXMLContainer;
};

OmModel::OmModel(const OmCellText& label)
    : OmOutputPart(label), record_(new om::internal::ModelRecord) {}

OmModel::OmModel(const OmModel& other)
    : OmOutputPart(other, *other.record_), record_(other.record_) {}

OmModel::~OmModel() { om::internal::SharedRecord::removePart(record_); }

void OmModel::Accept(Visitor& visitor) { visitor.Visit(*this); }

void OmModel::SetPMML(const char* data, unsigned int length) {
  appendPiece(record_->pmml, data, length);
}

void OmModel::SetBinaryDataStream(const char* data, unsigned int length) {
  appendPiece(record_->binaryDataStream, data, length);
}

void OmModel::SetPMMLContainer(const char* data, unsigned int length) {
  appendPiece(record_->pmmlContainer, data, length);
}

void OmModel::SetStatXMLContainer(const char* data, unsigned int length) {
  appendPiece(record_->statXMLContainer, data, length);
}

void OmModel::SetModelType(MODEL_TYPE type) { record_->modelType = type; }
OmModel::MODEL_TYPE OmModel::GetModelType() const { return record_->modelType; }

const std::string& OmModel::GetPMML() const { return record_->pmml; }
const std::string& OmModel::GetBinaryDataStream() const { return record_->binaryDataStream; }
const std::string& OmModel::GetPMMLContainer() const { return record_->pmmlContainer; }
const std::string& OmModel::GetStatXMLContainer() const { return record_->statXMLContainer; }

std::string_view OmModel::viewPMML() const { return record_->pmml; }
std::string_view OmModel::viewBinaryDataStream() const { return record_->binaryDataStream; }
std::string_view OmModel::viewPMMLContainer() const { return record_->pmmlContainer; }
std::string_view OmModel::viewStatXMLContainer() const { return record_->statXMLContainer; }
