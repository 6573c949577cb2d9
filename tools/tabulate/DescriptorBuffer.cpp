#include "tools/tabulate/DescriptorBuffer.h"

#include <unistd.h>

#include <cerrno>

namespace om::tabulate {

DescriptorBuffer::int_type DescriptorBuffer::overflow(int_type character) {
  if (sync() != 0) return traits_type::eof();
  if (!traits_type::eq_int_type(character, traits_type::eof())) {
    sputc(traits_type::to_char_type(character));
  }
  return traits_type::not_eof(character);
}

int DescriptorBuffer::sync() {
  for (const char* at = pbase(); at != pptr() && reason_ == 0;) {
    const ssize_t written = write(descriptor_, at, static_cast<std::size_t>(pptr() - at));
    if (written >= 0) {
      at += written;
    } else if (errno != EINTR) {
      reason_ = errno;
    }
  }
  setp(room_.data(), room_.data() + room_.size());
  if (reason_ == 0) return 0;
  errno = reason_;
  return -1;
}

}  // namespace om::tabulate
