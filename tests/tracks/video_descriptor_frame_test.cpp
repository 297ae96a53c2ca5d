#include "media/video_descriptor_frame.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <type_traits>
#include <utility>

#include "media/data_track_descriptor.h"

namespace Korvane::Media {
namespace {

static_assert(sizeof(VideoDescriptorFrame) == 2 * sizeof(void*));
static_assert(std::is_standard_layout_v<VideoDescriptorFrame>);
static_assert(!std::is_default_constructible_v<VideoDescriptorFrame>);
static_assert(offsetof(VideoDescriptorFrame, number) == 0);
static_assert(offsetof(VideoDescriptorFrame, descriptor) == sizeof(void*));

TEST(VideoDescriptorFrame, CopiesAndMovesShareTheDescriptor) {
  const DataTrackDescriptor track;
  VideoDescriptorFrame source(0xFFFFFFFFU, &track);
  EXPECT_EQ(0xFFFFFFFFU, source.number);
  EXPECT_EQ(&track, source.descriptor);
  const VideoDescriptorFrame copy(source);
  EXPECT_EQ(0xFFFFFFFFU, copy.number);
  EXPECT_EQ(&track, copy.descriptor);
  VideoDescriptorFrame target(1, nullptr);
  EXPECT_EQ(nullptr, target.descriptor);
  target = source;
  EXPECT_EQ(0xFFFFFFFFU, target.number);
  EXPECT_EQ(&track, target.descriptor);
  VideoDescriptorFrame moved(2, nullptr);
  moved = std::move(source);
  EXPECT_EQ(0xFFFFFFFFU, moved.number);
  EXPECT_EQ(&track, moved.descriptor);
  EXPECT_EQ(&track, source.descriptor);  // NOLINT(bugprone-use-after-move)
}

TEST(VideoDescriptorFrame, LeavesTheDescriptorAlone) {
  auto* const track = new DataTrackDescriptor;
  { const VideoDescriptorFrame frame(1, track); }
  track->track_id(5);
  EXPECT_EQ(5U, *track->track_id());
  delete track;
}

}  // namespace
}  // namespace Korvane::Media
