// Categories: the categories of one dimension as a tree: those that records fall into, in the order
// that was asked for, and the totals.
//
//   root                          region / subregion, with totals
//     Europe         group
//       Southern       0          subscripts count the leaves from 0 as they stand
//       Northern       1
//       Total          2
//     Oceania        group
//       Polynesia      3
//       Total          4
//     Total            5

#ifndef OM_TOOLS_TABULATE_CATEGORIES_H_
#define OM_TOOLS_TABULATE_CATEGORIES_H_

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "tools/tabulate/Dictionary.h"
#include "tools/tabulate/Request.h"
#include "tools/tabulate/Tally.h"

namespace om::tabulate {

class Categories {
 public:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  struct Node {
    std::string_view label;  // of a dictionary; empty for a missing value and for a total
    std::size_t parent;
    std::size_t subscript;  // of a leaf
    std::uint64_t first;    // number of the first record below it
    std::vector<std::size_t> children;
    bool isTotal;
    bool isGroup;
  };

  // Of the codes `level` to `level + depth` of the tally's cells, whose labels are those of the
  // dictionaries with these numbers. The order `data` is that of the first records, parents before
  // children; `sorted` that of the labels by code point; `typed` that by value at a level whose
  // labels are all plain decimal numbers, and `sorted` at the others. The empty label comes first
  // in both, and what is equal stays in order of appearance. REQUIRES: depth > 0; the dictionaries
  // outlive the categories and do not change.
  Categories(const Tally& tally, std::span<const Dictionary> dictionaries, std::size_t level,
             std::size_t depth, Order order, bool totals);

  // The nodes, 0 being the root, which is no category. A node's children stand in order.
  const std::vector<Node>& nodes() const { return nodes_; }
  // How many leaves there are, totals included.
  std::size_t size() const { return leaves_; }

  // The subscripts that a cell of the tally counts towards: its own category first, then the total
  // beside it, then that of the group around, and so on outwards.
  const std::vector<std::size_t>& subscriptsOf(std::size_t cell) const {
    return subscripts_[leafOfCell_[cell]];
  }

 private:
  void build(const Tally& tally, std::span<const Dictionary> dictionaries, std::size_t level);
  void sort(Order order);
  std::vector<char> numericLevels() const;
  void addTotals();
  void number();

  std::size_t depth_;
  std::vector<Node> nodes_;
  std::vector<std::size_t> levelOfNode_;              // 0 for the root
  std::vector<std::size_t> leafOfCell_;               // nodes
  std::vector<std::vector<std::size_t>> subscripts_;  // of leaves that are no totals, by node
  std::size_t leaves_ = 0;
};

}  // namespace om::tabulate

#endif  // OM_TOOLS_TABULATE_CATEGORIES_H_
