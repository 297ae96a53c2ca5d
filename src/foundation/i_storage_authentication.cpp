#include "foundation/i_storage_authentication.h"

namespace Korvane {

IStorageAuthentication::IStorageAuthentication() = default;

IStorageAuthentication::IStorageAuthentication(const IStorageAuthentication&) = default;

IStorageAuthentication& IStorageAuthentication::operator=(const IStorageAuthentication&) = default;

IStorageAuthentication::~IStorageAuthentication() = default;

}  // namespace Korvane
