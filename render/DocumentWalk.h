// DocumentWalk: goes through an output tree and tells a writer, part by part, what there is to
// show. It brings the kinds of parts down to five: headings, which have parts below them, tables,
// texts, images and other objects, of which a name and a size are shown.
//
// Parts that are not visible are left out, with what is below them.
//
// Ownership, lifetime, threads: as OmOutputWalker. Errors: what the writer throws is passed on.

#ifndef OM_RENDER_DOCUMENTWALK_H_
#define OM_RENDER_DOCUMENTWALK_H_

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "output/OmOutputWalker.h"
#include "render/Export.h"

namespace om::render {

class OM_RENDER_API DocumentWalk : private OmOutputWalker {
 public:
  ~DocumentWalk() override;

  // Walks the whole document. The root is not told of: it is the document itself.
  void walk(const OmOutputTree& document);

 protected:
  // What a part is called in a document, in front of its label.
  enum class Kind {
    HEADING,
    PROCEDURE,
    TABLE,
    LOG,
    TEXT,
    PAGE_TITLE,
    CHART,
    MODEL,
    INTERACTIVE,
    ANSWER_TREE,
  };
  static const char* nameOf(Kind kind);  // as in "Answer tree"

  // A part that is shown by its name and size.
  struct Object {
    Kind kind;
    std::string label;
    std::uint64_t bytes;  // of all that it holds
    // The image of a chart, empty where there is none, and its type by its first bytes, as in
    // "image/png"; empty when the type is not known.
    std::string_view image;
    std::string_view imageType;
  };

  // A heading or procedure, and the end of what is below it. `depth` is 1 below the root.
  virtual void beginHeading(Kind kind, OmHeading& heading, int depth) = 0;
  virtual void endHeading(int depth) = 0;
  virtual void table(OmPivotTable& table, int depth) = 0;
  // A text block, a log or a page title.
  virtual void text(Kind kind, const OmTextBlock& block, int depth) = 0;
  // Its lines in UTF-8, without line ends. What is not UTF-8 already is read in the block's code
  // page; what is not of that either is replaced by U+FFFD.
  static std::vector<std::string> linesOf(const OmTextBlock& block);
  virtual void object(const Object& object, int depth) = 0;

 private:
  void Enter(OmOutputPart* part, int level) override;
  void Leave(OmOutputPart* part, int level) override;
  void Visit(OmInteractive& part) override;
  void Visit(OmModel& part) override;
  void Visit(OmAnswerTree& part) override;
  void Visit(OmChart& part) override;
  void Visit(OmPageTitle& part) override;
  void Visit(OmTextBlock& part) override;
  void Visit(OmHeading& part) override;
  void Visit(OmProcedure& part) override;
  void Visit(OmPivotTable& part) override;
  void tell(Kind kind, const OmOutputPart& part, const std::string& codePage, std::uint64_t bytes,
            std::string_view image = {});

  int depth_ = 0;
};

}  // namespace om::render

#endif  // OM_RENDER_DOCUMENTWALK_H_
