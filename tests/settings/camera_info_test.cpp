#include "media/camera_info.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <utility>

#include "support/raises.h"

namespace Korvane::Media::CameraInfoTests {
namespace {

static_assert(sizeof(CameraInfo) == sizeof(void*));
static_assert(!std::is_polymorphic_v<CameraInfo>);
static_assert(sizeof(Cameras) == 4);
static_assert(sizeof(CameraState) == 4);
// As they were published.
static_assert(std::is_same_v<decltype(&CameraInfo::camera), Cameras (CameraInfo::*)()>);
using StateGetter = CameraState (CameraInfo::*)();
static_assert(std::is_same_v<decltype(static_cast<StateGetter>(&CameraInfo::state)), StateGetter>);
static_assert(std::is_same_v<decltype(&CameraInfo::operator==),
                             bool (CameraInfo::*)(const CameraInfo&) const>);
static_assert(std::is_same_v<decltype(&CameraInfo::operator!=),
                             bool (CameraInfo::*)(const CameraInfo&) const>);

constexpr auto camera_of(unsigned int value) { return static_cast<Cameras>(value); }
constexpr auto state_of(unsigned int value) { return static_cast<CameraState>(value); }

void expect_fields(CameraInfo& info, unsigned int camera, unsigned int state, bool recording,
                   const char* clip_name) {
  EXPECT_EQ(camera_of(camera), info.camera());
  EXPECT_EQ(state_of(state), info.state());
  EXPECT_EQ(recording, info.recording());
  EXPECT_STREQ(clip_name, info.clip_name());
}

TEST(CameraInfo, WhatIsNotGivenIsZero) {
  CameraInfo nothing;
  expect_fields(nothing, 0, 0, false, "");
  CameraInfo camera(camera_of(7));
  expect_fields(camera, 7, 0, false, "");
  CameraInfo state(camera_of(7), state_of(8));
  expect_fields(state, 7, 8, false, "");
  CameraInfo all(camera_of(7), state_of(8), true, "clip");
  expect_fields(all, 7, 8, true, "clip");
}

TEST(CameraInfo, CarriesAnyCameraAndState) {
  for (const unsigned int value : {0U, 1U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
    CameraInfo info(camera_of(value), state_of(~value));
    expect_fields(info, value, ~value, false, "");
    EXPECT_TRUE(CameraInfo(camera_of(value)) ==
                CameraInfo(camera_of(value), state_of(0), false, ""));
  }
}

TEST(CameraInfo, EachSetterChangesItsField) {
  CameraInfo info(camera_of(7));
  info.state(state_of(2));
  expect_fields(info, 7, 2, false, "");
  info.recording(true);
  expect_fields(info, 7, 2, true, "");
  info.clip_name("clip");
  expect_fields(info, 7, 2, true, "clip");
  info.recording(false);
  info.clip_name("");
  expect_fields(info, 7, 2, false, "");
}

TEST(CameraInfo, AnUpdateChangesAllButTheCamera) {
  CameraInfo info(camera_of(7), state_of(1), false, "old");
  info.update_info(state_of(2), true, "new");
  expect_fields(info, 7, 2, true, "new");
}

TEST(CameraInfo, KeepsCopiesOfTheClipName) {
  const std::string kept = "Gr\xC3\xBC\xC3\x9F, a clip that is too long for a short buffer";
  std::string name = kept;
  CameraInfo info(camera_of(1), state_of(1), true, name.c_str());
  name[0] = 'X';
  EXPECT_EQ(kept, info.clip_name());
  name = kept;
  info.clip_name(name.c_str());
  name[0] = 'X';
  EXPECT_EQ(kept, info.clip_name());
  name = kept;
  info.update_info(state_of(1), true, name.c_str());
  name[0] = 'X';
  EXPECT_EQ(kept, info.clip_name());
}

TEST(CameraInfo, TakesItsOwnClipName) {
  for (const std::string whole : {"clip", "a clip that is too long for a short buffer"}) {
    CameraInfo info(camera_of(1), state_of(1), true, whole.c_str());
    info.clip_name(info.clip_name());
    EXPECT_EQ(whole, info.clip_name());
    info.clip_name(info.clip_name() + 1);
    EXPECT_EQ(whole.substr(1), info.clip_name());
    info.update_info(state_of(3), false, info.clip_name());
    expect_fields(info, 1, 3, false, whole.substr(1).c_str());
    info.update_info(state_of(3), false, info.clip_name() + 1);
    EXPECT_EQ(whole.substr(2), info.clip_name());
    info = CameraInfo(camera_of(2), state_of(1), true, info.clip_name());
    EXPECT_EQ(whole.substr(2), info.clip_name());
  }
}

TEST(CameraInfo, ANullClipNameIsRefusedAndChangesNothing) {
  const char* const message = "Text must not be null";
  EXPECT_TRUE(raises(InvalidArgument, message,
                     [] { const CameraInfo info(camera_of(1), state_of(1), true, nullptr); }));
  CameraInfo info(camera_of(7), state_of(1), false, "clip");
  EXPECT_TRUE(raises(InvalidArgument, message, [&] { info.clip_name(nullptr); }));
  EXPECT_TRUE(
      raises(InvalidArgument, message, [&] { info.update_info(state_of(2), true, nullptr); }));
  expect_fields(info, 7, 1, false, "clip");
}

TEST(CameraInfo, IsEqualWhenEveryFieldIs) {
  const CameraInfo info(camera_of(7), state_of(1), true, "clip");
  const CameraInfo same(camera_of(7), state_of(1), true, "clip");
  EXPECT_TRUE(info == same);
  EXPECT_FALSE(info != same);
  EXPECT_TRUE(CameraInfo() == CameraInfo(camera_of(0)));
}

TEST(CameraInfo, DiffersByEveryField) {
  const CameraInfo info(camera_of(7), state_of(1), true, "clip");
  for (const CameraInfo& other : {CameraInfo(camera_of(8), state_of(1), true, "clip"),
                                  CameraInfo(camera_of(7), state_of(2), true, "clip"),
                                  CameraInfo(camera_of(7), state_of(1), false, "clip"),
                                  CameraInfo(camera_of(7), state_of(1), true, "Clip"),
                                  CameraInfo(camera_of(7), state_of(1), true, "clip "),
                                  CameraInfo(camera_of(7), state_of(1), true, "cli"),
                                  CameraInfo(camera_of(7), state_of(1), true, "")}) {
    EXPECT_FALSE(info == other) << other.clip_name();
    EXPECT_TRUE(info != other) << other.clip_name();
    EXPECT_FALSE(other == info) << other.clip_name();
  }
}

TEST(CameraInfo, CopiesAreDeep) {
  CameraInfo original(camera_of(7), state_of(1), true, "clip");
  CameraInfo copy(original);
  original.update_info(state_of(2), false, "other");
  expect_fields(copy, 7, 1, true, "clip");
  CameraInfo assigned(camera_of(9));
  assigned = copy;  // the camera with the rest
  copy.clip_name("other");
  expect_fields(assigned, 7, 1, true, "clip");
  CameraInfo moved(std::move(assigned));
  expect_fields(moved, 7, 1, true, "clip");
  expect_fields(assigned, 7, 1, true, "clip");  // NOLINT(bugprone-use-after-move): moving copies
}

TEST(CameraInfo, AssignmentToItselfDoesNothing) {
  CameraInfo info(camera_of(7), state_of(1), true, "clip");
  const CameraInfo& same = info;
  const char* const name = info.clip_name();
  info = same;
  EXPECT_EQ(name, info.clip_name());
  expect_fields(info, 7, 1, true, "clip");
}

}  // namespace
}  // namespace Korvane::Media::CameraInfoTests
