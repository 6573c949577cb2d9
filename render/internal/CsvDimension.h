// CsvDimension: the fields of one dimension in CSV records, each with the separator behind it, made
// once for all records.
//
// Lifetime: it must not outlive the dimension. Memory: the path of each category.

#ifndef OM_RENDER_INTERNAL_CSVDIMENSION_H_
#define OM_RENDER_INTERNAL_CSVDIMENSION_H_

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

#include "dimensions/OmDimension.h"
#include "render/CsvWriter.h"

namespace om::render::internal {

class CsvDimension {
 public:
  CsvDimension(short number, const OmDimension& dimension, const CsvOptions& options);

  std::size_t number() const { return number_; }
  const OmDimensionNode* root() const { return root_; }
  const std::string& name() const { return name_; }
  const std::string& nameField() const { return nameField_; }

  // The label path of a category; empty for null and for the root.
  const std::string& field(const OmDimensionNode* category) const;

  // Whether each subscript of a place that is shown is that of one category, and only one.
  bool isSure() const { return !bySubscript_.empty(); }
  // REQUIRES: isSure(), and the subscript is that of a place that is shown.
  const std::string& field(int subscript) const {
    return *bySubscript_[static_cast<std::size_t>(subscript)];
  }

 private:
  std::string labelOf(const OmDimensionNode& node, const std::string& separator) const;
  void enterSubscripts(std::size_t categories);

  std::size_t number_;
  const OmDimensionNode* root_;
  bool hasGroups_;
  std::string name_;
  std::string nameField_;
  std::unordered_map<const OmDimensionNode*, std::string> fields_;
  std::vector<const std::string*> bySubscript_;
};

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_CSVDIMENSION_H_
