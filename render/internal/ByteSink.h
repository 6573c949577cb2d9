// ByteSink: bytes on their way to a stream, gathered so that the stream is called seldom.
//
// What is left is written by flush, which the destructor deliberately does not do: after an
// exception the rest is not worth writing. When the stream fails, what is put in afterwards is
// dropped, and ok() is false.

#ifndef OM_RENDER_INTERNAL_BYTESINK_H_
#define OM_RENDER_INTERNAL_BYTESINK_H_

#include <array>
#include <charconv>
#include <cmath>
#include <concepts>
#include <cstddef>
#include <ostream>
#include <string_view>

namespace om::render::internal {

class ByteSink {
 public:
  static constexpr std::size_t kMostRoom = 1 << 14;

  explicit ByteSink(std::ostream& out) : out_(out), ok_(out.good()) {}
  ByteSink(const ByteSink&) = delete;
  ByteSink& operator=(const ByteSink&) = delete;

  bool ok() const { return ok_; }

  void put(char byte) {
    if (size_ == buffer_.size()) makeRoom();
    buffer_[size_++] = byte;
  }

  void put(std::string_view bytes) {
    if (bytes.size() > buffer_.size() - size_) {
      makeRoom();
      if (bytes.size() > buffer_.size()) return pass(bytes);
    }
    bytes.copy(buffer_.data() + size_, bytes.size());
    size_ += bytes.size();
  }

  // Room for so many bytes, which the caller writes at once. REQUIRES: count <= kMostRoom.
  char* room(std::size_t count) {
    if (buffer_.size() - size_ < count) makeRoom();
    char* const at = buffer_.data() + size_;
    size_ += count;
    return at;
  }

  void putNumber(std::integral auto value) { putDigits(value); }
  // The fewest digits from which the value can be read back; with an exponent where OmNumber shows
  // one. REQUIRES: it is finite.
  void putNumber(double value) {
    const double magnitude = std::fabs(value);
    const bool plain = magnitude == 0 || (magnitude >= 1e-6 && magnitude < 1e21);
    const bool whole = magnitude < kMostWhole && magnitude != 0 &&
                       value == static_cast<double>(static_cast<long long>(value));
    if (whole) return putDigits(static_cast<long long>(value));  // the same digits, but faster
    putDigits(value, plain ? std::chars_format::fixed : std::chars_format::scientific);
  }

  void flush() {
    const std::string_view bytes(buffer_.data(), size_);
    size_ = 0;
    pass(bytes);
  }

 private:
  static constexpr std::size_t kMostDigits = 32;
  static constexpr double kMostWhole = 9007199254740992;  // all whole numbers below are exact

  void putDigits(auto value, auto... format) {
    if (buffer_.size() - size_ < kMostDigits) makeRoom();
    char* const at = buffer_.data() + size_;
    size_ +=
        static_cast<std::size_t>(std::to_chars(at, at + kMostDigits, value, format...).ptr - at);
  }

  // Kept out of what is called for every few bytes, which is short enough to be inlined then.
  [[gnu::cold, gnu::noinline]] void makeRoom() { flush(); }

  [[gnu::cold, gnu::noinline]] void pass(std::string_view bytes) {
    if (!ok_) return;
    out_.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    ok_ = out_.good();
  }

  std::ostream& out_;
  bool ok_;
  std::size_t size_ = 0;
  std::array<char, kMostRoom> buffer_;
};

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_BYTESINK_H_
