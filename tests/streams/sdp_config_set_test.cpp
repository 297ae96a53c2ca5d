#include "media/sdp_config_set.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace Korvane::Media::SdpConfigSetTests {
namespace {

static_assert(sizeof(SdpConfigSet) == sizeof(void*));
static_assert(!std::is_polymorphic_v<SdpConfigSet>);
static_assert(
    std::is_same_v<decltype(&SdpConfigSet::video_sdp), SdpConfig& (SdpConfigSet::*)() const>);
static_assert(
    std::is_same_v<decltype(&SdpConfigSet::audio_sdp), SdpConfig& (SdpConfigSet::*)() const>);
static_assert(
    std::is_same_v<decltype(&SdpConfigSet::anc_sdp), SdpConfig& (SdpConfigSet::*)() const>);

const SdpConfig& some_video() {
  static const SdpConfig config(SdpVideo, L"239.0.0.1", 5001);
  return config;
}

const SdpConfig& some_audio() {
  static const SdpConfig config(SdpAudio, L"239.0.0.2", 5002);
  return config;
}

const SdpConfig& some_anc() {
  static const SdpConfig config(SdpAnc, L"239.0.0.3", 5003);
  return config;
}

void expect_same(const char* place, SdpConfig& actual, const SdpConfig& expected) {
  EXPECT_TRUE(actual == expected) << place << ": type " << actual.type() << ", port "
                                  << actual.port();
}

void expect_set(const SdpConfigSet& set, const SdpConfig& video, const SdpConfig& audio,
                const SdpConfig& anc) {
  expect_same("video", set.video_sdp(), video);
  expect_same("audio", set.audio_sdp(), audio);
  expect_same("ancillary data", set.anc_sdp(), anc);
}

TEST(SdpConfigSet, FillsMissingEndpointsWithTheTypeOfTheirPlace) {
  expect_set(SdpConfigSet(), SdpVideo, SdpAudio, SdpAnc);
  expect_set(SdpConfigSet(some_video()), some_video(), SdpAudio, SdpAnc);
  expect_set(SdpConfigSet(some_video(), some_audio()), some_video(), some_audio(), SdpAnc);
  expect_set(SdpConfigSet(some_video(), some_audio(), some_anc()), some_video(), some_audio(),
             some_anc());
}

TEST(SdpConfigSet, KeepsArgumentsByPositionWhateverTheirType) {
  expect_set(SdpConfigSet(some_audio()), some_audio(), SdpAudio, SdpAnc);
  expect_set(SdpConfigSet(some_anc(), some_video()), some_anc(), some_video(), SdpAnc);
  expect_set(SdpConfigSet(some_audio(), some_anc(), some_video()), some_audio(), some_anc(),
             some_video());
  const SdpConfigSet set(SdpConfig(SdpAudio, L"10.0.0.1", 5004));
  EXPECT_EQ(1U, set.video_sdp().type());
  EXPECT_STREQ(L"10.0.0.1", set.video_sdp().ip_address());
  EXPECT_EQ(5004, set.video_sdp().port());
}

TEST(SdpConfigSet, KeepsCopiesOfItsArguments) {
  SdpConfig argument = some_video();
  const SdpConfigSet set(argument);
  argument = some_audio();
  expect_same("video", set.video_sdp(), some_video());
}

TEST(SdpConfigSet, IsChangedInPlaceAlsoWhenConst) {
  const SdpConfigSet set;
  SdpConfig& place = set.audio_sdp();
  set.anc_sdp() = some_anc();
  place = some_audio();
  EXPECT_EQ(&place, &set.audio_sdp());
  expect_set(set, SdpVideo, some_audio(), some_anc());
  set.video_sdp() = some_video();
  expect_set(set, some_video(), some_audio(), some_anc());
}

TEST(SdpConfigSet, CopiesAreIndependent) {
  const SdpConfigSet source(some_video(), some_audio(), some_anc());
  const SdpConfigSet copy(source);
  expect_set(copy, some_video(), some_audio(), some_anc());
  copy.video_sdp() = SdpConfig(SdpVideo);
  copy.audio_sdp() = SdpConfig(SdpAudio);
  copy.anc_sdp() = SdpConfig(SdpAnc);
  expect_set(source, some_video(), some_audio(), some_anc());
}

TEST(SdpConfigSet, AssignmentCopiesAllThree) {
  const SdpConfigSet source(some_video(), some_audio(), some_anc());
  SdpConfigSet target;
  target = source;
  expect_set(target, some_video(), some_audio(), some_anc());
  source.video_sdp() = some_anc();
  source.audio_sdp() = some_anc();
  source.anc_sdp() = some_video();
  expect_set(target, some_video(), some_audio(), some_anc());
}

TEST(SdpConfigSet, AssignmentToItselfDoesNothing) {
  SdpConfigSet set(some_video(), some_audio(), some_anc());
  const SdpConfig* const place = &set.video_sdp();
  const SdpConfigSet& same = set;
  set = same;
  EXPECT_EQ(place, &set.video_sdp());
  expect_set(set, some_video(), some_audio(), some_anc());
}

TEST(SdpConfigSet, TakesEndpointsOfItsOwn) {
  SdpConfigSet set(some_video(), some_audio(), some_anc());
  set.video_sdp() = set.anc_sdp();
  expect_set(set, some_anc(), some_audio(), some_anc());
  set.audio_sdp() = set.audio_sdp();
  expect_set(set, some_anc(), some_audio(), some_anc());
  set = SdpConfigSet(set.audio_sdp(), set.video_sdp(), set.audio_sdp());
  expect_set(set, some_audio(), some_anc(), some_audio());
}

}  // namespace
}  // namespace Korvane::Media::SdpConfigSetTests
