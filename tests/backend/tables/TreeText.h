// List trees of words, written and read as one line: "r0 a1 b2" has an item and a level a word.

#ifndef OM_TESTS_BACKEND_TABLES_TREETEXT_H_
#define OM_TESTS_BACKEND_TABLES_TREETEXT_H_

#include <algorithm>
#include <sstream>
#include <string>

#include "backend/tables/ListTree.h"

namespace om::test {

using TextTree = ListTree<std::string>;

// The last character of each word is the level. The records are taken as they are.
inline TextTree treeOf(const std::string& line) {
  TextTree tree;
  std::istringstream words(line);
  for (std::string word; words >> word;) {
    tree.List().push_back({word.substr(0, word.size() - 1), word.back() - '0'});
  }
  return tree;
}

inline std::string lineOf(const TextTree& tree) {
  std::string line;
  for (const auto& record : tree.List()) {
    if (!line.empty()) line += ' ';
    line += record._data + std::to_string(record._level);
  }
  return line;
}

// The first record with the item, or the end node.
inline TextTree::Node nodeOf(TextTree& tree, const std::string& item) {
  return {tree, std::find_if(tree.List().begin(), tree.List().end(),
                             [&item](const auto& record) { return record._data == item; })};
}

inline TextTree::Node endOf(TextTree& tree) { return {tree, tree.List().end()}; }

}  // namespace om::test

#endif  // OM_TESTS_BACKEND_TABLES_TREETEXT_H_
