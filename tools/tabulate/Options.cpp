#include "tools/tabulate/Options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <functional>

#include "tools/tabulate/Failure.h"
#include "tools/tabulate/Words.h"

namespace om::tabulate {

namespace {

constexpr char kVersion[] = "tabulate 0.1.0\n";

constexpr char kFooter[] = R"(
In --rows, --columns and --layers, "a,b" nests b within a as two dimensions; "a/b/c" is one
dimension, in whose tree a and b are groups. A comma, slash or backslash in a name takes a backslash
before it.

"tabulate run JOB.json" makes several tables in one document; see "tabulate run --help".

Exit codes: 0 done, 1 the data is at fault, 2 the command is, 3 done, but a table had more cells
than --max-cells and was dropped.)";

constexpr char kJobFooter[] = R"(
The job is an object with a list "tables". Each table is an object with the options of "tabulate"
as keys; "data" names a file in the folder of the job, or below it.)";

const std::string& name(const std::string& value) {
  if (value.empty()) throw usageFailure("the name is empty");
  return value;
}

// Options of an app, each of which takes a text and may be given once.
class Setup {
 public:
  Setup(CLI::App& app, Options& options) : app_(app), options_(options) {
    app.set_help_flag("-h,--help", "Print this and end");
    app.set_version_flag("--version", std::string(kVersion), "Print the version and end");
    app.get_formatter()->column_width(30);
  }

  // An option with a text, which is used at once; `often`: it may be given more than once.
  void text(const char* name, const char* type, const char* what,
            std::function<void(const std::string&)> use, bool often = false) {
    const std::string longName = std::string(name).substr(std::string(name).find("--"));
    const auto named = [longName, often, given = false,
                        use = std::move(use)](const std::string& value) mutable {
      if (given && !often) throw usageFailure(longName + " is given twice");
      given = true;
      try {
        use(value);
      } catch (const Failure& failure) {
        throw usageFailure(longName + ": " + failure.what());
      }
    };
    app_.add_option_function<std::string>(name, named, what)
        ->type_name(type)
        ->trigger_on_parse()
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
  }

  void common() {
    text("--format", "FORMAT", "text, html, csv, json, jsonstat or xlsx; else by FILE, or text",
         [this](const std::string& value) {
           options_.format = words::format(value);
           formatGiven_ = true;
         });
    text("-o,--output", "FILE", "Write to FILE, whole or not at all",
         [this](const std::string& value) { options_.output = name(value); });
    text("--width", "N", "Columns of text, 0 for as many as it takes (default: the terminal's)",
         [this](const std::string& value) { options_.width = words::width(value); });
    app_.add_flag("--ascii", options_.ascii, "Draw the lines of text in ASCII")
        ->disable_flag_override();
    text("--progress", "WHEN", "auto (on a terminal), always or never",
         [this](const std::string& value) { options_.progress = words::when(value); });
  }

  void finish() {
    if (!formatGiven_) chooseFormat();
    checkFormat(options_.format);
    if (isWorkbook(options_.format) && options_.output.empty()) {
      throw usageFailure("xlsx needs a file to go to; see -o");
    }
  }

 private:
  // By the ending of the file.
  void chooseFormat() {
    const std::string& file = options_.output;
    for (const auto& [ending, format] :
         {std::pair{".html", OutputFormat::HTML}, std::pair{".csv", OutputFormat::CSV},
          std::pair{".json", OutputFormat::JSON}, std::pair{".xlsx", OutputFormat::XLSX}}) {
      if (file.ends_with(ending)) options_.format = format;
    }
  }

  CLI::App& app_;
  Options& options_;
  bool formatGiven_ = false;
};

void setUpTable(Setup& setup, CLI::App& app, Options& options) {
  TableRequest& request = options.request;
  TableRendering& rendering = options.rendering;
  const auto axis = [&](const char* name, const char* what, Axis which) {
    setup.text(name, "DIMS", what, [&request, which](const std::string& value) {
      request.dimensions[which] = words::dimensions(value);
    });
  };
  app.add_option("DATA", request.data, "A CSV file with a header; - for the standard input")
      ->type_name("");
  axis("--rows", "Dimensions down the rows, the outermost first", Axis::ROWS);
  axis("--columns", "Dimensions across the columns", Axis::COLUMNS);
  axis("--layers", "Dimensions from layer to layer", Axis::LAYERS);
  setup.text("--weight", "NAME", "A column of weights: a record counts as often as it says",
             [&](const std::string& value) { request.weight = name(value); });
  setup.text("--measure", "NAMES", "Columns of numbers to take statistics of",
             [&](const std::string& value) { request.measures = words::list(value); });
  setup.text("--statistics", "LIST",
             "Of count, row%, column%, total%, n, sum, mean, sd, min, max, median",
             [&](const std::string& value) {
               for (const std::string& word : words::list(value)) {
                 request.statistics.push_back(words::statistic(word));
               }
             });
  setup.text("--statistics-on", "AXIS", "Where statistics stand: rows, columns (default), layers",
             [&](const std::string& value) { request.statisticsOn = words::axis(value); });
  setup.text("--totals", "AXES", "Add totals to the dimensions of rows, columns, layers",
             [&](const std::string& value) { request.totals = words::axes(words::list(value)); });
  setup.text("--missing", "WAY", "Empty fields: exclude (default) the record, or a category",
             [&](const std::string& value) { request.missing = words::missing(value); });
  setup.text("--order", "ORDER", "Of categories: data (default), sorted, typed (numbers by value)",
             [&](const std::string& value) { request.order = words::order(value); });
  setup.text("--skip-empty", "AXES",
             "Leave out the empty rows, columns, layers (default: all), none",
             [&](const std::string& value) {
               rendering.skipEmpty = words::axesOrNone(words::list(value));
             });
  app.add_flag("--names-in-corner", rendering.namesInCorner,
               "Put the names of row dimensions in the corner")
      ->disable_flag_override();
  setup.text("--layer", "N", "The layer to show, from 1, or all (default)",
             [&](const std::string& value) { rendering.layer = words::layer(value); });
  setup.text("--title", "TEXT", "The table's title",
             [&](const std::string& value) { request.title = value; });
  setup.text("--caption", "TEXT", "A caption below the table",
             [&](const std::string& value) { request.caption = value; });
  setup.text(
      "--note", "TEXT", "A footnote at the title; may be given several times",
      [&](const std::string& value) { request.notes.push_back(value); }, true);
  setup.text("--encoding", "NAME", "Of the file, as iconv knows it (default UTF-8)",
             [&](const std::string& value) { request.encoding = value; });
  setup.text("--max-cells", "N", "Drop a table of more cells (default 10000000)",
             [&](const std::string& value) { request.maxCells = words::count(value); });
}

Failure noJob() { return usageFailure("there is no job file; see tabulate run --help"); }

// In words for who calls this program: those of the parser leave open what to do.
Failure mismatch(const std::string& parserText) {
  const std::size_t colon = parserText.find(':');
  if (colon != parserText.npos) {
    return usageFailure(printable(parserText.substr(0, colon)) + " needs a value");
  }
  return usageFailure("--" + printable(parserText.substr(0, parserText.find(' '))) +
                      " takes no value");
}

void parse(CLI::App& app, std::vector<std::string> arguments, Options& options) {
  const std::string seeHelp = "; see " + app.get_name() + " --help";
  app.allow_extras();  // to name them in our words, too
  std::reverse(arguments.begin(), arguments.end());
  try {
    app.parse(arguments);
    bool onlyNames = false;  // behind "--", which is among what remains
    for (const std::string& extra : app.remaining()) {
      if (extra == "--" && !onlyNames) {
        onlyNames = true;
        continue;
      }
      const bool option = !onlyNames && extra.size() > 1 && extra.front() == '-';
      throw usageFailure((option ? "there is no option " : "there is one argument too many: ") +
                         inQuotes(extra) + seeHelp);
    }
  } catch (const CLI::ArgumentMismatch& error) {
    throw mismatch(error.what());
  } catch (const CLI::RequiredError&) {
    throw noJob();
  } catch (const CLI::CallForHelp&) {
    options.answer = app.help();
  } catch (const CLI::CallForVersion& version) {
    options.answer = kVersion;
  } catch (const CLI::ParseError& error) {
    throw usageFailure(printable(error.what()));
  }
}

}  // namespace

Options parseOptions(const std::vector<std::string>& arguments) {
  Options options;
  if (!arguments.empty() && arguments.front() == "run") {
    CLI::App app("Makes the tables of a job, in one document.", "tabulate run");
    Setup setup(app, options);
    app.add_option("JOB", options.jobFile, "A job in JSON")->type_name("")->required();
    setup.common();
    app.footer(kJobFooter);
    parse(app, {arguments.begin() + 1, arguments.end()}, options);
    if (!options.answer.empty()) return options;
    setup.finish();
    if (options.jobFile.empty()) throw noJob();
    return options;
  }
  CLI::App app("Tabulates a CSV file.", "tabulate");
  Setup setup(app, options);
  setUpTable(setup, app, options);
  setup.common();
  app.footer(kFooter);
  parse(app, arguments, options);
  if (!options.answer.empty()) return options;
  setup.finish();
  if (options.request.data.empty())
    throw usageFailure("there is no data file; see tabulate --help");
  options.request.check();
  return options;
}

std::string commandLine(const std::vector<std::string>& arguments) {
  std::string line = "tabulate";
  for (const std::string& argument : arguments) {
    const bool plain =
        !argument.empty() && std::all_of(argument.begin(), argument.end(), [](char c) {
          return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                 std::string_view("_-+=.,:/@%").find(c) != std::string_view::npos;
        });
    line += ' ';
    if (plain) {
      line += argument;
      continue;
    }
    line += '\'';
    for (const char c : argument) line += c == '\'' ? std::string("'\\''") : std::string(1, c);
    line += '\'';
  }
  return line;
}

}  // namespace om::tabulate
