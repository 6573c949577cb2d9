// A dimension for the tests of its editing, made from a line and read back as one.
//
//   a0          a category "a" with subscript 0        G[a0 b1]    a group with two categories
//   x1(a0)      a category that has a child            G[]         a group without children
//   !a0 !G[]    the same, hidden                       G-2[]       a group whose subscript is -2
//
// Labels are letters. A group without a number has all bits of its subscript set. The line shows
// what is below the root; children are added in the order of the line by AddNewChild.

#ifndef OM_TESTS_DIMENSIONS_EDITTREE_H_
#define OM_TESTS_DIMENSIONS_EDITTREE_H_

#include <gtest/gtest.h>

#include <cctype>
#include <cstddef>
#include <memory>
#include <string>

#include "dimensions/OmDimension.h"
#include "dimensions/internal/DimensionFactory.h"
#include "external/cells/OmMemoryRegion.h"
#include "external/cells/OmStringCell.h"
#include "tests/support/StandardOutput.h"

namespace om::test {

inline std::string labelOf(const OmDimensionNode& node) { return std::string(*node.Text()); }

class EditTree {
 public:
  using Node = OmDimension::Node;
  using ConstNode = OmDimension::ConstNode;

  explicit EditTree(const std::string& line)
      : EditTree(line, OmDimensionNode(OmStringCell("root"), ~0ULL, true, nullptr)) {}
  EditTree(const std::string& line, const OmDimensionNode& root)
      : dimension_(internal::DimensionFactory::make(OmDimensionNode(root, &region_), &region_)) {
    std::size_t at = 0;
    addChildren(dimension_->Root(), line, at);
  }
  ~EditTree() {
    dimension_.reset();
    EXPECT_EQ(region_.BlocksInUse(), 0U);
  }
  EditTree(const EditTree&) = delete;
  EditTree& operator=(const EditTree&) = delete;

  OmDimension* operator->() { return dimension_.get(); }
  OmDimension& operator*() { return *dimension_; }
  OmMemoryRegion& region() { return region_; }

  // The first node with the label, parents before children.
  Node find(const std::string& label) {
    Node found;
    const bool isThere = search(dimension_->Root(), label, found);
    EXPECT_TRUE(isThere) << label;
    return found;
  }

  Node at(std::size_t position) { return dimension_->Root().ChildAt(position); }
  Node at(std::size_t position, std::size_t below) { return at(position).ChildAt(below); }

  std::string line() const { return lineBelow(std::as_const(*dimension_).Root()); }

  // The positions in a node's child index, as its print shows them.
  static std::string index(const OmDimensionNode& node) {
    const StandardOutput output;
    node.Print(0);
    const std::string text = output.text();
    const std::string before = "Children: ";
    const std::size_t start = text.find(before);
    if (start == std::string::npos) return "";
    const std::size_t first = start + before.size();
    return text.substr(first, text.find(", Text: ") - first);
  }
  std::string index(const std::string& label) { return index(*find(label)); }

  // Every line of the print, and the extent: all that can be seen of the dimension.
  std::string everything() const {
    const StandardOutput output;
    dimension_->Print();
    return output.text() + std::to_string(dimension_->NumCategories());
  }

 private:
  static bool search(const Node& node, const std::string& label, Node& found) {
    if (labelOf(*node) == label) {
      found = node;
      return true;
    }
    for (const Node child : node.Children()) {
      if (search(child, label, found)) return true;
    }
    return false;
  }

  static std::string lineBelow(const ConstNode& parent) {
    std::string line;
    for (const ConstNode child : parent.Children()) {
      if (!line.empty()) line += ' ';
      if (child->Hide()) line += '!';
      line += labelOf(*child);
      const auto subscript = static_cast<long long>(child->Subscript());
      if (!child->IsGroup() || subscript != -1) line += std::to_string(subscript);
      if (child->IsGroup()) {
        line += '[' + lineBelow(child) + ']';
      } else if (child.ChildCount() != 0) {
        line += '(' + lineBelow(child) + ')';
      }
    }
    return line;
  }

  void addChildren(Node parent, const std::string& line, std::size_t& at) {
    const auto next = [&] { return at < line.size() ? line[at] : '\0'; };
    while (at < line.size() && next() != ']' && next() != ')') {
      if (next() == ' ') ++at;
      const bool hide = next() == '!';
      if (hide) ++at;
      std::string label;
      while (std::isalpha(static_cast<unsigned char>(next())) != 0) label += line[at++];
      std::string number;
      while (next() == '-' || std::isdigit(static_cast<unsigned char>(next())) != 0) {
        number += line[at++];
      }
      const auto subscript =
          number.empty() ? ~0ULL : static_cast<unsigned long long>(std::stoll(number));
      const Node child =
          dimension_->AddNewChild(parent, OmStringCell(label), subscript, next() == '[');
      child->Hide(hide);
      if (next() == '[' || next() == '(') {
        ++at;
        addChildren(child, line, at);
        ++at;
      }
    }
  }

  OmMemoryRegion region_{false};
  std::unique_ptr<OmDimension> dimension_;
};

}  // namespace om::test

#endif  // OM_TESTS_DIMENSIONS_EDITTREE_H_
