// Starts and stops a source. Both may be called from any thread, also while another one waits for a
// frame; neither raises an error when there is nothing to do.

#ifndef KV_ENGINE_MEDIA_I_PROVIDER_CTRL_H
#define KV_ENGINE_MEDIA_I_PROVIDER_CTRL_H

#include "foundation/export.h"

namespace Korvane {
namespace Media {

class KV_ENGINE_API IProviderCtrl {
 public:
  IProviderCtrl();
  IProviderCtrl(const IProviderCtrl& other);
  IProviderCtrl& operator=(const IProviderCtrl& other);
  virtual ~IProviderCtrl();

  // Lets frames come: a live source begins to capture, a file to be read ahead. Where a source
  // cannot be started, an Exception says why.
  virtual void start() = 0;

  // Ends it: a call that waits for a frame returns with none. The position stays, and start() goes
  // on from there.
  virtual void stop() = 0;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_I_PROVIDER_CTRL_H
