// DocumentWalk: goes through an output tree and tells a writer, part by part, what there is to
// show. It brings the kinds of parts down to five: headings, which have parts below them, tables,
// texts, images and other objects, of which a name and a size are shown.
//
// Parts that are not visible are left out, with what is below them; so is a table that is not to be
// shown, but not what is below it.
//
// Labels and lines come in UTF-8: what is not UTF-8 already is read in the code page of its part;
// what is not of that either is replaced by U+FFFD.
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

  // A heading or procedure.
  struct Heading {
    Kind kind;
    std::string label;
    std::string codePage;  // of its footnotes, too; empty when it has none
    const OmHeading& part;
    const OmProcedure* procedure;  // the same part; null in a plain heading
  };

  // A text block, a log or a page title.
  struct Text {
    Kind kind;
    std::string label;
    const OmTextBlock& part;
  };
  // Its lines, without line ends.
  static std::vector<std::string> linesOf(const Text& text);

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
  static std::string sizeOf(const Object& object);  // as in "312 bytes" or "4.5 MiB"

  // These tell of the parts, and do nothing unless they are overridden. `depth` is 1 below the
  // root. A heading has an end, behind what is below it.
  virtual void beginHeading(const Heading& heading, int depth);
  virtual void endHeading(int depth);
  virtual void table(OmPivotTable& table, int depth);
  virtual void text(const Text& text, int depth);
  virtual void object(const Object& object, int depth);

  // Asked before each part: true ends the walk, as when there is nobody left to write for. The ends
  // of headings are not told then. False unless it is overridden.
  virtual bool isDone() const;

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
  void tellText(Kind kind, const OmTextBlock& part);
  void tellObject(Kind kind, const OmOutputPart& part, const std::string& codePage,
                  std::uint64_t bytes, std::string_view image = {});

  int depth_ = 0;
};

}  // namespace om::render

#endif  // OM_RENDER_DOCUMENTWALK_H_
