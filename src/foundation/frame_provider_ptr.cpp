#include "foundation/frame_provider_ptr.h"

#include "foundation/base_shared_ptr.h"
#include "media/i_frame_provider.h"

namespace Korvane::Media {

#define KV_HANDLE FrameProviderPtr
#define KV_OBJECT IFrameProvider
#define KV_HANDLE_RESET_CONST
#include "foundation/handle_members.inc"

}  // namespace Korvane::Media
