// The three endpoints of one stream whose essences travel apart (SMPTE ST 2110): video, audio and
// ancillary data. The set always holds all three; one that was not given has the type of its place,
// no address and port 0. A value: copies are deep and independent. Not synchronised.

#ifndef KV_ENGINE_MEDIA_SDP_CONFIG_SET_H
#define KV_ENGINE_MEDIA_SDP_CONFIG_SET_H

#include "foundation/export.h"
#include "foundation/record_ptr.h"
#include "media/sdp_config.h"

namespace Korvane {
namespace Media {

struct SdpConfigSetPrivate;

struct KV_ENGINE_API SdpConfigSet {
  SdpConfigSet();

  // Arguments are kept by their position: the type that one states is neither checked nor changed,
  // so an audio endpoint given first is found as video_sdp().
  SdpConfigSet(SdpConfig video);
  SdpConfigSet(SdpConfig video, SdpConfig audio);
  SdpConfigSet(SdpConfig video, SdpConfig audio, SdpConfig anc);

  SdpConfigSet(const SdpConfigSet& other);
  SdpConfigSet& operator=(const SdpConfigSet& other);
  ~SdpConfigSet();

  // The endpoints themselves, to be changed by assigning to them, also those of a const set. Valid
  // until another set is assigned to this one or it ends.
  SdpConfig& video_sdp() const;
  SdpConfig& audio_sdp() const;
  SdpConfig& anc_sdp() const;

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<SdpConfigSetPrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_SDP_CONFIG_SET_H
