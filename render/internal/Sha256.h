// Sha256: the digest by which a page names the one script and the one style sheet that may act in
// it.

#ifndef OM_RENDER_INTERNAL_SHA256_H_
#define OM_RENDER_INTERNAL_SHA256_H_

#include <string>
#include <string_view>

namespace om::render::internal {

// The 32 bytes of the SHA-256 digest (FIPS 180-4).
std::string sha256(std::string_view bytes);

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_SHA256_H_
