#include "foundation/i_sample_provider_ptr.h"

#include "foundation/base_shared_ptr.h"
#include "media/i_sample_provider.h"

namespace Korvane::Media {

#define KV_HANDLE ISampleProviderPtr
#define KV_OBJECT ISampleProvider
#define KV_HANDLE_RESET_CONST
#include "foundation/handle_members.inc"

}  // namespace Korvane::Media
