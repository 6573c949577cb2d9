// Every kind of part under one way of making it, for what holds for each of them.

#ifndef OM_TESTS_OUTPUT_PARTKINDS_H_
#define OM_TESTS_OUTPUT_PARTKINDS_H_

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>

#include "external/cells/OmCellText.h"
#include "output/OmAnswerTree.h"
#include "output/OmChart.h"
#include "output/OmHeading.h"
#include "output/OmInteractive.h"
#include "output/OmModel.h"
#include "output/OmOutputPart.h"
#include "output/OmPageTitle.h"
#include "output/OmProcedure.h"
#include "output/OmTextBlock.h"

namespace om::test {

// The base with nothing added: a kind that no visitor knows.
class BarePart : public OmOutputPart {
 public:
  explicit BarePart(const OmCellText& label) : OmOutputPart(label) {}
  void Accept(Visitor&) override {}
};

// The kinds of whose copies only one may be destroyed, those that count their copies, and all.
using PlainKinds = testing::Types<BarePart, OmHeading, OmProcedure, OmTextBlock, OmPageTitle>;
using SharingKinds = testing::Types<OmChart, OmModel, OmInteractive, OmAnswerTree>;
using PartKinds = testing::Types<BarePart, OmHeading, OmProcedure, OmTextBlock, OmPageTitle,
                                 OmChart, OmModel, OmInteractive, OmAnswerTree>;

struct PartKindName {
  template <class Part>
  static std::string GetName(int) {
    if constexpr (std::is_same_v<Part, BarePart>) return "BarePart";
    if constexpr (std::is_same_v<Part, OmHeading>) return "OmHeading";
    if constexpr (std::is_same_v<Part, OmProcedure>) return "OmProcedure";
    if constexpr (std::is_same_v<Part, OmTextBlock>) return "OmTextBlock";
    if constexpr (std::is_same_v<Part, OmPageTitle>) return "OmPageTitle";
    if constexpr (std::is_same_v<Part, OmChart>) return "OmChart";
    if constexpr (std::is_same_v<Part, OmModel>) return "OmModel";
    if constexpr (std::is_same_v<Part, OmInteractive>) return "OmInteractive";
    if constexpr (std::is_same_v<Part, OmAnswerTree>) return "OmAnswerTree";
  }
};

inline const std::string kPartCodePage = "UTF-8";

// A part of the kind with a clone of `label`. A page title gets it in place of its empty one.
template <class Part>
std::unique_ptr<Part> makePart(const OmCellText& label) {
  if constexpr (std::is_same_v<Part, OmPageTitle>) {
    auto title = std::make_unique<OmPageTitle>("UTF-8");
    title->Label(label);
    return title;
  } else if constexpr (std::is_same_v<Part, OmTextBlock>) {
    return std::make_unique<OmTextBlock>(label, "UTF-8");
  } else if constexpr (std::is_same_v<Part, OmProcedure>) {
    return std::make_unique<OmProcedure>(label, "en", "UTF-8", "en_US");
  } else if constexpr (std::is_same_v<Part, OmChart> || std::is_same_v<Part, OmInteractive>) {
    return std::make_unique<Part>(label, "", 1);
  } else if constexpr (std::is_same_v<Part, OmAnswerTree>) {
    return std::make_unique<OmAnswerTree>(label, kPartCodePage);
  } else {
    return std::make_unique<Part>(label);
  }
}

}  // namespace om::test

#endif  // OM_TESTS_OUTPUT_PARTKINDS_H_
