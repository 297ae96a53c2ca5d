#include "foundation/i_encoding_perf_listener_ptr.h"

#include "foundation/base_shared_ptr.h"
#include "media/i_encoding_perf_listener.h"

namespace Korvane::Media {

#define KV_HANDLE IEncodingPerfListenerPtr
#define KV_OBJECT IEncodingPerfListener
#define KV_HANDLE_RESET_CONST
#include "foundation/handle_members.inc"

}  // namespace Korvane::Media
