// Finds the video format of what a file or a signal says of itself, and what a buffer of it takes.

#include <iostream>

#include "ext/print.h"

namespace {

namespace Media = Korvane::Media;
namespace ColorspacesUtils = Korvane::ColorspacesUtils;

Media::PictureTrackDescriptor picture(unsigned int width, unsigned int height, bool interlaced,
                                      Korvane::Rational32 frames_per_second) {
  Media::PictureTrackDescriptor track;
  track.width(width);
  track.height(height);
  track.interlaced(interlaced);
  track.sample_rate(frames_per_second);
  return track;
}

// Bytes of a frame: the lines of each plane, as long as its stride.
unsigned int frame_size(Media::VideoFormats format, Korvane::Colorspaces colorspace) {
  const unsigned int width = Media::VideoFormatsHelper::width(format);
  const unsigned int height = Media::VideoFormatsHelper::height(format);
  unsigned int bytes = 0;
  for (unsigned int plane = 0; plane < ColorspacesUtils::planes_for_colorspace(colorspace); ++plane)
    bytes += ColorspacesUtils::stride_for_colorspace(colorspace, width, plane) *
             ColorspacesUtils::heigth_for_colorspace(colorspace, height, plane);
  return bytes;
}

void match(const Media::PictureTrackDescriptor& track) {
  const Media::VideoFormats format = Media::VideoFormatsHelper::format_from_descriptor(track);
  std::cout << format;
  if (format != Media::UnknownFormat)
    std::cout << ": timecode rate " << Media::VideoFormatsHelper::rounded_frame_rate(format)
              << ", a frame of " << Korvane::V210 << " takes " << frame_size(format, Korvane::V210)
              << " bytes";
  std::cout << '\n';
}

}  // namespace

int main() {
  match(picture(1920, 1080, true, {30000, 1001}));
  match(picture(1920, 1080, false, {50, 1}));
  match(picture(1920, 1080, false, {100, 2}));  // rates are compared as they are written
  match(picture(720, 576, true, {25, 1}));

  Media::PictureTrackDescriptor unfinished;
  unfinished.width(1920);
  try {
    match(unfinished);
  } catch (const Korvane::Exception& exception) {
    std::cout << exception << '\n';
  }
}
