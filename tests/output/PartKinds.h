// Every kind of part under one way of making it, for what holds for each of them.

#ifndef OM_TESTS_OUTPUT_PARTKINDS_H_
#define OM_TESTS_OUTPUT_PARTKINDS_H_

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>

#include "external/cells/OmCellText.h"
#include "output/OmHeading.h"
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

using PartKinds = testing::Types<BarePart, OmHeading, OmProcedure, OmTextBlock, OmPageTitle>;

struct PartKindName {
  template <class Part>
  static std::string GetName(int) {
    if constexpr (std::is_same_v<Part, BarePart>) return "BarePart";
    if constexpr (std::is_same_v<Part, OmHeading>) return "OmHeading";
    if constexpr (std::is_same_v<Part, OmProcedure>) return "OmProcedure";
    if constexpr (std::is_same_v<Part, OmTextBlock>) return "OmTextBlock";
    if constexpr (std::is_same_v<Part, OmPageTitle>) return "OmPageTitle";
  }
};

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
  } else {
    return std::make_unique<Part>(label);
  }
}

}  // namespace om::test

#endif  // OM_TESTS_OUTPUT_PARTKINDS_H_
