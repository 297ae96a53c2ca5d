// The broadcast formats that the engine tells apart. Interlaced formats are named by their field
// rate, progressive ones by their frame rate. The engine alone knows what sets those ending in Alt
// and Alt2 apart from their namesakes; VideoFormatsHelper gives them the same raster and rate.

#ifndef KV_ENGINE_MEDIA_VIDEO_FORMATS_H
#define KV_ENGINE_MEDIA_VIDEO_FORMATS_H

namespace Korvane {
namespace Media {

enum VideoFormats : unsigned int {
  Ntsc = 0,
  Pal = 1,
  Hd1080p2398 = 2,
  Hd1080p24 = 3,
  Hd1080p25 = 4,
  Hd1080p2997 = 5,
  Hd1080p30 = 6,
  Hd1080p50 = 7,
  Hd1080p50Alt = 8,
  Hd1080p5994 = 9,
  Hd1080p5994Alt = 10,
  Hd1080p60 = 11,
  Hd1080p60Alt = 12,
  Hd1080i50 = 13,
  Hd1080i5994 = 14,
  Hd1080i60 = 15,
  Hd720p50 = 16,
  Hd720p5994 = 17,
  Hd720p60 = 18,
  Hd1080p2997Alt = 19,
  Hd1080p25Alt = 20,
  Hd1080p2398Alt = 21,
  Uhd2160p60 = 22,
  Uhd2160p60Alt = 23,
  Uhd2160p5994 = 24,
  Uhd2160p5994Alt = 25,
  Uhd2160p50 = 26,
  Uhd2160p50Alt = 27,
  Uhd2160p30 = 28,
  Uhd2160p2997 = 29,
  Uhd2160p25 = 30,
  Uhd2160p24 = 31,
  Uhd2160p2398 = 32,
  Uhd2160p2997Alt = 33,
  Uhd2160p25Alt = 34,
  Uhd2160p2398Alt = 35,
  Hd1080p2997Alt2 = 36,
  Hd1080p25Alt2 = 37,
  UnknownFormat = 38  // when nothing matches; no mapping takes it
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_VIDEO_FORMATS_H
