// Tables to validate, and what is expected of the findings.

#ifndef OM_TESTS_PIVOT_VALIDATED_H_
#define OM_TESTS_PIVOT_VALIDATED_H_

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "tests/pivot/TableText.h"

namespace om::test {

constexpr long long kMinus1 = -1;

using Messages = std::multiset<std::string>;

// Two dimensions of two categories, on rows and columns.
struct SoundTable : OmPivotTable {
  SoundTable() : OmPivotTable(OmStringCell("title"), OmStringCell("template"), false) {
    addDimension(*this, "A", {"a0", "a1"});
    addDimension(*this, "B", {"b0", "b1"});
    Rows().push_back(0);
    Columns().push_back(1);
  }
};

// One dimension without categories, on the rows.
struct OneDimension : OmPivotTable {
  OneDimension() : OmPivotTable(OmStringCell("title"), OmStringCell("template"), false) {
    AddDimension(OmStringCell("A"));
    Rows().push_back(0);
  }
  OmDimension::Node add(const OmDimension::Node& parent, unsigned long long subscript) {
    return Dimension(0).AddNewChild(parent, OmStringCell("c"), subscript, false);
  }
  OmDimension::Node addGroup(const OmDimension::Node& parent) {
    return Dimension(0).AddNewChild(parent, OmStringCell("g"), ~0ULL, true);
  }
  OmDimension::Node root() { return Dimension(0).Root(); }
};

inline void expectOnly(const OmPivotTable& table, OmTableFinding::Kind kind,
                       const std::string& place, long long value, const std::string& message) {
  const std::vector<OmTableFinding> findings = table.validate();
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings[0].kind, kind);
  EXPECT_EQ(findings[0].place, place);
  EXPECT_EQ(findings[0].value, value);
  EXPECT_EQ(findings[0].Message(), message);
}

inline Messages messagesOf(const OmPivotTable& table) {
  Messages messages;
  for (const OmTableFinding& finding : table.validate()) messages.insert(finding.Message());
  return messages;
}

// A text with one footnote.
class NotedText : public OmStringCell {
 public:
  explicit NotedText(short position) : OmStringCell("text") { Footnotes().push_back(position); }
};

}  // namespace om::test

#endif  // OM_TESTS_PIVOT_VALIDATED_H_
