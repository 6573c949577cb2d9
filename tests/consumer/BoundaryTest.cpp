// What must work across the boundary of the shared library: types, exceptions, ownership, handlers.

#include <gtest/gtest.h>

#include <backend/Assert.h>
#include <backend/LibraryEntry.h>
#include <backend/OMSException.h>
#include <external/cells/OmComposite.h>
#include <external/cells/OmMemoryRegion.h>
#include <external/cells/OmNumber.h>
#include <external/cells/OmStringCell.h>
#include <output/OmHeading.h>
#include <output/OmOutputTree.h>
#include <output/OmOutputWalker.h>
#include <output/OmPageTitle.h>
#include <output/OmProcedure.h>
#include <output/OmTextBlock.h>
#include <output/OmUtility.h>

#include <memory>
#include <string>
#include <typeinfo>
#include <vector>

extern "C" void* __dso_handle;

namespace {

// A part that the library has never seen.
class Bookmark final : public OmTextBlock {
 public:
  Bookmark(const std::string& label, int* deleted)
      : OmTextBlock(OmStringCell(label), "UTF-8"), deleted_(deleted) {}
  ~Bookmark() override { ++*deleted_; }

 private:
  int* deleted_;
};

class Labels final : public OmOutputWalker {
 public:
  std::vector<std::string> seen;

  void Visit(OmInteractive&) override {}
  void Visit(OmModel&) override {}
  void Visit(OmAnswerTree&) override {}
  void Visit(OmChart&) override {}
  void Visit(OmTextBlock& part) override { seen.push_back("text " + std::string(part.Label())); }
  void Visit(OmHeading& part) override { seen.push_back("heading " + std::string(part.Label())); }
  void Visit(OmPivotTable&) override {}
};

TEST(Boundary, AVisitorOfTheProgramWalksATreeOfTheLibrary) {
  OmOutputTree tree;
  tree.AppendLast(
      std::make_unique<OmProcedure>(OmStringCell("Frequencies"), "en", "UTF-8", "en_GB"), 1);
  tree.AppendLast(std::make_unique<OmTextBlock>(OmStringCell("Log"), "UTF-8"), 2);
  tree.AppendLast(std::make_unique<OmPageTitle>("UTF-8"), 2);
  Labels labels;
  EXPECT_TRUE(labels.Walk(tree));
  EXPECT_EQ(labels.seen, (std::vector<std::string>{"heading Output", "heading Frequencies",
                                                   "text Log", "text "}));
}

TEST(Boundary, TheLibraryDeletesAPartOfTheProgram) {
  int deleted = 0;
  {
    OmOutputTree tree;
    OmOutputTree::Node mark = tree.AppendLast(std::make_unique<Bookmark>("a", &deleted), 1);
    tree.AppendLast(std::make_unique<Bookmark>("b", &deleted), 1);
    tree.Prune(mark);
    EXPECT_EQ(deleted, 1);
  }
  EXPECT_EQ(deleted, 2);
}

TEST(Boundary, AnExceptionOfTheLibraryIsCaughtByItsTypeAndByItsBase) {
  OmOutputTree tree;
  try {
    tree.AppendLast(std::make_unique<OmPageTitle>("UTF-8"), 3);
    FAIL() << "level 3 behind a root was accepted";
  } catch (const OMSException& error) {
    EXPECT_EQ(error.getValue1(), 3);
    EXPECT_STREQ(
        error.what(),
        "OmOutputTree::AppendLast() -- level > last level + 1, value 1 == 3, value 2 == 1");
  }
  EXPECT_THROW(tree.AppendLast(nullptr, 0), std::exception);
}

TEST(Boundary, RunTimeTypesAreTheSameOnBothSides) {
  OmOutputTree tree;
  OmOutputPart* const root = tree.Root().Item();
  EXPECT_NE(dynamic_cast<OmHeading*>(root), nullptr);
  EXPECT_EQ(dynamic_cast<OmTextBlock*>(root), nullptr);
  EXPECT_EQ(typeid(*root), typeid(OmHeading));

  OmComposite composite;
  composite.Append(OmStringCell("n ="));
  composite.Append(OmNumber(344), 1);
  const OmNumber* const number = OmUtility::GetFirstNumber(composite);
  ASSERT_NE(number, nullptr);
  EXPECT_EQ(number->Value(), 344);
}

TEST(Boundary, AHandlerOfTheProgramReceivesAReportOfTheLibrary) {
  static unsigned reported;
  reported = 0;
  const OmAssertHandler former =
      omSetAssertHandler([](const wchar_t*, const wchar_t*, unsigned line) { reported = line; });
  OmOutputTree tree;
  tree.Move(tree.Root(), tree.Root(), tree.Root());
  omSetAssertHandler(former);
  EXPECT_EQ(reported, 505U);
}

TEST(Boundary, BothSidesShareOneDefaultHeap) {
  OmMemoryRegion* const heap = OmMemoryRegion::DefaultHeap();
  const std::size_t before = heap->BlocksInUse();
  {
    const OmHeading heading(OmStringCell("a label of more than eight characters"));
    EXPECT_EQ(heap->BlocksInUse(), before + 1);
    EXPECT_EQ(heading.Footnotes().region(), heap);
  }
  EXPECT_EQ(heap->BlocksInUse(), before);
}

TEST(Boundary, TheLibraryKnowsItsOwnModule) {
  EXPECT_NE(omModuleHandle(), nullptr);
  EXPECT_NE(omModuleHandle(), static_cast<void*>(&__dso_handle));
}

}  // namespace
