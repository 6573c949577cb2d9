// A program that writes a document with the installed writers. Exit code 0 when it is as expected.

#include <external/cells/OmStringCell.h>
#include <output/OmOutputTree.h>
#include <output/OmTextBlock.h>
#include <render/TextWriter.h>

#include <memory>
#include <sstream>

int main() {
  OmOutputTree tree;
  tree.Append(tree.Root(), std::make_unique<OmTextBlock>(OmStringCell("Notes"), "UTF-8"));
  std::ostringstream out;
  om::render::writeText(tree, out);
  return out.str() == "Notes\n" ? 0 : 1;
}
