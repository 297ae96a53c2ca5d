// A list of unsigned values in the order in which they were added. A value: copies are deep and
// independent. Not synchronised.

#ifndef KV_ENGINE_FOUNDATION_UINT_LIST_H
#define KV_ENGINE_FOUNDATION_UINT_LIST_H

#include "foundation/export.h"
#include "foundation/record_ptr.h"
#include "foundation/types.h"

namespace Korvane {
namespace Media {

struct UIntListPrivate;

class KV_ENGINE_API UIntList {
 public:
  // Empty.
  UIntList();

  UIntList(const UIntList& other);
  UIntList& operator=(const UIntList& other);
  ~UIntList();

  // Appends; equal values are kept beside each other.
  void add_value(unsigned int value);

  size_t size() const;

  // Null when `index` is not below size(). Valid until the next add_value, an assignment or the end
  // of the list.
  const unsigned int* value_at(size_t index) const;

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<UIntListPrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_FOUNDATION_UINT_LIST_H
