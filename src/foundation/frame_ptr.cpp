#include "foundation/frame_ptr.h"

#include "foundation/base_shared_ptr.h"
#include "media/i_frame.h"

namespace Korvane::Media {

#define KV_HANDLE FramePtr
#define KV_OBJECT IFrame
#define KV_HANDLE_RESET_CONST
#include "foundation/handle_members.inc"

}  // namespace Korvane::Media
