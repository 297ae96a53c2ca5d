// Tells which UMIDs (SMPTE ST 330) a piece of material carries: those of its master, source and
// tape packages (SMPTE ST 377-1), whose identifiers AAF calls mob ids. Implemented by whoever holds
// them.

#ifndef KV_ENGINE_MEDIA_I_UMID_INFO_H
#define KV_ENGINE_MEDIA_I_UMID_INFO_H

#include "foundation/export.h"
#include "foundation/virtual_slots.h"

namespace Korvane {
namespace Media {

class Umid;

class KV_ENGINE_API IUmidInfo {
 public:
  // Of what kind the identifiers are. The values are known to the engine alone.
  enum UmidKind : unsigned int {};

  IUmidInfo();
  IUmidInfo(const IUmidInfo& other);
  IUmidInfo& operator=(const IUmidInfo& other);
  virtual ~IUmidInfo();

  // Published without const.
  virtual UmidKind umid_kind() = 0;

  // Each is null while none was set, and otherwise valid until the same one is set again or this
  // object ends. A setter keeps a copy of `id`.
  KV_ENGINE_SLOTS(virtual const Umid* tape_mob_id() const = 0,
                  virtual void tape_mob_id(const Umid& id) = 0);
  KV_ENGINE_SLOTS(virtual const Umid* master_mob_id() const = 0,
                  virtual void master_mob_id(const Umid& id) = 0);
  KV_ENGINE_SLOTS(virtual const Umid* source_mob_id() const = 0,
                  virtual void source_mob_id(const Umid& id) = 0);
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_I_UMID_INFO_H
