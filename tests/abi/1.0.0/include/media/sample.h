// A block of memory that one module fills and others read.

#ifndef KV_ENGINE_MEDIA_SAMPLE_H
#define KV_ENGINE_MEDIA_SAMPLE_H

#include "foundation/export.h"
#include "foundation/types.h"

namespace Korvane {
namespace Memory {

class KV_ENGINE_API Sample {
 public:
  Sample();
  Sample(const Sample& other);
  Sample& operator=(const Sample& other);
  virtual ~Sample();

  // The first of size() bytes, unchanged as long as the sample lives; null only when there are
  // none.
  virtual const unsigned char* data() const = 0;

  // In bytes.
  virtual size_t size() const = 0;
};

}  // namespace Memory
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_SAMPLE_H
