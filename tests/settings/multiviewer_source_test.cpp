#include "media/multiviewer_source.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <type_traits>
#include <utility>

#include "support/raises.h"

namespace Korvane::Media::MultiviewerSourceTests {
namespace {

using Source = MultiviewerSource;

static_assert(sizeof(Source) == 2 * sizeof(void*));
static_assert(std::has_virtual_destructor_v<Source>);
static_assert(!std::is_default_constructible_v<Source>);
// As they were published.
static_assert(std::is_same_v<decltype(&Source::operator==), bool (Source::*)(const Source&)>);
static_assert(std::is_same_v<decltype(&Source::operator!=), bool (Source::*)(const Source&)>);

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kGreatest = std::numeric_limits<int>::max();

void expect_fields(const Source& source, int id, const wchar_t* channel_id, int width, int height,
                   int x_offset, int y_offset, bool use_audio) {
  EXPECT_EQ(id, source.id());
  EXPECT_STREQ(channel_id, source.channel_id());
  EXPECT_EQ(width, source.width());
  EXPECT_EQ(height, source.height());
  EXPECT_EQ(x_offset, source.x_offset());
  EXPECT_EQ(y_offset, source.y_offset());
  EXPECT_EQ(use_audio, source.use_audio());
}

Source filled() { return {1, L"Channel A", 640, 360, 20, 30, true}; }

void expect_filled(const Source& source) {
  expect_fields(source, 1, L"Channel A", 640, 360, 20, 30, true);
}

TEST(MultiviewerSource, KeepsWhatItIsGiven) {
  expect_filled(filled());
  expect_fields(Source(-1, L"", kLeast, kGreatest, -20, -30, false), -1, L"", kLeast, kGreatest,
                -20, -30, false);
}

TEST(MultiviewerSource, KeepsACopyOfTheChannel) {
  std::wstring channel = L"a channel \u00C4 that is too long for a short buffer";
  const std::wstring kept = channel;
  const Source source(1, channel.c_str(), 2, 3, 4, 5, false);
  channel[0] = L'X';
  EXPECT_EQ(kept, source.channel_id());
}

TEST(MultiviewerSource, ANullChannelIsRefused) {
  EXPECT_TRUE(raises(InvalidArgument, "Text must not be null",
                     [] { const Source source(1, nullptr, 2, 3, 4, 5, false); }));
}

TEST(MultiviewerSource, IsEqualWhenEveryFieldIs) {
  Source source = filled();
  Source same = filled();
  EXPECT_TRUE(source == same);
  EXPECT_FALSE(source != same);
  EXPECT_TRUE(source == std::as_const(same));
  EXPECT_FALSE(source != std::as_const(same));
  EXPECT_TRUE(source == std::as_const(source));
}

TEST(MultiviewerSource, DiffersByEveryField) {
  const Source others[] = {
      {2, L"Channel A", 640, 360, 20, 30, true},  {1, L"Channel a", 640, 360, 20, 30, true},
      {1, L"Channel", 640, 360, 20, 30, true},    {1, L"Channel A ", 640, 360, 20, 30, true},
      {1, L"", 640, 360, 20, 30, true},           {1, L"Channel A", 641, 360, 20, 30, true},
      {1, L"Channel A", 640, 361, 20, 30, true},  {1, L"Channel A", 640, 360, 21, 30, true},
      {1, L"Channel A", 640, 360, 20, -30, true}, {1, L"Channel A", 640, 360, 20, 30, false},
      {1, L"Channel A", 360, 640, 20, 30, true},  {1, L"Channel A", 640, 360, 30, 20, true},
  };
  Source source = filled();
  for (std::size_t i = 0; i < std::size(others); ++i) {
    EXPECT_FALSE(source == others[i]) << i;
    EXPECT_TRUE(source != others[i]) << i;
    Source other = others[i];
    EXPECT_FALSE(other == std::as_const(source)) << i;
    EXPECT_FALSE(other == source) << i;
    EXPECT_TRUE(other != source) << i;
  }
}

TEST(MultiviewerSource, CopiesAreDeep) {
  Source original = filled();
  const Source copy(original);
  EXPECT_NE(original.channel_id(), copy.channel_id());
  original = Source(9, L"", 9, 9, 9, 9, false);
  expect_filled(copy);
  original = copy;
  expect_filled(original);
  EXPECT_NE(original.channel_id(), copy.channel_id());
  const Source moved(std::move(original));
  expect_filled(moved);
  expect_filled(original);  // NOLINT(bugprone-use-after-move): moving copies
}

TEST(MultiviewerSource, AssignmentToItselfDoesNothing) {
  Source source = filled();
  const Source& same = source;
  const wchar_t* const channel = source.channel_id();
  source = same;
  EXPECT_EQ(channel, source.channel_id());
  expect_filled(source);
}

TEST(MultiviewerSource, TakesItsOwnChannel) {
  Source source = filled();
  source = Source(2, source.channel_id(), 3, 4, 5, 6, false);
  expect_fields(source, 2, L"Channel A", 3, 4, 5, 6, false);
}

}  // namespace
}  // namespace Korvane::Media::MultiviewerSourceTests
