// The private record of an exported list of samples of statistics.

#ifndef KV_ENGINE_SRC_STREAMS_SAMPLE_LIST_RECORD_H
#define KV_ENGINE_SRC_STREAMS_SAMPLE_LIST_RECORD_H

#include "foundation/list_record.h"

namespace Korvane::Media {

// Samples own records, so that a list that grows copies and frees each: it has room for two minutes
// of them, one each second, from the first on.
template <typename Sample>
struct SampleListRecord : ListRecord<Sample> {
  void add(const Sample& sample) {
    if (this->values.empty()) this->values.reserve(128);
    ListRecord<Sample>::add(sample);
  }
};

}  // namespace Korvane::Media
#endif  // KV_ENGINE_SRC_STREAMS_SAMPLE_LIST_RECORD_H
