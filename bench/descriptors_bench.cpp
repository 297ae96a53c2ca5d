// Descriptions of a track, with and without eight keys and values.

#include <gst/gst.h>

#include <array>
#include <memory>

extern "C" {
#include <libavutil/dict.h>
}

#include "media/picture_track_descriptor.h"
#include "side.h"

namespace Korvane {
namespace {

using Media::PictureTrackDescriptor;

struct KeyValue {
  const char* key;
  const char* value;
};
constexpr std::array<KeyValue, 8> kKeyValues = {{{"language", "eng"},
                                                 {"reel-name", "A001C002"},
                                                 {"creator", "camera one"},
                                                 {"location", "studio 4"},
                                                 {"comment", "second take"},
                                                 {"encoder", "long-gop 50"},
                                                 {"timecode-source", "embedded"},
                                                 {"project", "evening news"}}};
constexpr const char* kSomeKey = "timecode-source";

PictureTrackDescriptor descriptor(bool with_key_values) {
  PictureTrackDescriptor result;
  result.width(1920);
  result.height(1080);
  result.interlaced(true);
  result.sample_rate({25, 1});
  result.aspect_ratio({16, 9});
  if (with_key_values)
    for (const KeyValue& one : kKeyValues) result.add_key_value(one.key, one.value);
  return result;
}

GstCaps* caps(bool with_key_values) {
  gst_init(nullptr, nullptr);
  GstCaps* const result = gst_caps_new_simple(
      "video/x-raw", "width", G_TYPE_INT, 1920, "height", G_TYPE_INT, 1080, "field-height",
      G_TYPE_INT, 540, "interlaced", G_TYPE_BOOLEAN, TRUE, "framerate", GST_TYPE_FRACTION, 25, 1,
      "display-aspect-ratio", GST_TYPE_FRACTION, 16, 9, nullptr);
  if (with_key_values)
    for (const KeyValue& one : kKeyValues)
      gst_caps_set_simple(result, one.key, G_TYPE_STRING, one.value, nullptr);
  return result;
}

AVDictionary* dictionary() {
  AVDictionary* result = nullptr;
  for (const KeyValue& one : kKeyValues) av_dict_set(&result, one.key, one.value, 0);
  return result;
}

const bool kLookUp[] = {
    measure("look_up/ours", [held = descriptor(true)] { return held.get_key_value(kSomeKey); }),
    measure("look_up/libavutil",
            [held = dictionary()] { return av_dict_get(held, kSomeKey, nullptr, 0); }),
};

const char* copy(const PictureTrackDescriptor& held) {
  const PictureTrackDescriptor made(held);
  benchmark::DoNotOptimize(&made);
  return nullptr;
}

GstCaps* copy(const GstCaps* held) {
  GstCaps* const made = gst_caps_copy(held);
  benchmark::DoNotOptimize(made);
  gst_caps_unref(made);
  return nullptr;
}

const bool kCopy[] = {
    measure("descriptor_copy/ours", [held = descriptor(false)] { return copy(held); }),
    measure("descriptor_copy/gstreamer", [held = caps(false)] { return copy(held); }),
    measure("descriptor_copy_8/ours", [held = descriptor(true)] { return copy(held); }),
    measure("descriptor_copy_8/gstreamer", [held = caps(true)] { return copy(held); }),
};

}  // namespace
}  // namespace Korvane
