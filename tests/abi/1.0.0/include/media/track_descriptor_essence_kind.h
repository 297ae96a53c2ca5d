// What kind of essence a track carries. The kinds that this library has no use of its own for are
// named by the family that TrackDescriptorUtils puts them in and by their number.

#ifndef KV_ENGINE_MEDIA_TRACK_DESCRIPTOR_ESSENCE_KIND_H
#define KV_ENGINE_MEDIA_TRACK_DESCRIPTOR_ESSENCE_KIND_H

namespace Korvane {
namespace Media {

enum TrackDescriptorEssenceKind : unsigned int {
  EssenceNone = 0,  // of every new descriptor
  EssenceAudio = 1,
  EssenceDnxhd = 2,
  EssenceVideo3 = 3,
  EssenceOther4 = 4,
  EssenceMpeg2 = 5,  // IMX and long GOP
  EssenceVideo6 = 6,
  EssenceAudio7 = 7,
  EssencePcm = 8,
  EssenceAiff = 9,
  EssenceAudio10 = 10,
  EssenceUncompressed = 11,
  EssenceVideo12 = 12,
  EssenceVideo13 = 13,
  EssenceVideo14 = 14,
  EssenceAvcIntra = 15,
  EssenceProres16 = 16,
  EssenceProres17 = 17,
  EssenceProres18 = 18,
  EssenceProres19 = 19,
  EssenceProres20 = 20,
  EssenceProres21 = 21,
  EssenceVideo22 = 22,
  EssenceDnx23 = 23,
  EssenceDnx24 = 24,
  EssenceDnx25 = 25,
  EssenceDnx26 = 26,
  EssenceDnx27 = 27,
  EssenceData = 28,
  EssenceOther29 = 29,
  EssenceVideo30 = 30,
  EssenceVideo31 = 31,
  EssenceVideo32 = 32,
  EssenceVideo33 = 33,
  EssenceVideo34 = 34,
  EssenceVideo35 = 35,
  EssenceVideo36 = 36,
  EssenceVideo37 = 37,
  EssenceVideo38 = 38,
  EssenceVideo39 = 39
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_TRACK_DESCRIPTOR_ESSENCE_KIND_H
