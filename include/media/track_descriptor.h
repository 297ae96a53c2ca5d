// What is known of one track of essence: the part that every kind of track has, and the base of the
// picture, sound, data and compound descriptors. A value: copies are deep and independent. Not
// synchronised.
//
// An attribute that was never set is absent, which is another state than zero: its getter gives
// null. Otherwise the getter gives a pointer to the stored value, through which the value may be
// changed; the pointer is valid until the same attribute is set again, the descriptor is assigned
// to, or it ends. Setters store any value unchecked. A setter that finds no memory leaves the
// descriptor as it was; an assignment that finds none leaves the attributes of the derived class,
// and those of this one, all old or all new.

#ifndef KV_ENGINE_MEDIA_TRACK_DESCRIPTOR_H
#define KV_ENGINE_MEDIA_TRACK_DESCRIPTOR_H

#include "foundation/export.h"
#include "foundation/rational32.h"
#include "foundation/record_ptr.h"
#include "foundation/virtual_slots.h"
#include "media/track_descriptor_essence_kind.h"

namespace Korvane {
namespace Media {

struct TrackDescriptorPrivate;

class KV_ENGINE_API TrackDescriptor {
 public:
  // Essence kind EssenceNone, every attribute absent, no key.
  TrackDescriptor();

  TrackDescriptor(const TrackDescriptor& other);
  TrackDescriptor& operator=(const TrackDescriptor& other);
  virtual ~TrackDescriptor();

  // Never absent.
  KV_ENGINE_SLOTS(virtual void essence_kind(TrackDescriptorEssenceKind value),
                  virtual TrackDescriptorEssenceKind essence_kind() const);

  // The number that tells the tracks of one source apart; samples name their track by it.
  KV_ENGINE_SLOTS(virtual void track_id(unsigned int value),
                  virtual unsigned int* track_id() const);

  // Samples per second of the track: for pictures the frame rate.
  KV_ENGINE_SLOTS(virtual void sample_rate(Rational32 value),
                  virtual Rational32* sample_rate() const);

  // Carried for the engine, which gives it its meaning.
  KV_ENGINE_SLOTS(virtual void pre_charge(unsigned int value),
                  virtual unsigned int* pre_charge() const);

  // Carried for the engine, which gives it its meaning.
  KV_ENGINE_SLOTS(virtual void private_data(int value), virtual int* private_data() const);

  // A new deep copy of the same dynamic type, owned by the caller, who deletes it.
  virtual TrackDescriptor* clone() const = 0;

  // Keeps copies of both texts, compared byte by byte. The first value under a key stays: a later
  // one is ignored, and none can be removed. Neither may be null.
  virtual void add_key_value(const char* key, const char* value);

  // Null when there is no such key. Otherwise valid until the descriptor is assigned to or ends.
  // `key` may not be null.
  virtual const char* get_key_value(const char* key) const;

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<TrackDescriptorPrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_TRACK_DESCRIPTOR_H
