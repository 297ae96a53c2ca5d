#include "media/st2110_stream_stats_data_list.h"

#include "streams/sample_list_record.h"

namespace Korvane::Media {

struct ST2110StreamStatsDataListPrivate : SampleListRecord<ST2110StreamStatsData> {};

ST2110StreamStatsDataList::ST2110StreamStatsDataList()
    : private_(new ST2110StreamStatsDataListPrivate) {}

ST2110StreamStatsDataList::ST2110StreamStatsDataList(const ST2110StreamStatsDataList& other) =
    default;

ST2110StreamStatsDataList& ST2110StreamStatsDataList::operator=(
    const ST2110StreamStatsDataList& other) = default;

ST2110StreamStatsDataList::~ST2110StreamStatsDataList() = default;

// Published with a value. NOLINTNEXTLINE(performance-unnecessary-value-param)
void ST2110StreamStatsDataList::add_value(ST2110StreamStatsData value) { private_->add(value); }

size_t ST2110StreamStatsDataList::size() const { return private_->size(); }

const ST2110StreamStatsData* ST2110StreamStatsDataList::value_at(size_t index) const {
  return private_->find(index);
}

}  // namespace Korvane::Media
