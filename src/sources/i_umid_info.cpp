#include "media/i_umid_info.h"

namespace Korvane::Media {

IUmidInfo::IUmidInfo() = default;

IUmidInfo::IUmidInfo(const IUmidInfo& /*other*/) {}

// NOLINTNEXTLINE(bugprone-unhandled-self-assignment): there is nothing to assign
IUmidInfo& IUmidInfo::operator=(const IUmidInfo& /*other*/) { return *this; }

IUmidInfo::~IUmidInfo() = default;

}  // namespace Korvane::Media
