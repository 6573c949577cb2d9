// A stream that counts the bytes that it gets and forgets them.

#ifndef OM_BENCHMARKS_RENDER_BYTECOUNTER_H_
#define OM_BENCHMARKS_RENDER_BYTECOUNTER_H_

#include <cstdint>
#include <ostream>
#include <streambuf>

namespace om::bench {

class ByteCounter : public std::ostream {
 public:
  ByteCounter() : std::ostream(&counting_) {}

  std::uint64_t bytes() const { return counting_.bytes; }

 private:
  struct Counting : std::streambuf {
    int_type overflow(int_type c) override {
      ++bytes;
      return traits_type::not_eof(c);
    }
    std::streamsize xsputn(const char*, std::streamsize count) override {
      bytes += static_cast<std::uint64_t>(count);
      return count;
    }
    std::uint64_t bytes = 0;
  };

  Counting counting_;
};

}  // namespace om::bench

#endif  // OM_BENCHMARKS_RENDER_BYTECOUNTER_H_
