// Holds the UMIDs (SMPTE ST 330) of the packages that a piece of material consists of, and the name
// of the tape that it came from. What was set cannot be removed. Not copyable, not synchronised. A
// setter that finds no memory leaves everything as it was.

#ifndef KV_ENGINE_MEDIA_SOURCE_INFO_H
#define KV_ENGINE_MEDIA_SOURCE_INFO_H

#include "foundation/export.h"
#include "foundation/record_ptr.h"
#include "media/i_umid_info.h"

namespace Korvane {
namespace Media {

struct SourceInfoPrivate;

class KV_ENGINE_API SourceInfo : public IUmidInfo {
 public:
  // Without identifiers, the tape name empty.
  SourceInfo(IUmidInfo::UmidKind kind);

  SourceInfo(const SourceInfo&) = delete;
  SourceInfo& operator=(const SourceInfo&) = delete;
  ~SourceInfo() override;

  // As given at construction. Published without const.
  UmidKind umid_kind() override;

  // Null while none was set, otherwise valid until the same one is set again or this object ends. A
  // setter keeps a copy of `id`, which may be the one that is held.
  KV_ENGINE_SLOTS(const Umid* tape_mob_id() const override,
                  void tape_mob_id(const Umid& id) override);
  KV_ENGINE_SLOTS(const Umid* master_mob_id() const override,
                  void master_mob_id(const Umid& id) override);
  KV_ENGINE_SLOTS(const Umid* source_mob_id() const override,
                  void source_mob_id(const Umid& id) override);

  // Whether that identifier was set.
  bool has_tape_mob_id() const;
  bool has_master_mob_id() const;
  bool has_source_mob_id() const;

  // Keeps a copy. Raises InvalidArgument "Text must not be null".
  void tape_name(const wchar_t* name);

  // Valid until the name is set again or this object ends.
  const wchar_t* tape_name() const;

  // Whether the name is not empty; one that was set to an empty text does not count.
  bool has_tape_name() const;

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::SoleRecordPtr<SourceInfoPrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_SOURCE_INFO_H
