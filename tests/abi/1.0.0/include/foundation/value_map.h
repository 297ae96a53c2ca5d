// A map from integer keys to integer values. The first value of a key stays. A value: copies are
// deep and independent. Not synchronised.

#ifndef KV_ENGINE_FOUNDATION_VALUE_MAP_H
#define KV_ENGINE_FOUNDATION_VALUE_MAP_H

#include "foundation/export.h"
#include "foundation/record_ptr.h"
#include "foundation/types.h"

namespace Korvane {

struct ValueMapPrivate;

class KV_ENGINE_API ValueMap {
 public:
  // Empty.
  ValueMap();

  ValueMap(const ValueMap& other);
  ValueMap& operator=(const ValueMap& other);
  ~ValueMap();

  // The number of keys.
  size_t size() const;

  // The value of `key`; 0 when there is none, which a stored 0 cannot be told from. Adds nothing.
  int value_for_key(int key) const;

  // Stores `value` for a key that has none yet; otherwise the old value stays and `value` is
  // dropped. Published const, though it changes the map.
  void value_for_key(int key, int value) const;

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<ValueMapPrivate> private_;
};

}  // namespace Korvane
#endif  // KV_ENGINE_FOUNDATION_VALUE_MAP_H
