// JsonPlaces: what a cell in JSON says of its place: "row":4,"column":1,"index":[0,1,4,2]
//
// It is put together from the texts of its row and those of its column, which are made once. They
// take turns, as the dimensions of rows and columns may do in an index:
//
//   row      "row":4,"column":          ,4,2
//   column                    1,"index":[0,1   ]
//
// Lifetime: it must not outlive its view. Memory: the texts of each column.

#ifndef OM_RENDER_INTERNAL_JSONPLACES_H_
#define OM_RENDER_INTERNAL_JSONPLACES_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "render/TableView.h"
#include "render/internal/ByteSink.h"

namespace om::render::internal {

class JsonPlaces {
 public:
  explicit JsonPlaces(const TableView& view);

  void goToRow(std::uint64_t row);
  // Of the present row.
  void write(std::uint64_t column, ByteSink& out) const {
    const std::string* ofColumn = columns_.data() + column * turns_;
    for (const std::string& ofRow : row_) {
      out.put(ofRow);
      out.put(*ofColumn++);
    }
  }

 private:
  void enterColumns(std::uint64_t row);

  const TableView& view_;
  std::vector<bool> isOfColumns_;  // for each dimension
  bool isOnBothAxes_ = false;      // a dimension is: what a column says then depends on the row
  std::size_t turns_ = 1;
  std::vector<std::string> row_;      // for each turn
  std::vector<std::string> columns_;  // for each column and turn
  std::vector<int> index_;            // of the last place, to have room for it
};

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_JSONPLACES_H_
