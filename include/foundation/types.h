// size_t, without the standard library's headers.

#ifndef KV_ENGINE_FOUNDATION_TYPES_H
#define KV_ENGINE_FOUNDATION_TYPES_H

namespace Korvane {

// That of <cstddef>.
using size_t = decltype(sizeof(0));

}  // namespace Korvane
#endif  // KV_ENGINE_FOUNDATION_TYPES_H
