#include "enum_names.h"

namespace Korvane::Tool {

// A switch, because the compiler then misses every enumerator that has no case.
// clang-format off

const char* name_of(Media::VideoFormats format) {
  switch (format) {
    case Media::Ntsc:            return "Ntsc";
    case Media::Pal:             return "Pal";
    case Media::Hd1080p2398:     return "Hd1080p2398";
    case Media::Hd1080p24:       return "Hd1080p24";
    case Media::Hd1080p25:       return "Hd1080p25";
    case Media::Hd1080p2997:     return "Hd1080p2997";
    case Media::Hd1080p30:       return "Hd1080p30";
    case Media::Hd1080p50:       return "Hd1080p50";
    case Media::Hd1080p50Alt:    return "Hd1080p50Alt";
    case Media::Hd1080p5994:     return "Hd1080p5994";
    case Media::Hd1080p5994Alt:  return "Hd1080p5994Alt";
    case Media::Hd1080p60:       return "Hd1080p60";
    case Media::Hd1080p60Alt:    return "Hd1080p60Alt";
    case Media::Hd1080i50:       return "Hd1080i50";
    case Media::Hd1080i5994:     return "Hd1080i5994";
    case Media::Hd1080i60:       return "Hd1080i60";
    case Media::Hd720p50:        return "Hd720p50";
    case Media::Hd720p5994:      return "Hd720p5994";
    case Media::Hd720p60:        return "Hd720p60";
    case Media::Hd1080p2997Alt:  return "Hd1080p2997Alt";
    case Media::Hd1080p25Alt:    return "Hd1080p25Alt";
    case Media::Hd1080p2398Alt:  return "Hd1080p2398Alt";
    case Media::Uhd2160p60:      return "Uhd2160p60";
    case Media::Uhd2160p60Alt:   return "Uhd2160p60Alt";
    case Media::Uhd2160p5994:    return "Uhd2160p5994";
    case Media::Uhd2160p5994Alt: return "Uhd2160p5994Alt";
    case Media::Uhd2160p50:      return "Uhd2160p50";
    case Media::Uhd2160p50Alt:   return "Uhd2160p50Alt";
    case Media::Uhd2160p30:      return "Uhd2160p30";
    case Media::Uhd2160p2997:    return "Uhd2160p2997";
    case Media::Uhd2160p25:      return "Uhd2160p25";
    case Media::Uhd2160p24:      return "Uhd2160p24";
    case Media::Uhd2160p2398:    return "Uhd2160p2398";
    case Media::Uhd2160p2997Alt: return "Uhd2160p2997Alt";
    case Media::Uhd2160p25Alt:   return "Uhd2160p25Alt";
    case Media::Uhd2160p2398Alt: return "Uhd2160p2398Alt";
    case Media::Hd1080p2997Alt2: return "Hd1080p2997Alt2";
    case Media::Hd1080p25Alt2:   return "Hd1080p25Alt2";
    case Media::UnknownFormat:   return "UnknownFormat";
  }
  return nullptr;
}

const char* name_of(Colorspaces colorspace) {
  switch (colorspace) {
    case ColorspaceUndefined: return "ColorspaceUndefined";
    case Yuv420p:             return "Yuv420p";
    case Yuv422p:             return "Yuv422p";
    case Uyvy:                return "Uyvy";
    case V210:                return "V210";
    case V216:                return "V216";
    case Colorspace6:         return "Colorspace6";
    case Colorspace7:         return "Colorspace7";
    case Yuv422p10le:         return "Yuv422p10le";
    case Yuv422p10leAlt:      return "Yuv422p10leAlt";
    case Colorspace10:        return "Colorspace10";
    case Rgb24:               return "Rgb24";
    case Argb:                return "Argb";
    case Rgba:                return "Rgba";
    case Rgba64:              return "Rgba64";
    case Rgba64Alt:           return "Rgba64Alt";
    case Dpx10:               return "Dpx10";
    case Smpte2110Yuv10:      return "Smpte2110Yuv10";
    case Yuv420pAlt:          return "Yuv420pAlt";
  }
  return nullptr;
}

const char* name_of(Colorimetry colorimetry) {
  switch (colorimetry) {
    case ColorimetryUnspecified: return "ColorimetryUnspecified";
  }
  return nullptr;
}

const char* name_of(Media::TrackDescriptorEssenceKind kind) {
  switch (kind) {
    case Media::EssenceNone:         return "EssenceNone";
    case Media::EssenceAudio:        return "EssenceAudio";
    case Media::EssenceDnxhd:        return "EssenceDnxhd";
    case Media::EssenceVideo3:       return "EssenceVideo3";
    case Media::EssenceOther4:       return "EssenceOther4";
    case Media::EssenceMpeg2:        return "EssenceMpeg2";
    case Media::EssenceVideo6:       return "EssenceVideo6";
    case Media::EssenceAudio7:       return "EssenceAudio7";
    case Media::EssencePcm:          return "EssencePcm";
    case Media::EssenceAiff:         return "EssenceAiff";
    case Media::EssenceAudio10:      return "EssenceAudio10";
    case Media::EssenceUncompressed: return "EssenceUncompressed";
    case Media::EssenceVideo12:      return "EssenceVideo12";
    case Media::EssenceVideo13:      return "EssenceVideo13";
    case Media::EssenceVideo14:      return "EssenceVideo14";
    case Media::EssenceAvcIntra:     return "EssenceAvcIntra";
    case Media::EssenceProres16:     return "EssenceProres16";
    case Media::EssenceProres17:     return "EssenceProres17";
    case Media::EssenceProres18:     return "EssenceProres18";
    case Media::EssenceProres19:     return "EssenceProres19";
    case Media::EssenceProres20:     return "EssenceProres20";
    case Media::EssenceProres21:     return "EssenceProres21";
    case Media::EssenceVideo22:      return "EssenceVideo22";
    case Media::EssenceDnx23:        return "EssenceDnx23";
    case Media::EssenceDnx24:        return "EssenceDnx24";
    case Media::EssenceDnx25:        return "EssenceDnx25";
    case Media::EssenceDnx26:        return "EssenceDnx26";
    case Media::EssenceDnx27:        return "EssenceDnx27";
    case Media::EssenceData:         return "EssenceData";
    case Media::EssenceOther29:      return "EssenceOther29";
    case Media::EssenceVideo30:      return "EssenceVideo30";
    case Media::EssenceVideo31:      return "EssenceVideo31";
    case Media::EssenceVideo32:      return "EssenceVideo32";
    case Media::EssenceVideo33:      return "EssenceVideo33";
    case Media::EssenceVideo34:      return "EssenceVideo34";
    case Media::EssenceVideo35:      return "EssenceVideo35";
    case Media::EssenceVideo36:      return "EssenceVideo36";
    case Media::EssenceVideo37:      return "EssenceVideo37";
    case Media::EssenceVideo38:      return "EssenceVideo38";
    case Media::EssenceVideo39:      return "EssenceVideo39";
  }
  return nullptr;
}

// clang-format on

}  // namespace Korvane::Tool
