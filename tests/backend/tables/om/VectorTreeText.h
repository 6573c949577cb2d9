// Vector trees of numbers, written and read as one line: "1(2(3 4) 5)" is a 1 above a 2, which has
// the children 3 and 4, and above a 5.

#ifndef OM_TESTS_BACKEND_TABLES_OM_VECTORTREETEXT_H_
#define OM_TESTS_BACKEND_TABLES_OM_VECTORTREETEXT_H_

#include <cctype>
#include <cstddef>
#include <initializer_list>
#include <string>

#include "backend/tables/om/VectorTree.h"
#include "external/cells/OmMemoryRegion.h"
#include "tests/backend/tables/Brittle.h"

namespace om::test {

using NumberTree = OmVectorTree<Brittle>;
using NumberEntry = NumberTree::Entry;
using NumberNode = NumberTree::Node;
using ConstNumberNode = NumberTree::ConstNode;

inline NumberEntry& appendNumber(NumberEntry& parent, int number) {
  return NumberTree::AppendValue(parent, [number] { return Brittle(number); });
}

inline std::string lineOf(const NumberEntry& record) {
  std::string line = std::to_string(record.value.value());
  const char* separator = "(";
  for (const NumberEntry& child : record.children) {
    line += separator + lineOf(child);
    separator = " ";
  }
  return record.children.empty() ? line : line + ")";
}

// Whether each record below this one names the record that holds it, as it is told of by the
// vectors of children alone.
inline bool linksAreRight(const NumberEntry& record) {
  for (const NumberEntry& child : record.children) {
    if (child.parent != &record || !linksAreRight(child)) return false;
  }
  return true;
}

// A tree in a region of its own.
class Numbers {
 public:
  explicit Numbers(const std::string& line)
      : at_(line.c_str()), root_([this] { return Brittle(number()); }, &region_, nullptr) {
    fill(root_);
  }

  NumberEntry& root() { return root_; }
  NumberNode rootNode() { return {&root_, 0}; }
  OmMemoryRegion& region() { return region_; }
  std::string line() const { return lineOf(root_); }

  // The node at a path of positions from the root down.
  NumberNode at(std::initializer_list<std::size_t> path) {
    NumberNode node = rootNode();
    for (const std::size_t position : path) node = node.ChildAt(position);
    return node;
  }
  NumberEntry& record(std::initializer_list<std::size_t> path) { return *at(path).Record(); }

 private:
  int number() {
    int value = 0;
    for (; std::isdigit(static_cast<unsigned char>(*at_)) != 0; ++at_) {
      value = 10 * value + (*at_ - '0');
    }
    return value;
  }
  void fill(NumberEntry& parent) {
    if (*at_ != '(') return;
    do {
      ++at_;
      const int value = number();
      fill(appendNumber(parent, value));
    } while (*at_ == ' ');
    ++at_;
  }

  const char* at_;  // what is still to be read, during construction
  OmMemoryRegion region_{false};
  NumberEntry root_;
};

}  // namespace om::test

#endif  // OM_TESTS_BACKEND_TABLES_OM_VECTORTREETEXT_H_
