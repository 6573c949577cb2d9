// Hashes for tables that are kept for one run: multiply two words to 128 bits and fold the halves.
// Every run hashes with a key of its own, so that nobody can write a file whose labels collide.

#ifndef OM_TOOLS_TABULATE_HASH_H_
#define OM_TOOLS_TABULATE_HASH_H_

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace om::tabulate {

// The key of this run.
extern const std::uint64_t hashKey;

inline std::uint64_t fold(std::uint64_t a, std::uint64_t b) {
  __extension__ using Wide = unsigned __int128;
  const Wide product = static_cast<Wide>(a) * b;
  return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}

inline std::uint64_t hashOf(std::string_view text) {
  constexpr std::uint64_t kOdd = 0x9e3779b97f4a7c15U;
  const char* at = text.data();
  std::size_t left = text.size();
  std::uint64_t hash = hashKey ^ left;
  for (; left > 8; at += 8, left -= 8) {
    std::uint64_t word;
    std::memcpy(&word, at, 8);
    hash = fold(hash ^ word, kOdd ^ hashKey);
  }
  std::uint64_t word = 0;
  std::memcpy(&word, at, left);
  return fold(hash ^ word, kOdd);
}

inline std::uint64_t hashOf(const std::uint32_t* codes, std::size_t count) {
  constexpr std::uint64_t kOdd = 0xd6e8feb86659fd93U;
  std::uint64_t hash = hashKey;
  for (std::size_t i = 0; i < count; ++i) hash = fold(hash ^ codes[i], kOdd);
  return hash;
}

}  // namespace om::tabulate

#endif  // OM_TOOLS_TABULATE_HASH_H_
