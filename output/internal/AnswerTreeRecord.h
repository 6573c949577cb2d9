// What an answer tree holds.

#ifndef OM_OUTPUT_INTERNAL_ANSWERTREERECORD_H_
#define OM_OUTPUT_INTERNAL_ANSWERTREERECORD_H_

#include <cstdint>
#include <string>

#include "output/internal/SharedRecord.h"

namespace om::internal {

struct AnswerTreeRecord : SharedRecord {
  explicit AnswerTreeRecord(const std::string& callersCodePage) : codePage(callersCodePage) {}

  std::int32_t treeType = -1;
  std::string path;
  std::string compressedXml;
  std::uint32_t xmlUncompressedLength = 0;
  std::string uncompressedXml;
  std::string uncompressedDisplayXml;
  const std::string& codePage;  // the caller's string itself, on purpose; nothing here reads it
};

}  // namespace om::internal

#endif  // OM_OUTPUT_INTERNAL_ANSWERTREERECORD_H_
