// OmComposite: cells in an order of their own, each with its own ordered sub-components, to any
// depth. They are kept in reading order (a component, then its sub-components) with their depths,
// so that a deep composite needs no deep call.
//
// The string form lists the components, separated by ", ", and behind each one its sub-components
// in brackets: "a (b, c), d".
//
// Ownership: the cells are cloned into the composite's region and die with it.

#ifndef OM_EXTERNAL_CELLS_OMCOMPOSITE_H_
#define OM_EXTERNAL_CELLS_OMCOMPOSITE_H_

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "external/cells/OmCellText.h"

class OM_CELLS_API OmComposite : public OmCellText {
 public:
  struct Component {
    std::unique_ptr<OmCellText> cell;
    // 0 at the top. The sub-components of a component are the components that follow it, up to the
    // first one that is not deeper.
    std::size_t depth;
  };

  // `region` supplies the clones; null means the default heap.
  explicit OmComposite(OmMemoryRegion* region = nullptr) : region_(region) {}
  ~OmComposite() override;

  // Adds a clone of `cell` at the end of the reading order: with depth 0 at the top, with depth d
  // as the last sub-component of the last component of depth d - 1. Throws std::out_of_range when
  // there is none, and what Clone throws; nothing is added then.
  void Append(const OmCellText& cell, std::size_t depth = 0);

  OmComposite* Clone(OmMemoryRegion* region) const override;
  operator std::string() const override;  // NOLINT(google-explicit-constructor)
  int Kind() const override;
  void Accept(Visitor& visitor) override;

  // All components in reading order.
  const std::vector<Component>& Components() const { return components_; }

 protected:
  OmComposite(const OmComposite& other, OmMemoryRegion* region);

 private:
  OmMemoryRegion* region_;
  std::vector<Component> components_;
};

#endif  // OM_EXTERNAL_CELLS_OMCOMPOSITE_H_
