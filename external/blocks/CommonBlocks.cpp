#include "external/blocks/CommonBlocks.h"

namespace {

struct alignas(std::max_align_t) Block {
  std::byte bytes[kBytesOfCommonBlock];
};

constinit Block blocks[22] = {};

}  // namespace

void* commonBlock01() { return &blocks[0]; }
void* commonBlock02() { return &blocks[1]; }
void* commonBlock03() { return &blocks[2]; }
void* commonBlock04() { return &blocks[3]; }
void* commonBlock05() { return &blocks[4]; }
void* commonBlock06() { return &blocks[5]; }
void* commonBlock07() { return &blocks[6]; }
void* commonBlock08() { return &blocks[7]; }
void* commonBlock09() { return &blocks[8]; }
void* commonBlock10() { return &blocks[9]; }
void* commonBlock11() { return &blocks[10]; }
void* commonBlock12() { return &blocks[11]; }
void* commonBlock13() { return &blocks[12]; }
void* commonBlock14() { return &blocks[13]; }
void* commonBlock15() { return &blocks[14]; }
void* commonBlock16() { return &blocks[15]; }
void* commonBlock17() { return &blocks[16]; }
void* commonBlock18() { return &blocks[17]; }
void* commonBlock19() { return &blocks[18]; }
void* commonBlock20() { return &blocks[19]; }
void* commonBlock21() { return &blocks[20]; }
void* commonBlock22() { return &blocks[21]; }
