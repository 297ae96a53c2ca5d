// Where modules that never meet the host tell it of storages that ask for credentials.
//
// instance() may be called from any thread. Registering and forwarding take no lock: a handler that
// is replaced while a call is forwarded may still receive that one call.

#ifndef KV_ENGINE_FOUNDATION_STORAGE_AUTHENTICATION_SINGLETON_H
#define KV_ENGINE_FOUNDATION_STORAGE_AUTHENTICATION_SINGLETON_H

#include "foundation/export.h"
#include "foundation/i_storage_authentication.h"

namespace Korvane {

struct StorageAuthenticationSingletonPrivate;

class KV_ENGINE_API StorageAuthenticationSingleton : public IStorageAuthentication {
 public:
  // Created on the first call; lives until the process ends.
  static StorageAuthenticationSingleton& instance();

  // A copy shares the registration, and its end frees what the instance still uses: published so,
  // and best left alone.
  StorageAuthenticationSingleton(const StorageAuthenticationSingleton& other);
  StorageAuthenticationSingleton& operator=(const StorageAuthenticationSingleton& other);
  ~StorageAuthenticationSingleton() override;

  // Registers `listener` in place of an earlier one, without owning it: it must live until another
  // or null is registered.
  void set_storage_authentication_listener(IStorageAuthentication* listener) const;

  // Passes `storage` on to the registered listener; does nothing when there is none.
  void authenticate_storage(const wchar_t* storage) override;

 private:
  StorageAuthenticationSingleton();

  StorageAuthenticationSingletonPrivate* private_;  // bare, since copies share it
};

}  // namespace Korvane
#endif  // KV_ENGINE_FOUNDATION_STORAGE_AUTHENTICATION_SINGLETON_H
