// The words that options and job files share, and what they stand for.

#ifndef OM_TOOLS_TABULATE_WORDS_H_
#define OM_TOOLS_TABULATE_WORDS_H_

#include <cstdint>
#include <string>
#include <vector>

#include "tools/tabulate/Progress.h"
#include "tools/tabulate/Rendering.h"
#include "tools/tabulate/Request.h"

namespace om::tabulate::words {

// Each throws Failure (usage) that lists the words when there is no such word.
Statistic statistic(const std::string& word);
Axis axis(const std::string& word);
Missing missing(const std::string& word);
Order order(const std::string& word);
OutputFormat format(const std::string& word);
Progress::When when(const std::string& word);

// Sets the axes named, and clears the others. Throws for an axis that is named twice.
PerAxis<bool> axes(const std::vector<std::string>& words);
// The same, and for the one word "none" no axis.
PerAxis<bool> axesOrNone(const std::vector<std::string>& words);

// A whole number from 1.
std::int64_t count(const std::string& word);

// The number of a layer from 1, or "all".
int layer(const std::string& word);
// A number of columns of text, or 0.
int width(const std::string& word);

// "a/b/c,d" as {{a, b, c}, {d}}: the dimensions of an axis. In a name, a comma, a slash and a
// backslash have a backslash before them. Throws for an empty name and a backslash at the end.
std::vector<DimensionRequest> dimensions(const std::string& text);

// "a,b" as {a, b}, where a slash is a character like others.
std::vector<std::string> list(const std::string& text);

}  // namespace om::tabulate::words

#endif  // OM_TOOLS_TABULATE_WORDS_H_
