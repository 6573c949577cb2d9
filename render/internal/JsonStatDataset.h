// Writes a table as a dataset of JSON-stat 2.0, as JsonStatWriter.h has it.

#ifndef OM_RENDER_INTERNAL_JSONSTATDATASET_H_
#define OM_RENDER_INTERNAL_JSONSTATDATASET_H_

#include "pivot/OmPivotTable.h"
#include "render/JsonStatWriter.h"
#include "render/internal/JsonEmitter.h"

namespace om::render::internal {

void writeJsonStatDataset(const OmPivotTable& table, const JsonStatOptions& options,
                          JsonEmitter& json);

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_JSONSTATDATASET_H_
