// OmVectorTree<T>: an ordered tree whose nodes are records; a record holds its children by value,
// in a vector on a memory region, and points back to its parent.
//
//   record | value | children ---+ | parent |
//                                v
//          | value | children | parent ||| value | children | parent |     side by side
//
// Callers see records through small handles, Node and ConstNode: a record's address and the node's
// depth, 0 for the root.
//
// Invariants:
//   1. A record's parent is the record whose children hold it; the root's is null. Records move
//      when a vector of children grows or shifts, and whoever makes them move restores the links
//      with Reparent. (OmDimension::Delete leaves that to its caller.)
//   2. All vectors of children of a tree are on one region.
//
// Ownership: a record owns its value and its whole subtree; whoever owns the root owns the tree.
// Handles: inserting into or erasing from a vector of children invalidates every handle to its
//   records and to what is below them. Handles are not registered anywhere.
// Depth: no operation calls itself, so a tree may be as deep as memory allows.
// Threads: a tree and its handles belong to one thread at a time.
// Errors: what copying a value throws, and std::bad_alloc; the tree is then as before.

#ifndef OM_BACKEND_TABLES_OM_VECTORTREE_H_
#define OM_BACKEND_TABLES_OM_VECTORTREE_H_

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <tuple>
#include <utility>
#include <vector>

#include "backend/Assert.h"
#include "backend/tables/OmVector.h"

// One record. The value stands in a union so that it can be destroyed before the children.
template <class T>
struct OmVectorTreeEntry {
  union {
    T value;
  };
  OmVector<OmVectorTreeEntry> children;
  OmVectorTreeEntry* parent;

  // A record without children, its value made by `makeValue()`, its children to be on `region`.
  template <class MakeValue>
  OmVectorTreeEntry(const MakeValue& makeValue, OmMemoryRegion* region, OmVectorTreeEntry* above)
      : value(makeValue()), children(region), parent(above) {}

  // A deep copy of `source`: each value is made by `copyValue(value)`, each vector of children has
  // room for exactly what it holds.
  template <class CopyValue>
  OmVectorTreeEntry(const OmVectorTreeEntry& source, const CopyValue& copyValue,
                    OmMemoryRegion* region, OmVectorTreeEntry* above)
      : OmVectorTreeEntry([&] { return copyValue(source.value); }, region, above) {
    copyChildren(source, copyValue);
  }

  // Destroys the value, then the children in order, each with its subtree.
  ~OmVectorTreeEntry();

  OmVectorTreeEntry(const OmVectorTreeEntry&) = delete;
  OmVectorTreeEntry& operator=(const OmVectorTreeEntry&) = delete;

 private:
  template <class CopyValue>
  void copyChildren(const OmVectorTreeEntry& source, const CopyValue& copyValue);
};

template <class T>
inline constexpr bool omMovesBitwise<OmVectorTreeEntry<T>> = omMovesBitwise<T>;

// A handle: the address of a record, const or not, and the node's depth.
template <class Entry>
class OmVectorTreeNode {
 public:
  class Range;

  OmVectorTreeNode() = default;
  OmVectorTreeNode(Entry* record, std::uint32_t depth) : entry_(record), depth_(depth) {}
  // A Node serves wherever a ConstNode is asked for.
  template <class OtherEntry>
  requires std::convertible_to<OtherEntry*, Entry*>
  // NOLINTNEXTLINE(google-explicit-constructor)
  OmVectorTreeNode(const OmVectorTreeNode<OtherEntry>& other)
      : OmVectorTreeNode(other.Record(), other.Depth()) {}

  auto& operator*() const { return entry_->value; }
  auto* operator->() const { return &entry_->value; }

  Entry* Record() const { return entry_; }
  std::uint32_t Depth() const { return depth_; }
  std::size_t ChildCount() const { return entry_->children.size(); }

  // Walk the children from the first one by ++ until the handle equals ChildrenEnd(), or with
  // `for (auto child : node.Children())`.
  OmVectorTreeNode FirstChild() const { return {entry_->children.begin(), depth_ + 1}; }
  OmVectorTreeNode ChildrenEnd() const { return {entry_->children.end(), depth_ + 1}; }
  Range Children() const { return Range{*this}; }
  // REQUIRES: position < ChildCount().
  OmVectorTreeNode ChildAt(std::size_t position) const {
    return {entry_->children.begin() + position, depth_ + 1};
  }

  // The next child of the same parent, or the end of its children.
  OmVectorTreeNode& operator++() {
    ++entry_;
    return *this;
  }

  // REQUIRES: this is not the root.
  OmVectorTreeNode Parent() const { return {entry_->parent, depth_ - 1}; }

  // The same record; the depths play no part.
  friend bool operator==(const OmVectorTreeNode& a, const OmVectorTreeNode& b) {
    return a.entry_ == b.entry_;
  }

 private:
  Entry* entry_ = nullptr;
  std::uint32_t depth_ = 0;
};

// The children of a node, as handles.
template <class Entry>
class OmVectorTreeNode<Entry>::Range {
 public:
  class Iterator {
   public:
    explicit Iterator(const OmVectorTreeNode& node) : node_(node) {}
    OmVectorTreeNode operator*() const { return node_; }
    Iterator& operator++() {
      ++node_;
      return *this;
    }
    bool operator==(const Iterator&) const = default;

   private:
    OmVectorTreeNode node_;
  };

  explicit Range(const OmVectorTreeNode& parent) : parent_(parent) {}
  Iterator begin() const { return Iterator(parent_.FirstChild()); }
  Iterator end() const { return Iterator(parent_.ChildrenEnd()); }

 private:
  OmVectorTreeNode parent_;
};

// The operations on whole records. Those that erase or insert in the middle restore no parent link.
template <class T>
class OmVectorTree {
 public:
  using Entry = OmVectorTreeEntry<T>;
  using Node = OmVectorTreeNode<Entry>;
  using ConstNode = OmVectorTreeNode<const Entry>;
  // A record outside of any tree.
  using Detached = typename OmVector<Entry>::Detached;

  // How records are copied within their tree.
  static T plainCopy(const T& value) { return T(value); }

  // Adds a record without children, with the value that `makeValue()` makes, at the end of the
  // parent's children. All links are right afterwards.
  template <class MakeValue>
  static Entry& AppendValue(Entry& parent, const MakeValue& makeValue);

  // Adds a deep copy of `record` at the end of the parent's children. All links are right
  // afterwards.
  static Entry& Append(Entry& parent, const Entry& record);

  // Adds a deep copy of `record` in front of the first child that equals `sibling`, or at the end
  // when there is none or `sibling` is null.
  static Entry& InsertBefore(Entry& parent, const Entry& record, const T* sibling);
  // The same with a record that is taken over.
  static Entry& InsertBefore(Entry& parent, Detached&& record, const T* sibling);

  // Destroys the record with its subtree and closes the gap. REQUIRES: it is not the root.
  static void Erase(const Node& node);

  // The position of the first child that equals `value`; all bits set when there is none.
  static std::uint32_t IndexOf(const ConstNode& parent, const T& value);

  // Makes the record the parent of each of its children and, when told so, does the same for its
  // whole subtree.
  static void Reparent(Entry& record, bool recursive);

  // The node at the same path in another tree of the same shape. Where the other tree has no such
  // child, reports it and gives the end of the children that it was looked for among.
  template <class AnyNode>
  static AnyNode Counterpart(const ConstNode& node, const AnyNode& otherRoot);

  // Calls visit(node) for the node and everything below it, parents before children, in order.
  // Where it answers false, what is below the node is left out. Follows the vectors of children,
  // not the links.
  template <class AnyNode, class Visit>
  static void Walk(const AnyNode& top, const Visit& visit);

  // The record's place among its parent's children. REQUIRES: it is not the root.
  static std::size_t OffsetOf(const Entry& record) {
    return static_cast<std::size_t>(&record - record.parent->children.begin());
  }

  // Null, or the first invariant that does not hold in the tree below `root`.
  static const char* checkInvariants(const Entry& root);

 private:
  static const Entry* firstEqual(const Entry& parent, const T& value) {
    return std::find_if(parent.children.begin(), parent.children.end(),
                        [&value](const Entry& child) { return child.value == value; });
  }
  template <class... Arguments>
  static Entry& appendRecord(Entry& parent, Arguments&&... arguments);
};

// The value of each record dies on the way down. The links are set on the way, so that the way up
// is found whatever they were before; the next record of a level is the next one in memory.
template <class T>
OmVectorTreeEntry<T>::~OmVectorTreeEntry() {
  OmVectorTreeEntry* at = this;
  at->value.~T();
  for (;;) {
    OmVectorTreeEntry* next = nullptr;
    if (!at->children.empty()) {
      next = at->children.begin();
      next->parent = at;
    }
    while (next == nullptr) {
      at->children.abandon();
      if (at == this) return;
      OmVectorTreeEntry* const above = at->parent;
      if (at + 1 != above->children.end()) {
        next = at + 1;
        next->parent = above;
      } else {
        at = above;
      }
    }
    at = next;
    at->value.~T();
  }
}

template <class T>
template <class CopyValue>
void OmVectorTreeEntry<T>::copyChildren(const OmVectorTreeEntry& source,
                                        const CopyValue& copyValue) {
  const OmVectorTreeEntry* from = &source;
  OmVectorTreeEntry* to = this;
  // The path down to `from`; its links may be stale, those of the copy are not.
  OmVector<const OmVectorTreeEntry*> path(children.region());
  for (;;) {
    if (!from->children.empty()) {
      to->children.reserve(from->children.size());
      path.push_back(from);
      from = from->children.begin();
    } else {
      while (from != &source && from + 1 == path.back()->children.end()) {
        from = path.back();
        to = to->parent;
        path.erase(path.size() - 1);
      }
      if (from == &source) return;
      ++from;
      to = to->parent;
    }
    to = &to->children.emplace_back([&] { return copyValue(from->value); }, children.region(), to);
  }
}

template <class T>
template <class... Arguments>
OmVectorTreeEntry<T>& OmVectorTree<T>::appendRecord(Entry& parent, Arguments&&... arguments) {
  const Entry* const before = parent.children.begin();
  Entry& added = parent.children.emplace_back(std::forward<Arguments>(arguments)...);
  if (parent.children.begin() != before) {
    for (Entry& child : parent.children) Reparent(child, false);
  }
  return added;
}

template <class T>
template <class MakeValue>
OmVectorTreeEntry<T>& OmVectorTree<T>::AppendValue(Entry& parent, const MakeValue& makeValue) {
  return appendRecord(parent, makeValue, parent.children.region(), &parent);
}

template <class T>
OmVectorTreeEntry<T>& OmVectorTree<T>::Append(Entry& parent, const Entry& record) {
  return appendRecord(parent, record, plainCopy, parent.children.region(), &parent);
}

template <class T>
OmVectorTreeEntry<T>& OmVectorTree<T>::InsertBefore(Entry& parent, const Entry& record,
                                                    const T* sibling) {
  Detached copy(std::in_place, record, plainCopy, parent.children.region(), &parent);
  return InsertBefore(parent, std::move(copy), sibling);
}

template <class T>
OmVectorTreeEntry<T>& OmVectorTree<T>::InsertBefore(Entry& parent, Detached&& record,
                                                    const T* sibling) {
  const Entry* const place =
      sibling != nullptr ? firstEqual(parent, *sibling) : parent.children.end();
  return parent.children.insert(static_cast<std::size_t>(place - parent.children.begin()),
                                std::move(record));
}

template <class T>
void OmVectorTree<T>::Erase(const Node& node) {
  node.Record()->parent->children.erase(OffsetOf(*node.Record()));
}

template <class T>
std::uint32_t OmVectorTree<T>::IndexOf(const ConstNode& parent, const T& value) {
  const OmVector<Entry>& children = parent.Record()->children;
  const Entry* const found = firstEqual(*parent.Record(), value);
  if (found == children.end()) return ~std::uint32_t{0};
  return static_cast<std::uint32_t>(found - children.begin());
}

// The links that it sets on the way down lead it up again.
template <class T>
void OmVectorTree<T>::Reparent(Entry& record, bool recursive) {
  Entry* at = &record;
  for (;;) {
    for (Entry& child : at->children) child.parent = at;
    if (!recursive) return;
    if (!at->children.empty()) {
      at = at->children.begin();
      continue;
    }
    while (at != &record && at + 1 == at->parent->children.end()) at = at->parent;
    if (at == &record) return;
    ++at;
  }
}

template <class T>
template <class AnyNode>
AnyNode OmVectorTree<T>::Counterpart(const ConstNode& node, const AnyNode& otherRoot) {
  // By address alone: where a link is stale, the record is none of its parent's children.
  std::vector<std::ptrdiff_t> offsets;
  const Entry* at = node.Record();
  for (std::uint32_t depth = node.Depth(); depth != 0; --depth, at = at->parent) {
    const auto distance = reinterpret_cast<std::intptr_t>(at) -
                          reinterpret_cast<std::intptr_t>(at->parent->children.begin());
    offsets.push_back(distance / static_cast<std::intptr_t>(sizeof(Entry)));
  }

  AnyNode mapped(otherRoot.Record(), 0);
  for (; !offsets.empty(); offsets.pop_back()) {
    const std::ptrdiff_t offset = offsets.back();
    if (offset < 0 || static_cast<std::size_t>(offset) >= mapped.ChildCount()) {
      omAssertFailed(L"0 <= offset && offset < vec.size()", L"backend/tables/om/VectorTree", 384);
      return mapped.ChildrenEnd();
    }
    mapped = mapped.ChildAt(static_cast<std::size_t>(offset));
  }
  return mapped;
}

template <class T>
template <class AnyNode, class Visit>
void OmVectorTree<T>::Walk(const AnyNode& top, const Visit& visit) {
  if (!visit(top)) return;
  std::vector<std::pair<AnyNode, AnyNode>> above;  // on each level, the next node and the end
  AnyNode next = top.FirstChild();
  AnyNode end = top.ChildrenEnd();
  for (;;) {
    while (next != end) {
      const AnyNode node = next;
      ++next;
      if (!visit(node)) continue;
      above.emplace_back(next, end);
      next = node.FirstChild();
      end = node.ChildrenEnd();
    }
    if (above.empty()) return;
    std::tie(next, end) = above.back();
    above.pop_back();
  }
}

template <class T>
const char* OmVectorTree<T>::checkInvariants(const Entry& root) {
  const char* broken = root.parent != nullptr ? "the parent of the root is null" : nullptr;
  Walk(ConstNode(&root, 0), [&](const ConstNode& node) {
    const OmVector<Entry>& children = node.Record()->children;
    if (broken == nullptr) broken = children.checkInvariants();
    if (children.region() != root.children.region()) broken = "all children are on one region";
    for (const Entry& child : children) {
      if (child.parent != node.Record()) broken = "a record's parent is the one that holds it";
    }
    return true;
  });
  return broken;
}

#endif  // OM_BACKEND_TABLES_OM_VECTORTREE_H_
