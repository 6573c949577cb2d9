#include "tools/tabulate/Hash.h"

#include <random>

namespace om::tabulate {

namespace {

std::uint64_t drawKey() {
  std::random_device device;
  return (std::uint64_t{device()} << 32) ^ device();
}

}  // namespace

const std::uint64_t hashKey = drawKey();

}  // namespace om::tabulate
