// OmVariableCell: a variable of the data, by its name and its label. The string form is the label,
// or the name where the label is empty.

#ifndef OM_EXTERNAL_CELLS_OMVARIABLECELL_H_
#define OM_EXTERNAL_CELLS_OMVARIABLECELL_H_

#include <string>

#include "external/cells/OmCellText.h"

class OM_CELLS_API OmVariableCell : public OmCellText {
 public:
  OmVariableCell(const std::string& name, const std::string& label) : name_(name), label_(label) {}
  ~OmVariableCell() override;

  OmVariableCell* Clone(OmMemoryRegion* region) const override;
  operator std::string() const override;  // NOLINT(google-explicit-constructor)
  int Kind() const override;
  void Accept(Visitor& visitor) override;

  const std::string& Name() const { return name_; }
  const std::string& Label() const { return label_; }

 protected:
  OmVariableCell(const OmVariableCell&) = default;

 private:
  std::string name_;
  std::string label_;
};

#endif  // OM_EXTERNAL_CELLS_OMVARIABLECELL_H_
