// How the tables of a document are shown, for all writers.

#ifndef OM_RENDER_TABLEOPTIONS_H_
#define OM_RENDER_TABLEOPTIONS_H_

#include <map>
#include <string_view>

#include "render/Export.h"
#include "render/FootnoteMarks.h"
#include "render/TableView.h"

namespace om::render {

enum class Layers {
  ALL,     // one after the other
  STORED,  // the one that the table remembers, or the first one when that is not shown
  ONE,     // the one with the number `layer`, if there is one
};

struct TableOptions {
  ViewOptions view = {};
  bool skipEmptyLayers = true;
  Layers layers = Layers::ALL;
  int layer = 0;  // counts from 0 among the layers that are not skipped
  Marks marks = Marks::LETTERS;
};

// The same for all tables of a document that are not among the special ones.
struct DocumentTableOptions : TableOptions {
  DocumentTableOptions() = default;
  explicit DocumentTableOptions(const TableOptions& all) : TableOptions(all) {}

  std::map<const OmPivotTable*, TableOptions> special;

  const TableOptions& of(const OmPivotTable& table) const {
    const auto own = special.find(&table);
    return own != special.end() ? own->second : *this;
  }
};

// The layers of a table that the options ask for, one after the other.
//
//   for (LayerWalk walk(table, options); walk.next();) draw(walk.view(), walk.marks());
//
// Ownership, lifetime: the walk owns the present view and its marks, until the next one. The table
//   must outlive the walk and not change. Threads: one at a time. Errors: those of TableView.
class OM_RENDER_API LayerWalk {
 public:
  LayerWalk(OmPivotTable& table, const TableOptions& options);
  ~LayerWalk();
  LayerWalk(const LayerWalk&) = delete;
  LayerWalk& operator=(const LayerWalk&) = delete;

  // The number of layers of the walk. 0 when all cells are empty and empty layers are skipped.
  std::uint64_t count() const { return count_; }

  // The layers that are not skipped, walked or not, for looking at them before the first next().
  OmDisplayLayerHeading& layers() { return layers_; }

  // Goes to the first layer, then to the next one; false when there is none.
  bool next();

  // What is said in the place of a body, as in "(no cells)"; empty when the present view has one.
  // REQUIRES: next() gave true, or count() is 0.
  std::string_view noBody() const;

  // REQUIRES: next() gave true.
  const TableView& view() const { return *view_; }
  const FootnoteMarks& marks() const { return *marks_; }

 private:
  const TableOptions options_;
  OmDisplayLayerHeading layers_;
  std::uint64_t count_;
  std::uint64_t done_ = 0;
  int first_ = 0;
  std::unique_ptr<TableView> view_;
  std::unique_ptr<FootnoteMarks> marks_;
};

}  // namespace om::render

#endif  // OM_RENDER_TABLEOPTIONS_H_
