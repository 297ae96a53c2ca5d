#include "media/video_formats_helper.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "media/picture_track_descriptor.h"
#include "support/raises.h"

namespace Korvane::Media {
namespace {

struct Expected {
  VideoFormats format;
  unsigned int value;
  unsigned int width;
  unsigned int height;
  const char* scanning;
  Rational32 edit_rate;
  Rational32 aspect_ratio;
  unsigned short rounded_rate;
};

constexpr const char* kInterlaced = "interlaced";
constexpr const char* kProgressive = "progressive";

// clang-format off
constexpr Expected kExpected[] = {
    {Ntsc,            0,  720,  486,  kInterlaced,  {30000, 1001}, {4, 3},  30},
    {Pal,             1,  720,  576,  kInterlaced,  {25, 1},       {4, 3},  25},
    {Hd1080p2398,     2,  1920, 1080, kProgressive, {24000, 1001}, {16, 9}, 24},
    {Hd1080p24,       3,  1920, 1080, kProgressive, {24, 1},       {16, 9}, 24},
    {Hd1080p25,       4,  1920, 1080, kProgressive, {25, 1},       {16, 9}, 25},
    {Hd1080p2997,     5,  1920, 1080, kProgressive, {30000, 1001}, {16, 9}, 30},
    {Hd1080p30,       6,  1920, 1080, kProgressive, {30, 1},       {16, 9}, 30},
    {Hd1080p50,       7,  1920, 1080, kProgressive, {50, 1},       {16, 9}, 50},
    {Hd1080p50Alt,    8,  1920, 1080, kProgressive, {50, 1},       {16, 9}, 50},
    {Hd1080p5994,     9,  1920, 1080, kProgressive, {60000, 1001}, {16, 9}, 60},
    {Hd1080p5994Alt,  10, 1920, 1080, kProgressive, {60000, 1001}, {16, 9}, 60},
    {Hd1080p60,       11, 1920, 1080, kProgressive, {60, 1},       {16, 9}, 60},
    {Hd1080p60Alt,    12, 1920, 1080, kProgressive, {60, 1},       {16, 9}, 60},
    {Hd1080i50,       13, 1920, 1080, kInterlaced,  {25, 1},       {16, 9}, 25},
    {Hd1080i5994,     14, 1920, 1080, kInterlaced,  {30000, 1001}, {16, 9}, 30},
    {Hd1080i60,       15, 1920, 1080, kInterlaced,  {30, 1},       {16, 9}, 30},
    {Hd720p50,        16, 1280, 720,  kProgressive, {50, 1},       {16, 9}, 50},
    {Hd720p5994,      17, 1280, 720,  kProgressive, {60000, 1001}, {16, 9}, 60},
    {Hd720p60,        18, 1280, 720,  kProgressive, {60, 1},       {16, 9}, 60},
    {Hd1080p2997Alt,  19, 1920, 1080, kProgressive, {30000, 1001}, {16, 9}, 30},
    {Hd1080p25Alt,    20, 1920, 1080, kProgressive, {25, 1},       {16, 9}, 25},
    {Hd1080p2398Alt,  21, 1920, 1080, kProgressive, {24000, 1001}, {16, 9}, 24},
    {Uhd2160p60,      22, 3840, 2160, kProgressive, {60, 1},       {16, 9}, 60},
    {Uhd2160p60Alt,   23, 3840, 2160, kProgressive, {60, 1},       {16, 9}, 60},
    {Uhd2160p5994,    24, 3840, 2160, kProgressive, {60000, 1001}, {16, 9}, 60},
    {Uhd2160p5994Alt, 25, 3840, 2160, kProgressive, {60000, 1001}, {16, 9}, 60},
    {Uhd2160p50,      26, 3840, 2160, kProgressive, {50, 1},       {16, 9}, 50},
    {Uhd2160p50Alt,   27, 3840, 2160, kProgressive, {50, 1},       {16, 9}, 50},
    {Uhd2160p30,      28, 3840, 2160, kProgressive, {30, 1},       {16, 9}, 30},
    {Uhd2160p2997,    29, 3840, 2160, kProgressive, {30000, 1001}, {16, 9}, 30},
    {Uhd2160p25,      30, 3840, 2160, kProgressive, {25, 1},       {16, 9}, 25},
    {Uhd2160p24,      31, 3840, 2160, kProgressive, {24, 1},       {16, 9}, 24},
    {Uhd2160p2398,    32, 3840, 2160, kProgressive, {24000, 1001}, {16, 9}, 24},
    {Uhd2160p2997Alt, 33, 3840, 2160, kProgressive, {30000, 1001}, {16, 9}, 30},
    {Uhd2160p25Alt,   34, 3840, 2160, kProgressive, {25, 1},       {16, 9}, 25},
    {Uhd2160p2398Alt, 35, 3840, 2160, kProgressive, {24000, 1001}, {16, 9}, 24},
    {Hd1080p2997Alt2, 36, 1920, 1080, kProgressive, {30000, 1001}, {16, 9}, 30},
    {Hd1080p25Alt2,   37, 1920, 1080, kProgressive, {25, 1},       {16, 9}, 25},
};
// clang-format on

TEST(VideoFormatsHelper, EveryFormat) {
  ASSERT_EQ(38U, std::size(kExpected));
  for (const Expected& one : kExpected) {
    SCOPED_TRACE(one.value);
    EXPECT_EQ(one.value, static_cast<unsigned int>(one.format));
    EXPECT_EQ(one.width, VideoFormatsHelper::width(one.format));
    EXPECT_EQ(one.height, VideoFormatsHelper::height(one.format));
    EXPECT_EQ(one.scanning == kInterlaced, VideoFormatsHelper::interlaced(one.format));
    EXPECT_EQ(one.edit_rate.numerator, VideoFormatsHelper::edit_rate(one.format).numerator);
    EXPECT_EQ(one.edit_rate.denominator, VideoFormatsHelper::edit_rate(one.format).denominator);
    EXPECT_EQ(one.aspect_ratio.numerator, VideoFormatsHelper::aspect_ratio(one.format).numerator);
    EXPECT_EQ(one.aspect_ratio.denominator,
              VideoFormatsHelper::aspect_ratio(one.format).denominator);
    EXPECT_EQ(one.rounded_rate, VideoFormatsHelper::rounded_frame_rate(one.format));
  }
}

// The unknown format, 64 values beyond it, and the ends of the type.
std::vector<VideoFormats> formats_without_a_row() {
  std::vector<VideoFormats> formats;
  for (unsigned int value = 38; value <= 38 + 64; ++value)
    formats.push_back(static_cast<VideoFormats>(value));
  for (const unsigned int value : {0x7FFFFFFFU, 0x80000000U, 0x80000001U, 0xFFFFFFFFU})
    formats.push_back(static_cast<VideoFormats>(value));
  return formats;
}

TEST(VideoFormatsHelper, EveryMappingRefusesWhatIsNoFormat) {
  EXPECT_EQ(38U, static_cast<unsigned int>(UnknownFormat));
  for (const VideoFormats format : formats_without_a_row()) {
    SCOPED_TRACE(format);
    EXPECT_TRUE(raises(InvalidArgument, "Unsupported value for video parameters (width mapping)",
                       [&] { VideoFormatsHelper::width(format); }));
    EXPECT_TRUE(raises(InvalidArgument, "Unsupported value for video parameters (height mapping)",
                       [&] { VideoFormatsHelper::height(format); }));
    EXPECT_TRUE(raises(InvalidArgument,
                       "Unsupported value for video parameters (interlaced mapping)",
                       [&] { VideoFormatsHelper::interlaced(format); }));
    EXPECT_TRUE(raises(InvalidArgument,
                       "Unsupported value for video parameters (edit rate mapping)",
                       [&] { VideoFormatsHelper::edit_rate(format); }));
    EXPECT_TRUE(raises(InvalidArgument,
                       "Unsupported value for video parameters (aspect ratio mapping)",
                       [&] { VideoFormatsHelper::aspect_ratio(format); }));
    EXPECT_TRUE(raises(InvalidArgument, "Unable to retrieve rounded frame rate for given format",
                       [&] { VideoFormatsHelper::rounded_frame_rate(format); }));
    EXPECT_FALSE(VideoFormatsHelper::is_uhd_format(format));
  }
}

TEST(VideoFormatsHelper, UhdIsASetOfFormatsNotARaster) {
  for (unsigned int value = 0; value < 38; ++value) {
    const bool expected = value == 22 || value == 24 || value == 26 || (value >= 28 && value <= 35);
    EXPECT_EQ(expected, VideoFormatsHelper::is_uhd_format(static_cast<VideoFormats>(value)))
        << value;
  }
}

TEST(VideoFormatsHelper, RatesAreComparedAsWritten) {
  struct Rate {
    Rational32 rate;
    bool pal;
    bool hd720;
  };
  constexpr int kLowest = -2147483647 - 1;
  constexpr Rate kRates[] = {
      {{25, 1}, true, false},       {{50, 1}, true, true},          {{25, 2}, false, false},
      {{50, 2}, false, false},      {{100, 2}, false, false},       {{-25, 1}, false, false},
      {{25, -1}, false, false},     {{-25, -1}, false, false},      {{25, 0}, false, false},
      {{60000, 1001}, false, true}, {{5994, 100}, false, true},     {{60, 1}, false, true},
      {{2997, 50}, false, false},   {{120, 2}, false, false},       {{60000, 1000}, false, false},
      {{60, 1001}, false, false},   {{30000, 1001}, false, false},  {{24, 1}, false, false},
      {{30, 1}, false, false},      {{0, 0}, false, false},         {{0, 1}, false, false},
      {{5994, 1001}, false, false}, {{kLowest, 1}, false, false},   {{-60, -1}, false, false},
      {{60000, 1}, false, false},   {{120000, 2002}, false, false}, {{50, 100}, false, false},
  };
  for (const Rate& one : kRates) {
    SCOPED_TRACE(std::to_string(one.rate.numerator) + '/' + std::to_string(one.rate.denominator));
    EXPECT_EQ(one.pal, VideoFormatsHelper::is_pal(one.rate));
    EXPECT_EQ(one.hd720, VideoFormatsHelper::is_720p_edit_rate(one.rate));
  }
}

TEST(VideoFormatsHelper, DimensionsOfStandardDefinition) {
  for (unsigned int width = 700; width < 740; ++width)
    for (unsigned int height = 400; height < 700; ++height) {
      EXPECT_EQ(width == 720 && (height == 576 || height == 625),
                VideoFormatsHelper::is_pal_dimensions(width, height));
      EXPECT_EQ(width == 720 && (height == 486 || height == 525),
                VideoFormatsHelper::is_ntsc_dimensions(width, height));
    }
  EXPECT_FALSE(VideoFormatsHelper::is_pal_dimensions(576, 720));
  EXPECT_FALSE(VideoFormatsHelper::is_ntsc_dimensions(486, 720));
}

PictureTrackDescriptor described(unsigned int width, unsigned int height, bool interlaced,
                                 Rational32 rate) {
  PictureTrackDescriptor track;
  track.width(width);
  track.height(height);
  track.interlaced(interlaced);
  track.sample_rate(rate);
  return track;
}

constexpr Rational32 kRates[] = {
    {24000, 1001}, {24, 1},     {25, 1},    {30000, 1001}, {30, 1},       {50, 1}, {60000, 1001},
    {60, 1},       {50, 2},     {25, 2},    {60, 2},       {120, 2},      {48, 1}, {5994, 100},
    {2997, 100},   {2398, 100}, {120, 1},   {0, 1},        {25, 0},       {0, 0},  {-25, 1},
    {-25, -1},     {24, 1001},  {24000, 1}, {60000, 1000}, {1001, 30000}, {1, 25},
};

// The rates of which each raster knows a format, and the formats, in the order of kRates.
constexpr unsigned int kNone = 38;
constexpr unsigned int k1080Progressive[] = {2, 3, 4, 5, 6, 7, 9, 11};
constexpr unsigned int k1080Interlaced[] = {kNone, kNone, 13, 14, 15, kNone, kNone, kNone};
constexpr unsigned int k720Progressive[] = {kNone, kNone, kNone, kNone, kNone, 16, 17, 18};
constexpr unsigned int k2160Progressive[] = {32, 31, 30, 29, 28, 26, 24, 22};
constexpr unsigned int kNothing[] = {kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone};
constexpr unsigned int kPal[] = {1, 1, 1, 1, 1, 1, 1, 1};
constexpr unsigned int kNtsc[] = {0, 0, 0, 0, 0, 0, 0, 0};

struct Raster {
  unsigned int width;
  unsigned int height;
  const unsigned int* progressive;
  const unsigned int* interlaced;
  unsigned int other_rates;
};

constexpr Raster kRasters[] = {
    {720, 576, kPal, kPal, 1},
    {720, 625, kPal, kPal, 1},
    {720, 486, kNtsc, kNtsc, 0},
    {720, 525, kNtsc, kNtsc, 0},
    {1920, 1080, k1080Progressive, k1080Interlaced, kNone},
    {1280, 720, k720Progressive, kNothing, kNone},
    {3840, 2160, k2160Progressive, kNothing, kNone},
    {720, 480, kNothing, kNothing, kNone},
    {720, 577, kNothing, kNothing, kNone},
    {704, 576, kNothing, kNothing, kNone},
    {1440, 1080, kNothing, kNothing, kNone},
    {1920, 1088, kNothing, kNothing, kNone},
    {1080, 1920, kNothing, kNothing, kNone},
    {1280, 1080, kNothing, kNothing, kNone},
    {1920, 720, kNothing, kNothing, kNone},
    {4096, 2160, kNothing, kNothing, kNone},
    {7680, 4320, kNothing, kNothing, kNone},
    {0, 0, kNothing, kNothing, kNone},
    {0xFFFFFFFFU, 0xFFFFFFFFU, kNothing, kNothing, kNone},
};

TEST(FormatFromDescriptor, EveryRasterScanningAndRate) {
  for (const Raster& raster : kRasters)
    for (std::size_t i = 0; i < std::size(kRates); ++i) {
      SCOPED_TRACE(std::to_string(raster.width) + 'x' + std::to_string(raster.height) + " at " +
                   std::to_string(kRates[i].numerator) + '/' +
                   std::to_string(kRates[i].denominator));
      const bool named = i < std::size(k1080Progressive);
      EXPECT_EQ(named ? raster.progressive[i] : raster.other_rates,
                VideoFormatsHelper::format_from_descriptor(
                    described(raster.width, raster.height, false, kRates[i])));
      EXPECT_EQ(named ? raster.interlaced[i] : raster.other_rates,
                VideoFormatsHelper::format_from_descriptor(
                    described(raster.width, raster.height, true, kRates[i])));
    }
}

// Bits of `given`: width, height, interlaced, sample rate.
TEST(FormatFromDescriptor, AsksForWidthHeightInterlacedAndRateInThisOrder) {
  for (const unsigned int height : {576U, 1080U})
    for (unsigned int given = 0; given < 16; ++given) {
      SCOPED_TRACE(given);
      PictureTrackDescriptor track;
      if ((given & 1U) != 0) track.width(height == 576 ? 720 : 1920);
      if ((given & 2U) != 0) track.height(height);
      if ((given & 4U) != 0) track.interlaced(true);
      if ((given & 8U) != 0) track.sample_rate({25, 1});
      const char* message = nullptr;
      if ((given & 8U) == 0) message = "Picture track descriptor doesn't define sample_rate";
      if ((given & 4U) == 0) message = "Picture track descriptor doesn't define interlaced";
      if ((given & 2U) == 0) message = "Picture track descriptor doesn't define height";
      if ((given & 1U) == 0) message = "Picture track descriptor doesn't define width";
      if (message == nullptr)
        EXPECT_EQ(height == 576 ? 1U : 13U, VideoFormatsHelper::format_from_descriptor(track));
      else
        EXPECT_TRUE(raises(MissingProperty, message,
                           [&] { VideoFormatsHelper::format_from_descriptor(track); }));
    }
}

}  // namespace
}  // namespace Korvane::Media
