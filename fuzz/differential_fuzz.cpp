// Timecodes under any arithmetic against counting the plain way and against libavutil. Compared at
// the end: each beginning of a sequence is a sequence too.

extern "C" {
#include <libavutil/timecode.h>
}

#include "input.h"
#include "support/naive_timecode.h"
#include "timecode/timecode_utils.h"

namespace {

using Korvane::expect;
using Korvane::Input;
using Korvane::Timecode;
namespace Naive = Korvane::Naive;

struct Way {
  explicit Way(const Naive::Counting& way) : counting(way), minutes(way) {
    const AVRational rate =
        counting.drop ? AVRational{counting.rate * 1000, 1001} : AVRational{counting.rate, 1};
    const unsigned int drop = counting.drop ? AV_TIMECODE_FLAG_DROPFRAME : 0;
    expect(av_timecode_init(&reference, rate, static_cast<int>(drop), 0, nullptr) == 0);
  }

  Naive::Counting counting;
  Naive::Minutes minutes;
  AVTimecode reference = {};
};

const Way& way_of(unsigned int number) {
  static const std::vector<Way> ways(std::begin(Naive::kCountings), std::end(Naive::kCountings));
  return ways[number % ways.size()];
}

void check_against_libavutil(const Way& way, const Timecode& timecode) {
  const auto frame = static_cast<int>(timecode.absolute_frame_count());
  char text[AV_TIMECODE_STR_SIZE];
  av_timecode_make_string(&way.reference, text, frame);
  expect(timecode.c_str(Timecode::DropFrameSemicolon, Timecode::FieldMarkFullRateFrames) ==
         std::string(text));
  expect(timecode.to_12m() ==
         Naive::bytes_reversed(av_timecode_get_smpte_from_framenum(&way.reference, frame)));
}

void check(const Way& way, const Naive::Frame& frame, const Timecode& timecode) {
  const Naive::Counting& counting = way.counting;
  expect(Naive::same(counting, frame, timecode));
  // By and by all ways to print, one for each frame.
  const auto indication = static_cast<Timecode::FieldMarkIndication>(frame.absolute % 4);
  const auto drop = static_cast<Timecode::DropFrameIndication>(frame.label.seconds % 2);
  const std::string text = Naive::text_of(counting, frame.label, drop, indication);
  expect(text == timecode.c_str(drop, indication));
  expect(std::wstring(text.begin(), text.end()) == timecode.text(drop, indication));
  expect(Naive::word32_of(counting, frame.label) == timecode.to_12m());
  expect(Naive::word64_of(counting, frame.label) == timecode.to_12m_full());
  check_against_libavutil(way, timecode);
}

// Reading what the naive way writes gives the frame within its day.
void check_reading(const Way& way, Naive::Frame frame) {
  frame.count = frame.absolute;
  frame.days = 0;
  const unsigned short rate = way.counting.rate;
  const auto indication = static_cast<Timecode::FieldMarkIndication>(frame.label.seconds % 2);
  const std::string text =
      Naive::text_of(way.counting, frame.label, Timecode::DropFrameSemicolon, indication);
  expect(Naive::same(way.counting, frame,
                     Korvane::TimecodeUtils::load_timecode_from_string(
                         rate, text.c_str(), Timecode::DropFrameSemicolon, indication)));
  expect(Naive::same(way.counting, frame,
                     Timecode(rate, Naive::word32_of(way.counting, frame.label))));
}

long long wrapped_sum(long long count, Naive::Int128 more) {
  return Naive::wrapped(static_cast<Naive::Int128>(count) + more);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const Way& way = way_of(input.take<std::uint8_t>());
  const Naive::Counting& counting = way.counting;
  auto count = input.take<long long>();
  if (input.take_bool()) count %= counting.frames_per_day * 3;
  Timecode timecode(counting.rate, count, counting.drop);
  while (input.has_operation()) {
    switch (input.take_below(6)) {
      case 0:
        ++timecode;
        count = wrapped_sum(count, 1);
        break;
      case 1:
        --timecode;
        count = wrapped_sum(count, -1);
        break;
      case 2: {
        const auto days = input.take<int>();
        timecode.add_days(days);
        count = wrapped_sum(count, static_cast<Naive::Int128>(days) * counting.frames_per_day);
        break;
      }
      case 3: {  // a copy has lost its days; the next step finds them again
        timecode = Timecode(timecode);
        expect(timecode.days() == 0 && timecode.frame_count() == count);
        timecode.add(0);
        break;
      }
      default: {
        const auto frames = input.take_bool() ? input.take<long long>() : input.take<short>();
        timecode.add(frames);
        count = wrapped_sum(count, frames);
      }
    }
  }
  const Naive::Frame frame = way.minutes.frame_at(count);
  check(way, frame, timecode);
  check_reading(way, frame);
  return 0;
}
