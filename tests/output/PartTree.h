// Output trees written and read as one line: "r0 a1 [b]2 -2" is a root r with a child a, which has
// a text block b and a null item below it. The last character of each word is the level.

#ifndef OM_TESTS_OUTPUT_PARTTREE_H_
#define OM_TESTS_OUTPUT_PARTTREE_H_

#include <algorithm>
#include <memory>
#include <sstream>
#include <string>

#include "output/OmOutputTree.h"
#include "output/OmTextBlock.h"
#include "tests/support/Counted.h"

namespace om::test {

inline std::unique_ptr<OmOutputPart> counted(const std::string& label) {
  return std::make_unique<CountedPart>(label);
}

// The name of a part in a line, without its level.
inline std::string nameOf(const OmOutputPart* part) {
  if (part == nullptr) return "-";
  const std::string label(part->Label());
  return dynamic_cast<const OmTextBlock*>(part) != nullptr ? "[" + label + "]" : label;
}

// A part with that name: null, a text block without a code page, or a counted part.
inline std::unique_ptr<OmOutputPart> partNamed(const std::string& name) {
  if (name == "-") return nullptr;
  if (name.front() != '[') return counted(name);
  return std::make_unique<OmTextBlock>(OmStringCell(name.substr(1, name.size() - 2)), "");
}

// An output tree of the records in the line, taken as they are; the root is the line's own.
class PartTree : public OmOutputTree {
 public:
  explicit PartTree(const std::string& line) {
    delete Root().Item();
    List().clear();
    std::istringstream words(line);
    for (std::string word; words >> word;) {
      std::unique_ptr<OmOutputPart> part = partNamed(word.substr(0, word.size() - 1));
      List().push_back({part.get(), word.back() - '0'});
      part.release();
    }
  }
  PartTree(const PartTree&) = delete;
  PartTree& operator=(const PartTree&) = delete;

  // The first record with the name, or the end node.
  Node at(const std::string& name) {
    return {*this, std::find_if(List().begin(), List().end(), [&name](const auto& record) {
              return nameOf(record._data) == name;
            })};
  }
  Node end() { return {*this, List().end()}; }
};

inline std::string lineOf(const ListTree<OmOutputPart*>& tree) {
  std::string line;
  for (const auto& record : tree.List()) {
    if (!line.empty()) line += ' ';
    line += nameOf(record._data) + std::to_string(record._level);
  }
  return line;
}

// The labels of the counted parts that died since the test started, in order.
inline std::string diedLine() {
  std::string line;
  for (const std::string& label : CountedPart::died()) line += (line.empty() ? "" : " ") + label;
  return line;
}

}  // namespace om::test

#endif  // OM_TESTS_OUTPUT_PARTTREE_H_
