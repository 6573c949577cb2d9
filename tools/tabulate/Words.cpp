#include "tools/tabulate/Words.h"

#include <array>
#include <charconv>
#include <utility>

#include "tools/tabulate/Failure.h"
#include "tools/tabulate/Statistics.h"

namespace om::tabulate::words {

namespace {

template <class T, std::size_t kCount>
T choose(const std::string& word, const std::array<std::pair<const char*, T>, kCount>& choices) {
  std::string list;
  for (const auto& [name, value] : choices) {
    if (word == name) return value;
    list += (list.empty() ? "" : ", ") + std::string(name);
  }
  throw usageFailure(inQuotes(word) + " is none of " + list);
}

// False unless the word is a whole number from 1. Throws when it is more than the type holds.
template <class T>
bool wholeNumber(const std::string& word, T& number) {
  const char* const end = word.data() + word.size();
  const auto [stop, error] = std::from_chars(word.data(), end, number);
  if (error == std::errc::result_out_of_range && word[0] != '-') {
    throw usageFailure(inQuotes(word) + " is too large");
  }
  return error == std::errc() && stop == end && number >= 1;
}

// Splits at commas, and within them at slashes if told so.
std::vector<std::vector<std::string>> split(const std::string& text, bool atSlashes) {
  std::vector<std::vector<std::string>> result{{""}};
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '\\') {
      if (++i == text.size()) throw usageFailure("there is nothing behind the backslash");
      result.back().back() += text[i];
    } else if (c == ',') {
      result.push_back({""});
    } else if (c == '/' && atSlashes) {
      result.back().emplace_back();
    } else {
      result.back().back() += c;
    }
  }
  for (const auto& part : result) {
    for (const std::string& name : part) {
      if (name.empty()) throw usageFailure("there is an empty name in " + inQuotes(text));
    }
  }
  return result;
}

}  // namespace

Statistic statistic(const std::string& word) {
  Statistic found;
  if (!statisticNamed(word, found)) {
    throw usageFailure(inQuotes(word) + " is none of " + statisticNames());
  }
  return found;
}

Axis axis(const std::string& word) {
  return choose<Axis, 3>(
      word, {{{"rows", Axis::ROWS}, {"columns", Axis::COLUMNS}, {"layers", Axis::LAYERS}}});
}

Missing missing(const std::string& word) {
  return choose<Missing, 2>(word,
                            {{{"exclude", Missing::EXCLUDE}, {"category", Missing::CATEGORY}}});
}

Order order(const std::string& word) {
  return choose<Order, 3>(
      word, {{{"data", Order::DATA}, {"sorted", Order::SORTED}, {"typed", Order::TYPED}}});
}

OutputFormat format(const std::string& word) {
  return choose<OutputFormat, 6>(word, {{{"text", OutputFormat::TEXT},
                                         {"html", OutputFormat::HTML},
                                         {"csv", OutputFormat::CSV},
                                         {"json", OutputFormat::JSON},
                                         {"jsonstat", OutputFormat::JSON_STAT},
                                         {"xlsx", OutputFormat::XLSX}}});
}

Progress::When when(const std::string& word) {
  return choose<Progress::When, 3>(word, {{{"auto", Progress::When::AUTO},
                                           {"always", Progress::When::ALWAYS},
                                           {"never", Progress::When::NEVER}}});
}

PerAxis<bool> axes(const std::vector<std::string>& words) {
  PerAxis<bool> result;
  for (const std::string& word : words) {
    bool& chosen = result[axis(word)];
    if (chosen) throw usageFailure(inQuotes(word) + " is given twice");
    chosen = true;
  }
  return result;
}

PerAxis<bool> axesOrNone(const std::vector<std::string>& words) {
  return words == std::vector<std::string>{"none"} ? PerAxis<bool>() : axes(words);
}

std::int64_t count(const std::string& word) {
  std::int64_t number = 0;
  if (!wholeNumber(word, number))
    throw usageFailure(inQuotes(word) + " is no whole number from 1 up");
  return number;
}

int layer(const std::string& word) {
  if (word == "all") return TableRendering::kAllLayers;
  int number = 0;
  if (!wholeNumber(word, number)) {
    throw usageFailure(inQuotes(word) + " is neither a number from 1 nor all");
  }
  return number - 1;
}

int width(const std::string& word) {
  int number = 0;
  if (word != "0" && !wholeNumber(word, number)) {
    throw usageFailure(inQuotes(word) + " is no whole number from 0 up");
  }
  return number;
}

std::vector<DimensionRequest> dimensions(const std::string& text) { return split(text, true); }

std::vector<std::string> list(const std::string& text) {
  std::vector<std::string> result;
  for (std::vector<std::string>& part : split(text, false)) result.push_back(std::move(part[0]));
  return result;
}

}  // namespace om::tabulate::words
