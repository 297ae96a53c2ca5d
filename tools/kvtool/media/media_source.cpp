#include "failure.h"
#include "media/frame_timecodes.h"
#include "media/video_track.h"
#include "media_inputs.h"

namespace Korvane::Tool {
namespace {

class MediaSource : public TimecodeSource {
 public:
  MediaSource(Input& input, const std::optional<Rate>& wanted)
      : file_(input),
        stream_(file_.first_stream(AVMEDIA_TYPE_VIDEO, "video")),
        rate_(timecode_rate_of(file_, stream_)),
        timecodes_(file_, stream_, rate_) {
    if (wanted && wanted->nominal != rate_.nominal)
      throw InputError(file_.name() + ": has timecode rate " + describe(rate_) + " (expected " +
                       std::to_string(wanted->nominal) + ", which --rate gives)");
  }

  std::optional<Entry> next() override {
    const std::optional<FrameTimecode> found = timecodes_.next();
    if (!found) return std::nullopt;
    const auto frames_on = static_cast<long long>(found->frame - last_frame_);
    last_frame_ = found->frame;
    return Entry{found->value, found->frame, frames_on};
  }

  unsigned short frame_rate() const override { return rate_.nominal; }
  const char* unit() const override { return "frame"; }
  unsigned long long bytes_read() const override { return file_.bytes_read(); }

 private:
  MediaFile file_;
  AVStream& stream_;
  Rate rate_;
  FrameTimecodes timecodes_;
  unsigned long long last_frame_ = 0;
};

}  // namespace

std::unique_ptr<TimecodeSource> open_media_timecodes(Input& input,
                                                     const std::optional<Rate>& rate) {
  return std::make_unique<MediaSource>(input, rate);
}

}  // namespace Korvane::Tool
