#include "external/cells/OmMessageCell.h"

#include <charconv>
#include <string_view>

OmMessageCell::OmMessageCell(const OmCellText& pattern, OmMemoryRegion* region)
    : region_(region), pattern_(pattern.Clone(region)) {}

OmMessageCell::OmMessageCell(const OmMessageCell& other, OmMemoryRegion* region)
    : OmCellText(other), region_(region), pattern_(other.pattern_->Clone(region)) {
  arguments_.reserve(other.arguments_.size());
  for (const auto& argument : other.arguments_) Append(*argument);
}

OmMessageCell::~OmMessageCell() = default;

void OmMessageCell::Append(const OmCellText& argument) {
  arguments_.emplace_back(std::unique_ptr<OmCellText>(argument.Clone(region_)));
}

OmMessageCell* OmMessageCell::Clone(OmMemoryRegion* region) const {
  return new (region) OmMessageCell(*this, region);
}

OmMessageCell::operator std::string() const {
  const std::string pattern = *pattern_;
  std::string text;
  std::string_view rest = pattern;
  while (!rest.empty()) {
    const std::size_t brace = rest.find('{');
    text += rest.substr(0, brace);
    if (brace == std::string_view::npos) break;
    rest.remove_prefix(brace + 1);
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), number);
    const auto length = static_cast<std::size_t>(end - rest.data());
    if (error == std::errc() && length < rest.size() && *end == '}' && number < arguments_.size()) {
      text += std::string(*arguments_[number]);
      rest.remove_prefix(length + 1);
    } else {
      text += '{';
    }
  }
  return text;
}

int OmMessageCell::Kind() const { return MESSAGE; }

void OmMessageCell::Accept(Visitor& visitor) { visitor.Visit(*this); }
