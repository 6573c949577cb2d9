// The common blocks as the library found them when it was loaded, block 1 at index 0. They are kept
// for debuggers and for later code; nothing reads them.

#ifndef OM_BACKEND_INTERNAL_COMMONBLOCKCACHE_H_
#define OM_BACKEND_INTERNAL_COMMONBLOCKCACHE_H_

#include <array>

namespace om::internal {

extern std::array<void*, 22> commonBlocks;

}  // namespace om::internal

#endif  // OM_BACKEND_INTERNAL_COMMONBLOCKCACHE_H_
