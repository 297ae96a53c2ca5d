// Statistics samples of SMPTE ST 2110 streams, in the order in which they were added. The list
// holds copies of its own. A value: copies are deep and independent. Not synchronised.

#ifndef KV_ENGINE_MEDIA_ST2110_STREAM_STATS_DATA_LIST_H
#define KV_ENGINE_MEDIA_ST2110_STREAM_STATS_DATA_LIST_H

#include "foundation/export.h"
#include "foundation/record_ptr.h"
#include "foundation/types.h"
#include "media/st2110_stream_stats_data.h"

namespace Korvane {
namespace Media {

struct ST2110StreamStatsDataListPrivate;

class KV_ENGINE_API ST2110StreamStatsDataList {
 public:
  // Empty.
  ST2110StreamStatsDataList();

  ST2110StreamStatsDataList(const ST2110StreamStatsDataList& other);
  ST2110StreamStatsDataList& operator=(const ST2110StreamStatsDataList& other);
  ~ST2110StreamStatsDataList();

  // Appends a copy.
  void add_value(ST2110StreamStatsData value);

  size_t size() const;

  // Null when `index`, counted from 0, is not below the size. Otherwise valid until the next
  // add_value, an assignment or the end of the list.
  const ST2110StreamStatsData* value_at(size_t index) const;

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<ST2110StreamStatsDataListPrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_ST2110_STREAM_STATS_DATA_LIST_H
