// Every frame of a day against GStreamer, which steps its own timecode beside ours.

#include <gst/video/gstvideotimecode.h>

#include <memory>
#include <string>

#include "oracles/oracle.h"
#include "timecode/timecode.h"

namespace Korvane {
namespace {

using ::testing::AssertionResult;
using ::testing::AssertionSuccess;

struct Rate {
  int numerator;
  int denominator;
};

struct Release {
  void operator()(GstVideoTimeCode* timecode) const { gst_video_time_code_free(timecode); }
  void operator()(char* text) const { g_free(text); }
};
using Reference = std::unique_ptr<GstVideoTimeCode, Release>;
using Text = std::unique_ptr<char, Release>;

Reference reference_at_zero(const Counting& counting) {
  const Rate rate = real_rate<Rate>(counting);
  return Reference(gst_video_time_code_new(
      static_cast<guint>(rate.numerator), static_cast<guint>(rate.denominator), nullptr,
      counting.drop ? GST_VIDEO_TIME_CODE_FLAGS_DROP_FRAME : GST_VIDEO_TIME_CODE_FLAGS_NONE, 0, 0,
      0, 0, 0));
}

AssertionResult agrees(const GstVideoTimeCode& reference, const Timecode& timecode) {
  if (timecode.hours() != reference.hours)
    return differs("the hour", timecode, reference.hours, +timecode.hours());
  if (timecode.minutes() != reference.minutes)
    return differs("the minute", timecode, reference.minutes, +timecode.minutes());
  if (timecode.seconds() != reference.seconds)
    return differs("the second", timecode, reference.seconds, +timecode.seconds());
  if (timecode.frames_ignore_field_mark() != reference.frames)
    return differs("the frame", timecode, reference.frames, +timecode.frames_ignore_field_mark());
  const auto count = static_cast<long long>(gst_video_time_code_frames_since_daily_jam(&reference));
  if (timecode.absolute_frame_count() != count)
    return differs("the count", timecode, count, timecode.absolute_frame_count());
  return AssertionSuccess();
}

AssertionResult prints_as(const GstVideoTimeCode& reference, const Timecode& timecode) {
  const Text expected(gst_video_time_code_to_string(&reference));
  const std::string text =
      timecode.c_str(Timecode::DropFrameSemicolon, Timecode::FieldMarkFullRateFrames);
  if (text != expected.get()) return differs("printing", timecode, expected.get(), text);
  return AssertionSuccess();
}

// Prime, so that it meets every frame number of a second.
constexpr int kSampleDistance = 97;

bool is_sampled(const Timecode& timecode) {
  const bool at_minute = timecode.seconds() == 0 || timecode.seconds() == 59;
  return at_minute || timecode.frame_count() % kSampleDistance == 0;
}

class GstreamerDay : public ::testing::TestWithParam<Counting> {};

TEST_P(GstreamerDay, StepsUp) {
  const Reference reference = reference_at_zero(GetParam());
  ASSERT_TRUE(gst_video_time_code_is_valid(reference.get()));
  EXPECT_TRUE(each_frame(GetParam(), [&](const Timecode& timecode) {
    AssertionResult result = agrees(*reference, timecode);
    gst_video_time_code_increment_frame(reference.get());
    return result;
  }));
}

TEST_P(GstreamerDay, AddsFramesAndPrints) {
  const Reference zero = reference_at_zero(GetParam());
  EXPECT_TRUE(each_frame(GetParam(), [&](const Timecode& timecode) {
    if (!is_sampled(timecode)) return AssertionSuccess();
    const Reference reference(gst_video_time_code_copy(zero.get()));
    gst_video_time_code_add_frames(reference.get(), timecode.frame_count());
    AssertionResult result = agrees(*reference, timecode);
    return result ? prints_as(*reference, timecode) : result;
  }));
}

INSTANTIATE_TEST_SUITE_P(, GstreamerDay, ::testing::ValuesIn(Naive::kCountings),
                         [](const auto& tested) { return tested.param.name; });

}  // namespace
}  // namespace Korvane
