// DescriptorBuffer: a stream buffer that writes to a file descriptor and remembers why it failed.
// Once a write has failed, nothing more is written, and every later attempt fails with that reason
// in errno.
//
// Ownership: the descriptor stays the caller's. What is in the buffer at its end is not written:
// whoever wants to know calls pubsync() first.

#ifndef OM_TOOLS_TABULATE_DESCRIPTORBUFFER_H_
#define OM_TOOLS_TABULATE_DESCRIPTORBUFFER_H_

#include <array>
#include <cstddef>
#include <streambuf>

namespace om::tabulate {

class DescriptorBuffer : public std::streambuf {
 public:
  explicit DescriptorBuffer(int descriptor) : descriptor_(descriptor) {
    setp(room_.data(), room_.data() + room_.size());
  }

 protected:
  int_type overflow(int_type character) override;
  int sync() override;

 private:
  const int descriptor_;
  int reason_ = 0;
  std::array<char, std::size_t{64} << 10> room_;
};

}  // namespace om::tabulate

#endif  // OM_TOOLS_TABULATE_DESCRIPTORBUFFER_H_
