// OmCellProperties: one style that cells of a table may refer to. A plain value; the table keeps a
// list of them and leaves it to viewers to apply them. -1 and empty texts mean "not set".

#ifndef OM_EXTERNAL_CELLS_OMCELLPROPERTIES_H_
#define OM_EXTERNAL_CELLS_OMCELLPROPERTIES_H_

#include <cstdint>
#include <string>

struct OmCellProperties {
  std::string fontName;
  float fontSize = 0.0F;  // points
  std::int32_t fontStyle = -1;
  std::int32_t horizontalAlignment = -1;
  std::int32_t verticalAlignment = -1;
  std::string textColor;
  std::string backgroundColor;
  bool underline = false;

  bool operator==(const OmCellProperties&) const = default;
};

#endif  // OM_EXTERNAL_CELLS_OMCELLPROPERTIES_H_
