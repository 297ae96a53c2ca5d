#include "media/i_provider_ctrl.h"

namespace Korvane::Media {

IProviderCtrl::IProviderCtrl() = default;

IProviderCtrl::IProviderCtrl(const IProviderCtrl&) = default;

IProviderCtrl& IProviderCtrl::operator=(const IProviderCtrl&) = default;

IProviderCtrl::~IProviderCtrl() = default;

}  // namespace Korvane::Media
