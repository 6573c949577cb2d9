// Feeds a fuzz body with random bytes from a fixed seed, so that every build runs it.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <random>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main() {
  constexpr int kInputs = 20'000;
  std::mt19937 random(1);
  for (int i = 0; i < kInputs; ++i) {
    std::vector<std::uint8_t> bytes(random() % 200);
    for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(random());
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
  }
  std::printf("%d inputs\n", kInputs);
}
