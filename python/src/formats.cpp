#include "binding.h"
#include "foundation/rational32.h"
#include "media/audio_info.h"
#include "media/colorimetry.h"
#include "media/colorspaces.h"
#include "media/colorspaces_utils.h"
#include "media/image_info.h"
#include "media/picture_track_descriptor.h"
#include "media/sound_track_descriptor.h"
#include "media/track_descriptor_essence_kind.h"
#include "media/video_formats.h"
#include "media/video_formats_helper.h"

namespace Korvane::Python {
namespace {

struct VideoFormatsHelperScope {};
struct ColorspacesUtilsScope {};

void bind_video_formats_helper(py::module_& module) {
  namespace Helper = Media::VideoFormatsHelper;
  const std::string name = "VideoFormatsHelper";
  py::class_<VideoFormatsHelperScope> scope(module, name.c_str(), doc(name, "__doc__"));
  const auto of_format = [&](const char* function, auto* pointer) {
    scope.def_static(function, pointer, py::arg("format"), doc(name, function));
  };
  of_format("width", &Helper::width);
  of_format("height", &Helper::height);
  of_format("interlaced", &Helper::interlaced);
  of_format("edit_rate", &Helper::edit_rate);
  of_format("aspect_ratio", &Helper::aspect_ratio);
  of_format("rounded_frame_rate", &Helper::rounded_frame_rate);
  of_format("is_uhd_format", &Helper::is_uhd_format);
  scope.def_static("is_pal", &Helper::is_pal, py::arg("edit_rate"), doc(name, "is_pal"));
  scope.def_static("is_720p_edit_rate", &Helper::is_720p_edit_rate, py::arg("edit_rate"),
                   doc(name, "is_720p_edit_rate"));
  scope.def_static("is_pal_dimensions", &Helper::is_pal_dimensions, py::arg("width"),
                   py::arg("height"), doc(name, "is_pal_dimensions"));
  scope.def_static("is_ntsc_dimensions", &Helper::is_ntsc_dimensions, py::arg("width"),
                   py::arg("height"), doc(name, "is_ntsc_dimensions"));
  scope.def_static("format_from_descriptor", &Helper::format_from_descriptor, py::arg("descriptor"),
                   doc(name, "format_from_descriptor"));
}

void bind_colorspaces_utils(py::module_& module) {
  const std::string name = "ColorspacesUtils";
  py::class_<ColorspacesUtilsScope>(module, name.c_str(), doc(name, "__doc__"))
      .def_static("planes_for_colorspace", &ColorspacesUtils::planes_for_colorspace,
                  py::arg("colorspace"), doc(name, "planes_for_colorspace"))
      .def_static("component_depth_for_colorspace",
                  &ColorspacesUtils::component_depth_for_colorspace, py::arg("colorspace"),
                  doc(name, "component_depth_for_colorspace"))
      .def_static("stride_for_colorspace", &ColorspacesUtils::stride_for_colorspace,
                  py::arg("colorspace"), py::arg("width"), py::arg("plane"),
                  doc(name, "stride_for_colorspace"))
      .def_static("heigth_for_colorspace", &ColorspacesUtils::heigth_for_colorspace,
                  py::arg("colorspace"), py::arg("height"), py::arg("plane"),
                  doc(name, "heigth_for_colorspace"));
}

void bind_image_info(py::module_& module) {
  Class<ImageInfo> type(module, "ImageInfo");
  type.constructor<unsigned int, unsigned int, bool, Colorspaces, Colorimetry>(
      py::arg("width"), py::arg("height"), flag("interlaced"), py::arg("colorspace"),
      py::arg("colorimetry"));
  type.def(py::init<>());
  type.def(py::init<Media::VideoFormats, Colorspaces, Colorimetry>(), py::arg("format"),
           py::arg("colorspace"), py::arg("colorimetry"));
  type.def(py::init<const Media::PictureTrackDescriptor&>(), py::arg("descriptor"));
  type.copies()
      .equality()
      .field("width", &ImageInfo::width)
      .field("height", &ImageInfo::height)
      .field("interlaced", &ImageInfo::interlaced)
      .field("colorspace", &ImageInfo::colorspace)
      .field("colorimetry", &ImageInfo::colorimetry)
      .method("update_info", py::overload_cast<const ImageInfo&>(&ImageInfo::update_info),
              py::arg("other"))
      .method("update_info",
              py::overload_cast<unsigned int, unsigned int, bool, Colorspaces, Colorimetry>(
                  &ImageInfo::update_info),
              py::arg("width"), py::arg("height"), flag("interlaced"), py::arg("colorspace"),
              py::arg("colorimetry"))
      .repr({"width", "height", "interlaced", "colorspace", "colorimetry"});
}

void bind_audio_info(py::module_& module) {
  Class<AudioInfo> type(module, "AudioInfo");
  type.def(py::init<unsigned int, unsigned int, unsigned int>(), py::arg("sampling_bits"),
           py::arg("channel_count"), py::arg("sampling_rate"));
  type.constructor<const Media::SoundTrackDescriptor&>(py::arg("descriptor"));
  type.copies()
      .equality()
      .field("sampling_bits", &AudioInfo::sampling_bits)
      .field("channel_count", &AudioInfo::channel_count)
      .field("sampling_rate", &AudioInfo::sampling_rate)
      .getter("block_align", &AudioInfo::block_align)
      .repr({"sampling_bits", "channel_count", "sampling_rate"});
}

}  // namespace

void bind_enumerations(py::module_& module) {
  enumeration<Media::TrackDescriptorEssenceKind>(module, "", "TrackDescriptorEssenceKind");
  enumeration<Media::VideoFormats>(module, "", "VideoFormats");
  enumeration<Colorspaces>(module, "", "Colorspaces");
  enumeration<Colorimetry>(module, "", "Colorimetry");
}

void bind_formats(py::module_& module) {
  bind_video_formats_helper(module);
  bind_colorspaces_utils(module);
  bind_image_info(module);
  bind_audio_info(module);
}

}  // namespace Korvane::Python
