#include "binding.h"
#include "media/compound_track_descriptor.h"
#include "media/data_track_descriptor.h"
#include "media/picture_track_descriptor.h"
#include "media/sound_track_descriptor.h"
#include "media/track_descriptor.h"
#include "media/track_descriptor_defaults.h"
#include "media/track_descriptor_essence_kind.h"
#include "media/track_descriptor_utils.h"

namespace Korvane::Python {
namespace {

using Media::CompoundTrackDescriptor;
using Media::DataTrackDescriptor;
using Media::PictureTrackDescriptor;
using Media::SoundTrackDescriptor;
using Media::TrackDescriptor;

struct TrackDescriptorUtilsScope {};
struct TrackDescriptorDefaultsScope {};

void bind_base(py::module_& module) {
  Class<TrackDescriptor> type(module, "TrackDescriptor");
  type.property("essence_kind", &TrackDescriptor::essence_kind, &TrackDescriptor::essence_kind)
      .optional("track_id", &TrackDescriptor::track_id, &TrackDescriptor::track_id)
      .optional("sample_rate", &TrackDescriptor::sample_rate, &TrackDescriptor::sample_rate)
      .optional("pre_charge", &TrackDescriptor::pre_charge, &TrackDescriptor::pre_charge)
      .optional("private_data", &TrackDescriptor::private_data, &TrackDescriptor::private_data)
      .method("clone", &TrackDescriptor::clone, py::return_value_policy::take_ownership)
      .method(
          "add_key_value",
          [](TrackDescriptor& self, const Narrow& key, const Narrow& value) {
            self.add_key_value(key.value.c_str(), value.value.c_str());
          },
          py::arg("key"), py::arg("value"))
      .method(
          "get_key_value",
          [](const TrackDescriptor& self, const Narrow& key) -> py::object {
            const char* const value = self.get_key_value(key.value.c_str());
            if (value == nullptr) return py::none();
            return to_python(value);
          },
          py::arg("key"))
      .repr({"essence_kind", "track_id", "sample_rate", "pre_charge", "private_data"});
}

void bind_picture(py::module_& module) {
  using Picture = PictureTrackDescriptor;
  Class<Picture, TrackDescriptor>(module, "PictureTrackDescriptor")
      .constructor<>()
      .copies()
      .optional("width", &Picture::width, &Picture::width)
      .optional("height", &Picture::height, &Picture::height)
      .optional_getter("field_height", &Picture::field_height)
      .optional("interlaced", &Picture::interlaced, &Picture::interlaced)
      .optional("aspect_ratio", &Picture::aspect_ratio, &Picture::aspect_ratio)
      .optional("bit_rate", &Picture::bit_rate, &Picture::bit_rate)
      .optional("component_depth", &Picture::component_depth, &Picture::component_depth)
      .property("colorspace", &Picture::colorspace, &Picture::colorspace)
      .property("colorimetry", &Picture::colorimetry, &Picture::colorimetry)
      .repr({"essence_kind", "track_id", "sample_rate", "pre_charge", "private_data", "width",
             "height", "interlaced", "aspect_ratio", "bit_rate", "component_depth", "colorspace",
             "colorimetry"});
}

void bind_others(py::module_& module) {
  using Sound = SoundTrackDescriptor;
  Class<Sound, TrackDescriptor>(module, "SoundTrackDescriptor")
      .constructor<>()
      .copies()
      .optional("sampling_rate", &Sound::sampling_rate, &Sound::sampling_rate)
      .optional("sampling_bits", &Sound::sampling_bits, &Sound::sampling_bits)
      .optional("channel_count", &Sound::channel_count, &Sound::channel_count)
      .repr({"essence_kind", "track_id", "sample_rate", "pre_charge", "private_data",
             "sampling_rate", "sampling_bits", "channel_count"});
  Class<DataTrackDescriptor, TrackDescriptor>(module, "DataTrackDescriptor")
      .constructor<>()
      .copies();
  Class<CompoundTrackDescriptor, TrackDescriptor>(module, "CompoundTrackDescriptor")
      .constructor<>()
      .copies();
}

void bind_utils(py::module_& module) {
  namespace Utils = Media::TrackDescriptorUtils;
  const std::string name = "TrackDescriptorUtils";
  py::class_<TrackDescriptorUtilsScope> scope(module, name.c_str(), doc(name, "__doc__"));
  const auto add = [&](const char* function, auto* pointer) {
    scope.def_static(function, pointer, py::arg("kind"), doc(name, function));
  };
  add("is_audio_track", &Utils::is_audio_track);
  add("is_video_track", &Utils::is_video_track);
  add("is_data_track", &Utils::is_data_track);
  add("is_dnx", &Utils::is_dnx);
  add("is_prores", &Utils::is_prores);
}

void bind_defaults(py::module_& module) {
  namespace Defaults = Media::TrackDescriptorDefaults;
  const std::string name = "TrackDescriptorDefaults";
  py::class_<TrackDescriptorDefaultsScope> scope(module, name.c_str(), doc(name, "__doc__"));
  const auto add = [&](const char* function, auto* pointer, const auto&... arguments) {
    scope.def_static(function, pointer, py::arg("track_id"), arguments..., doc(name, function));
  };
  add("aiff_stereo_16b_48k", &Defaults::aiff_stereo_16b_48k);
  add("pcm_mono_24b_48k", &Defaults::pcm_mono_24b_48k);
  add("pcm_stereo_24b_48k", &Defaults::pcm_stereo_24b_48k);
  add("sound_pcm_48k", &Defaults::sound_pcm_48k, py::arg("channel_count"),
      py::arg("sampling_bits"));
  add("avcintra_100_1920_1080_50i", &Defaults::avcintra_100_1920_1080_50i);
  add("dnxhd_145_60i", &Defaults::dnxhd_145_60i);
  add("dnxhd_220_60i", &Defaults::dnxhd_220_60i);
  add("imx_30_ntsc", &Defaults::imx_30_ntsc);
  add("imx_50_pal", &Defaults::imx_50_pal);
  add("mpeg2_lgop_50_60i", &Defaults::mpeg2_lgop_50_60i);
  add("mpeg2_lgop_50_2398p", &Defaults::mpeg2_lgop_50_2398p);
  add("mpeg2_lgop_50_60p", &Defaults::mpeg2_lgop_50_60p);
  add("compressed_format_1080i60", &Defaults::compressed_format_1080i60, py::arg("kind"));
  add("compressed_descriptor_for_video_format", &Defaults::compressed_descriptor_for_video_format,
      py::arg("kind"), py::arg("format"), py::arg("bit_rate"), py::arg("component_depth"));
  add("uyvy_1280_720_60p", &Defaults::uyvy_1280_720_60p);
  add("uyvy_1920_1080_60i", &Defaults::uyvy_1920_1080_60i);
  add("uyvy_720_486_60i", &Defaults::uyvy_720_486_60i);
  add("uyvy_ntsc", &Defaults::uyvy_ntsc);
  add("uyvy_pal", &Defaults::uyvy_pal);
  add("v210_1920_1080_60i", &Defaults::v210_1920_1080_60i);
  add("yuv422p_1920_1080_60i", &Defaults::yuv422p_1920_1080_60i);
  add("yuv422p10e_1920_1080_60i", &Defaults::yuv422p10e_1920_1080_60i);
  add("uncompressed_descriptor", &Defaults::uncompressed_descriptor, py::arg("edit_rate"),
      py::arg("width"), py::arg("height"), flag("interlaced"), py::arg("aspect_ratio"),
      py::arg("colorspace"), py::arg("colorimetry"));
  add("uncompressed_descriptor_for_video_format",
      &Defaults::uncompressed_descriptor_for_video_format, py::arg("format"), py::arg("colorspace"),
      py::arg("colorimetry"));
}

}  // namespace

void bind_tracks(py::module_& module) {
  bind_base(module);
  bind_picture(module);
  bind_others(module);
  bind_utils(module);
  bind_defaults(module);
}

}  // namespace Korvane::Python
