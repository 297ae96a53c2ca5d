// Which essence of a stream an endpoint serves. Streams of SMPTE ST 2110 carry each essence apart.

#ifndef KV_ENGINE_MEDIA_SDP_TYPE_H
#define KV_ENGINE_MEDIA_SDP_TYPE_H

namespace Korvane {
namespace Media {

enum SdpType : unsigned int {
  SdpVideo = 0,
  SdpAudio = 1,
  SdpAnc = 2  // ancillary data, SMPTE ST 2110-40
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_SDP_TYPE_H
