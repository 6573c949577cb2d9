// Builds a small document, walks it, edits it and walks it again.

#include <external/cells/OmStringCell.h>
#include <output/OmOutputTree.h>
#include <output/OmOutputWalker.h>
#include <output/OmPageTitle.h>
#include <output/OmProcedure.h>
#include <output/OmTextBlock.h>

#include <iostream>
#include <memory>
#include <string>

// Writes one line for each part, indented by its depth, and the lines of text blocks below it.
class Outline : public OmOutputWalker {
 public:
  void Visit(OmHeading& part) override { line("heading", part); }
  void Visit(OmProcedure& part) override { line("procedure", part); }
  void Visit(OmTextBlock& part) override { text("text", part); }
  void Visit(OmPageTitle& part) override { text("page title", part); }
  void Visit(OmPivotTable&) override {}
  void Visit(OmChart&) override {}
  void Visit(OmModel&) override {}
  void Visit(OmInteractive&) override {}
  void Visit(OmAnswerTree&) override {}

 protected:
  void Enter(OmOutputPart* part, int level) override {
    indent_ = std::string(2 * static_cast<std::size_t>(level), ' ');
    OmOutputWalker::Enter(part, level);
  }

 private:
  void line(const std::string& kind, const OmOutputPart& part) {
    std::cout << indent_ << kind << " \"" << std::string(part.Label()) << "\"\n";
  }
  void text(const std::string& kind, OmTextBlock& part) {
    line(kind, part);
    for (const std::string& each : part.TextList()) std::cout << indent_ << "  | " << each << "\n";
  }

  std::string indent_;
};

int main() {
  OmOutputTree tree;
  auto log = std::make_unique<OmTextBlock>(OmStringCell("Log"), "UTF-8");
  log->TextList().push_back("FREQUENCIES species island.");
  OmOutputTree::Node procedure = tree.Append(
      tree.Root(),
      std::make_unique<OmProcedure>(OmStringCell("Frequencies"), "en", "UTF-8", "en_GB"));
  tree.Append(procedure, std::move(log));
  tree.Append(procedure, std::make_unique<OmPageTitle>("UTF-8"));
  tree.Append(procedure, std::make_unique<OmHeading>(OmStringCell("Frequency tables")));

  Outline outline;
  outline.Walk(tree);

  std::cout << "\nThe procedure's output is dropped, and a message left in its place:\n\n";
  const OmStringCell message("Too large to be kept");
  Amputate(procedure, &message, "UTF-8");
  outline.Walk(tree);
}
