// The places of virtual functions in their tables, which programs built earlier rely on.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

#include "external/cells/OmCellText.h"

#if defined(__GXX_ABI_VERSION)

namespace om::test {
namespace {

// The index of a virtual function in its class's table: under the Itanium ABI a pointer to it
// begins with the offset in bytes, where processors have room for a mark in the lowest bit plus
// one.
template <class Member>
std::size_t slotOf(Member member) {
  static_assert(sizeof(member) >= sizeof(std::ptrdiff_t));
  std::ptrdiff_t offset = 0;
  std::memcpy(&offset, &member, sizeof(offset));
  return static_cast<std::size_t>(offset) / sizeof(void*);
}

template <class Text>
std::size_t slotOfVisit() {
  return slotOf(static_cast<void (OmCellText::Visitor::*)(Text&)>(&OmCellText::Visitor::Visit));
}

TEST(OmCellTextLayout, TheVisitsFollowTheDestructorInTheOrderOfTheKinds) {
  // The destructor takes two places: one that deletes and one that does not.
  EXPECT_EQ((std::vector<std::size_t>{slotOfVisit<OmMessageCell>(), slotOfVisit<OmStringCell>(),
                                      slotOfVisit<OmNumber>(), slotOfVisit<OmVariableCell>(),
                                      slotOfVisit<OmValueCell>(), slotOfVisit<OmDateCell>(),
                                      slotOfVisit<OmComposite>()}),
            (std::vector<std::size_t>{2, 3, 4, 5, 6, 7, 8}));
}

TEST(OmCellTextLayout, SizeStandsDirectlyBeforeCompare) {
  EXPECT_EQ(slotOf(&OmCellText::Size) + 1, slotOf(&OmCellText::Compare));
}

}  // namespace
}  // namespace om::test

#endif
