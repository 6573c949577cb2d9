// The process-wide common blocks: storage that parts of the engine share by number. Every block is
// kBytesOfCommonBlock bytes, zero at the start, and lives as long as the process. The accessors may
// be called at any time, static initialisation included; what stands in a block, and who may touch
// it when, is settled between the parts of the engine that use it.

#ifndef OM_EXTERNAL_BLOCKS_COMMONBLOCKS_H_
#define OM_EXTERNAL_BLOCKS_COMMONBLOCKS_H_

#include <cstddef>

#include "external/blocks/Export.h"

inline constexpr std::size_t kBytesOfCommonBlock = 256;

OM_BLOCKS_API void* commonBlock01();
OM_BLOCKS_API void* commonBlock02();
OM_BLOCKS_API void* commonBlock03();
OM_BLOCKS_API void* commonBlock04();
OM_BLOCKS_API void* commonBlock05();
OM_BLOCKS_API void* commonBlock06();
OM_BLOCKS_API void* commonBlock07();
OM_BLOCKS_API void* commonBlock08();
OM_BLOCKS_API void* commonBlock09();
OM_BLOCKS_API void* commonBlock10();
OM_BLOCKS_API void* commonBlock11();
OM_BLOCKS_API void* commonBlock12();
OM_BLOCKS_API void* commonBlock13();
OM_BLOCKS_API void* commonBlock14();
OM_BLOCKS_API void* commonBlock15();
OM_BLOCKS_API void* commonBlock16();
OM_BLOCKS_API void* commonBlock17();
OM_BLOCKS_API void* commonBlock18();
OM_BLOCKS_API void* commonBlock19();
OM_BLOCKS_API void* commonBlock20();
OM_BLOCKS_API void* commonBlock21();
OM_BLOCKS_API void* commonBlock22();

#endif  // OM_EXTERNAL_BLOCKS_COMMONBLOCKS_H_
