// A program as a user of the installed library writes it. Exit code 0 when the tree is as expected.

#include <external/cells/OmStringCell.h>
#include <output/OmOutputTree.h>
#include <output/OmTextBlock.h>

#include <memory>
#include <string>

int main() {
  OmOutputTree tree;
  tree.Append(tree.Root(), std::make_unique<OmTextBlock>(OmStringCell("Log"), "UTF-8"));
  const std::string label = tree.Root().FirstChild().Item()->Label();
  return tree.Size() == 2 && label == "Log" ? 0 : 1;
}
