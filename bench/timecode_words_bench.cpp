// Words of SMPTE ST 12-1 at 30 drop-frame.

#include <ltc.h>

#include <cstring>

extern "C" {
#include <libavutil/timecode.h>
}

#include "side.h"
#include "timecode/timecode.h"

namespace Korvane {
namespace {

constexpr int kSomeCount = 1234567;

AVTimecode av_timecode() {
  AVTimecode timecode;
  av_timecode_init(&timecode, {30000, 1001}, AV_TIMECODE_FLAG_DROPFRAME, 0, nullptr);
  return timecode;
}

const bool kWord32[] = {
    measure("to_12m/ours",
            [timecode = Timecode(30, kSomeCount, true)] { return timecode.to_12m(); }),
    measure("to_12m/libavutil",
            [timecode = av_timecode(), number = kSomeCount]() mutable {
              benchmark::DoNotOptimize(number);
              return av_timecode_get_smpte_from_framenum(&timecode, number);
            }),
};

const bool kWord64[] = {
    measure("to_12m_full/ours",
            [timecode = Timecode(30, kSomeCount, true)] { return timecode.to_12m_full(); }),
    measure("to_12m_full/libltc",
            [label =
                 [] {
                   SMPTETimecode label{};
                   label.hours = 11;
                   label.mins = 26;
                   label.secs = 33;
                   label.frame = 21;
                   return label;
                 }()]() mutable {
              LTCFrame frame;
              std::memset(&frame, 0, sizeof frame);
              frame.dfbit = 1;
              ltc_time_to_frame(&frame, &label, LTC_TV_525_60, 0);
              unsigned long long word = 0;
              std::memcpy(&word, &frame, sizeof word);
              return word;
            }),
};

const bool kWordToText[] = {
    measure("word_to_text/ours",
            [word = Timecode(30, kSomeCount, true).to_12m()]() mutable {
              benchmark::DoNotOptimize(word);
              return Timecode(30, word).c_str(Timecode::DropFrameSemicolon,
                                              Timecode::FieldMarkDotSuffix)[10];
            }),
    measure("word_to_text/libavutil",
            [word =
                 [] {
                   const AVTimecode timecode = av_timecode();
                   return av_timecode_get_smpte_from_framenum(&timecode, kSomeCount);
                 }()]() mutable {
              benchmark::DoNotOptimize(word);
              char text[AV_TIMECODE_STR_SIZE];
              return av_timecode_make_smpte_tc_string2(text, {30000, 1001}, word, 0, 0)[10];
            }),
};

}  // namespace
}  // namespace Korvane
