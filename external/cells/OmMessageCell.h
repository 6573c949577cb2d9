// OmMessageCell: a text that contains further texts: a pattern and the arguments that fill it.
// The string form is the pattern's, with "{0}" replaced by the first argument's string form, "{1}"
// by the second's, and so on. A number beyond the arguments, and any other brace, stays as written.
//
// Ownership: pattern and arguments are cloned into the message's region and die with it.

#ifndef OM_EXTERNAL_CELLS_OMMESSAGECELL_H_
#define OM_EXTERNAL_CELLS_OMMESSAGECELL_H_

#include <memory>
#include <string>
#include <vector>

#include "external/cells/OmCellText.h"

class OM_CELLS_API OmMessageCell : public OmCellText {
 public:
  // `region` supplies the clones; null means the default heap. (A pattern that is a message itself
  // is passed as a `const OmCellText&`.)
  explicit OmMessageCell(const OmCellText& pattern, OmMemoryRegion* region = nullptr);
  ~OmMessageCell() override;

  // Adds a clone of `argument` at the end. Throws what Clone throws; nothing is added then.
  void Append(const OmCellText& argument);

  OmMessageCell* Clone(OmMemoryRegion* region) const override;
  operator std::string() const override;  // NOLINT(google-explicit-constructor)
  int Kind() const override;
  void Accept(Visitor& visitor) override;

  OmCellText& Pattern() { return *pattern_; }
  const OmCellText& Pattern() const { return *pattern_; }
  const std::vector<std::unique_ptr<OmCellText>>& Arguments() const { return arguments_; }

 protected:
  OmMessageCell(const OmMessageCell& other, OmMemoryRegion* region);

 private:
  OmMemoryRegion* region_;
  std::unique_ptr<OmCellText> pattern_;
  std::vector<std::unique_ptr<OmCellText>> arguments_;
};

#endif  // OM_EXTERNAL_CELLS_OMMESSAGECELL_H_
