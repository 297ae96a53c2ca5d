// Where modules that never meet the host tell it of further processes.
//
// instance() may be called from any thread. Registering and forwarding take no lock: a handler that
// is replaced while a call is forwarded may still receive that one call.

#ifndef KV_ENGINE_FOUNDATION_ADDITIONAL_PROCESS_HANDLER_SINGLETON_H
#define KV_ENGINE_FOUNDATION_ADDITIONAL_PROCESS_HANDLER_SINGLETON_H

#include "foundation/export.h"
#include "foundation/i_additional_process_handler.h"

namespace Korvane {

struct AdditionalProcessHandlerSingletonPrivate;

class KV_ENGINE_API AdditionalProcessHandlerSingleton : public IAdditionalProcessHandler {
 public:
  // Created on the first call; lives until the process ends.
  static AdditionalProcessHandlerSingleton& instance();

  // A copy shares the registration, and its end frees what the instance still uses: published so,
  // and best left alone.
  AdditionalProcessHandlerSingleton(const AdditionalProcessHandlerSingleton& other);
  AdditionalProcessHandlerSingleton& operator=(const AdditionalProcessHandlerSingleton& other);
  ~AdditionalProcessHandlerSingleton() override;

  // Registers `listener` in place of an earlier one, without owning it: it must live until another
  // or null is registered.
  void set_handler_listener(IAdditionalProcessHandler* listener) const;

  // Passes `process` on to the registered listener; does nothing when there is none.
  void set_new_process(int process) override;

 private:
  AdditionalProcessHandlerSingleton();

  AdditionalProcessHandlerSingletonPrivate* private_;  // bare, since copies share it
};

}  // namespace Korvane
#endif  // KV_ENGINE_FOUNDATION_ADDITIONAL_PROCESS_HANDLER_SINGLETON_H
