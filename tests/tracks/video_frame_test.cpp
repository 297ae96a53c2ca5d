#include "media/video_frame.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <new>
#include <type_traits>
#include <utility>

#include "support/allocations.h"
#include "support/watched.h"

namespace Korvane::Media {
namespace {

static_assert(sizeof(VideoFrame) == 4 + sizeof(ImageInfo) + sizeof(MediaSampleSharedPtr));
static_assert(std::is_standard_layout_v<VideoFrame>);
static_assert(offsetof(VideoFrame, number) == 0);
static_assert(offsetof(VideoFrame, image) == 4);
static_assert(offsetof(VideoFrame, sample) == 24);
static_assert(!std::is_nothrow_move_constructible_v<VideoFrame>, "moving copies");

ImageInfo image_of_sample() { return {1920, 1080, true, V210, static_cast<Colorimetry>(9)}; }

void expect_picture(unsigned int number, const MediaSample* sample, const VideoFrame& frame) {
  EXPECT_EQ(number, frame.number);
  EXPECT_EQ(1920U, frame.image.width);
  EXPECT_EQ(1080U, frame.image.height);
  EXPECT_TRUE(frame.image.interlaced);
  EXPECT_EQ(V210, frame.image.colorspace);
  EXPECT_EQ(9U, static_cast<unsigned int>(frame.image.colorimetry));
  EXPECT_EQ(sample, frame.sample.get());
}

TEST(VideoFrame, HasNothingAtFirst) {
  const VideoFrame frame;
  EXPECT_EQ(0U, frame.number);
  EXPECT_EQ(0U, frame.image.width);
  EXPECT_EQ(0U, frame.image.height);
  EXPECT_FALSE(frame.image.interlaced);
  EXPECT_EQ(ColorspaceUndefined, frame.image.colorspace);
  EXPECT_EQ(ColorimetryUnspecified, frame.image.colorimetry);
  EXPECT_EQ(nullptr, frame.sample.get());
}

TEST(VideoFrame, SharesTheSampleOfItsMaker) {
  Watch watch;
  {
    MediaSampleSharedPtr sample(new WatchedSample(watch));
    const VideoFrame frame(sample, image_of_sample(), 0xFFFFFFFFU);
    expect_picture(0xFFFFFFFFU, sample.get(), frame);
    sample.reset();
    EXPECT_EQ(1, watch.alive());
  }
  EXPECT_EQ(0, watch.alive());
}

TEST(VideoFrame, CopiesShareTheSample) {
  Watch watch;
  {
    const VideoFrame source(MediaSampleSharedPtr(new WatchedSample(watch)), image_of_sample(), 7);
    const VideoFrame copy(source);
    expect_picture(7, source.sample.get(), copy);
    VideoFrame target(MediaSampleSharedPtr(new WatchedSample(watch)), ImageInfo(), 8);
    EXPECT_EQ(2, watch.alive());
    target = source;
    EXPECT_EQ(1, watch.alive());
    expect_picture(7, source.sample.get(), target);
  }
  EXPECT_EQ(0, watch.alive());
}

TEST(VideoFrame, AMovedFromFrameStillHoldsItsSample) {
  Watch watch;
  {
    VideoFrame source(MediaSampleSharedPtr(new WatchedSample(watch)), image_of_sample(), 7);
    const MediaSample* const sample = source.sample.get();
    const VideoFrame built(std::move(source));
    expect_picture(7, sample, built);
    expect_picture(7, sample, source);  // NOLINT(bugprone-use-after-move)
    VideoFrame assigned;
    assigned = std::move(source);
    expect_picture(7, sample, assigned);
    expect_picture(7, sample, source);  // NOLINT(bugprone-use-after-move)
  }
  EXPECT_EQ(0, watch.alive());
}

TEST(VideoFrame, AssignmentToItselfChangesNothing) {
  Watch watch;
  VideoFrame frame(MediaSampleSharedPtr(new WatchedSample(watch)), image_of_sample(), 7);
  const MediaSample* const sample = frame.sample.get();
  const VideoFrame& itself = frame;
  frame = itself;
  expect_picture(7, sample, frame);
  EXPECT_EQ(0, watch.destroyed);
}

TEST(VideoFrame, WithoutMemoryAnAssignmentLeavesAFrameWithoutASample) {
  Watch watch;
  const VideoFrame source(MediaSampleSharedPtr(new WatchedSample(watch)), image_of_sample(), 7);
  VideoFrame target(MediaSampleSharedPtr(new WatchedSample(watch)), ImageInfo(), 8);
  {
    const Allocations::Failure failure(1);
    EXPECT_THROW(target = source, std::bad_alloc);
  }
  expect_picture(7, nullptr, target);
  EXPECT_EQ(1, watch.alive());
  target = source;
  expect_picture(7, source.sample.get(), target);
}

}  // namespace
}  // namespace Korvane::Media
