// Payloads: strings of bytes that a producer delivers in pieces.
//
// A payload that outgrows its room at least doubles it, so that a stream in any number of pieces
// costs time linear in its length. Room for exactly one more piece at a time would not.

#ifndef OM_OUTPUT_INTERNAL_PAYLOAD_H_
#define OM_OUTPUT_INTERNAL_PAYLOAD_H_

#include <algorithm>
#include <cstddef>
#include <string>

namespace om::internal {

// Appends a piece, which may lie in the payload itself; null with length 0 appends nothing.
// The room for it is made by the string's own append, in one step and by doubling.
inline void appendPiece(std::string& payload, const char* data, unsigned int length) {
  if (length != 0) payload.append(data, length);
}

// Makes room for `size` bytes in all.
inline void reserveRoom(std::string& payload, std::size_t size) {
  const std::size_t room = payload.capacity();
  if (size <= room) return;
  const std::size_t doubled = room <= payload.max_size() / 2 ? 2 * room : payload.max_size();
  payload.reserve(std::max(size, doubled));
}

}  // namespace om::internal

#endif  // OM_OUTPUT_INTERNAL_PAYLOAD_H_
