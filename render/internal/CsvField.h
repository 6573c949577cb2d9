// CsvField: makes a text the field of a CSV record.

#ifndef OM_RENDER_INTERNAL_CSVFIELD_H_
#define OM_RENDER_INTERNAL_CSVFIELD_H_

#include <string>
#include <string_view>

namespace om::render::internal {

class CsvField {
 public:
  // With `guardFormulas`, as CsvOptions has it.
  explicit CsvField(bool guardFormulas) : guardFormulas_(guardFormulas) {}

  // The field, which is the text itself when nothing has to be changed. Valid until the next call
  // or the end of the text.
  std::string_view operator()(std::string_view text);

  // Whether a spreadsheet program would take the field for a formula.
  static bool isFormula(std::string_view text);

 private:
  bool guardFormulas_;
  std::string field_;
};

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_CSVFIELD_H_
