// Every frame of a day against libavutil. Its text has the frames at full rate; its words are ours
// with the bytes in the other order, field mark and drop-frame flag included.

extern "C" {
#include <libavutil/timecode.h>
}

#include <cstring>

#include "oracles/oracle.h"
#include "timecode/timecode.h"

namespace Korvane {
namespace {

using ::testing::AssertionFailure;
using ::testing::AssertionSuccess;

class LibavutilDay : public ::testing::TestWithParam<Counting> {
 protected:
  void SetUp() override {
    const unsigned int drop = counting_.drop ? AV_TIMECODE_FLAG_DROPFRAME : 0;
    ASSERT_EQ(0,
              av_timecode_init(&reference_, rate_,
                               static_cast<int>(drop | AV_TIMECODE_FLAG_24HOURSMAX), 0, nullptr));
    ASSERT_EQ(counting_.rate, reference_.fps);
  }

  const Counting counting_ = GetParam();
  const AVRational rate_ = real_rate<AVRational>(counting_);
  AVTimecode reference_ = {};
};

int count_of(const Timecode& timecode) { return static_cast<int>(timecode.frame_count()); }

TEST_P(LibavutilDay, Prints) {
  EXPECT_TRUE(each_frame(counting_, [&](const Timecode& timecode) {
    char expected[AV_TIMECODE_STR_SIZE];
    av_timecode_make_string(&reference_, expected, count_of(timecode));
    const char* const text =
        timecode.c_str(Timecode::DropFrameSemicolon, Timecode::FieldMarkFullRateFrames);
    if (std::strcmp(text, expected) != 0) return differs("printing", timecode, expected, text);
    return AssertionSuccess();
  }));
}

TEST_P(LibavutilDay, CountsLabel) {
  const int flags = static_cast<int>(reference_.flags);
  EXPECT_TRUE(each_frame(counting_, [&](const Timecode& timecode) {
    AVTimecode started = {};
    if (av_timecode_init_from_components(&started, rate_, flags, timecode.hours(),
                                         timecode.minutes(), timecode.seconds(),
                                         timecode.frames_ignore_field_mark(), nullptr) != 0)
      return AssertionFailure() << "label refused: " << Naive::show(timecode);
    if (started.start != timecode.frame_count())
      return differs("the label", timecode, started.start, timecode.frame_count());
    return AssertionSuccess();
  }));
}

TEST_P(LibavutilDay, Packs) {
  EXPECT_TRUE(each_frame(counting_, [&](const Timecode& timecode) {
    const unsigned int of_count =
        av_timecode_get_smpte_from_framenum(&reference_, count_of(timecode));
    const unsigned int of_label =
        av_timecode_get_smpte(rate_, counting_.drop ? 1 : 0, timecode.hours(), timecode.minutes(),
                              timecode.seconds(), timecode.frames_ignore_field_mark());
    const unsigned int word = Naive::bytes_reversed(timecode.to_12m());
    if (word != of_count)
      return differs("packing", timecode, Naive::show_word(of_count), Naive::show_word(word));
    if (word != of_label)
      return differs("packing", timecode, Naive::show_word(of_label), Naive::show_word(word));
    return AssertionSuccess();
  }));
}

TEST_P(LibavutilDay, Unpacks) {
  EXPECT_TRUE(each_frame(counting_, [&](const Timecode& timecode) {
    const unsigned int word = av_timecode_get_smpte_from_framenum(&reference_, count_of(timecode));
    const Timecode unpacked(counting_.rate, Naive::bytes_reversed(word));
    if (unpacked.frame_count() != timecode.frame_count())
      return differs("unpacking", timecode, timecode.frame_count(), unpacked.frame_count());
    return AssertionSuccess();
  }));
}

INSTANTIATE_TEST_SUITE_P(, LibavutilDay, ::testing::ValuesIn(Naive::kCountings),
                         [](const auto& tested) { return tested.param.name; });

}  // namespace
}  // namespace Korvane
