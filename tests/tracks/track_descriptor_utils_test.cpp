#include "media/track_descriptor_utils.h"

#include <gtest/gtest.h>

#include <set>

namespace Korvane::Media {
namespace {

using Members = std::set<unsigned int>;

const Members kAudio = {1, 7, 8, 9, 10};
const Members kVideo = {2,  3,  5,  6,  11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22,
                        23, 24, 25, 26, 27, 30, 31, 32, 33, 34, 35, 36, 37, 38, 39};
const Members kData = {28};
const Members kDnx = {2, 23, 24, 25, 26, 27};
const Members kProres = {16, 17, 18, 19, 20, 21};

TEST(TrackDescriptorUtils, EveryKindAndManyValuesBeyond) {
  for (unsigned int value = 0; value < 40 + 64; ++value) {
    SCOPED_TRACE(value);
    const auto kind = static_cast<TrackDescriptorEssenceKind>(value);
    EXPECT_EQ(kAudio.contains(value), TrackDescriptorUtils::is_audio_track(kind));
    EXPECT_EQ(kVideo.contains(value), TrackDescriptorUtils::is_video_track(kind));
    EXPECT_EQ(kData.contains(value), TrackDescriptorUtils::is_data_track(kind));
    EXPECT_EQ(kDnx.contains(value), TrackDescriptorUtils::is_dnx(kind));
    EXPECT_EQ(kProres.contains(value), TrackDescriptorUtils::is_prores(kind));
  }
}

TEST(TrackDescriptorUtils, ExtremeValuesBelongNowhere) {
  for (const unsigned int value : {0x80000000U, 0x80000002U, 0xFFFFFFFFU}) {
    SCOPED_TRACE(value);
    const auto kind = static_cast<TrackDescriptorEssenceKind>(value);
    EXPECT_FALSE(TrackDescriptorUtils::is_audio_track(kind));
    EXPECT_FALSE(TrackDescriptorUtils::is_video_track(kind));
    EXPECT_FALSE(TrackDescriptorUtils::is_data_track(kind));
    EXPECT_FALSE(TrackDescriptorUtils::is_dnx(kind));
    EXPECT_FALSE(TrackDescriptorUtils::is_prores(kind));
  }
}

struct Named {
  TrackDescriptorEssenceKind kind;
  unsigned int value;
};

constexpr Named kNames[] = {
    {EssenceNone, 0},      {EssenceAudio, 1},     {EssenceDnxhd, 2},     {EssenceVideo3, 3},
    {EssenceOther4, 4},    {EssenceMpeg2, 5},     {EssenceVideo6, 6},    {EssenceAudio7, 7},
    {EssencePcm, 8},       {EssenceAiff, 9},      {EssenceAudio10, 10},  {EssenceUncompressed, 11},
    {EssenceVideo12, 12},  {EssenceVideo13, 13},  {EssenceVideo14, 14},  {EssenceAvcIntra, 15},
    {EssenceProres16, 16}, {EssenceProres17, 17}, {EssenceProres18, 18}, {EssenceProres19, 19},
    {EssenceProres20, 20}, {EssenceProres21, 21}, {EssenceVideo22, 22},  {EssenceDnx23, 23},
    {EssenceDnx24, 24},    {EssenceDnx25, 25},    {EssenceDnx26, 26},    {EssenceDnx27, 27},
    {EssenceData, 28},     {EssenceOther29, 29},  {EssenceVideo30, 30},  {EssenceVideo31, 31},
    {EssenceVideo32, 32},  {EssenceVideo33, 33},  {EssenceVideo34, 34},  {EssenceVideo35, 35},
    {EssenceVideo36, 36},  {EssenceVideo37, 37},  {EssenceVideo38, 38},  {EssenceVideo39, 39},
};

TEST(TrackDescriptorEssenceKind, NamesAndValues) {
  EXPECT_EQ(40U, std::size(kNames));
  for (const Named& one : kNames) EXPECT_EQ(one.value, static_cast<unsigned int>(one.kind));
}

}  // namespace
}  // namespace Korvane::Media
