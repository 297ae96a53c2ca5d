// Comparison by const objects, and keys for standard containers. Header-only, C++17.
//
//   using namespace Korvane;
//   if (Ext::equal(settings, former)) ...                      // both may be const
//   std::unordered_map<Timecode, Clip, Ext::LabelHash, Ext::SameLabel> clips;
//   std::set<Timecode, Ext::CountLess> marks;
//
// There is no std::hash of these classes on purpose: == leaves out the hours of a Timecode, and the
// colorimetry of an ImageInfo that states none, so a container that took == for sameness would mix
// up values. A key says by its name what it looks at.

#ifndef KV_ENGINE_EXT_COMPARE_H
#define KV_ENGINE_EXT_COMPARE_H

#include <cstddef>
#include <functional>
#include <tuple>
#include <type_traits>

#include "foundation/track_descriptor_shared_ptr.h"
#include "media/audio_info.h"
#include "media/camera_info.h"
#include "media/image_info.h"
#include "media/multiviewer_config.h"
#include "media/multiviewer_source.h"
#include "media/multiviewer_source_list.h"
#include "media/sdp_config.h"
#include "media/srt_settings.h"
#include "media/srt_stream_stats_data.h"
#include "media/st2110_stream_stats_data.h"
#include "timecode/timecode.h"

namespace Korvane::Ext {
namespace Detail {

template <typename T, typename... Types>
inline constexpr bool kIsOneOf = (std::is_same_v<T, Types> || ...);

// The classes that publish operator==.
template <typename T>
inline constexpr bool kIsComparable =
    kIsOneOf<T, Timecode, AudioInfo, ImageInfo, Media::CameraInfo, Media::MultiviewerConfig,
             Media::MultiviewerSource, Media::MultiviewerSourceList, Media::SdpConfig,
             Media::SrtSettings, Media::SRTStreamStatsData, Media::ST2110StreamStatsData,
             Media::TrackDescriptorSharedPtr>;

// Of the members of a tuple, in their order.
template <typename Tuple>
std::size_t hash_of(const Tuple& fields) {
  std::size_t hash = 0;
  const auto add = [&hash](const auto& field) {
    const std::size_t one = std::hash<std::decay_t<decltype(field)>>()(field);
    hash ^= one + std::size_t{0x9e3779b9} + (hash << 6U) + (hash >> 2U);
  };
  std::apply([&add](const auto&... field) { (add(field), ...); }, fields);
  return hash;
}

inline auto label_of(const Timecode& timecode) {
  return std::make_tuple(timecode.hours(), timecode.minutes(), timecode.seconds(),
                         timecode.frames(), timecode.field_mark(), timecode.frame_rate(),
                         timecode.drop_frame());
}

inline auto count_of(const Timecode& timecode) {
  return std::make_tuple(timecode.frame_count(), timecode.frame_rate(), timecode.drop_frame());
}

inline auto fields_of(const ImageInfo& image) {
  return std::make_tuple(image.width, image.height, image.interlaced,
                         static_cast<unsigned int>(image.colorspace),
                         static_cast<unsigned int>(image.colorimetry));
}

}  // namespace Detail

// What operator== of the class answers, also where it was published without const. That one is
// called on the object itself, by casting const away: it reads both and changes neither, so objects
// that are const, or shared with threads that read them, may be given.
template <typename T>
std::enable_if_t<Detail::kIsComparable<T>, bool> equal(const T& left, const T& right) {
  return const_cast<T&>(left).operator==(right);
}

// The same label on the screen: hours, minutes, seconds, frames and field mark, at the same rate
// and counting. Days do not count.
struct SameLabel {
  bool operator()(const Timecode& left, const Timecode& right) const {
    return Detail::label_of(left) == Detail::label_of(right);
  }
};

// Agrees with SameLabel.
struct LabelHash {
  std::size_t operator()(const Timecode& timecode) const {
    return Detail::hash_of(Detail::label_of(timecode));
  }
};

// As the labels read from left to right, then by rate, non-drop-frame first. Agrees with SameLabel.
struct LabelLess {
  bool operator()(const Timecode& left, const Timecode& right) const {
    return Detail::label_of(left) < Detail::label_of(right);
  }
};

// The same frame: the frame count, days included, at the same rate and counting.
struct SameCount {
  bool operator()(const Timecode& left, const Timecode& right) const {
    return Detail::count_of(left) == Detail::count_of(right);
  }
};

// Agrees with SameCount.
struct CountHash {
  std::size_t operator()(const Timecode& timecode) const {
    return Detail::hash_of(Detail::count_of(timecode));
  }
};

// By frame count, negative ones first, then by rate, non-drop-frame first. Agrees with SameCount.
struct CountLess {
  bool operator()(const Timecode& left, const Timecode& right) const {
    return Detail::count_of(left) < Detail::count_of(right);
  }
};

// The same in every field: ColorimetryUnspecified is the same as itself only, unlike by ==.
struct SameImage {
  bool operator()(const ImageInfo& left, const ImageInfo& right) const {
    return Detail::fields_of(left) == Detail::fields_of(right);
  }
};

// Agrees with SameImage.
struct ImageHash {
  std::size_t operator()(const ImageInfo& image) const {
    return Detail::hash_of(Detail::fields_of(image));
  }
};

// Of two handles of one family: whether both hold the very same object, or nothing.
struct SameObject {
  template <typename Handle>
  bool operator()(const Handle& left, const Handle& right) const {
    return left.get() == right.get();
  }
};

// Agrees with SameObject.
struct ObjectHash {
  template <typename Handle>
  std::size_t operator()(const Handle& handle) const {
    return std::hash<decltype(handle.get())>()(handle.get());
  }
};

}  // namespace Korvane::Ext
#endif  // KV_ENGINE_EXT_COMPARE_H
