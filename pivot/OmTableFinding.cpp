#include "pivot/OmTableFinding.h"

std::string OmTableFinding::Message() const {
  const std::string number = std::to_string(value);
  const auto says = [this](const std::string& what) { return place + ": " + what; };
  switch (kind) {
    case AXIS_ENTRY_WITHOUT_DIMENSION:
      return says("there is no dimension " + number);
    case DIMENSION_ON_NO_AXIS:
      return says("it stands on no axis");
    case DIMENSION_ON_AXES_TWICE:
      return says("dimension " + number + " stands on the axes already");
    case DUPLICATE_SUBSCRIPT:
      return says("an earlier category has the subscript " + number);
    case MISSING_SUBSCRIPT:
      return says("no category has the subscript " + number);
    case SUBSCRIPT_BEYOND_SIZE:
      return says("the subscript " + number + " is beyond the size of the dimension");
    case STALE_PARENT_LINK:
      return says("the link to the parent is stale");
    case UNREACHABLE_CELL:
      return says("no category leads to it along dimension " + number);
    case FOOTNOTE_BEYOND_LIST:
      return says("there is no footnote " + number);
  }
  return says("unknown finding");
}
