// Workbook: a workbook in the making, over the library that writes it. Each call that can fail is
// checked.
//
// Ownership: the workbook owns its sheets and formats. Nothing is written before close(); without
// it the destructor drops everything.
// Errors: std::runtime_error.

#ifndef OM_RENDER_INTERNAL_WORKBOOK_H_
#define OM_RENDER_INTERNAL_WORKBOOK_H_

#include <xlsxwriter.h>

#include <cstdint>
#include <map>
#include <string>
#include <utility>

namespace om::render::internal {

class Workbook {
 public:
  enum class Style { TITLE, LAYER, CORNER, COLUMN_LABEL, ROW_LABEL, TEXT, NUMBER, MARK };

  // With `constantMemory`, the rows of a sheet are written from the top down.
  Workbook(std::string path, bool constantMemory);
  ~Workbook();
  Workbook(const Workbook&) = delete;
  Workbook& operator=(const Workbook&) = delete;

  lxw_worksheet* addSheet(const std::string& name);

  // Made at the first call; for numbers, one for each code.
  lxw_format* format(Style style, const std::string& code = {});
  // Whether there is room for one more number format; programs take about 200.
  bool hasFormat(const std::string& code) const;

  // Text with marks behind it, which are raised unless they are long. REQUIRES: both are as
  // xlsxText makes them.
  void writeText(lxw_worksheet* sheet, std::uint64_t row, std::uint64_t column,
                 const std::string& text, const std::string& marks, Style style);
  void writeNumber(lxw_worksheet* sheet, std::uint64_t row, std::uint64_t column, double number,
                   const std::string& code);
  // Makes cells one that shows what the first of them holds. Nothing for a single cell.
  void merge(lxw_worksheet* sheet, std::uint64_t row, std::uint64_t rowEnd, std::uint64_t column,
             std::uint64_t columnEnd);
  void setWidth(lxw_worksheet* sheet, std::uint64_t column, double characters);

  void close();

 private:
  void check(lxw_error error) const;
  [[noreturn]] void fail(const std::string& reason) const;

  const std::string path_;
  lxw_workbook* workbook_;
  std::map<std::pair<Style, std::string>, lxw_format*> formats_;
};

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_WORKBOOK_H_
