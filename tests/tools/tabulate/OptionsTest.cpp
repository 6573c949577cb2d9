// What the command line asks for.

#include "tools/tabulate/Options.h"

#include <gtest/gtest.h>

#include "tools/tabulate/Failure.h"

namespace om::test {
namespace {

using tabulate::Axis;
using tabulate::Options;
using tabulate::OutputFormat;
using tabulate::parseOptions;
using tabulate::Statistic;
using Arguments = std::vector<std::string>;

Options parse(Arguments more) {
  Arguments arguments{"d.csv", "--rows", "a"};
  arguments.insert(arguments.end(), more.begin(), more.end());
  return parseOptions(arguments);
}

TEST(Options, HaveDefaults) {
  const Options options = parse({});
  EXPECT_EQ("d.csv", options.request.data);
  EXPECT_EQ("UTF-8", options.request.encoding);
  EXPECT_EQ(1U, options.request.dimensions[Axis::ROWS].size());
  EXPECT_TRUE(options.request.dimensions[Axis::COLUMNS].empty());
  EXPECT_EQ((std::vector<Statistic>{Statistic::COUNT}), options.request.effectiveStatistics());
  EXPECT_EQ(Axis::COLUMNS, options.request.statisticsOn);
  EXPECT_FALSE(options.request.totals[Axis::ROWS]);
  EXPECT_EQ(tabulate::Missing::EXCLUDE, options.request.missing);
  EXPECT_EQ(tabulate::Order::DATA, options.request.order);
  EXPECT_EQ(10'000'000, options.request.maxCells);
  EXPECT_TRUE(options.rendering.skipEmpty[Axis::LAYERS]);
  EXPECT_FALSE(options.rendering.namesInCorner);
  EXPECT_EQ(tabulate::TableRendering::kAllLayers, options.rendering.layer);
  EXPECT_EQ(OutputFormat::TEXT, options.format);
  EXPECT_EQ("", options.output);
  EXPECT_EQ("", options.jobFile);
  EXPECT_EQ("", options.answer);
}

TEST(Options, TakeEverythingThatATableHas) {
  const Options options =
      parse({"--columns",  "b/c,d",      "--layers=e",   "--weight",   "w",
             "--measure",  "x,y (o/oo)", "--statistics", "count,mean", "--statistics-on",
             "layers",     "--totals",   "rows,columns", "--missing",  "category",
             "--order",    "typed",      "--skip-empty", "rows",       "--names-in-corner",
             "--layer",    "3",          "--title",      "T",          "--caption",
             "C",          "--note",     "one",          "--note",     "[two,three]",
             "--encoding", "latin1",     "--max-cells",  "77",         "--format",
             "csv",        "-o",         "out.txt",      "--progress", "never"});
  const tabulate::TableRequest& request = options.request;
  EXPECT_EQ((std::vector<tabulate::DimensionRequest>{{"b", "c"}, {"d"}}),
            request.dimensions[Axis::COLUMNS]);
  EXPECT_EQ((std::vector<tabulate::DimensionRequest>{{"e"}}), request.dimensions[Axis::LAYERS]);
  EXPECT_EQ("w", request.weight);
  EXPECT_EQ((Arguments{"x", "y (o/oo)"}), request.measures);
  EXPECT_EQ((std::vector<Statistic>{Statistic::COUNT, Statistic::MEAN}), request.statistics);
  EXPECT_EQ(Axis::LAYERS, request.statisticsOn);
  EXPECT_TRUE(request.totals[Axis::ROWS]);
  EXPECT_TRUE(request.totals[Axis::COLUMNS]);
  EXPECT_FALSE(request.totals[Axis::LAYERS]);
  EXPECT_EQ(tabulate::Missing::CATEGORY, request.missing);
  EXPECT_EQ(tabulate::Order::TYPED, request.order);
  EXPECT_EQ("T", request.title);
  EXPECT_EQ("C", request.caption);
  EXPECT_EQ((Arguments{"one", "[two,three]"}), request.notes);
  EXPECT_EQ("latin1", request.encoding);
  EXPECT_EQ(77, request.maxCells);
  EXPECT_TRUE(options.rendering.skipEmpty[Axis::ROWS]);
  EXPECT_FALSE(options.rendering.skipEmpty[Axis::COLUMNS]);
  EXPECT_TRUE(options.rendering.namesInCorner);
  EXPECT_EQ(2, options.rendering.layer);
  EXPECT_EQ(OutputFormat::CSV, options.format);
  EXPECT_EQ("out.txt", options.output);
  EXPECT_EQ(tabulate::Progress::When::NEVER, options.progress);
}

TEST(Options, NothingIsSkippedWhenToldSo) {
  const Options options = parse({"--skip-empty", "none"});
  for (const Axis axis : tabulate::kAxes) EXPECT_FALSE(options.rendering.skipEmpty[axis]);
}

TEST(Options, MeasuresHaveStatisticsOfTheirOwn) {
  EXPECT_EQ((std::vector<Statistic>{Statistic::N, Statistic::MEAN, Statistic::SD}),
            parse({"--measure", "x"}).request.effectiveStatistics());
}

TEST(Options, FormatFollowsTheNameOfTheFileUnlessItIsGiven) {
  EXPECT_EQ(OutputFormat::HTML, parse({"-o", "p.html"}).format);
  EXPECT_EQ(OutputFormat::CSV, parse({"-o", "p.csv"}).format);
  EXPECT_EQ(OutputFormat::JSON, parse({"-o", "p.json"}).format);
  EXPECT_EQ(OutputFormat::XLSX, parse({"-o", "p.xlsx"}).format);
  EXPECT_EQ(OutputFormat::TEXT, parse({"-o", "p"}).format);
  EXPECT_EQ(OutputFormat::JSON_STAT, parse({"-o", "p.json", "--format", "jsonstat"}).format);
  EXPECT_EQ(OutputFormat::TEXT, parse({"-o", "p.html", "--format", "text"}).format);
}

TEST(Options, TextHasAWidthAndLines) {
  EXPECT_EQ(std::nullopt, parse({}).width);
  EXPECT_FALSE(parse({}).ascii);
  EXPECT_EQ(0, parse({"--width", "0"}).width);
  EXPECT_EQ(40, parse({"--width=40"}).width);
  EXPECT_TRUE(parse({"--ascii"}).ascii);
  const Options job = parseOptions({"run", "j.json", "--width", "72", "--ascii"});
  EXPECT_EQ(72, job.width);
  EXPECT_TRUE(job.ascii);
}

TEST(Options, ADashIsTheStandardInput) {
  EXPECT_EQ("-", parseOptions({"-", "--rows", "a"}).request.data);
  EXPECT_EQ("-", parseOptions({"--rows", "a", "-"}).request.data);
}

TEST(Options, BehindTwoDashesStandsAName) {
  EXPECT_EQ("-x.csv", parseOptions({"--rows", "a", "--", "-x.csv"}).request.data);
  EXPECT_EQ("d.csv", parseOptions({"d.csv", "--rows", "a", "--"}).request.data);
  EXPECT_EQ("--", parseOptions({"--rows", "a", "--", "--"}).request.data);
  EXPECT_EQ("-j.json", parseOptions({"run", "--", "-j.json"}).jobFile);
}

TEST(Options, RunTakesAJob) {
  const Options options = parseOptions({"run", "j.json", "-o", "x.html", "--progress", "always"});
  EXPECT_EQ("j.json", options.jobFile);
  EXPECT_EQ("x.html", options.output);
  EXPECT_EQ(OutputFormat::HTML, options.format);
  EXPECT_EQ(tabulate::Progress::When::ALWAYS, options.progress);
}

TEST(Options, AnswerQuestions) {
  EXPECT_EQ("tabulate 0.1.0\n", parseOptions({"--version"}).answer);
  EXPECT_EQ("tabulate 0.1.0\n", parseOptions({"run", "--version"}).answer);
  EXPECT_NE("", parseOptions({"-h"}).answer);
}

TEST(CommandLine, IsWhatAShellTakes) {
  EXPECT_EQ("tabulate d.csv --rows a/b,c", tabulate::commandLine({"d.csv", "--rows", "a/b,c"}));
  EXPECT_EQ("tabulate 'my data.csv' '' 'it'\\''s' '$x'",
            tabulate::commandLine({"my data.csv", "", "it's", "$x"}));
}

}  // namespace
}  // namespace om::test
