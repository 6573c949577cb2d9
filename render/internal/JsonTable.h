// Writes a table as an object of the JSON of a document, by docs/render-json.md.

#ifndef OM_RENDER_INTERNAL_JSONTABLE_H_
#define OM_RENDER_INTERNAL_JSONTABLE_H_

#include <string>

#include "pivot/OmPivotTable.h"
#include "render/JsonWriter.h"
#include "render/internal/JsonEmitter.h"

namespace om::render::internal {

void writeJsonTable(OmPivotTable& table, const JsonOptions& options, JsonEmitter& json);

// The member "footnotes" with an array of them. What is not UTF-8 is read in the code page.
void writeJsonFootnotes(const OmVector<OmFootnote>& footnotes, const std::string& codePage,
                        JsonEmitter& json);

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_JSONTABLE_H_
