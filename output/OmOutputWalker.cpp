#include "output/OmOutputWalker.h"

#include <iterator>
#include <vector>

OmOutputWalker::~OmOutputWalker() = default;

bool OmOutputWalker::Walk(const OmOutputTree& tree) { return Walk(tree.Root()); }

bool OmOutputWalker::Walk(const OmOutputTree::ConstNode& top) {
  stopped_ = false;
  if (top.IsEnd()) return true;

  std::vector<const ListTreeData<OmOutputPart*>*> path;
  const auto leaveTo = [&](std::int32_t level) {
    while (!stopped_ && !path.empty() && path.back()->_level >= level) {
      Leave(path.back()->_data, path.back()->_level);
      path.pop_back();
    }
  };

  const auto end = top.NextSibling().Iter();
  for (auto it = top.Iter(); it != end && !stopped_;) {
    leaveTo(it->_level);
    if (stopped_) break;
    path.push_back(&*it);
    skip_ = false;
    Enter(it->_data, it->_level);
    const OmOutputTree::ConstNode node(top.Owner(), it);
    it = skip_ ? node.NextSibling().Iter() : std::next(it);
  }
  leaveTo(0);
  return !stopped_;
}

void OmOutputWalker::Enter(OmOutputPart* part, int) {
  if (part != nullptr) part->Accept(*this);
}

void OmOutputWalker::Leave(OmOutputPart*, int) {}
