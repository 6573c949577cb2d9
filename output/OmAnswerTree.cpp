#include "output/OmAnswerTree.h"

#include "output/internal/AnswerTreeRecord.h"
#include "output/internal/Payload.h"

using om::internal::appendPiece;

OmAnswerTree::OmAnswerTree(const OmCellText& label, const std::string& codePage)
    : OmOutputPart(label), record_(new om::internal::AnswerTreeRecord(codePage)) {}

OmAnswerTree::OmAnswerTree(const OmAnswerTree& other)
    : OmOutputPart(other, *other.record_), record_(other.record_) {}

OmAnswerTree::~OmAnswerTree() { om::internal::SharedRecord::removePart(record_); }

void OmAnswerTree::Accept(Visitor& visitor) { visitor.Visit(*this); }

void OmAnswerTree::SetTreeType(int type) { record_->treeType = type; }

void OmAnswerTree::SetPath(const char* data, unsigned int length) {
  appendPiece(record_->path, data, length);
}

void OmAnswerTree::SetCompressedXML(const char* data, unsigned int length,
                                    unsigned int uncompressedLength) {
  appendPiece(record_->compressedXml, data, length);
  record_->xmlUncompressedLength = uncompressedLength;
}

void OmAnswerTree::SetUncompressedXML(const char* data, unsigned int length) {
  appendPiece(record_->uncompressedXml, data, length);
}

void OmAnswerTree::SetUncompressedDisplayXML(const char* data, unsigned int length) {
  appendPiece(record_->uncompressedDisplayXml, data, length);
}

void OmAnswerTree::Done() {}

int OmAnswerTree::GetTreeType() const { return record_->treeType; }
const std::string& OmAnswerTree::GetPath() const { return record_->path; }
const std::string& OmAnswerTree::GetCompressedXml() const { return record_->compressedXml; }
unsigned int OmAnswerTree::GetXmlUncompressedLength() const {
  return record_->xmlUncompressedLength;
}
const std::string& OmAnswerTree::GetUncompressedXml() const { return record_->uncompressedXml; }
const std::string& OmAnswerTree::GetUncompressedDisplayXML() const {
  return record_->uncompressedDisplayXml;
}

std::string_view OmAnswerTree::viewPath() const { return record_->path; }
std::string_view OmAnswerTree::viewCompressedXml() const { return record_->compressedXml; }
std::string_view OmAnswerTree::viewUncompressedXml() const { return record_->uncompressedXml; }
std::string_view OmAnswerTree::viewUncompressedDisplayXML() const {
  return record_->uncompressedDisplayXml;
}
