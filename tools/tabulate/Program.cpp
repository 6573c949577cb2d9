#include "tools/tabulate/Program.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <new>
#include <optional>

#include "display/OmDisplayLayerHeading.h"
#include "tools/tabulate/Counting.h"
#include "tools/tabulate/JobFile.h"
#include "tools/tabulate/Options.h"
#include "tools/tabulate/OutputFile.h"
#include "tools/tabulate/Progress.h"
#include "tools/tabulate/Rendering.h"
#include "tools/tabulate/Report.h"
#include "tools/tabulate/TableBuilder.h"

namespace om::tabulate {

namespace {

Counted count(const TableRequest& request, const Surroundings& surroundings, Progress& progress) {
  const auto advanced = [&progress](std::uint64_t bytes) { progress.advance(bytes); };
  if (request.data == "-") {
    progress.begin("standard input", 0);
    return countRecords(surroundings.in, "standard input", request, advanced);
  }
  errno = 0;
  std::ifstream file;
  file.rdbuf()->pubsetbuf(nullptr, 0);  // the reader takes large blocks
  file.open(request.data, std::ios::binary);
  if (!file) {
    throw dataFailure(printable(request.data) + ": cannot be read: " +
                      (errno != 0 ? std::strerror(errno) : "unknown reason"));
  }
  std::error_code none;
  const auto size = std::filesystem::file_size(request.data, none);
  progress.begin(request.data, none ? 0 : size);
  return countRecords(file, request.data, request, advanced);
}

// A layer that is asked for by its number has to be there.
void checkLayer(const OmPivotTable& table, const TableRendering& rendering) {
  if (rendering.layer == TableRendering::kAllLayers) return;
  // Laying a table out changes nothing of it.
  const OmDisplayLayerHeading layers(const_cast<OmPivotTable&>(table),
                                     rendering.skipEmpty[Axis::LAYERS]);
  if (static_cast<unsigned long long>(rendering.layer) >= layers.NLayers()) {
    throw usageFailure("there is no layer " + std::to_string(rendering.layer + 1) +
                       "; the table has " + std::to_string(layers.NLayers()));
  }
}

void flush(std::ostream& out) {
  // A buffer that failed before fails again, and knows why.
  errno = 0;
  const bool flushed = out.rdbuf() != nullptr && out.rdbuf()->pubsync() == 0;
  if (out && flushed) return;
  throw dataFailure(std::string("standard output: cannot be written: ") +
                    (errno != 0 ? std::strerror(errno) : "unknown reason"));
}

// What is read is not replaced by what is written.
void checkOutput(const Options& options, const std::vector<JobTable>& tables) {
  const auto check = [&](const std::string& input) {
    std::error_code error;
    if (std::filesystem::equivalent(options.output, input, error) && !error) {
      throw usageFailure("--output: " + printable(options.output) + " is read by this command");
    }
  };
  check(options.jobFile);
  for (const JobTable& table : tables) check(table.request.data);
}

// What is wrong with the request for a table of a job is said with the table's place.
template <class Work>
void forTable(const std::string& jobFile, std::size_t number, const Work& work) {
  try {
    work();
  } catch (const Failure& failure) {
    if (jobFile.empty() || failure.code() != ExitCode::USAGE) throw;
    throw usageFailure(printable(jobFile) + ": table " + std::to_string(number) + ": " +
                       failure.what());
  }
}

ExitCode tabulate(const std::vector<std::string>& arguments, const Surroundings& surroundings) {
  const Options options = parseOptions(arguments);
  if (!options.answer.empty()) {
    surroundings.out << options.answer;
    flush(surroundings.out);
    return ExitCode::DONE;
  }
  const std::vector<JobTable> tables =
      options.jobFile.empty() ? std::vector<JobTable>{{options.request, options.rendering}}
                              : readJob(options.jobFile);
  checkOutput(options, tables);
  // Before the work, so that it is not done in vain.
  std::optional<OutputFile> file;
  if (!options.output.empty()) file.emplace(options.output);

  Report report;
  RenderingOptions rendering;
  rendering.width =
      static_cast<std::size_t>(options.width.value_or(file ? 0 : surroundings.outWidth));
  rendering.ascii = options.ascii;
  rendering.title = tables.size() == 1 ? titleOf(tables[0].request) : "Output";
  std::string dropped;  // the titles of the tables that were
  Progress progress(surroundings.err, options.progress, surroundings.errIsTerminal);
  for (std::size_t i = 0; i < tables.size(); ++i) {
    std::vector<std::string> log{commandLine(arguments)};
    if (!options.jobFile.empty()) {
      log.push_back("Table " + std::to_string(i + 1) + " of " + std::to_string(tables.size()));
    }
    forTable(options.jobFile, i + 1, [&] {
      const Counted counted = count(tables[i].request, surroundings, progress);
      const OmPivotTable* const table = report.add(tables[i].request, counted, log);
      if (table == nullptr) {
        dropped += (dropped.empty() ? "" : ", ") + inQuotes(titleOf(tables[i].request));
        return;
      }
      checkLayer(*table, tables[i].rendering);
      rendering.special[table] = tables[i].rendering;
    });
  }
  progress.clear();

  if (isWorkbook(options.format)) {
    writeWorkbook(report.document(), rendering, file->path(), options.output);
  } else {
    writeDocument(report.document(), options.format, rendering,
                  file ? file->stream() : surroundings.out);
  }
  if (file) {
    file->commit();
  } else {
    flush(surroundings.out);
  }
  if (dropped.empty()) return ExitCode::DONE;
  surroundings.err << "tabulate: dropped for having more cells than --max-cells: " << dropped
                   << '\n';
  return ExitCode::DROPPED;
}

}  // namespace

ExitCode runProgram(const std::vector<std::string>& arguments, const Surroundings& surroundings) {
  const auto report = [&](const char* text) { surroundings.err << "tabulate: " << text << '\n'; };
  try {
    return tabulate(arguments, surroundings);
  } catch (const Failure& failure) {
    report(failure.what());
    return failure.code();
  } catch (const std::bad_alloc&) {
    report("there is not enough memory");
  } catch (const std::exception& error) {
    report(printable(error.what()).c_str());
  }
  return ExitCode::DATA;
}

}  // namespace om::tabulate
