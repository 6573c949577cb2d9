// The places of virtual functions in the tables of parts and visitors, which programs built earlier
// rely on.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <vector>

#include "output/OmAnswerTree.h"
#include "output/OmChart.h"
#include "output/OmHeading.h"
#include "output/OmInteractive.h"
#include "output/OmModel.h"
#include "output/OmOutputPart.h"
#include "output/OmPageTitle.h"
#include "output/OmProcedure.h"
#include "output/OmTextBlock.h"

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

template <class Part>
std::size_t slotOfVisit() {
  return slotOf(static_cast<void (OmOutputPart::Visitor::*)(Part&)>(&OmOutputPart::Visitor::Visit));
}

// A class with one virtual function more than its base: the place of that one is how many the base
// has.
template <class Base>
class Longer : public Base {
 public:
  virtual void added() {}
};

template <class Base>
std::size_t slotsOf() {
  return slotOf(&Longer<Base>::added);
}

TEST(OmOutputPartLayout, TheVisitsFollowTheDestructorInAFixedOrder) {
  // The destructor takes two places: one that deletes and one that does not.
  EXPECT_EQ((std::vector<std::size_t>{
                slotOfVisit<OmInteractive>(), slotOfVisit<OmModel>(), slotOfVisit<OmAnswerTree>(),
                slotOfVisit<OmChart>(), slotOfVisit<OmPageTitle>(), slotOfVisit<OmTextBlock>(),
                slotOfVisit<OmHeading>(), slotOfVisit<OmProcedure>(), slotOfVisit<OmPivotTable>()}),
            (std::vector<std::size_t>{2, 3, 4, 5, 6, 7, 8, 9, 10}));
}

TEST(OmOutputPartLayout, NothingFollowsTheLastVisit) {
  EXPECT_EQ(slotsOf<OmOutputPart::Visitor>(), 11U);
}

TEST(OmOutputPartLayout, AcceptFollowsTheDestructor) {
  EXPECT_EQ(slotOf(&OmOutputPart::Accept), 2U);
  EXPECT_EQ(slotOf(&OmHeading::Accept), 2U);
  EXPECT_EQ(slotOf(&OmProcedure::Accept), 2U);
  EXPECT_EQ(slotOf(&OmTextBlock::Accept), 2U);
  EXPECT_EQ(slotOf(&OmPageTitle::Accept), 2U);
}

TEST(OmOutputPartLayout, NothingFollowsAccept) {
  EXPECT_EQ(slotsOf<OmOutputPart>(), 3U);
  EXPECT_EQ(slotsOf<OmHeading>(), 3U);
  EXPECT_EQ(slotsOf<OmProcedure>(), 3U);
  EXPECT_EQ(slotsOf<OmTextBlock>(), 3U);
  EXPECT_EQ(slotsOf<OmPageTitle>(), 3U);
}

TEST(OmOutputPartLayout, TheDeliveryOfAChartFollowsAccept) {
  EXPECT_EQ(
      (std::vector<std::size_t>{
          slotOf(&OmChart::Accept), slotOf(&OmChart::SetXmlDescription),
          slotOf(&OmChart::SetXmlUncompressedLength), slotOf(&OmChart::SetXmlCompressedLength),
          slotOf(&OmChart::SetBinaryDataStream), slotOf(&OmChart::SetImageStream),
          slotOf(&OmChart::SetViZJSON), slotOf(&OmChart::SetImageSubType), slotOf(&OmChart::Done)}),
      (std::vector<std::size_t>{2, 3, 4, 5, 6, 7, 8, 9, 10}));
  EXPECT_EQ(slotsOf<OmChart>(), 11U);
}

TEST(OmOutputPartLayout, TheDeliveryOfAModelFollowsAccept) {
  EXPECT_EQ((std::vector<std::size_t>{slotOf(&OmModel::Accept), slotOf(&OmModel::SetPMML),
                                      slotOf(&OmModel::SetBinaryDataStream),
                                      slotOf(&OmModel::SetPMMLContainer),
                                      slotOf(&OmModel::SetStatXMLContainer)}),
            (std::vector<std::size_t>{2, 3, 4, 5, 6}));
  EXPECT_EQ(slotsOf<OmModel>(), 7U);
}

TEST(OmOutputPartLayout, NothingFollowsTheAcceptOfAnInteractiveOutput) {
  EXPECT_EQ(slotOf(&OmInteractive::Accept), 2U);
  EXPECT_EQ(slotsOf<OmInteractive>(), 3U);
}

TEST(OmOutputPartLayout, TheDeliveryOfAnAnswerTreeFollowsAccept) {
  EXPECT_EQ((std::vector<std::size_t>{
                slotOf(&OmAnswerTree::Accept), slotOf(&OmAnswerTree::SetTreeType),
                slotOf(&OmAnswerTree::SetPath), slotOf(&OmAnswerTree::SetCompressedXML),
                slotOf(&OmAnswerTree::SetUncompressedXML),
                slotOf(&OmAnswerTree::SetUncompressedDisplayXML), slotOf(&OmAnswerTree::Done)}),
            (std::vector<std::size_t>{2, 3, 4, 5, 6, 7, 8}));
  EXPECT_EQ(slotsOf<OmAnswerTree>(), 9U);
}

}  // namespace
}  // namespace om::test

#endif
