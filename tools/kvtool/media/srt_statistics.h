// The statistics of an SRT connection as a table.

#ifndef KV_TOOLS_KVTOOL_MEDIA_SRT_STATISTICS_H
#define KV_TOOLS_KVTOOL_MEDIA_SRT_STATISTICS_H

#include "media/srt_stream_stats_data.h"
#include "table.h"

namespace Korvane::Tool {

// A column for each field, by its name; no rows.
Table srt_table();
std::vector<Cell> srt_row(const Media::SRTStreamStatsData& sample);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_MEDIA_SRT_STATISTICS_H
