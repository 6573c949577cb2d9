// The loader's entry point: what it keeps on attach, and that other reasons leave it alone.

#include "backend/LibraryEntry.h"

#include <gtest/gtest.h>

#include <array>

#include "backend/internal/CommonBlockCache.h"
#include "external/blocks/CommonBlocks.h"

namespace om::test {
namespace {

using Blocks = std::array<void*, 22>;

Blocks blocksOfTheProcess() {
  return {commonBlock01(), commonBlock02(), commonBlock03(), commonBlock04(), commonBlock05(),
          commonBlock06(), commonBlock07(), commonBlock08(), commonBlock09(), commonBlock10(),
          commonBlock11(), commonBlock12(), commonBlock13(), commonBlock14(), commonBlock15(),
          commonBlock16(), commonBlock17(), commonBlock18(), commonBlock19(), commonBlock20(),
          commonBlock21(), commonBlock22()};
}

// Every test leaves the library as the loader did.
class LibraryEntry : public testing::Test {
 protected:
  void SetUp() override { atStart_ = omModuleHandle(); }
  void TearDown() override { omLibraryEntry(atStart_, kOmProcessAttach, nullptr); }

  int module_ = 0;  // stands for a module
  int another_ = 0;

 private:
  void* atStart_ = nullptr;
};

TEST_F(LibraryEntry, TheAttachReasonIsOne) { EXPECT_EQ(kOmProcessAttach, 1U); }

TEST_F(LibraryEntry, TheModuleHandleIsKnownWhenTheProgramRuns) {
  EXPECT_NE(omModuleHandle(), nullptr);
}

TEST_F(LibraryEntry, TheCommonBlocksAreCachedInOrderWhenTheProgramRuns) {
  EXPECT_EQ(om::internal::commonBlocks, blocksOfTheProcess());
}

TEST_F(LibraryEntry, AttachKeepsTheHandleAndSucceeds) {
  EXPECT_EQ(omLibraryEntry(&module_, kOmProcessAttach, nullptr), 1);
  EXPECT_EQ(omModuleHandle(), &module_);
  EXPECT_EQ(omLibraryEntry(&another_, kOmProcessAttach, &module_), 1);
  EXPECT_EQ(omModuleHandle(), &another_);
}

TEST_F(LibraryEntry, AttachCachesTheCommonBlocks) {
  om::internal::commonBlocks.fill(nullptr);
  omLibraryEntry(&module_, kOmProcessAttach, nullptr);
  EXPECT_EQ(om::internal::commonBlocks, blocksOfTheProcess());
}

TEST_F(LibraryEntry, EveryOtherReasonChangesNothingAndSucceeds) {
  omLibraryEntry(&module_, kOmProcessAttach, nullptr);
  Blocks sentinels;
  sentinels.fill(&another_);
  om::internal::commonBlocks = sentinels;
  for (const unsigned reason : {0U, 2U, 3U, 4U, 257U, 0xFFFFFFFFU}) {
    EXPECT_EQ(omLibraryEntry(&another_, reason, nullptr), 1) << reason;
    EXPECT_EQ(omModuleHandle(), &module_) << reason;
    EXPECT_EQ(om::internal::commonBlocks, sentinels) << reason;
  }
}

}  // namespace
}  // namespace om::test
