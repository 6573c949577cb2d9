// Dimensions and their nodes as the lines that they print, and texts that are out of the ordinary.

#ifndef OM_TESTS_DIMENSIONS_DIMENSIONTEXT_H_
#define OM_TESTS_DIMENSIONS_DIMENSIONTEXT_H_

#include <memory>
#include <string>

#include "dimensions/OmDimension.h"
#include "dimensions/internal/DimensionFactory.h"
#include "external/cells/OmStringCell.h"
#include "tests/support/StandardOutput.h"

namespace om::test {

using om::internal::DimensionFactory;
using Node = OmDimension::Node;
using ConstNode = OmDimension::ConstNode;
using DimensionOwner = std::unique_ptr<OmDimension>;

constexpr unsigned long long kAllBits = ~0ULL;

inline std::string printed(const OmDimensionNode& node, unsigned indent = 0) {
  const StandardOutput output;
  node.Print(indent);
  return output.text();
}

inline std::string printed(const OmDimension& dimension) {
  const StandardOutput output;
  dimension.Print();
  return output.text();
}

// The node's child index as it is printed, as in "1, 0".
inline std::string indexOf(const OmDimensionNode& node) {
  const std::string title = ", Children: ";
  const std::string line = printed(node);
  const std::size_t from = line.find(title);
  if (from == std::string::npos) return "";
  const std::size_t begin = from + title.size();
  const std::size_t behind = line.find_first_not_of("0123456789, ", begin);
  return line.substr(begin, line.find_last_of("0123456789", behind - 1) + 1 - begin);
}

// The labels of the node's children in their order, as in "b a".
inline std::string labelsBelow(const ConstNode& node) {
  std::string labels;
  for (const auto child : node.Children()) {
    if (!labels.empty()) labels += ' ';
    labels += std::string(*child->Text());
  }
  return labels;
}

// An empty dimension whose root is a group without a subscript, all of it in the region.
inline DimensionOwner dimensionNamed(const std::string& name, OmMemoryRegion* region = nullptr) {
  return DimensionFactory::make(OmDimensionNode(OmStringCell(name), kAllBits, true, region),
                                region);
}

inline Node addCategory(OmDimension& dimension, const Node& parent, const std::string& label,
                        unsigned long long subscript = 0) {
  return dimension.AddNewChild(parent, OmStringCell(label), subscript, false);
}
inline Node addGroup(OmDimension& dimension, const Node& parent, const std::string& label) {
  return dimension.AddNewChild(parent, OmStringCell(label), kAllBits, true);
}
inline Node category(OmDimension& dimension, const Node& parent, const std::string& label,
                     unsigned long long subscript = 0) {
  return dimension.Child(parent, OmStringCell(label), subscript, false);
}
inline Node group(OmDimension& dimension, const Node& parent, const std::string& label) {
  return dimension.Child(parent, OmStringCell(label), kAllBits, true);
}

// A string cell that compares by its first character only, and counts how often it does.
class InitialText : public OmStringCell {
 public:
  explicit InitialText(const std::string& text) : OmStringCell(text) {}
  InitialText* Clone(OmMemoryRegion* region) const override {
    return new (region) InitialText(*this);
  }
  short Compare(const OmCellText& other) const override {
    ++compares;
    return static_cast<short>(initialOf(*this) - initialOf(other));
  }

  static inline long compares = 0;

 private:
  InitialText(const InitialText&) = default;
  static int initialOf(const OmCellText& text) { return std::string(text).front(); }
};

// A string cell that refuses to be cloned.
struct CloneRefused {};
class UniqueText : public OmStringCell {
 public:
  explicit UniqueText(const std::string& text) : OmStringCell(text) {}
  UniqueText* Clone(OmMemoryRegion*) const override { throw CloneRefused(); }
};

}  // namespace om::test

#endif  // OM_TESTS_DIMENSIONS_DIMENSIONTEXT_H_
