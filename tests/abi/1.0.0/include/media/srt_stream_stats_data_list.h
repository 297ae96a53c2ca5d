// Statistics samples of SRT connections, in the order in which they were added. The list holds
// copies of its own. A value: copies are deep and independent. Not synchronised.

#ifndef KV_ENGINE_MEDIA_SRT_STREAM_STATS_DATA_LIST_H
#define KV_ENGINE_MEDIA_SRT_STREAM_STATS_DATA_LIST_H

#include "foundation/export.h"
#include "foundation/record_ptr.h"
#include "foundation/types.h"
#include "media/srt_stream_stats_data.h"

namespace Korvane {
namespace Media {

struct SRTStreamStatsDataListPrivate;

class KV_ENGINE_API SRTStreamStatsDataList {
 public:
  // Empty.
  SRTStreamStatsDataList();

  SRTStreamStatsDataList(const SRTStreamStatsDataList& other);
  SRTStreamStatsDataList& operator=(const SRTStreamStatsDataList& other);
  ~SRTStreamStatsDataList();

  // Appends a copy.
  void add_value(SRTStreamStatsData value);

  size_t size() const;

  // Null when `index`, counted from 0, is not below the size. Otherwise valid until the next
  // add_value, an assignment or the end of the list.
  const SRTStreamStatsData* value_at(size_t index) const;

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<SRTStreamStatsDataListPrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_SRT_STREAM_STATS_DATA_LIST_H
