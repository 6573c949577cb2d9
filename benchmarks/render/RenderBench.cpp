// Builds, lays out and writes dense tables of 84,000 and of 10^6 cells.
//
//   Build      the pivot table from its numbers
//   LayOut     its headings and its view
//   Text ...   laid out and written, to a stream that only counts bytes; XLSX to a file
//
// "cell" is the processor time a cell, "bytes" what a cell comes to in the output, and "memory" by
// how many bytes the process grew at most while one table was written (where the system tells).
// Compare minimums of repetitions:
//
//   render_bench --benchmark_repetitions=9 --benchmark_report_aggregates_only=true

#include <benchmark/benchmark.h>
#if defined(__linux__)
#include <malloc.h>
#endif

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <string>

#include "benchmarks/render/ByteCounter.h"
#include "benchmarks/render/RenderTables.h"
#include "output/OmOutputTree.h"
#include "render/CsvWriter.h"
#include "render/HtmlWriter.h"
#include "render/JsonStatWriter.h"
#include "render/JsonWriter.h"
#include "render/TextWriter.h"
#include "render/XlsxWriter.h"

namespace om::bench {
namespace {

struct Subject {
  std::string name;
  RenderShape shape;
  Content content;
};

const Subject kSubjects[] = {
    {"84000/counts", kSmallShape, Content::COUNTS},
    {"84000/counts_and_means", kSmallShape, Content::COUNTS_AND_MEANS},
    {"1000000/counts", kLargeShape, Content::COUNTS},
    {"1000000/counts_and_means", kLargeShape, Content::COUNTS_AND_MEANS},
};

// ---- Memory

// A line of the process status, in bytes; 0 where there is none.
double statusOf(const std::string& name) {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with(name + ':')) return 1024 * std::stod(line.substr(name.size() + 1));
  }
  return 0;
}

double growthWhile(const std::function<void()>& run) {
#if defined(__GLIBC__)
  malloc_trim(0);  // or else it would be served from what was given back
#endif
  std::ofstream("/proc/self/clear_refs") << 5;  // the peak starts anew
  const double before = statusOf("VmRSS");
  run();
  return std::max(0.0, statusOf("VmHWM") - before);
}

// ---- What is measured

void setCell(benchmark::State& state, const Subject& subject) {
  using benchmark::Counter;
  const auto cells = static_cast<double>(subject.shape.cells());
  state.counters["cell"] = Counter(cells, Counter::kIsIterationInvariantRate | Counter::kInvert);
}

void build(benchmark::State& state, const Subject& subject) {
  for (auto _ : state) {
    auto table = renderTable(subject.shape, subject.content);
    state.PauseTiming();
    table.reset();
    state.ResumeTiming();
  }
  setCell(state, subject);
}

void layOut(benchmark::State& state, const Subject& subject) {
  const auto table = renderTable(subject.shape, subject.content);
  for (auto _ : state) {
    render::LayerWalk walk(*table, {});
    benchmark::DoNotOptimize(walk.next());
  }
  setCell(state, subject);
}

// A document with the table as its only part.
class Document {
 public:
  explicit Document(const Subject& subject) {
    tree_.AppendLast(renderTable(subject.shape, subject.content), 1);
  }
  const OmOutputTree& tree() const { return tree_; }

 private:
  OmOutputTree tree_;
};

using Write = void (*)(const OmOutputTree&, std::ostream&);

void write(benchmark::State& state, const Subject& subject, Write writer) {
  const Document document(subject);
  double bytes = 0;
  const double growth = growthWhile([&] {
    ByteCounter out;
    writer(document.tree(), out);
    bytes = static_cast<double>(out.bytes());
  });
  for (auto _ : state) {
    ByteCounter out;
    writer(document.tree(), out);
    benchmark::DoNotOptimize(out.bytes());
  }
  setCell(state, subject);
  state.counters["bytes"] = bytes / static_cast<double>(subject.shape.cells());
  state.counters["memory"] = growth;
}

void writeFile(benchmark::State& state, const Subject& subject) {
  const Document document(subject);
  const auto path = std::filesystem::temp_directory_path() / "om_render_bench.xlsx";
  for (auto _ : state) render::writeXlsx(document.tree(), path.string());
  setCell(state, subject);
  std::filesystem::remove(path);
}

const std::pair<const char*, Write> kWriters[] = {
    {"Text",
     [](const OmOutputTree& t, std::ostream& o) {
       render::writeText(t, o, {{}, 0});
     }},
    {"Html", [](const OmOutputTree& t, std::ostream& o) { render::writeHtml(t, o); }},
    {"Csv", [](const OmOutputTree& t, std::ostream& o) { render::writeCsv(t, o); }},
    {"Json", [](const OmOutputTree& t, std::ostream& o) { render::writeJson(t, o); }},
    {"JsonStat", [](const OmOutputTree& t, std::ostream& o) { render::writeJsonStat(t, o); }},
};

void add(const std::string& name, const std::function<void(benchmark::State&)>& run) {
  const auto least = [](const std::vector<double>& v) {
    return *std::min_element(v.begin(), v.end());
  };
  benchmark::RegisterBenchmark(name.c_str(), run)
      ->Unit(benchmark::kMillisecond)
      ->ComputeStatistics("min", least);
}

void addAll() {
  for (const Subject& subject : kSubjects) {
    add("Build/" + subject.name, [&](auto& state) { build(state, subject); });
    add("LayOut/" + subject.name, [&](auto& state) { layOut(state, subject); });
    for (const auto& [name, writer] : kWriters) {
      add(std::string(name) + '/' + subject.name,
          [&, writer = writer](auto& state) { write(state, subject, writer); });
    }
    if (render::canWriteXlsx()) {
      add("Xlsx/" + subject.name, [&](auto& state) { writeFile(state, subject); });
    }
  }
}

}  // namespace
}  // namespace om::bench

int main(int argc, char** argv) {
  om::bench::addAll();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
