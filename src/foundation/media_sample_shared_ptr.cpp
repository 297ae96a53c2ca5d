#include "foundation/media_sample_shared_ptr.h"

#include "foundation/base_shared_ptr.h"
#include "media/media_sample.h"

namespace Korvane::Media {

#define KV_HANDLE MediaSampleSharedPtr
#define KV_OBJECT MediaSample
#define KV_HANDLE_RESET_CONST
#include "foundation/handle_members.inc"

}  // namespace Korvane::Media
