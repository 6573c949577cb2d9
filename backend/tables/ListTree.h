// ListTree<T>: an ordered tree kept as one list of records in pre-order, each with its depth.
//
//     root            levels  0 1 2 2 1
//     +- a            records root a b c d
//     |  +- b
//     |  +- c         The subtree of a is a and the run of deeper records behind it;
//     +- d            its parent is the nearest record before it that is less deep.
//
// Invariants, kept by every operation and checked by none:
//   1. The first record is the root, at level 0, and no other record is at level 0. (Flattening the
//      root breaks the second half; the output tree never does.)
//   2. A record's level is at most one more than that of the record before it.
//
// Ownership: the tree owns its records. It moves items about and never creates, copies deeply or
//   destroys what they refer to.
// Handles: Node and ConstNode are small values. A handle is invalid once its record is removed; all
//   other handles stay valid. A handle keeps the level that the record had when it was made, and
//   Level() and everything that does not say otherwise go by that level, also after Flatten or
//   Erase of an ancestor has lifted the record. A handle on the end of the list is the end node.
// Cost: every edit is linear in the subtree that it touches and allocates nothing but records.
// Threads: a tree and its handles belong to one thread at a time.
// Errors: std::bad_alloc where records are added; the tree is then as before.

#ifndef OM_BACKEND_TABLES_LISTTREE_H_
#define OM_BACKEND_TABLES_LISTTREE_H_

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <list>
#include <utility>

#include "backend/Assert.h"

template <class T>
struct ListTreeData {
  T _data;
  std::int32_t _level;

  friend bool operator==(const ListTreeData& a, const ListTreeData& b) {
    return a._level == b._level && a._data == b._data;
  }
  friend bool operator<(const ListTreeData& a, const ListTreeData& b) {
    return a._level != b._level ? a._level < b._level : a._data < b._data;
  }
};

template <class T>
class ListTree {
 public:
  using Records = std::list<ListTreeData<T>>;

  template <class Tree, class Iterator>
  class Handle;
  using Node = Handle<ListTree, typename Records::iterator>;
  using ConstNode = Handle<const ListTree, typename Records::const_iterator>;

  ListTree() = default;

  // A tree of one record, the root.
  explicit ListTree(T& root) : _list{{root, 0}} {}
  explicit ListTree(const T& root) : _list{{root, 0}} {}

  // Copies the records; items that are pointers are then shared. Assigning writes into the records
  // that are there, so that handles on them stay valid.
  ListTree(const ListTree&) = default;
  ListTree& operator=(const ListTree& other);
  ~ListTree() = default;

  // Equal: the same number of records, each with the same level and an equal item.
  bool operator==(const ListTree& other) const { return _list == other._list; }
  bool operator!=(const ListTree& other) const { return !(*this == other); }
  // Lexicographic over the records; records are ordered by level, then by item.
  bool operator<(const ListTree& other) const { return _list < other._list; }

  // The first record, or the end node of an empty tree.
  Node Root() { return Node(*this, _list.begin()); }
  ConstNode Root() const { return ConstNode(*this, _list.begin()); }

  int Size() const { return static_cast<int>(_list.size()); }

  // The records themselves. Whoever edits them keeps the invariants.
  Records& List() { return _list; }
  const Records& List() const { return _list; }

  // Lifts every descendant of `n` by one level: the children of `n` become its next siblings and
  // keep their subtrees. Goes by the record's own level. Nothing for the end node.
  void Flatten(Node& n);

  // Flattens `n` and removes its record, so that its children take its place. The item is not
  // destroyed. Nothing for the end node.
  void Erase(Node& n);

  // Removes the record and its subtree. Items are not destroyed. Nothing for the end node.
  void Prune(const Node& n);

  // Moves the records [begin, end) of another tree in front of `target`, or to the end when it is
  // the end node. They keep their levels, so the range should consist of whole subtrees.
  // Reported as an assertion, the first that does not hold, and then nothing is moved: target is of
  // this tree; begin and end are of one tree; that is another tree; begin has the target's level.
  // Handles on moved records are invalid afterwards. When copying a record throws, both trees are
  // as before.
  void Move(const Node& target, const Node& begin, const Node& end);

  // Null, or the first invariant that does not hold.
  const char* checkInvariants() const;

 private:
  // The first record behind `it` that is at `level` or above, or the end.
  template <class Iterator>
  static Iterator SearchForward(Iterator it, Iterator end, std::int32_t level) {
    if (it == end) return end;
    return std::find_if(std::next(it), end, [level](const auto& r) { return r._level <= level; });
  }

  // The nearest record before `it` that is at `level` or above.
  // REQUIRES: there is one, as there is for every record but the root with a level of 0 or more.
  template <class Iterator>
  static Iterator SearchBackward(Iterator it, std::int32_t level) {
    do {
      --it;
    } while (it->_level > level);
    return it;
  }

  // Gives the condition, and reports it when it is false. The line is part of the report's text.
  static bool holds(bool condition, const wchar_t* message, unsigned line) {
    if (!condition) omAssertFailed(message, L"backend/tables/ListTree", line);
    return condition;
  }

  Records _list;
};

template <class T>
template <class Tree, class Iterator>
class ListTree<T>::Handle {
 public:
  // A handle on `record`, which is of `tree` or its end.
  Handle(Tree& tree, Iterator record)
      : _tree(&tree), _level(record == tree.List().end() ? 0 : record->_level), _iter(record) {}

  // A Node serves wherever a ConstNode is asked for.
  template <class OtherTree, std::convertible_to<Iterator> OtherIterator>
  // NOLINTNEXTLINE(google-explicit-constructor)
  Handle(const Handle<OtherTree, OtherIterator>& other)
      : Handle(other.Owner(), other.Iter(), other.Level()) {}

  bool IsEnd() const { return _iter == _tree->List().end(); }
  std::int32_t Level() const { return _level; }
  Tree& Owner() const { return *_tree; }
  Iterator Iter() const { return _iter; }

  // The item. REQUIRES: this is not the end node.
  auto& Item() const { return _iter->_data; }

  bool IsLeaf() const {
    if (IsEnd()) return true;
    const Iterator next = std::next(_iter);
    return next == _tree->List().end() || next->_level <= _level;
  }

  // The record behind this one, whatever its level; the end node if there is none. Walk children
  // from here by NextSibling until the handle equals ChildrenEnd().
  Handle FirstChild() const { return IsEnd() ? *this : Handle(*_tree, std::next(_iter)); }

  // Behind the subtree. The handle keeps this one's level, also on the end.
  Handle NextSibling() const { return Handle(*_tree, behindSubtree(), _level); }

  // Behind the subtree, with the level of the children, also on the end.
  Handle ChildrenEnd() const { return Handle(*_tree, behindSubtree(), _level + 1); }

  // The record that this one is a child of; the end node for the root and for the end node.
  Handle Parent() const {
    if (IsEnd() || _level == 0) return Handle(*_tree, _tree->List().end());
    return Handle(*_tree, SearchBackward(_iter, _level - 1));
  }

  // Adds a record with the item as the last child. Linear in the node's subtree.
  Handle AppendChild(const T& item) const {
    return Handle(*_tree, _tree->List().insert(behindSubtree(), {item, _level + 1}));
  }

  // The same record; the cached levels play no part.
  friend bool operator==(const Handle& a, const Handle& b) { return a._iter == b._iter; }

 private:
  friend class ListTree;
  template <class, class>
  friend class Handle;

  Handle(Tree& tree, Iterator record, std::int32_t level)
      : _tree(&tree), _level(level), _iter(record) {}

  Iterator behindSubtree() const {
    return SearchForward(_iter, Iterator(_tree->List().end()), _level);
  }

  Tree* _tree;
  std::int32_t _level;
  Iterator _iter;
};

template <class T>
ListTree<T>& ListTree<T>::operator=(const ListTree& other) {
  if (this == &other) return *this;
  Records copies = other._list;  // Nothing behind this can fail.
  auto from = copies.begin();
  auto to = _list.begin();
  for (; to != _list.end() && from != copies.end(); ++to, ++from) std::swap(*to, *from);
  _list.erase(to, _list.end());
  _list.splice(_list.end(), copies, from, copies.end());
  return *this;
}

template <class T>
void ListTree<T>::Flatten(Node& n) {
  if (n.IsEnd()) return;
  const std::int32_t level = n._iter->_level;
  for (auto it = std::next(n._iter); it != _list.end() && it->_level > level; ++it) --it->_level;
}

template <class T>
void ListTree<T>::Erase(Node& n) {
  Flatten(n);
  if (!n.IsEnd()) _list.erase(n._iter);
}

template <class T>
void ListTree<T>::Prune(const Node& n) {
  _list.erase(n._iter, SearchForward(n._iter, _list.end(), n._level));
}

template <class T>
void ListTree<T>::Move(const Node& target, const Node& begin, const Node& end) {
  const bool movable =
      holds(target._tree == this, L"target._tree == this", 503) &&
      holds(begin._tree == end._tree, L"begin._tree == end._tree", 504) &&
      holds(target._tree != begin._tree, L"target._tree != begin._tree", 505) &&
      holds(begin.Level() == target.Level(), L"begin.Level() == target.Level()", 506);
  if (!movable) return;
  Records copies(begin._iter, end._iter);
  _list.splice(target._iter, copies);
  begin._tree->_list.erase(begin._iter, end._iter);
}

template <class T>
const char* ListTree<T>::checkInvariants() const {
  std::int32_t before = -1;
  for (const ListTreeData<T>& record : _list) {
    if (before == -1 && record._level != 0) return "the first record is at level 0";
    if (before != -1 && record._level <= 0) return "no other record is at level 0";
    if (record._level > before + 1) return "a level is at most one more than the one before it";
    before = record._level;
  }
  return nullptr;
}

#endif  // OM_BACKEND_TABLES_LISTTREE_H_
