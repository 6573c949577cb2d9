#include "tests/support/Leaks.h"

#include "external/cells/OmMemoryRegion.h"
#include "tests/support/Allocations.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

bool newBlocksIgnored = false;

void compare(std::string& findings, const char* what, std::size_t before, std::size_t now) {
  if (before == now) return;
  findings += std::string(what) + ": " + std::to_string(now) + " instead of " +
              std::to_string(before) + "; ";
}

}  // namespace

LeakCheck::LeakCheck()
    : newBlocks_(liveNewBlocks()),
      heapBlocks_(OmMemoryRegion::DefaultHeap()->BlocksInUse()),
      countedTexts_(CountedText::live()),
      countedParts_(CountedPart::live()) {}

std::string LeakCheck::findings() const {
  const std::size_t newBlocks = liveNewBlocks();
  std::string findings;
  if (!newBlocksIgnored) compare(findings, "blocks of operator new", newBlocks_, newBlocks);
  compare(findings, "blocks of the default heap", heapBlocks_,
          OmMemoryRegion::DefaultHeap()->BlocksInUse());
  compare(findings, "counted texts", static_cast<std::size_t>(countedTexts_),
          static_cast<std::size_t>(CountedText::live()));
  compare(findings, "counted parts", static_cast<std::size_t>(countedParts_),
          static_cast<std::size_t>(CountedPart::live()));
  return findings;
}

void ignoreNewBlocks(bool ignore) { newBlocksIgnored = ignore; }

}  // namespace om::test
