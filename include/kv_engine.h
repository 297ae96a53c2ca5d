// Everything that kv_Engine_r exports.

#ifndef KV_ENGINE_KV_ENGINE_H
#define KV_ENGINE_KV_ENGINE_H

#include "core/exception.h"
#include "core/exception_code.h"
#include "core/logger.h"
#include "foundation/rational32.h"
#include "media/audio_info.h"
#include "media/colorimetry.h"
#include "media/colorspaces.h"
#include "media/colorspaces_utils.h"
#include "media/compound_track_descriptor.h"
#include "media/data_track_descriptor.h"
#include "media/image_info.h"
#include "media/picture_track_descriptor.h"
#include "media/sound_track_descriptor.h"
#include "media/track_descriptor.h"
#include "media/track_descriptor_defaults.h"
#include "media/track_descriptor_essence_kind.h"
#include "media/track_descriptor_list.h"
#include "media/track_descriptor_utils.h"
#include "media/video_descriptor_frame.h"
#include "media/video_formats.h"
#include "media/video_formats_helper.h"
#include "timecode/time_data.h"
#include "timecode/timecode.h"
#include "timecode/timecode_info.h"
#include "timecode/timecode_listener.h"
#include "timecode/timecode_utils.h"

#endif  // KV_ENGINE_KV_ENGINE_H
