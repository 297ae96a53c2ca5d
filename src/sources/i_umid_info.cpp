#include "media/i_umid_info.h"

namespace Korvane::Media {

IUmidInfo::IUmidInfo() = default;

IUmidInfo::IUmidInfo(const IUmidInfo& /*other*/) {}

IUmidInfo& IUmidInfo::operator=(const IUmidInfo&) = default;

IUmidInfo::~IUmidInfo() = default;

}  // namespace Korvane::Media
