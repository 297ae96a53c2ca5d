// Is told of storages that ask for credentials. Implemented by the host and registered with
// StorageAuthenticationSingleton.

#ifndef KV_ENGINE_FOUNDATION_I_STORAGE_AUTHENTICATION_H
#define KV_ENGINE_FOUNDATION_I_STORAGE_AUTHENTICATION_H

#include "foundation/export.h"

namespace Korvane {

class KV_ENGINE_API IStorageAuthentication {
 public:
  IStorageAuthentication();
  IStorageAuthentication(const IStorageAuthentication& other);
  IStorageAuthentication& operator=(const IStorageAuthentication& other);
  virtual ~IStorageAuthentication();

  // Authenticates against `storage` (UTF-16, zero-terminated, valid during the call).
  virtual void authenticate_storage(const wchar_t* storage) = 0;
};

}  // namespace Korvane
#endif  // KV_ENGINE_FOUNDATION_I_STORAGE_AUTHENTICATION_H
