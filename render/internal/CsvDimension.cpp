#include "render/internal/CsvDimension.h"

#include <utility>

#include "render/internal/CsvField.h"

namespace om::render::internal {

namespace {

const std::string kNoLabels = ",";

std::string textOf(const OmDimensionNode& node) {
  return node.Text() != nullptr ? std::string(*node.Text()) : std::string();
}

}  // namespace

CsvDimension::CsvDimension(short number, const OmDimension& dimension, const CsvOptions& options)
    : number_(static_cast<std::size_t>(number)),
      root_(&*dimension.Root()),
      hasGroups_(dimension.getMaximumDepth() > 2),
      name_(textOf(*root_)) {
  CsvField field(options.guardFormulas);
  nameField_ = field(name_);
  nameField_ += ',';
  std::vector<std::string> paths;  // of the groups above the node
  OmDimension::Tree::Walk(dimension.Root(), [&](const OmDimension::ConstNode& node) {
    if (node.Depth() == 0) return true;
    paths.resize(node.Depth() - 1);
    std::string path = paths.empty() ? std::string() : paths.back() + options.pathSeparator;
    path += labelOf(*node, options.pathSeparator);
    if (node->IsGroup()) {
      paths.push_back(std::move(path));
      return true;
    }
    std::string& made = fields_[&*node] = field(path);
    made += ',';
    return false;
  });
  enterSubscripts(static_cast<std::size_t>(dimension.NumCategories()));
}

const std::string& CsvDimension::field(const OmDimensionNode* category) const {
  const auto found = fields_.find(category);
  return found != fields_.end() ? found->second : kNoLabels;
}

std::string CsvDimension::labelOf(const OmDimensionNode& node, const std::string& separator) const {
  std::string label = textOf(node);
  if (!hasGroups_ || separator.empty()) return label;
  for (std::size_t at = 0; at < label.size(); ++at) {
    const bool isSeparator = label.compare(at, separator.size(), separator) == 0;
    if (!isSeparator && label[at] != '\\') continue;
    label.insert(at, 1, '\\');
    at += isSeparator ? separator.size() : 1;
  }
  return label;
}

// Only where the subscripts are 0 to the number of categories, as they normally are. Where there
// are more categories than leaves, places without a category are shown.
void CsvDimension::enterSubscripts(std::size_t categories) {
  if (fields_.size() != categories) return;
  std::vector<const std::string*> fields(categories);
  for (const auto& [node, field] : fields_) {
    const auto subscript = node->Subscript();
    if (subscript >= categories || fields[subscript] != nullptr) return;
    fields[subscript] = &field;
  }
  bySubscript_ = std::move(fields);
}

}  // namespace om::render::internal
