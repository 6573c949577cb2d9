// Any sequence of edits leaves an output tree whole: its invariants hold, and a walk enters and
// leaves every record once. Each edit takes two bytes: what to do, and at which record.

#include <external/cells/OmStringCell.h>
#include <output/OmHeading.h>
#include <output/OmOutputTree.h>
#include <output/OmOutputWalker.h>

#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <memory>

namespace {

void require(bool condition) {
  if (!condition) std::abort();
}

class Counter final : public OmOutputWalker {
 public:
  int entered = 0;
  int left = 0;

  void Visit(OmInteractive&) override {}
  void Visit(OmModel&) override {}
  void Visit(OmAnswerTree&) override {}
  void Visit(OmChart&) override {}
  void Visit(OmTextBlock&) override {}
  void Visit(OmHeading&) override {}
  void Visit(OmPivotTable&) override {}

 protected:
  void Enter(OmOutputPart* part, int level) override {
    ++entered;
    OmOutputWalker::Enter(part, level);
  }
  void Leave(OmOutputPart*, int) override { ++left; }
};

std::unique_ptr<OmOutputPart> newPart() {
  return std::make_unique<OmHeading>(OmStringCell("a heading"));
}

void edit(OmOutputTree& tree, std::uint8_t what, OmOutputTree::Node node) {
  const OmStringCell text("removed");
  switch (what % 6) {
    case 0:
      tree.Append(node, newPart());
      break;
    case 1:
      tree.AppendLast(newPart(), 1 + what % (tree.List().back()._level + 1));
      break;
    case 2:
      if (node.Level() > 0) tree.Erase(node);
      break;
    case 3:
      if (node.Level() > 0) tree.Prune(node);
      break;
    case 4:
      if (node.Level() > 0) tree.Flatten(node);
      break;
    default:
      Amputate(node, &text, "UTF-8");
      break;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  OmOutputTree tree;
  for (std::size_t i = 0; i + 1 < size; i += 2) {
    const auto place = static_cast<std::ptrdiff_t>(data[i + 1] % tree.List().size());
    edit(tree, data[i], OmOutputTree::Node(tree, std::next(tree.List().begin(), place)));
    require(tree.checkInvariants() == nullptr);
  }
  Counter counter;
  require(counter.Walk(tree));
  require(counter.entered == tree.Size() && counter.left == tree.Size());
  return 0;
}
