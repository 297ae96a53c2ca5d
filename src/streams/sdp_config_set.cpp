#include "media/sdp_config_set.h"

namespace Korvane::Media {

struct SdpConfigSetPrivate {
  SdpConfig video;
  SdpConfig audio;
  SdpConfig anc;
};

SdpConfigSet::SdpConfigSet() : SdpConfigSet(SdpVideo, SdpAudio, SdpAnc) {}

// The signatures with values are published.
// NOLINTBEGIN(performance-unnecessary-value-param)
SdpConfigSet::SdpConfigSet(SdpConfig video) : SdpConfigSet(video, SdpAudio, SdpAnc) {}

SdpConfigSet::SdpConfigSet(SdpConfig video, SdpConfig audio) : SdpConfigSet(video, audio, SdpAnc) {}

SdpConfigSet::SdpConfigSet(SdpConfig video, SdpConfig audio, SdpConfig anc)
    : private_(new SdpConfigSetPrivate{video, audio, anc}) {}
// NOLINTEND(performance-unnecessary-value-param)

SdpConfigSet::SdpConfigSet(const SdpConfigSet& other) = default;

SdpConfigSet& SdpConfigSet::operator=(const SdpConfigSet& other) = default;

SdpConfigSet::~SdpConfigSet() = default;

SdpConfig& SdpConfigSet::video_sdp() const { return private_->video; }

SdpConfig& SdpConfigSet::audio_sdp() const { return private_->audio; }

SdpConfig& SdpConfigSet::anc_sdp() const { return private_->anc; }

}  // namespace Korvane::Media
