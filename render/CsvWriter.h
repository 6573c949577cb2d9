// Writes the cells of a document's tables as CSV in long form: one record for each cell that exists
// in the layers that the options ask for, behind a first record with the names of the columns.
//
//   of a table      table,title,<dimension>,...,text,number,notes
//   of a document   table,title,layer1_dimension,layer1,...,row1_dimension,row1,...,
//                   column1_dimension,column1,...,text,number,notes
//
// The dimensions are those on the layers, the rows and the columns, each axis from the outermost
// one in. A table has a column for each of them, by its name; where a name is empty it is as in
// "row1", and where it is taken already it gets a number, as in "text (2)". A document has as many
// as the tables with most of them; a table that has fewer leaves the rest empty. In both,
//
//   table    counts the tables of the document from 1
//   title    is the title that stands over the table
//   <dim.>   is the label path of the category below the dimension's name, hidden or not, with the
//            path separator between labels. Where the dimension has groups, a separator within a
//            label, and a backslash, have a backslash in front of them.
//   text     is what the cell shows
//   number   is the number in the cell, exact in the fewest digits; empty when there is none, or it
//            is not finite
//   notes    are the marks of the cell's footnotes, separated by commas
//
// Fields are quoted as in RFC 4180, when they need it. Text that is not UTF-8 is made so, and
// U+0000, at which many readers stop, is replaced by U+FFFD.
//
// Nothing is kept in memory but the headings of the table that is being written. A stream that
// fails ends the writing at once; the caller looks at its state.
// Errors: std::bad_alloc, and what the stream throws.

#ifndef OM_RENDER_CSVWRITER_H_
#define OM_RENDER_CSVWRITER_H_

#include <iosfwd>
#include <string>

#include "output/OmOutputTree.h"
#include "render/Export.h"
#include "render/TableOptions.h"

namespace om::render {

struct CsvOptions {
  DocumentTableOptions tables = {};
  std::string pathSeparator = "/";
  // Spreadsheet programs take a field for a formula that begins with one of =, +, -, @, a tab or a
  // line end, quoted or not. An apostrophe is put in front of such a field, and also where there
  // are apostrophes in front of it already, so that whoever takes one away from all of these has
  // the texts as they were. Fields of one character and numbers are no formulas.
  bool guardFormulas = true;
  // Ends of records are LF, or CR and LF as RFC 4180 has them, which leaves a CR in the last field
  // for programs that read line by line.
  bool crlf = false;
};

OM_RENDER_API void writeCsv(const OmOutputTree& document, std::ostream& out,
                            const CsvOptions& options = {});
OM_RENDER_API void writeCsv(OmPivotTable& table, std::ostream& out, const CsvOptions& options = {});

}  // namespace om::render

#endif  // OM_RENDER_CSVWRITER_H_
