#include "tests/support/Allocations.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>

#include "external/cells/OmMemoryRegion.h"
#include "tests/support/Leaks.h"

namespace {

std::atomic<std::size_t> live{0};
std::atomic<std::size_t> total{0};

// While armed: how many allocations were seen, and which one fails.
bool armed = false;
std::size_t seen = 0;
std::size_t failAt = 0;
bool failedOnce = false;

void countAndMaybeFail() {
  if (!armed || ++seen != failAt) return;
  failedOnce = true;
  throw std::bad_alloc();
}

void* allocate(std::size_t size, std::size_t alignment) {
  countAndMaybeFail();
  const std::size_t bytes = size == 0 ? 1 : size;
  void* const block =
      alignment <= alignof(std::max_align_t)
          ? std::malloc(bytes)
          : std::aligned_alloc(alignment, (bytes + alignment - 1) / alignment * alignment);
  if (block == nullptr) throw std::bad_alloc();
  ++live;
  ++total;
  return block;
}

void release(void* block) noexcept {
  if (block == nullptr) return;
  --live;
  std::free(block);
}

}  // namespace

void* operator new(std::size_t size) { return allocate(size, 0); }
void* operator new[](std::size_t size) { return allocate(size, 0); }
void* operator new(std::size_t size, std::align_val_t alignment) {
  return allocate(size, static_cast<std::size_t>(alignment));
}
void* operator new[](std::size_t size, std::align_val_t alignment) {
  return allocate(size, static_cast<std::size_t>(alignment));
}
void operator delete(void* block) noexcept { release(block); }
void operator delete[](void* block) noexcept { release(block); }
void operator delete(void* block, std::size_t) noexcept { release(block); }
void operator delete[](void* block, std::size_t) noexcept { release(block); }
void operator delete(void* block, std::align_val_t) noexcept { release(block); }
void operator delete[](void* block, std::align_val_t) noexcept { release(block); }
void operator delete(void* block, std::size_t, std::align_val_t) noexcept { release(block); }
void operator delete[](void* block, std::size_t, std::align_val_t) noexcept { release(block); }

namespace om::test {

std::size_t liveNewBlocks() { return live; }

std::size_t totalNewBlocks() { return total; }

bool FailurePoint::during(const std::function<void()>& operation) {
  const auto former = OmMemoryRegion::SetAllocationProbe([](std::size_t) { countAndMaybeFail(); });
  seen = seen_;
  failAt = failAt_;
  failedOnce = false;
  bool completed = true;
  armed = true;
  try {
    operation();
  } catch (const std::bad_alloc&) {
    completed = false;
  }
  armed = false;
  OmMemoryRegion::SetAllocationProbe(former);
  seen_ = seen;
  failed_ = failed_ || failedOnce;
  return completed;
}

std::size_t failEveryAllocation(const std::function<void(FailurePoint&)>& scenario) {
  for (std::size_t failing = 1;; ++failing) {
    const LeakCheck leaks;
    FailurePoint point(failing);
    scenario(point);
    if (testing::Test::HasFailure()) {
      ADD_FAILURE() << "while allocation " << failing << " was failing";
      return failing;
    }
    const std::string left = leaks.findings();
    if (!left.empty()) {
      ADD_FAILURE() << left << " after allocation " << failing << " had failed";
      return failing;
    }
    if (!point.failed()) return failing - 1;
  }
}

}  // namespace om::test
