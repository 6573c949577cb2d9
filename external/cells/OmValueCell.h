// OmValueCell: a value of a variable, as it is written in the data, and its label. The string form
// is the label, or the value where the label is empty.

#ifndef OM_EXTERNAL_CELLS_OMVALUECELL_H_
#define OM_EXTERNAL_CELLS_OMVALUECELL_H_

#include <string>

#include "external/cells/OmCellText.h"

class OM_CELLS_API OmValueCell : public OmCellText {
 public:
  OmValueCell(const std::string& value, const std::string& label) : value_(value), label_(label) {}
  ~OmValueCell() override;

  OmValueCell* Clone(OmMemoryRegion* region) const override;
  operator std::string() const override;  // NOLINT(google-explicit-constructor)
  int Kind() const override;
  void Accept(Visitor& visitor) override;

  const std::string& Value() const { return value_; }
  const std::string& Label() const { return label_; }

 protected:
  OmValueCell(const OmValueCell&) = default;

 private:
  std::string value_;
  std::string label_;
};

#endif  // OM_EXTERNAL_CELLS_OMVALUECELL_H_
