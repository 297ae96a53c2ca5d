// A line of a dashboard for each statistics sample of an SRT connection. With libsrt's header the
// samples are read from its statistics by ext/srt.h; a receiver would get them from srt_bstats.

#include <algorithm>
#include <cstdio>

#include "ext/ranges.h"
#include "ext/srt.h"

namespace {

namespace Media = Korvane::Media;

struct Figures {
  long long milliseconds;
  int received, lost;
  double rtt, megabits;
};

#if defined(KV_ENGINE_EXT_HAS_SRT)
Media::SRTStreamStatsData sample_of(const Figures& figures) {
  SRT_TRACEBSTATS counters{};
  counters.msTimeStamp = figures.milliseconds;
  counters.pktRecvTotal = figures.received;
  counters.pktRcvLossTotal = figures.lost;
  counters.msRTT = figures.rtt;
  counters.mbpsRecvRate = figures.megabits;
  return Korvane::Ext::from_srt(counters);
}
#else
Media::SRTStreamStatsData sample_of(const Figures& figures) {
  Media::SRTStreamStatsData sample;
  sample.timestamp(static_cast<unsigned long long>(figures.milliseconds));
  sample.packets_received(static_cast<unsigned long long>(figures.received));
  sample.packets_lost(static_cast<unsigned long long>(figures.lost));
  sample.ms_rtt(figures.rtt);
  sample.bitrate(figures.megabits);
  return sample;
}
#endif

void print_line(const Media::SRTStreamStatsData& sample) {
  const double packets = static_cast<double>(sample.packets_received() + sample.packets_lost());
  const double lost = 100.0 * static_cast<double>(sample.packets_lost()) / std::max(1.0, packets);
  std::printf("%4llu s  %6.2f Mb/s  rtt %5.1f ms  lost %5.2f %%%s\n", sample.timestamp() / 1000,
              sample.bitrate(), sample.ms_rtt(), lost, lost > 1 ? "  !" : "");
}

}  // namespace

int main() {
  Media::SRTStreamStatsDataList samples;
  samples.add_value(sample_of({5000, 4750, 0, 20.5, 10.01}));
  samples.add_value(sample_of({10000, 9400, 100, 35.3, 9.8}));
  for (const Media::SRTStreamStatsData& sample : samples) print_line(sample);
}
