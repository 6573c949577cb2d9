#include "tools/tabulate/JobFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <nlohmann/json.hpp>
#include <set>

#include "tools/tabulate/Failure.h"
#include "tools/tabulate/Utf8.h"
#include "tools/tabulate/Words.h"

namespace om::tabulate {

namespace {

using Json = nlohmann::json;

constexpr int kDeepest = 8;  // more than any job needs

std::string text(const Json& value) {
  if (!value.is_string()) throw usageFailure("a text is needed");
  return value.get<std::string>();
}

std::vector<std::string> texts(const Json& value) {
  if (!value.is_array()) throw usageFailure("a list of texts is needed");
  std::vector<std::string> result;
  for (const Json& element : value) result.push_back(text(element));
  return result;
}

std::string name(const Json& value) {
  std::string result = text(value);
  if (result.empty()) throw usageFailure("a name is empty");
  return result;
}

std::vector<DimensionRequest> dimensions(const Json& value) {
  if (!value.is_array()) throw usageFailure("a list of dimensions is needed");
  std::vector<DimensionRequest> result;
  for (const Json& element : value) {
    DimensionRequest& dimension = result.emplace_back();
    if (element.is_array()) {
      for (const Json& level : element) dimension.push_back(name(level));
    } else {
      dimension.push_back(name(element));
    }
    if (dimension.empty()) throw usageFailure("a dimension has no names");
  }
  return result;
}

// A file in the job's folder or below it. "-" is the standard input.
std::string dataName(const Json& value) {
  std::string file = name(value);
  const std::filesystem::path path(file);
  const bool climbs = std::find(path.begin(), path.end(), "..") != path.end();
  if (path.is_absolute() || path.has_root_name() || climbs || file.find('\0') != file.npos) {
    throw usageFailure(inQuotes(file) + " does not lie in the folder of the job or below it");
  }
  return file;
}

std::int64_t limit(const Json& value) {
  if (!value.is_number_integer()) throw usageFailure("a whole number is needed");
  return words::count(value.dump());
}

int layer(const Json& value) {
  if (value.is_number_integer()) return words::layer(value.dump());
  if (!value.is_string()) throw usageFailure("a whole number or \"all\" is needed");
  return words::layer(text(value));
}

struct Key {
  const char* name;
  void (*use)(JobTable&, const Json&);
};

constexpr Key kKeys[] = {
    {"data", [](JobTable& t, const Json& v) { t.request.data = dataName(v); }},
    {"encoding", [](JobTable& t, const Json& v) { t.request.encoding = text(v); }},
    {"rows", [](JobTable& t, const Json& v) { t.request.dimensions[Axis::ROWS] = dimensions(v); }},
    {"columns",
     [](JobTable& t, const Json& v) { t.request.dimensions[Axis::COLUMNS] = dimensions(v); }},
    {"layers",
     [](JobTable& t, const Json& v) { t.request.dimensions[Axis::LAYERS] = dimensions(v); }},
    {"weight", [](JobTable& t, const Json& v) { t.request.weight = name(v); }},
    {"measure", [](JobTable& t, const Json& v) { t.request.measures = texts(v); }},
    {"statistics",
     [](JobTable& t, const Json& v) {
       for (const std::string& word : texts(v)) {
         t.request.statistics.push_back(words::statistic(word));
       }
     }},
    {"statistics-on",
     [](JobTable& t, const Json& v) { t.request.statisticsOn = words::axis(text(v)); }},
    {"totals", [](JobTable& t, const Json& v) { t.request.totals = words::axes(texts(v)); }},
    {"missing", [](JobTable& t, const Json& v) { t.request.missing = words::missing(text(v)); }},
    {"order", [](JobTable& t, const Json& v) { t.request.order = words::order(text(v)); }},
    {"title", [](JobTable& t, const Json& v) { t.request.title = text(v); }},
    {"caption", [](JobTable& t, const Json& v) { t.request.caption = text(v); }},
    {"notes", [](JobTable& t, const Json& v) { t.request.notes = texts(v); }},
    {"max-cells", [](JobTable& t, const Json& v) { t.request.maxCells = limit(v); }},
    {"skip-empty",
     [](JobTable& t, const Json& v) { t.rendering.skipEmpty = words::axesOrNone(texts(v)); }},
    {"names-in-corner",
     [](JobTable& t, const Json& v) {
       if (!v.is_boolean()) throw usageFailure("true or false is needed");
       t.rendering.namesInCorner = v.get<bool>();
     }},
    {"layer", [](JobTable& t, const Json& v) { t.rendering.layer = layer(v); }}};

const Key* findKey(const std::string& name) {
  for (const Key& key : kKeys) {
    if (name == key.name) return &key;
  }
  return nullptr;
}

// Refuses what the parser would let pass: a key that an object has twice, of which it keeps one,
// and nesting beyond what a job has.
class Guard {
 public:
  bool operator()(int depth, Json::parse_event_t event, Json& value) {
    if (depth > kDeepest) throw usageFailure("it is nested too deeply");
    if (event == Json::parse_event_t::object_start) seen_.emplace_back();
    if (event == Json::parse_event_t::object_end) seen_.pop_back();
    if (event == Json::parse_event_t::key) {
      const std::string key = value.get<std::string>();
      if (!seen_.back().insert(key).second) {
        throw usageFailure("the key " + inQuotes(key) + " is given twice");
      }
    }
    return true;
  }

 private:
  std::vector<std::set<std::string>> seen_;
};

Json parseJson(const std::string& source) {
  Guard guard;
  try {
    return Json::parse(source, std::ref(guard));
  } catch (const Json::parse_error& error) {
    const std::string_view before =
        std::string_view(source).substr(0, error.byte == 0 ? 0 : error.byte - 1);
    const auto line = std::count(before.begin(), before.end(), '\n') + 1;
    const std::size_t lineEnd = before.rfind('\n');
    const std::size_t column = before.size() - (lineEnd == before.npos ? 0 : lineEnd + 1) + 1;
    throw usageFailure("it is no JSON at line " + std::to_string(line) + ", byte " +
                       std::to_string(column));
  } catch (const Json::out_of_range&) {
    throw usageFailure("it holds a number that is out of range");
  }
}

JobTable parseTable(const Json& value) {
  if (!value.is_object()) throw usageFailure("an object is needed");
  JobTable table;
  for (const auto& [key, content] : value.items()) {
    const Key* const known = findKey(key);
    if (known == nullptr) throw usageFailure("there is no key " + inQuotes(key));
    try {
      known->use(table, content);
    } catch (const Failure& failure) {
      throw usageFailure(inQuotes(key) + ": " + failure.what());
    }
  }
  if (table.request.data.empty()) throw usageFailure("\"data\" is missing");
  table.request.check();
  return table;
}

}  // namespace

std::vector<JobTable> parseJob(const std::string& source, const std::string& file) {
  std::vector<JobTable> tables;
  std::string where = printable(file);
  try {
    const Json job = parseJson(source);
    if (!job.is_object() || !job.contains("tables") || !job["tables"].is_array()) {
      throw usageFailure("an object with a list \"tables\" is needed");
    }
    for (const auto& [key, value] : job.items()) {
      if (key != "tables") throw usageFailure("there is no key " + inQuotes(key));
    }
    for (const Json& value : job["tables"]) {
      where = printable(file) + ": table " + std::to_string(tables.size() + 1);
      tables.push_back(parseTable(value));
    }
    if (tables.empty()) throw usageFailure("the list \"tables\" is empty");
  } catch (const Failure& failure) {
    throw Failure(failure.code(), where + ": " + failure.what());
  }
  const auto readsInput = [](const JobTable& table) { return table.request.data == "-"; };
  if (std::count_if(tables.begin(), tables.end(), readsInput) > 1) {
    throw usageFailure(printable(file) + ": the standard input can be read once only");
  }
  return tables;
}

std::vector<JobTable> readJob(const std::string& file) {
  errno = 0;
  std::ifstream in(file, std::ios::binary);
  std::string source;
  // Reading from the stream's buffer would throw for a folder.
  std::array<char, 16384> block;
  while (in.read(block.data(), block.size()) || in.gcount() != 0) {
    source.append(block.data(), static_cast<std::size_t>(in.gcount()));
  }
  if (!in.is_open() || in.bad()) {
    throw dataFailure(printable(file) + ": cannot be read: " +
                      (errno != 0 ? std::strerror(errno) : "unknown reason"));
  }
  std::vector<JobTable> tables = parseJob(source, file);
  const std::filesystem::path folder = std::filesystem::path(file).parent_path();
  for (JobTable& table : tables) {
    if (table.request.data != "-") table.request.data = (folder / table.request.data).string();
  }
  return tables;
}

}  // namespace om::tabulate
