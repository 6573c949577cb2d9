#include "output/OmOutputTree.h"

#include <iterator>
#include <utility>

#include "backend/OMSException.h"
#include "external/cells/OmStringCell.h"
#include "output/OmHeading.h"
#include "output/OmTextBlock.h"

template class ListTree<OmOutputPart*>;

namespace {

using Records = OmOutputTree::Records;

// A list of one record, which splice can move into a tree without failing.
Records recordOf(std::unique_ptr<OmOutputPart>&& part, int level) {
  Records record{{part.get(), level}};
  static_cast<void>(part.release());
  return record;
}

}  // namespace

OmOutputTree::OmOutputTree() {
  List() = recordOf(std::make_unique<OmHeading>(OmStringCell("Output", nullptr, true)), 0);
}

OmOutputTree::OmOutputTree(const OmOutputTree& other) = default;

OmOutputTree& OmOutputTree::operator=(const OmOutputTree& other) = default;

OmOutputTree::~OmOutputTree() {
  for (const ListTreeData<OmOutputPart*>& record : List()) delete record._data;
}

OmOutputTree::Node OmOutputTree::Append(const Node& parent, std::unique_ptr<OmOutputPart>&& part) {
  if (parent.IsEnd()) throw OMSException("OmOutputTree::Append() -- parent is the end");
  const Node appended = parent.AppendChild(part.get());
  static_cast<void>(part.release());
  return appended;
}

OmOutputTree::Node OmOutputTree::AppendLast(std::unique_ptr<OmOutputPart>&& part, int level) {
  if (List().empty()) {
    if (level != 0) throw OMSException("OmOutputTree::AppendLast() -- level != 0", level, 0);
  } else {
    const int highest = List().back()._level + 1;
    if (level < 1) throw OMSException("OmOutputTree::AppendLast() -- level < 1", level, highest);
    if (level > highest) {
      throw OMSException("OmOutputTree::AppendLast() -- level > last level + 1", level, highest);
    }
  }
  List().push_back({part.get(), level});
  static_cast<void>(part.release());
  return Node(*this, std::prev(List().end()));
}

void OmOutputTree::Erase(Node& n) {
  if (n.IsEnd()) return;
  delete n.Item();
  ListTree::Erase(n);
}

// The order is that of a recursion over the children, without its depth: once a record is left
// behind for good, it is deleted, so what stands in front of `next` is always the path down to it.
void OmOutputTree::Prune(Node& n) {
  if (n.IsEnd()) return;
  auto next = std::next(n.Iter());
  for (;;) {
    const bool inside = next != List().end() && next->_level > n.Level();
    auto last = std::prev(next);
    while (last != n.Iter() && (!inside || last->_level >= next->_level)) {
      delete last->_data;
      last = std::prev(List().erase(last));
    }
    if (!inside) break;
    ++next;
  }
  delete n.Item();
  ListTree::Prune(n);
}

OmOutputTree::Node Amputate(OmOutputTree::Node n, const OmCellText* text,
                            const std::string& localeCodePage) {
  auto& tree = static_cast<OmOutputTree&>(n.Owner());
  const int childLevel = n.Level() + 1;
  if (n.Level() <= 1) {
    Records block = recordOf(std::make_unique<OmTextBlock>(*text, localeCodePage), childLevel);
    while (!n.IsLeaf()) {
      OmOutputTree::Node child = n.FirstChild();
      tree.Prune(child);
    }
    tree.List().splice(n.ChildrenEnd().Iter(), block);
    return n.FirstChild();
  }

  if (n.Item() == nullptr) return n;
  const OmCellText& label = n.Item()->Label();
  Records block = recordOf(std::make_unique<OmTextBlock>(label, localeCodePage), childLevel);
  delete std::exchange(n.Item(), nullptr);
  tree.List().splice(n.ChildrenEnd().Iter(), block);
  tree.Flatten(n);
  const OmOutputTree::Node first = n.NextSibling();
  tree.ListTree::Erase(n);
  return first;
}
