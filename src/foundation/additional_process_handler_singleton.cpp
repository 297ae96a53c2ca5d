#include "foundation/additional_process_handler_singleton.h"

#include <atomic>

#include "foundation/lazy_instance.h"

namespace Korvane {
namespace {

LazyInstance<AdditionalProcessHandlerSingleton> the_handlers;

}  // namespace

struct AdditionalProcessHandlerSingletonPrivate {
  std::atomic<IAdditionalProcessHandler*> listener{nullptr};
};

AdditionalProcessHandlerSingleton& AdditionalProcessHandlerSingleton::instance() {
  return the_handlers.get([] { return new AdditionalProcessHandlerSingleton; });
}

AdditionalProcessHandlerSingleton::AdditionalProcessHandlerSingleton()
    : private_(new AdditionalProcessHandlerSingletonPrivate) {}

AdditionalProcessHandlerSingleton::AdditionalProcessHandlerSingleton(
    const AdditionalProcessHandlerSingleton& other) = default;

AdditionalProcessHandlerSingleton& AdditionalProcessHandlerSingleton::operator=(
    const AdditionalProcessHandlerSingleton& other) = default;

AdditionalProcessHandlerSingleton::~AdditionalProcessHandlerSingleton() { delete private_; }

void AdditionalProcessHandlerSingleton::set_handler_listener(
    IAdditionalProcessHandler* listener) const {
  private_->listener = listener;
}

void AdditionalProcessHandlerSingleton::set_new_process(int process) {
  if (IAdditionalProcessHandler* const listener = private_->listener)
    listener->set_new_process(process);
}

}  // namespace Korvane
