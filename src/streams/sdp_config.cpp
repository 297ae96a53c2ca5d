#include "media/sdp_config.h"

#include <string>

#include "foundation/required_text.h"

namespace Korvane::Media {

struct SdpConfigPrivate {
  SdpType type;
  std::wstring ip_address;
  int port;
};

SdpConfig::SdpConfig(SdpType type) : private_(new SdpConfigPrivate{type, {}, 0}) {}

SdpConfig::SdpConfig(SdpType type, const wchar_t* ip_address, int port)
    : private_(new SdpConfigPrivate{type, required_text(ip_address), port}) {}

SdpConfig::SdpConfig(const SdpConfig& other) = default;

SdpConfig& SdpConfig::operator=(const SdpConfig& other) = default;

SdpConfig::~SdpConfig() = default;

SdpType SdpConfig::type() { return private_->type; }

int SdpConfig::port() const { return private_->port; }

const wchar_t* SdpConfig::ip_address() const { return private_->ip_address.c_str(); }

bool SdpConfig::operator==(const SdpConfig& other) {
  return private_->port == other.private_->port &&
         private_->ip_address == other.private_->ip_address &&
         private_->type == other.private_->type;
}

bool SdpConfig::operator!=(const SdpConfig& other) { return !(*this == other); }

}  // namespace Korvane::Media
