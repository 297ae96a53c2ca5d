#include "foundation/storage_authentication_singleton.h"

#include <atomic>

#include "foundation/lazy_instance.h"

namespace Korvane {
namespace {

LazyInstance<StorageAuthenticationSingleton> the_authentication;

}  // namespace

struct StorageAuthenticationSingletonPrivate {
  std::atomic<IStorageAuthentication*> listener{nullptr};
};

StorageAuthenticationSingleton& StorageAuthenticationSingleton::instance() {
  return the_authentication.get([] { return new StorageAuthenticationSingleton; });
}

StorageAuthenticationSingleton::StorageAuthenticationSingleton()
    : private_(new StorageAuthenticationSingletonPrivate) {}

StorageAuthenticationSingleton::StorageAuthenticationSingleton(
    const StorageAuthenticationSingleton& other) = default;

StorageAuthenticationSingleton& StorageAuthenticationSingleton::operator=(
    const StorageAuthenticationSingleton& other) = default;

StorageAuthenticationSingleton::~StorageAuthenticationSingleton() { delete private_; }

void StorageAuthenticationSingleton::set_storage_authentication_listener(
    IStorageAuthentication* listener) const {
  private_->listener = listener;
}

void StorageAuthenticationSingleton::authenticate_storage(const wchar_t* storage) {
  if (IStorageAuthentication* const listener = private_->listener)
    listener->authenticate_storage(storage);
}

}  // namespace Korvane
