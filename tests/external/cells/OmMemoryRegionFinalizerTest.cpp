// OmMemoryRegion::Finalizer: what is registered is called once when its region ends, unless it was
// withdrawn by its destructor before.

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

#include "external/cells/OmMemoryRegion.h"

namespace om::test {
namespace {

class Noted : public OmMemoryRegion::Finalizer {
 public:
  Noted(std::string& calls, char name) : calls_(calls), name_(name) {}

 private:
  void regionEnds() noexcept override {
    calls_ += name_;
    calls_ += Region() == nullptr ? "-" : "+";
  }

  std::string& calls_;
  char name_;
};

TEST(Finalizer, IsNotRegisteredAtFirst) {
  std::string calls;
  EXPECT_EQ(Noted(calls, 'a').Region(), nullptr);
  EXPECT_EQ(calls, "");
}

TEST(Finalizer, KnowsItsRegion) {
  std::string calls;
  OmMemoryRegion region(false);
  Noted noted(calls, 'a');
  region.AtEnd(noted);
  EXPECT_EQ(noted.Region(), &region);
}

TEST(Finalizer, IsCalledOnceWhenItsRegionEndsAndIsThenFree) {
  std::string calls;
  Noted noted(calls, 'a');
  {
    OmMemoryRegion region(false);
    region.AtEnd(noted);
    EXPECT_EQ(calls, "");
  }
  EXPECT_EQ(calls, "a-");
  EXPECT_EQ(noted.Region(), nullptr);
}

TEST(Finalizer, CanBeRegisteredAgainAfterwards) {
  std::string calls;
  Noted noted(calls, 'a');
  for (int i = 0; i < 2; ++i) {
    OmMemoryRegion region(false);
    region.AtEnd(noted);
  }
  EXPECT_EQ(calls, "a-a-");
}

TEST(Finalizer, IsWithdrawnByItsDestructorWhereverItStands) {
  for (int gone = 0; gone < 3; ++gone) {
    std::string calls;
    {
      std::optional<Noted> noted[3];
      OmMemoryRegion region(false);
      for (int i = 0; i < 3; ++i) {
        noted[i].emplace(calls, static_cast<char>('0' + i));
        region.AtEnd(*noted[i]);
      }
      noted[gone].reset();
    }
    EXPECT_EQ(calls.size(), 4U);
    EXPECT_EQ(calls.find(static_cast<char>('0' + gone)), std::string::npos);
  }
}

TEST(Finalizer, OfTheDefaultHeapIsWithdrawnToo) {
  std::string calls;
  {
    Noted noted(calls, 'a');
    OmMemoryRegion::DefaultHeap()->AtEnd(noted);
    EXPECT_EQ(noted.Region(), OmMemoryRegion::DefaultHeap());
  }
  EXPECT_EQ(calls, "");
}

class DeletesItself : public OmMemoryRegion::Finalizer {
 public:
  explicit DeletesItself(int& alive) : alive_(alive) { ++alive_; }
  ~DeletesItself() override { --alive_; }

 private:
  void regionEnds() noexcept override { delete this; }

  int& alive_;
};

TEST(Finalizer, MayDeleteItself) {
  int alive = 0;
  {
    OmMemoryRegion region(false);
    for (int i = 0; i < 3; ++i) region.AtEnd(*new DeletesItself(alive));
    EXPECT_EQ(alive, 3);
  }
  EXPECT_EQ(alive, 0);
}

class ReadsItsBlock : public OmMemoryRegion::Finalizer {
 public:
  ReadsItsBlock(const int& block, int& read) : block_(block), read_(read) {}

 private:
  void regionEnds() noexcept override { read_ = block_; }

  const int& block_;
  int& read_;
};

TEST(Finalizer, StillFindsTheBlocksOfTheRegion) {
  int read = 0;
  auto region = std::make_unique<OmMemoryRegion>(false);
  auto* const block = new (region->Allocate(sizeof(int))) int(7);
  ReadsItsBlock finalizer(*block, read);
  region->AtEnd(finalizer);
  region.reset();
  EXPECT_EQ(read, 7);
}

}  // namespace
}  // namespace om::test
