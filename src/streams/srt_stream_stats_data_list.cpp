#include "media/srt_stream_stats_data_list.h"

#include "streams/sample_list_record.h"

namespace Korvane::Media {

struct SRTStreamStatsDataListPrivate : SampleListRecord<SRTStreamStatsData> {};

SRTStreamStatsDataList::SRTStreamStatsDataList() : private_(new SRTStreamStatsDataListPrivate) {}

SRTStreamStatsDataList::SRTStreamStatsDataList(const SRTStreamStatsDataList& other) = default;

SRTStreamStatsDataList& SRTStreamStatsDataList::operator=(const SRTStreamStatsDataList& other) =
    default;

SRTStreamStatsDataList::~SRTStreamStatsDataList() = default;

// Published with a value. NOLINTNEXTLINE(performance-unnecessary-value-param)
void SRTStreamStatsDataList::add_value(SRTStreamStatsData value) { private_->add(value); }

size_t SRTStreamStatsDataList::size() const { return private_->size(); }

const SRTStreamStatsData* SRTStreamStatsDataList::value_at(size_t index) const {
  return private_->find(index);
}

}  // namespace Korvane::Media
