#include "render/internal/Workbook.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <stdexcept>

namespace om::render::internal {

namespace {

constexpr std::size_t kMostFormats = 190;
// The library counts the markup of a text with raised marks, and of what it escapes, as characters.
constexpr std::size_t kMostRaised = 4000;

lxw_row_t rowOf(std::uint64_t row) { return static_cast<lxw_row_t>(row); }
lxw_col_t columnOf(std::uint64_t column) { return static_cast<lxw_col_t>(column); }

}  // namespace

Workbook::Workbook(std::string path, bool constantMemory)
    : path_(std::move(path)), workbook_(nullptr) {
  // The library opens the file only when it is done, and then writes of a failure to standard
  // error.
  errno = 0;
  if (!std::ofstream(path_, std::ios::binary)) fail(std::strerror(errno));
  lxw_workbook_options options = {};
  options.constant_memory = constantMemory ? LXW_TRUE : LXW_FALSE;
  options.use_zip64 = LXW_TRUE;
  workbook_ = workbook_new_opt(path_.c_str(), &options);
  if (workbook_ == nullptr) fail("out of memory");
}

Workbook::~Workbook() {
  if (workbook_ != nullptr) lxw_workbook_free(workbook_);
}

void Workbook::fail(const std::string& reason) const {
  throw std::runtime_error("cannot be written: " + reason);
}

void Workbook::check(lxw_error error) const {
  if (error != LXW_NO_ERROR) fail(lxw_strerror(error));
}

lxw_worksheet* Workbook::addSheet(const std::string& name) {
  lxw_worksheet* const sheet = workbook_add_worksheet(workbook_, name.c_str());
  if (sheet == nullptr) fail("no sheet \"" + name + "\" can be added");
  return sheet;
}

bool Workbook::hasFormat(const std::string& code) const {
  return formats_.size() < kMostFormats || formats_.contains({Style::NUMBER, code});
}

lxw_format* Workbook::format(Style style, const std::string& code) {
  lxw_format*& format = formats_[{style, code}];
  if (format != nullptr) return format;
  format = workbook_add_format(workbook_);
  if (format == nullptr) fail("out of memory");
  switch (style) {
    case Style::TITLE:
      format_set_bold(format);
      format_set_font_size(format, 14);
      break;
    case Style::LAYER:
      format_set_italic(format);
      break;
    case Style::CORNER:
      format_set_bold(format);
      format_set_align(format, LXW_ALIGN_VERTICAL_BOTTOM);
      format_set_text_wrap(format);
      break;
    case Style::COLUMN_LABEL:
      format_set_bold(format);
      format_set_align(format, LXW_ALIGN_CENTER);
      format_set_align(format, LXW_ALIGN_VERTICAL_BOTTOM);
      format_set_text_wrap(format);
      break;
    case Style::ROW_LABEL:
      format_set_align(format, LXW_ALIGN_VERTICAL_TOP);
      format_set_text_wrap(format);
      break;
    case Style::TEXT:
      break;
    case Style::NUMBER:
      format_set_num_format(format, code.c_str());
      break;
    case Style::MARK:
      format_set_font_script(format, LXW_FONT_SUPERSCRIPT);
      break;
  }
  return format;
}

void Workbook::writeText(lxw_worksheet* sheet, std::uint64_t row, std::uint64_t column,
                         const std::string& text, const std::string& marks, Style style) {
  lxw_format* const cell = format(style);
  const lxw_row_t r = rowOf(row);
  const lxw_col_t c = columnOf(column);
  if (marks.empty() || text.empty() || text.size() + marks.size() > kMostRaised) {
    return check(worksheet_write_string(sheet, r, c, (text + marks).c_str(), cell));
  }
  std::string first = text;
  std::string second = marks;
  const bool isMarked = style == Style::TEXT || style == Style::ROW_LABEL;
  lxw_rich_string_tuple textPart = {isMarked ? nullptr : cell, first.data()};
  lxw_rich_string_tuple marksPart = {format(Style::MARK), second.data()};
  std::array<lxw_rich_string_tuple*, 3> parts = {&textPart, &marksPart, nullptr};
  check(worksheet_write_rich_string(sheet, r, c, parts.data(), cell));
}

void Workbook::writeNumber(lxw_worksheet* sheet, std::uint64_t row, std::uint64_t column,
                           double number, const std::string& code) {
  check(worksheet_write_number(sheet, rowOf(row), columnOf(column), number,
                               format(Style::NUMBER, code)));
}

// Without text and format the library only notes which cells are merged, and writes none of them,
// so that it can be told when the first row of several is written.
void Workbook::merge(lxw_worksheet* sheet, std::uint64_t row, std::uint64_t rowEnd,
                     std::uint64_t column, std::uint64_t columnEnd) {
  if (rowEnd - row <= 1 && columnEnd - column <= 1) return;
  check(worksheet_merge_range(sheet, rowOf(row), columnOf(column), rowOf(rowEnd - 1),
                              columnOf(columnEnd - 1), nullptr, nullptr));
}

void Workbook::setWidth(lxw_worksheet* sheet, std::uint64_t column, double characters) {
  check(worksheet_set_column(sheet, columnOf(column), columnOf(column), characters, nullptr));
}

void Workbook::close() { check(workbook_close(std::exchange(workbook_, nullptr))); }

}  // namespace om::render::internal
