#include "dimensions/OmDimensionNode.h"

#include <iostream>

namespace {

constexpr unsigned long long kNoSubscript = ~0ULL;

}  // namespace

OmDimensionNode::OmDimensionNode(OmMemoryRegion* region)
    : subscript_(kNoSubscript), childIndex_(region) {}

OmDimensionNode::OmDimensionNode(const OmCellText& text, unsigned long long subscript, bool isGroup,
                                 OmMemoryRegion* region)
    : text_(text.Clone(region)), subscript_(subscript), childIndex_(region), isGroup_(isGroup) {}

OmDimensionNode::OmDimensionNode(const OmDimensionNode& other)
    : OmDimensionNode(other, other.Region()) {}

OmDimensionNode::OmDimensionNode(const OmDimensionNode& other, OmMemoryRegion* region)
    : text_(other.text_ ? other.text_->Clone(region) : nullptr),
      subscript_(other.subscript_),
      childIndex_(other.childIndex_, region),
      sort_(other.sort_),
      isGroup_(other.isGroup_),
      hide_(other.hide_),
      hideLabels_(other.hideLabels_) {}

OmDimensionNode& OmDimensionNode::operator=(const OmDimensionNode& other) {
  if (this == &other) return *this;
  childIndex_.reserve(other.childIndex_.size());
  text_ = std::move(other.text_);
  subscript_ = other.subscript_;
  childIndex_.clear();
  for (const int position : other.childIndex_) childIndex_.push_back(position);
  sort_ = other.sort_;
  isGroup_ = other.isGroup_;
  hide_ = other.hide_;
  hideLabels_ = other.hideLabels_;
  return *this;
}

OmDimensionNode::~OmDimensionNode() = default;

bool OmDimensionNode::operator==(const OmDimensionNode& other) const {
  return isGroup_ == other.isGroup_ && subscript_ == other.subscript_ &&
         text_->Size() == other.text_->Size() && text_->Compare(*other.text_) == 0;
}

void OmDimensionNode::Text(const OmCellText& text) { text_.reset(text.Clone(Region())); }

void OmDimensionNode::Print(unsigned indent) const {
  const auto yesNo = [](bool flag) { return flag ? "yes" : "no"; };
  for (unsigned i = 0; i < indent; ++i) std::cout << "  ";
  // Deliberately the low 32 bits, signed: no subscript shows as -1.
  std::cout << "Subscript: " << static_cast<std::int32_t>(subscript_)
            << ", Group: " << yesNo(isGroup_) << ", hide: " << yesNo(hide_)
            << ", hideLabels: " << yesNo(hideLabels_);
  if (sort_ == OmSort::UP) std::cout << ", Sort: up";
  if (sort_ == OmSort::DOWN) std::cout << ", Sort: down";
  const char* separator = ", Children: ";
  for (const int position : childIndex_) {
    std::cout << separator << position;
    separator = ", ";
  }
  if (text_) {
    std::cout << ", Text: ";
    text_->Print(0);
  }
  std::cout << std::endl;
}
