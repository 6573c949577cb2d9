// JobFile: several tables for one document, as JSON:
//
//   {"tables": [{"data": "titanic.csv", "rows": ["Class", "Sex"], "columns": ["Survived"],
//                "totals": ["rows"]},
//               {"data": "places.csv", "rows": [["region", "country"]], "weight": "places"}]}
//
// The keys of a table are the options of the command line. A dimension is a name, or a list of
// names from the outermost in; a name stands for itself, whatever characters it has.
//
// A job may come from somebody else. So a data file is named relative to the job's folder and lies
// in it or below it, and where output goes to is not for the job to say.

#ifndef OM_TOOLS_TABULATE_JOBFILE_H_
#define OM_TOOLS_TABULATE_JOBFILE_H_

#include <string>
#include <vector>

#include "tools/tabulate/Rendering.h"
#include "tools/tabulate/Request.h"

namespace om::tabulate {

struct JobTable {
  TableRequest request;
  TableRendering rendering;
};

// The tables of a job whose text is given; `file` is its name, for messages. Throws Failure (usage)
// that names the file and the table with its key, or the line and column where it is no JSON: for
// unknown and repeated keys, values of another kind than the key has, and what TableRequest::check
// refuses.
std::vector<JobTable> parseJob(const std::string& text, const std::string& file);

// Reads the job, and makes the names of data files lead there from where the program runs. Throws
// also Failure (data) when the file cannot be read.
std::vector<JobTable> readJob(const std::string& file);

}  // namespace om::tabulate

#endif  // OM_TOOLS_TABULATE_JOBFILE_H_
