// Is told of further processes. Implemented by the host and registered with
// AdditionalProcessHandlerSingleton.

#ifndef KV_ENGINE_FOUNDATION_I_ADDITIONAL_PROCESS_HANDLER_H
#define KV_ENGINE_FOUNDATION_I_ADDITIONAL_PROCESS_HANDLER_H

#include "foundation/export.h"

namespace Korvane {

class KV_ENGINE_API IAdditionalProcessHandler {
 public:
  IAdditionalProcessHandler();
  IAdditionalProcessHandler(const IAdditionalProcessHandler& other);
  IAdditionalProcessHandler& operator=(const IAdditionalProcessHandler& other);
  virtual ~IAdditionalProcessHandler();

  // A further process was started. What `process` identifies it by is agreed between the module
  // that tells it and the host.
  virtual void set_new_process(int process) = 0;
};

}  // namespace Korvane
#endif  // KV_ENGINE_FOUNDATION_I_ADDITIONAL_PROCESS_HANDLER_H
